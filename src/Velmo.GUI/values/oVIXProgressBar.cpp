#include "values/oVIXProgressBar.h"

#include "values/AccessibleTimeValues.h"
#include "values/ProgressGeometry.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double cornerRadius = 2.5;
const QColor groundColour(39, 39, 39);
const QColor doneColour(59, 59, 59);
const QColor cropColour(81, 81, 81);
const QColor playedColour(116, 211, 252);

void drawBand(QPainter &painter, const QRect &bar, const BarBands::Band &band, const QColor &colour)
{
    if (band.right <= band.left)
        return;
    QPainterPath path;
    path.addRoundedRect(QRectF(band.left, bar.top(), band.right - band.left, bar.height()), cornerRadius, cornerRadius);
    painter.fillPath(path, colour);
}

} // namespace

oVIXProgressBar::oVIXProgressBar()
{
    // The base class asks for a paint only when its own look would change.
    connect(this, &QProgressBar::valueChanged, this, qOverload<>(&QWidget::update));
    initValues();
    AccessibleTimeValues::install();
}

oVIXProgressBar::oVIXProgressBar(QWidget *parent) : oVIXProgressBar()
{
    setParent(parent);
}

oVIXProgressBar::~oVIXProgressBar() = default;

void oVIXProgressBar::setBands(int cropStart, int cropEnd, int playValue)
{
    m_cropStart = cropStart;
    m_cropEnd = cropEnd;
    m_playValue = playValue;
}

int oVIXProgressBar::getSelectedValue() const
{
    return m_selectedValue;
}

void oVIXProgressBar::setClickable(bool clickable)
{
    m_clickable = clickable;
}

bool oVIXProgressBar::isClickable() const
{
    return m_clickable;
}

void oVIXProgressBar::initValues()
{
    m_selectedValue = 0;
    m_clickable = true;
}

void oVIXProgressBar::draw(QRect &rect)
{
    const BarBands bands =
        barBands({maximum(), value(), m_cropStart, m_cropEnd, m_playValue}, rect.left(), rect.width());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBand(painter, rect, {double(rect.left()), double(rect.left()) + rect.width()}, groundColour);
    drawBand(painter, rect, bands.done, doneColour);
    drawBand(painter, rect, bands.crop, cropColour);
    drawBand(painter, rect, bands.played, playedColour);
}

void oVIXProgressBar::paintEvent(QPaintEvent *)
{
    QRect whole = rect(); // whatever part of it is exposed
    draw(whole);
}

void oVIXProgressBar::mouseReleaseEvent(QMouseEvent *event)
{
    pick(pickedBarValue(event->position().x(), width(), maximum()));
}

void oVIXProgressBar::pick(int value)
{
    if (!m_clickable)
        return;
    m_selectedValue = value;
    emit valuePicked();
}
