#pragma once

#include <QKeyEvent>
#include <QSize>

#include <algorithm>
#include <cmath>

/// Radius of the circle that is revealed of an area, in whole pixels. At progress 1 it reaches the corners.
inline int revealedRadius(QSize area, float progress)
{
    constexpr float beyondAnyScreen = 1e6F;
    const QSize half(area.width() / 2, area.height() / 2);
    const int whole = int(std::hypot(half.width(), half.height()));
    return int(std::clamp(float(whole) * progress, 0.0F, beyondAnyScreen));
}

/// What a key does to a guided tour.
enum class GuideKey { None, Back, Next, Skip };

inline GuideKey guideKeyOf(const QKeyEvent &event, Qt::LayoutDirection direction)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return GuideKey::None;
    const bool leftToRight = direction == Qt::LeftToRight;
    switch (event.key()) {
    case Qt::Key_Escape:
        return GuideKey::Skip;
    case Qt::Key_Left:
        return leftToRight ? GuideKey::Back : GuideKey::Next;
    case Qt::Key_Right:
        return leftToRight ? GuideKey::Next : GuideKey::Back;
    default:
        return GuideKey::None;
    }
}
