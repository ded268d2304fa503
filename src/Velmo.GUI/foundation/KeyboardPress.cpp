#include "foundation/KeyboardPress.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

namespace {

const QColor ringColour(116, 211, 252);
constexpr qreal ringWidth = 1.0;
constexpr qreal ringRadius = 3.0;

} // namespace

bool hasKeyboardFocus(const QWidget *widget)
{
    return widget->focusPolicy() != Qt::NoFocus && widget->hasFocus();
}

bool isPressKey(const QWidget *widget, const QKeyEvent *event)
{
    if (!hasKeyboardFocus(widget))
        return false;
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

void paintFocusRing(QWidget *widget)
{
    paintFocusRing(widget, widget);
}

void paintFocusRing(QWidget *widget, const QWidget *focused)
{
    paintFocusRing(widget, focused, widget->rect(), ringRadius);
}

void paintFocusRing(QWidget *widget, const QWidget *focused, const QRect &place, qreal radius)
{
    if (!hasKeyboardFocus(focused))
        return;
    QPainter painter(widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ringColour, ringWidth));
    const qreal inset = ringWidth / 2;
    painter.drawRoundedRect(QRectF(place).adjusted(inset, inset, -inset, -inset), radius, radius);
}
