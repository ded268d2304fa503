#pragma once

class QWidget;

/// Markers and floating progress bars as assistive tools see them: values in a range.
namespace AccessibleTimeValues {

void install();

/// Tells assistive tools about a new value.
void announce(QWidget *widget, int value);

} // namespace AccessibleTimeValues
