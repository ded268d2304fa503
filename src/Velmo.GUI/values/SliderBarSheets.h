#pragma once

#include <QString>

/// The two complete style sheets of a slider bar, from plain values.
struct SliderBarSheets
{
    struct Look
    {
        /// Fractions of the width; 0 or less on the left and 1 or more on the right mean that there is no such marker.
        float left;
        float right;
        int width;
        bool borderLeft;
        bool borderRight;
        bool roundedLeft;
        bool roundedRight;

        bool operator==(const Look &) const = default;
    };

    QString hover;
    QString normal;

    static SliderBarSheets of(const Look &look);
};
