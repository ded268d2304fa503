#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

/// When the next picture of an animation comes, and which one it is.
namespace AnimationRules {

/// Milliseconds until the next frame: what the frame asks for, at least @p minimumDelay, less what the last wait of
/// @p interval was overdue when @p elapsed had passed. Never below 0.
inline int nextInterval(int frameDelay, int minimumDelay, qint64 elapsed, int interval)
{
    const qint64 overdue = std::max(elapsed - interval, qint64(0));
    return int(std::max(std::max(frameDelay, minimumDelay) - overdue, qint64(0)));
}

/// The position in a round of @p count frames, @p milliseconds later at @p speed frames a second. What goes beyond the
/// count begins again; exactly the count is no overrun, and nothing wraps below 0.
inline float advanced(float position, qint64 milliseconds, float speed, int count)
{
    double moved = double(position) + double(milliseconds) * double(speed) / 1000.0;
    if (moved > count) {
        moved = std::fmod(moved, count);
        if (moved == 0.0)
            moved = count;
    }
    return float(std::max(moved, double(std::numeric_limits<float>::lowest())));
}

/// Whether another frame is to be shown.
inline bool isOtherFrame(float before, float now)
{
    return std::trunc(before) != std::trunc(now);
}

/// The frame of a position among @p size ones; the nearest where there is none.
inline qsizetype frameAt(float position, qsizetype size)
{
    return qsizetype(std::clamp(position, 0.0F, float(size - 1)));
}

} // namespace AnimationRules
