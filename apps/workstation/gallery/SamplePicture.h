#pragma once

#include <QPixmap>

/// A picture to try picture widgets with.
namespace SamplePicture {

/// A town square seen from above, drawn at this size: fine lines, large areas and a frame that shows any cut edge.
QPixmap draw(QSize size, qreal devicePixelRatio = 1.0);

} // namespace SamplePicture
