#pragma once

class oVIXSliderWidget;

/// What assistive tools are told about slider bars and slider widgets: sliders with a range, a step and a value that
/// can be set as a user sets it.
namespace AccessibleSlider {

/// Makes the interfaces known; both classes call this when they are constructed.
void install();

/// Tells assistive tools that the value has changed.
void announceValue(oVIXSliderWidget *slider);

} // namespace AccessibleSlider
