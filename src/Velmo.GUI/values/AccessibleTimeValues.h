#pragma once

class QWidget;

/// Markers and progress bars as assistive tools see them: values in a range. Setting the value of a marker moves it as
/// if it were typed, that of a progress bar which can be clicked picks it.
namespace AccessibleTimeValues {

void install();

/// Tells assistive tools about a new value.
void announce(QWidget *widget, int value);

} // namespace AccessibleTimeValues
