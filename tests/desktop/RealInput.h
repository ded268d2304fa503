#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

class QWidget;

/// The pointer and the keyboard of the display, moved as a user would: everything goes through the window system and
/// the window manager. Points are global, in logical pixels. Events are processed meanwhile.
namespace RealInput {

/// Shows @p window and waits until the window manager has placed it there with the keyboard focus.
void show(QWidget *window, const QRect &geometry);

void moveTo(QPoint point);
void press();
void release();
void click(QPoint point);
void doubleClick(QPoint point);
/// With the right button.
void contextClick(QPoint point);
/// Turns the wheel by so many notches, away from the user when positive.
void wheel(QPoint point, int notches);
/// Press, several moves, release.
void drag(QPoint from, QPoint to);
/// Keys by their X names, as "Return" and "ctrl+o".
void key(const QString &keys);
void type(const QString &text);

} // namespace RealInput
