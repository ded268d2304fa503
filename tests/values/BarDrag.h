#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

/// A mouse event of this button at @p x, sent straight to a widget. Says whether the widget has taken it.
inline bool sendMouse(QWidget *target, QEvent::Type type, int x, Qt::MouseButton button = Qt::LeftButton)
{
    const QPointF place(x, target->height() / 2);
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, place, target->mapToGlobal(place), moves ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, {});
    event.setAccepted(false);
    QCoreApplication::sendEvent(target, &event);
    return event.isAccepted();
}
