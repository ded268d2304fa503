#pragma once

#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"

#include <QCursor>
#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <QString>

#include <algorithm>

/// What a cursor is made of.
struct CursorPicture
{
    /// Resource path of the drawing.
    const char *path;
    /// The logical pixel that points.
    QPoint hotSpot;
    /// What to show without the drawing.
    Qt::CursorShape standard;
};

namespace CursorPictures {

/// Whether nothing can be seen of a picture. The icon service gives such a one for a file that it cannot read.
inline bool isBlank(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(line, line + image.width(), [](QRgb pixel) { return qAlpha(pixel) > 0; }))
            return false;
    }
    return true;
}

/// The cursor of a drawing, @p extent logical pixels wide and high.
inline QCursor draw(const CursorPicture &picture, int extent, double devicePixelRatio)
{
    OvixSvgKey key;
    key.devicePixelRatio = devicePixelRatio;
    key.size = QSize(extent, extent);
    key.layers = {{QString::fromLatin1(picture.path), {}, {}}};
    const QPixmap pixmap = OvixSvgRenderer::get(key);
    return isBlank(pixmap) ? QCursor(picture.standard) : QCursor(pixmap, picture.hotSpot.x(), picture.hotSpot.y());
}

} // namespace CursorPictures
