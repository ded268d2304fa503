#include "choosers/oVIXButton.h"

#include "choosers/AccessibleChoosers.h"
#include "foundation/AccessibleWidgets.h"
#include "foundation/ElidedText.h"
#include "foundation/KeyboardPress.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"

#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconGap = 6;
constexpr int narrowest = 24;
constexpr double disabledOpacity = 0.2;

QString buttonSheet()
{
    return u"oVIXButton {"
           "\tborder:0px;"
           "\tborder-radius:4px;"
           "\tpadding:4px 12px;"
           "\tcolor:rgb(219,219,219);"
           "\tbackground-color:rgb(59,59,59);}"
           "oVIXButton:hover {"
           "\tbackground-color:rgb(81,81,81);}"
           "oVIXButton[checked=\"true\"] {"
           "\tcolor:rgb(28,28,28);"
           "\tbackground-color:rgb(116, 211, 252);}"
           "oVIXButton:disabled {"
           "\tcolor:rgb(105,105,105);"
           "\tbackground-color:rgba(59,59,59,127);}"_s;
}

} // namespace

oVIXButton::oVIXButton(QWidget *parent) : QLabel(parent)
{
    AccessibleChoosers::install();
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setStyleSheet(buttonSheet());
}

oVIXButton::oVIXButton(const QString &text, QWidget *parent) : oVIXButton(parent)
{
    setText(text);
}

oVIXButton::~oVIXButton() = default;

void oVIXButton::setIcon(const QString &filename)
{
    m_icon = filename;
    updateGeometry();
    update();
}

QString oVIXButton::icon() const
{
    return m_icon;
}

void oVIXButton::setCheckedIcon(const QString &filename)
{
    m_checkedIcon = filename;
    updateGeometry();
    update();
}

QString oVIXButton::checkedIcon() const
{
    return m_checkedIcon;
}

void oVIXButton::setCheckable(bool checkable)
{
    m_checkable = checkable;
}

bool oVIXButton::isCheckable() const
{
    return m_checkable;
}

void oVIXButton::setChecked(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    // The sheet, whoever set it, may look at the checked state.
    style()->unpolish(this);
    style()->polish(this);
    updateGeometry();
    update();
    AccessibleWidgets::announceChecked(this);
}

bool oVIXButton::isChecked() const
{
    return m_checked;
}

QSize oVIXButton::sizeHint() const
{
    return ElidedText::sizeOf(this).grownBy({iconWidth(), 0, 0, 0});
}

QSize oVIXButton::minimumSizeHint() const
{
    const QSize hint = ElidedText::sizeOf(this);
    return {qMin(hint.width(), narrowest), hint.height()};
}

void oVIXButton::click()
{
    if (!isEnabled())
        return;
    if (m_checkable)
        setChecked(!m_checked);
    emit clicked();
}

void oVIXButton::setEnabled(bool enabled)
{
    QLabel::setEnabled(enabled);
}

void oVIXButton::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void oVIXButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (!rect().contains(event->position().toPoint()))
        return;
    if (event->button() == Qt::LeftButton)
        click();
    else if (event->button() == Qt::RightButton)
        emit rightClicked(event->globalPosition().toPoint());
}

void oVIXButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
}

void oVIXButton::keyPressEvent(QKeyEvent *event)
{
    if (!isPressKey(this, event))
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

void oVIXButton::paintEvent(QPaintEvent *)
{
    const QRect room = ElidedText::roomOf(this).adjusted(iconWidth(), 0, 0, 0);
    const QString shown = ElidedText::of(this, room.width());
    ElidedText::paint(this, room, shown);
    if (!shownIcon().isEmpty())
        paintIcon(room, fontMetrics().horizontalAdvance(shown));
    paintFocusRing(this);
}

QString oVIXButton::shownIcon() const
{
    return m_checked && !m_checkedIcon.isEmpty() ? m_checkedIcon : m_icon;
}

int oVIXButton::iconSide() const
{
    return fontMetrics().height();
}

/// With the gap after it; 0 without an icon.
int oVIXButton::iconWidth() const
{
    return shownIcon().isEmpty() ? 0 : iconSide() + iconGap;
}

/// The icon stands before the text, wherever the alignment puts that.
void oVIXButton::paintIcon(const QRect &room, int textWidth)
{
    const QRect text = QStyle::alignedRect(Qt::LeftToRight, alignment(), QSize(textWidth, iconSide()), room);
    OvixSvgKey key;
    key.devicePixelRatio = devicePixelRatio();
    key.size = QSize(iconSide(), iconSide());
    key.opacity = isEnabled() ? 1.0 : disabledOpacity;
    key.layers = {OvixSvgLayer{shownIcon(), {}, {}}};
    QPainter(this).drawPixmap(text.left() - iconWidth(), text.top(), OvixSvgRenderer::get(key));
}
