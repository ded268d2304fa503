#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <algorithm>

/// Where a pop-up of this size goes that is asked for at @p point and kept inside @p around. It ends one pixel inside
/// the right and bottom edges; one that is too large sticks out at the left or at the top.
inline QPoint popupPlace(QPoint point, QSize size, const QRect &around)
{
    return {std::min(std::max(around.left(), point.x()), around.right() - size.width()),
            std::min(std::max(around.top(), point.y()), around.bottom() - size.height())};
}
