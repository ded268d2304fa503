#pragma once

#include <algorithm>

/// What the play value of a timebar depends on, in frames.
struct PlayLimits
{
    int cached = 0;
    int maximum = 0;
    int cropStart = 0;
    int cropEnd = 0;
};

/// The play value after @p frame was asked for: not beyond what has been computed, where @p playValue stays, and inside
/// the crop. The crop's end wins when its ends are the wrong way round.
inline int nextPlayValue(int playValue, int frame, const PlayLimits &limits)
{
    const bool reached = frame <= limits.cached && frame <= limits.maximum;
    return std::min(std::max(reached ? frame : playValue, limits.cropStart), limits.cropEnd);
}

/// A crop range, in frames.
struct Crop
{
    int start = 0;
    int end = 0;
};

inline Crop orderedCrop(int first, int second)
{
    return {std::min(first, second), std::max(first, second)};
}

/// The crop after one of its markers was moved to @p frame. A marker that has passed the other one takes it along.
inline Crop cropWithStartAt(int frame, const Crop &crop, bool hasPassedEnd)
{
    return {frame, hasPassedEnd ? frame : crop.end};
}

inline Crop cropWithEndAt(int frame, const Crop &crop, bool hasPassedStart)
{
    return {hasPassedStart ? frame : crop.start, frame};
}

/// Where playing goes on when the current frame is outside the crop: at its start from either side, which makes it play
/// in a loop.
inline bool jumpsToCropStart(int frame, const Crop &crop)
{
    return frame < crop.start || frame > crop.end;
}

/// The first and last x of a marker's left edge.
struct MarkerWay
{
    int first = 0;
    int last = 0;
};

/// The ways of a timebar's markers: the current one points with its middle, the left one with its left edge, the right
/// one with its right edge.
struct MarkerWays
{
    MarkerWay currentTime;
    MarkerWay leftCrop;
    MarkerWay rightCrop;
};

/// @p left and @p right are the margins of an area of this width.
inline MarkerWays markerWays(int areaWidth, int left, int right, int markerWidth)
{
    const int half = markerWidth / 2;
    return {{left - half, areaWidth - half - right},
            {left, areaWidth - right},
            {left - markerWidth, areaWidth - right - markerWidth}};
}
