#pragma once

#include <QtGlobal>

class QKeyEvent;
class QRect;
class QWidget;

/// Whether the application has made the widget answer keys, and it has the focus itself, not one of its children.
bool hasKeyboardFocus(const QWidget *widget);

/// Whether the key is one that presses a clickable widget that has the keyboard focus: Space, Return and Enter without
/// modifiers. A key that repeats belongs to the widget too, but presses only once: see `QKeyEvent::isAutoRepeat`.
bool isPressKey(const QWidget *widget, const QKeyEvent *event);

/// Draws the keyboard focus on a widget that has it, inside its own paint event.
void paintFocusRing(QWidget *widget);
/// The same on a child that covers @p focused, the widget that takes the keyboard.
void paintFocusRing(QWidget *widget, const QWidget *focused);
/// The same round @p place, a part of the widget with corners of @p radius.
void paintFocusRing(QWidget *widget, const QWidget *focused, const QRect &place, qreal radius);
