#include "values/oVIXSliderBar.h"

#include "foundation/SheetOnChange.h"
#include "values/AccessibleSlider.h"
#include "values/SliderBarRules.h"
#include "values/SliderBarSheets.h"

#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <optional>

/// The sheets and what they were made from: they are long, and most steps of a drag stay inside a pixel.
struct oVIXSliderBar::Style
{
    std::optional<SliderBarSheets::Look> look;
    SliderBarSheets sheets;
};

oVIXSliderBar::oVIXSliderBar(QWidget *parent) : QLabel(parent), m_style(new Style)
{
    AccessibleSlider::install();
}

oVIXSliderBar::~oVIXSliderBar() = default;

void oVIXSliderBar::posMarkers(float left, float right)
{
    m_leftMarker = placedMarker(m_leftMarker, left, width());
    m_rightMarker = placedMarker(m_rightMarker, right, width());
    markStyleDirty();
}

float oVIXSliderBar::leftMarker() const
{
    return m_leftMarker;
}

float oVIXSliderBar::rightMarker() const
{
    return m_rightMarker;
}

void oVIXSliderBar::setBorderLeft(bool border)
{
    m_borderLeft = border;
    markStyleDirty();
}

void oVIXSliderBar::setBorderRight(bool border)
{
    m_borderRight = border;
    markStyleDirty();
}

void oVIXSliderBar::setRoundedLeft(bool rounded)
{
    m_roundedLeft = rounded;
    markStyleDirty();
}

void oVIXSliderBar::setRoundedRight(bool rounded)
{
    m_roundedRight = rounded;
    markStyleDirty();
}

double oVIXSliderBar::getSelectedValue() const
{
    return m_selectedValue;
}

void oVIXSliderBar::pick(double ratio)
{
    if (!isEnabled() || std::isnan(ratio))
        return;
    const QPointer<oVIXSliderBar> alive(this);
    emit valueStarted();
    if (alive)
        select(std::clamp(ratio, 0.0, 1.0));
    if (alive)
        emit valueFinished();
}

void oVIXSliderBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    emit valueStarted();
}

void oVIXSliderBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    const QPointer<oVIXSliderBar> alive(this);
    select(pickedRatio(event->position().toPoint().x(), width()));
    if (alive)
        emit valueFinished();
}

void oVIXSliderBar::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        event->ignore();
        return;
    }
    event->accept();
    select(pickedRatio(event->position().toPoint().x(), width()));
}

void oVIXSliderBar::enterEvent(QEnterEvent *event)
{
    if (isEnabled() && !m_hovered) {
        m_hovered = true;
        update();
    }
    QLabel::enterEvent(event);
}

void oVIXSliderBar::leaveEvent(QEvent *event)
{
    if (m_hovered) {
        m_hovered = false;
        update();
    }
    QLabel::leaveEvent(event);
}

void oVIXSliderBar::paintEvent(QPaintEvent *event)
{
    const bool generate = m_styleDirty;
    if (generate) {
        generateStyle();
        m_styleDirty = false;
    }
    if (generate || m_hovered != m_appliedHover) {
        m_appliedHover = m_hovered;
        setSheetOnChange(this, m_hovered ? m_style->sheets.hover : m_style->sheets.normal);
    }
    QLabel::paintEvent(event);
}

void oVIXSliderBar::markStyleDirty()
{
    m_styleDirty = true;
    update();
}

void oVIXSliderBar::generateStyle()
{
    const SliderBarSheets::Look look{m_leftMarker,  m_rightMarker, width(),       m_borderLeft,
                                     m_borderRight, m_roundedLeft, m_roundedRight};
    if (m_style->look == look)
        return;
    m_style->look = look;
    m_style->sheets = SliderBarSheets::of(look);
}

void oVIXSliderBar::select(double ratio)
{
    m_selectedValue = ratio;
    emit valueChanged(ratio);
}
