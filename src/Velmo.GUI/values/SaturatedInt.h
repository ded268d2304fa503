#pragma once

#include <limits>

/// @p number without its fraction. What no int can hold becomes the nearest one that can be held, and NaN becomes 0: a
/// plain conversion of such numbers is undefined.
constexpr int saturatedInt(double number)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    if (number != number)
        return 0;
    if (number <= lowest)
        return lowest;
    return number >= highest ? highest : int(number);
}
