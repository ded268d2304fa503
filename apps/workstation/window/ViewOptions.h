#pragma once

#include <QString>

/// How a scene is shown.
struct ViewOptions
{
    enum class Colours : int { Tags, Types, Goals };

    enum class Mode : int { Dots, Trails, Density };

    Mode mode = Mode::Dots;
    /// What people of one colour have in common.
    Colours colours = Colours::Tags;
    bool goals = false;
    bool vehicles = true;
    /// 1 shows the whole ground.
    double zoom = 1.0;
    /// Only movers of this type are bright; everyone when empty.
    QString highlightedType;
    /// Only movers with this tag are bright; everyone when empty.
    QString highlightedTag;

    static constexpr double smallestZoom = 0.25;
    static constexpr double largestZoom = 16.0;
};
