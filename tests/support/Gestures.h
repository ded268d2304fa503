#pragma once

#include <QEvent>
#include <QPoint>
#include <Qt>

class QWidget;

/// What a user does with the pointer, sent through the window so that the toolkit's own bookkeeping (widget under the
/// pointer, enter and leave, the pressed widget) follows. Points are in the widget's coordinates. At other scales than
/// 1 the pointer may pass over another widget on its way.
namespace Gestures {

/// Shows @p window and waits until it is on screen.
void show(QWidget *window);

/// Gives @p widget, whose window is shown, the keyboard.
void focus(QWidget *widget);

void hover(QWidget *widget, QPoint point);
/// Over the middle of the widget.
void hover(QWidget *widget);
/// Moves the pointer out of every window.
void leave();

void press(QWidget *widget, Qt::MouseButton button = Qt::LeftButton);
void release(QWidget *widget, Qt::MouseButton button = Qt::LeftButton);
/// Press and release in the middle of the widget.
void click(QWidget *widget, Qt::MouseButton button = Qt::LeftButton);
/// The whole sequence of a double click: press, release, double click, release.
void doubleClick(QWidget *widget, Qt::MouseButton button = Qt::LeftButton);

/// By so many eighths of a degree, over the middle of the widget.
void turnWheel(QWidget *widget, int delta = 120);

/// One mouse event sent straight to the widget; @p button is the one that a move holds. Says whether it is taken.
bool send(QWidget *widget, QEvent::Type type, QPoint point, Qt::MouseButton button = Qt::LeftButton);

} // namespace Gestures
