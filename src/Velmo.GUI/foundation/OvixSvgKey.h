#pragma once

#include "VelmoGuiExport.h"

#include <QList>
#include <QMargins>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <cstddef>

/// One SVG document of a picture.
struct OvixSvgLayer
{
    /// Path of the SVG file, in practice a resource path without file ending such as ":/Windows/ClearCross".
    QString filename;
    /// Where the document goes, in logical pixels from the top left of the area inside the key's margins. A null
    /// rectangle means that whole area. The drawn position takes its x from the rectangle's top and its y from the
    /// rectangle's left; callers rely on it.
    QRect rect;
    /// Ids of the elements to draw, each at its place in the document. Empty: the whole document.
    QStringList elementIds;
};

/// Names one rendered icon: what to draw, how large, for which screen.
///
/// Two keys are equal exactly when their hashes with seed 0 are. The shadow is not part of the hash: of two keys that
/// differ in nothing else, the one asked for first decides whether the shared picture has a shadow.
struct OvixSvgKey
{
    /// Device pixels a logical pixel of the target widget; the finished pixmap carries it.
    double devicePixelRatio = 1.0;
    /// The picture is rasterised at 2^supersampling times the needed resolution, then halved that many times.
    qint32 supersampling = 1;
    /// Size of the finished picture in logical pixels. An empty size gives a null pixmap.
    QSize size{-1, -1};
    /// Empty border round the drawing, in logical pixels; the drawing never gets smaller than one pixel.
    QMargins margins;
    /// Inverts red, green and blue of the finished picture and keeps alpha.
    bool inverted = false;
    /// Opacity of every layer, 0.0 to 1.0.
    double opacity = 1.0;
    /// Greater than 0: with a soft shadow behind the drawing.
    qint32 shadow = 0;
    /// The documents in painting order. Layers add up rather than cover each other.
    QList<OvixSvgLayer> layers;
};

/// Of everything that a layer has.
VELMO_GUI_EXPORT size_t qHash(const OvixSvgLayer &layer, size_t seed = 0) noexcept;
/// Of everything but the shadow.
VELMO_GUI_EXPORT size_t qHash(const OvixSvgKey &key, size_t seed = 0) noexcept;

/// Whether both name the same shared picture: equal hashes with seed 0.
VELMO_GUI_EXPORT bool operator==(const OvixSvgKey &left, const OvixSvgKey &right) noexcept;
/// The opposite.
inline bool operator!=(const OvixSvgKey &left, const OvixSvgKey &right) noexcept
{
    return !(left == right);
}
