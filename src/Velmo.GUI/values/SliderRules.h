#pragma once

#include "values/SaturatedInt.h"

#include <algorithm>
#include <cmath>
#include <limits>

/// The arithmetic of a slider widget. @p minimum is the lower limit of the editor that a handle belongs to, and
/// @p sliderMaximum the value at the right end of the bar: a soft limit, so ratios may lie beyond 1.
namespace SliderRules {

/// Differences up to this are none.
inline constexpr double tolerance = 1e-6;

inline double nearestFinite(double number)
{
    return std::clamp(number, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
}

inline float singlePrecision(double number)
{
    constexpr auto largest = double(std::numeric_limits<float>::max());
    return float(std::clamp(number, -largest, largest));
}

/// The place of a value on the bar. On a bar without a range it is at one of the ends.
inline double ratioOf(double value, double minimum, double sliderMaximum)
{
    if (sliderMaximum == minimum)
        return value > minimum ? 1.0 : 0.0;
    return (value - minimum) / (sliderMaximum - minimum);
}

/// The value at a place on the bar.
inline double valueAt(double ratio, double minimum, double sliderMaximum)
{
    return ratio * sliderMaximum + minimum * (1 - ratio);
}

/// The place nearest to this one that stands for a whole number, or for a whole number of hundredths from the minimum.
/// Kept in single precision.
inline double snappedRatio(double ratio, double minimum, double sliderMaximum, bool toInteger)
{
    const double range = sliderMaximum - minimum;
    if (range == 0)
        return 0.0;
    const double value = range * ratio + minimum;
    if (toInteger)
        return double(singlePrecision(saturatedInt(std::floor(value + 0.5)) - minimum)) / range;
    const auto hundredths = float(saturatedInt(std::floor((value - minimum) * 100 + 0.5)));
    return double(hundredths / 100) / range;
}

/// Which handle of a range a drag to @p ratio moves: the nearer one, the minimum when both are as near. Two handles
/// that rest together at the bottom can be pulled apart, since a maximum at its lower limit always moves.
inline bool movesMaximum(double ratio, double minimumRatio, double maximumRatio, bool maximumAtItsLowest)
{
    return std::abs(minimumRatio - ratio) > std::abs(maximumRatio - ratio) || maximumAtItsLowest;
}

inline bool isAtLimit(double value, double limit)
{
    return std::abs(value - limit) <= tolerance;
}

/// Whether an edit that has come to its end has changed nothing.
inline bool isUnchanged(double before, double now)
{
    return std::abs(before - now) < tolerance;
}

} // namespace SliderRules
