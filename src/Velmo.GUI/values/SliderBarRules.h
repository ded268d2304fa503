#pragma once

#include "values/SaturatedInt.h"

#include <algorithm>

/// Where the marker of a slider bar of this width comes to rest, as a fraction of the width: on a whole pixel. A
/// negative @p wanted leaves it at @p current, and so does what is not a number. A bar without a width has no pixels.
inline float placedMarker(float current, float wanted, int width)
{
    if (!(wanted >= 0.0F))
        return current;
    if (width <= 0)
        return wanted;
    const auto pixels = float(width);
    return float(saturatedInt(double(pixels * wanted + 0.5F))) / pixels;
}

/// The share of the width that lies left of @p x, 0 to 1.
inline double pickedRatio(int x, int width)
{
    if (width <= 0)
        return 0.0;
    return std::min(std::max(double(x) / width, 0.0), 1.0);
}
