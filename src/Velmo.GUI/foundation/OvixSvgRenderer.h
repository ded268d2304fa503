#pragma once

#include "VelmoGuiExport.h"

#include <QImage>
#include <QObject>

#include <cstddef>

struct OvixSvgKey;
class QGraphicsEffect;
class QPixmap;

/// The process-wide service that renders the library's icons and keeps them.
///
/// The first request for a key parses its SVG files and rasterises the picture; every later one costs a table look-up.
/// Documents and pixmaps are kept until the process ends: nothing is evicted, and a file that changes on disk is not
/// read again. GUI thread only.
class VELMO_GUI_EXPORT OvixSvgRenderer : public QObject
{
    Q_OBJECT

public:
    /// The service needs no object: its functions are static.
    OvixSvgRenderer();
    ~OvixSvgRenderer() override;

    /// The picture that @p key names. The reference is valid until the next call: copy the pixmap.
    ///
    /// Files that cannot be read or parsed are left out, so a key without one good file gives a transparent picture of
    /// the asked size. A size that is empty, not a number, or too large to be held gives a null pixmap. All of these
    /// are kept like any other picture. An element id that a document does not have is reported to the debug output.
    static const QPixmap &get(const OvixSvgKey &key);

    /// A copy of @p image with a black halo behind it, centred, blurred by 4 pixels. The radius is not used.
    static QImage generateShadow(QImage image, int radius);

    /// Renders @p source through @p effect into @p destination, which becomes an image of the source's size. False,
    /// with @p destination left as it was, when the source or the effect is null. The effect stays the caller's; it is
    /// taken away from the widget or item that had it installed.
    static bool applyEffectToImage(QImage source, QImage &destination, QGraphicsEffect *effect);

private:
    friend class OvixSvgLabel;
    friend class OvixSvgCacheCounters;

    struct GlobalContext;
    static GlobalContext &context();
    static const QPixmap &get(const OvixSvgKey &key, size_t hash);

    static GlobalContext *s_context;
};
