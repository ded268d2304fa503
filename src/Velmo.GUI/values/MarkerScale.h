#pragma once

#include "values/SaturatedInt.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

/// Which pixel stands for which value on a marker's way, in single precision. Positions are those of the marker's left
/// edge; the two ends may coincide or lie the wrong way round in a parent that is too narrow.
struct MarkerScale
{
    int minimumPosition = 0;
    int maximumPosition = 100;
    int maximumValue = 100;

    /// 0 when both ends are one.
    int valueAt(int x) const
    {
        return length() == 0.0F ? 0 : saturatedInt(std::floor(distanceTo(x) / length() * float(maximumValue)));
    }

    /// The same for a marker on its way under the pointer, multiplied before it is divided: the last digit may differ.
    float draggedValueAt(int x) const
    {
        return length() == 0.0F ? 0.0F : std::floor(float(maximumValue) * distanceTo(x) / length());
    }

    bool hasValue(int value) const { return value >= 0 && value <= maximumValue; }

    /// Without values above 0 there is only the first position.
    int positionOf(int value) const
    {
        if (maximumValue == 0)
            return minimumPosition;
        return saturatedInt(std::floor(float(value) / float(maximumValue) * length() + float(minimumPosition)));
    }

    int nearestPosition(int x) const { return std::max(minimumPosition, std::min(x, maximumPosition)); }

private:
    float distanceTo(int x) const { return float(qint64(x) - minimumPosition); }
    float length() const { return distanceTo(maximumPosition); }
};
