#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// The geometry of a window or panel after one step of one of its edge grips.
///
/// @p fromTopOrLeft moves the left and top edges, and only while the size stays strictly above @p minimum: a step that
/// would land on it is refused whole. Otherwise the right and bottom edges move, and whoever applies the geometry
/// clamps it.
inline QRect resizedByGrip(QRect geometry, QPoint delta, bool fromTopOrLeft, QSize minimum)
{
    if (!fromTopOrLeft)
        return geometry.adjusted(0, 0, delta.x(), delta.y());

    const int width = geometry.width();
    const int height = geometry.height();
    if (width - delta.x() > minimum.width())
        geometry.setLeft(geometry.left() + delta.x());
    if (height - delta.y() > minimum.height())
        geometry.setTop(geometry.top() + delta.y());
    return geometry;
}
