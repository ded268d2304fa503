#pragma once

class QKeyEvent;
class QWidget;

/// True for the keys that press a clickable widget to which the application has given a focus policy: Space, Return and
/// Enter, not repeated and without modifiers.
bool isPressKey(const QWidget *widget, const QKeyEvent *event);

/// Draws the keyboard focus on a widget that has it, inside its own paint event.
void paintFocusRing(QWidget *widget);
