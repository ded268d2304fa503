#pragma once

#include "VelmoGuiExport.h"

class QPixmap;

/// Scales pixmaps smoothly for screens of any density.
///
/// Widths and heights are logical pixels. The result has them times @p devicePixelRatio device pixels and carries that
/// ratio. A null pixmap, a size or ratio that is zero, negative or not a number, or a result with a side beyond 32,767
/// device pixels gives a null pixmap.
class VELMO_GUI_EXPORT QPixmapScaling
{
public:
    /// The largest picture within the size that keeps the pixmap's aspect ratio.
    static QPixmap scale(const QPixmap &pixmap, int width, int height, double devicePixelRatio);
    /// The picture at this width, as high as its aspect ratio makes it.
    static QPixmap scaleToWidth(const QPixmap &pixmap, int width, double devicePixelRatio);
    /// The picture at this height, as wide as its aspect ratio makes it.
    static QPixmap scaleToHeight(const QPixmap &pixmap, int height, double devicePixelRatio);
};
