#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>

class QWidget;

/// What a widget shows, read back from pixels.
namespace Picture {

/// The widget rendered at @p scale device pixels a logical pixel, over transparency.
QImage of(QWidget *widget, qreal scale = 1.0);

/// The colour at @p point (logical pixels).
QColor colourAt(QWidget *widget, QPoint point, qreal scale = 1.0);

/// The smallest rectangle round all pixels of @p image that are not transparent; null when all are.
QRect drawnArea(const QImage &image);

} // namespace Picture
