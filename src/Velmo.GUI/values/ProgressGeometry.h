#pragma once

#include "values/SaturatedInt.h"

#include <QWidget>

#include <algorithm>

/// What a progress bar shows, in values of the bar.
struct BarState
{
    int maximum = 0;
    int value = 0;
    int cropStart = 0;
    int cropEnd = 0;
    int playValue = 0;
};

/// The coloured bands above the track, as x coordinates of their ends.
struct BarBands
{
    struct Band
    {
        double left = 0.0;
        double right = 0.0;
    };
    Band done;
    Band crop;
    Band played;
};

/// The bands of a bar that begins at @p left and is @p width wide, none of which leaves it. Without values above 0 all
/// bands are empty.
inline BarBands barBands(const BarState &bar, double left, double width)
{
    const auto pixel = [&bar, left, width](int value) {
        return bar.maximum > 0 ? left + std::clamp(double(value) / bar.maximum, 0.0, 1.0) * width : left;
    };
    const auto bandFromCropStart = [&bar, &pixel](int end) {
        return BarBands::Band{pixel(bar.cropStart), pixel(std::max(bar.cropStart, std::min(bar.value, end)))};
    };
    return {{left, pixel(bar.value)}, bandFromCropStart(bar.cropEnd), bandFromCropStart(bar.playValue)};
}

/// The value that a click at @p x picks on a bar that is @p width wide.
inline int pickedBarValue(double x, int width, int maximum)
{
    const double ratio = width > 0 ? std::clamp(x / width, 0.0, 1.0) : 0.0;
    return saturatedInt(maximum * ratio);
}

/// How wide a floating bar is below a parent of this width: a stub of one eleventh at 0 percent, all of it at 100.
inline int floatingBarWidth(int parentWidth, int percent)
{
    const qint64 width = qint64(parentWidth) * (qint64(percent) + 10) / 110;
    return int(std::clamp<qint64>(width, 0, QWIDGETSIZE_MAX));
}
