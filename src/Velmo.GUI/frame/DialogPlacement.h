#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

#include <algorithm>

/// Where a dialog of @p size goes so that its centre falls on @p centre. Only the vertical position is kept on screen:
/// not above the absolute 0, and with its bottom not below @p available.
inline QPoint centredOn(QPoint centre, QSize size, const QRect &available)
{
    QRect place(QPoint(), size);
    place.moveCenter(centre);
    return {place.x(), std::max(0, std::min(place.y(), available.bottom() - size.height()))};
}

/// The rectangle whose top left is nearest to @p point by the sum of the distances along x and y, the first one of
/// several; -1 without rectangles.
inline int nearestTopLeft(const QList<QRect> &rects, QPoint point)
{
    int nearest = -1;
    int smallest = 0;
    for (int i = 0; i < rects.size(); ++i) {
        const int distance = (rects[i].topLeft() - point).manhattanLength();
        if (nearest < 0 || distance < smallest) {
            nearest = i;
            smallest = distance;
        }
    }
    return nearest;
}
