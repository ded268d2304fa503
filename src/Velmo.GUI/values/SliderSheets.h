#pragma once

#include <QString>

/// The fixed style sheets of a slider widget's children.
namespace SliderSheets {

/// A number box of this class ("QSpinBox"), @p side being "left" or "right". The side takes the place of the top
/// corner's radius too, so only the bottom corner is rounded: the established look.
QString editor(const QString &className, const QString &side);
QString lateralFrame();
/// The value and the prefix in the lateral frame.
QString lateralText(const QString &className);
QString lateralText(const QString &className, const QString &colour);

} // namespace SliderSheets
