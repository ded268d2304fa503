#include "foundation/OvixSvgRenderer.h"

#include "foundation/OvixSvgCacheCounters.h"
#include "foundation/OvixSvgKey.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QGraphicsBlurEffect>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A gibibyte, more than any screen asks for.
constexpr double maximumPixels = 256.0 * 1024 * 1024;

constexpr qreal shadowBlurRadius = 4.0;

int toPixels(double length)
{
    constexpr double largest = std::numeric_limits<int>::max();
    return int(std::lround(std::clamp(length, -largest, largest)));
}

/// What a border leaves of a side, at least one pixel.
int insideBorder(int side, double border)
{
    return toPixels(std::max(side - std::round(border), 1.0));
}

/// The raster size of a picture, or nothing where no picture of that size can be held.
std::optional<QSize> rasterSize(QSize size, double scale)
{
    const double width = size.width() * scale;
    const double height = size.height() * scale;
    // Written so that a scale that is not a number fails as well.
    const bool paintable = !size.isEmpty() && width >= 0.5 && height >= 0.5 && width * height <= maximumPixels;
    if (!paintable)
        return std::nullopt;
    return QSize(toPixels(width), toPixels(height));
}

/// The parser complains aloud about files that are missing or no SVG, so they are kept from it.
bool holdsSvgDocument(const QString &filename)
{
    if (!QFileInfo(filename).isFile())
        return false;
    QFile file(filename);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // Taken for compressed by its name, and then complained about when it is not.
    if (filename.endsWith(".svgz"_L1, Qt::CaseInsensitive) || filename.endsWith(".svg.gz"_L1, Qt::CaseInsensitive))
        return file.peek(2) == "\x1f\x8b";

    QXmlStreamReader reader(&file);
    reader.setNamespaceProcessing(false); // drawing programs leave prefixes undeclared, and the parser does not mind
    if (!reader.readNextStartElement() || reader.name() != "svg"_L1)
        return false;
    // The parser looks no further than the first end of a drawing.
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::EndElement && reader.name() == "svg"_L1)
            return true;
    }
    return false;
}

/// Maps rectangles of a document to pixels of the image.
class DocumentPlacement
{
public:
    DocumentPlacement(const OvixSvgKey &key, const OvixSvgLayer &layer, const QRectF &viewBox, QSize inner,
                      double scale)
    {
        QPoint corner;
        QSize extent = inner;
        // In floating point, since the extent of a rectangle need not fit into an integer.
        const double width = double(layer.rect.right()) - layer.rect.left() + 1;
        const double height = double(layer.rect.bottom()) - layer.rect.top() + 1;
        if (width != 0 || height != 0) {
            corner = QPoint(toPixels(layer.rect.top() * scale), toPixels(layer.rect.left() * scale));
            extent = QSize(toPixels(width * scale), toPixels(height * scale));
        }
        m_scaleX = extent.width() / (viewBox.x() + viewBox.width());
        m_scaleY = extent.height() / (viewBox.y() + viewBox.height());
        m_offset = QPointF(key.margins.left() * scale + corner.x(), key.margins.top() * scale + corner.y());
    }

    bool isUsable() const { return std::isfinite(m_scaleX) && std::isfinite(m_scaleY); }

    QRectF map(const QRectF &rect) const
    {
        return {rect.x() * m_scaleX + m_offset.x(), rect.y() * m_scaleY + m_offset.y(), rect.width() * m_scaleX,
                rect.height() * m_scaleY};
    }

private:
    double m_scaleX = 0.0;
    double m_scaleY = 0.0;
    QPointF m_offset;
};

void drawLayer(QImage &image, const OvixSvgKey &key, const OvixSvgLayer &layer, QSvgRenderer &document, QSize inner,
               double scale)
{
    const DocumentPlacement placement(key, layer, document.viewBoxF(), inner, scale);
    if (!placement.isUsable())
        return;

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.setOpacity(key.opacity);

    if (layer.elementIds.isEmpty()) {
        document.render(&painter, placement.map(document.viewBoxF()));
        return;
    }
    for (const QString &id : layer.elementIds) {
        if (document.elementExists(id))
            document.render(&painter, id, placement.map(document.boundsOnElement(id)));
        else
            qDebug().noquote() << "Element with Id" << id << "is not present in the file" << layer.filename << ".";
    }
}

/// Halves the image @p times times, each time rounding to the nearest size.
QImage halved(QImage image, int times)
{
    QSize size = image.size();
    for (int i = 0; i < times; ++i) {
        const QSize half = size / 2.0;
        if (half == size)
            break; // one pixel stays one pixel, however often it is halved
        size = half;
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return image;
}

/// The item that lends an effect a place in a scene. It belongs to the effect: the effect would otherwise die with
/// the item that it is installed on.
class EffectItem : public QObject
{
public:
    static QGraphicsPixmapItem *of(QGraphicsEffect *effect)
    {
        for (QObject *child : effect->children()) {
            if (auto *known = dynamic_cast<EffectItem *>(child))
                return &known->m_item;
        }
        return &(new EffectItem(effect))->m_item;
    }

private:
    explicit EffectItem(QObject *effect) : QObject(effect) { }

    QGraphicsPixmapItem m_item;
};

} // namespace

struct OvixSvgRenderer::GlobalContext
{
    std::map<QString, std::unique_ptr<QSvgRenderer>> renderers;
    // By the seed-0 hash, which alone decides whether keys are equal.
    QHash<size_t, QPixmap> pixmaps;
    qsizetype loads = 0;

    QSvgRenderer &document(const QString &filename)
    {
        std::unique_ptr<QSvgRenderer> &renderer = renderers[filename];
        if (!renderer) {
            renderer = std::make_unique<QSvgRenderer>();
            if (holdsSvgDocument(filename)) {
                ++loads;
                renderer->load(filename);
            }
        }
        return *renderer;
    }

    QImage render(const OvixSvgKey &key)
    {
        const double scale = std::ldexp(key.devicePixelRatio, key.supersampling & 31);
        const std::optional<QSize> size = rasterSize(key.size, scale);
        if (!size)
            return {};
        QImage image(*size, QImage::Format_RGBA8888);
        if (image.isNull())
            return {};
        image.fill(Qt::transparent);

        const QMargins &margins = key.margins;
        const QSize inner(insideBorder(size->width(), (double(margins.left()) + margins.right()) * scale),
                          insideBorder(size->height(), (double(margins.top()) + margins.bottom()) * scale));
        for (const OvixSvgLayer &layer : key.layers) {
            QSvgRenderer &renderer = document(layer.filename);
            if (renderer.isValid())
                drawLayer(image, key, layer, renderer, inner, scale);
        }

        if (key.shadow > 0)
            image = generateShadow(std::move(image), key.shadow);
        image = halved(std::move(image), key.supersampling);
        if (key.inverted)
            image.invertPixels(QImage::InvertRgb);
        return image;
    }
};

OvixSvgRenderer::GlobalContext *OvixSvgRenderer::s_context = nullptr;

OvixSvgRenderer::OvixSvgRenderer() = default;
OvixSvgRenderer::~OvixSvgRenderer() = default;

OvixSvgRenderer::GlobalContext &OvixSvgRenderer::context()
{
    if (!s_context)
        s_context = new GlobalContext;
    return *s_context;
}

const QPixmap &OvixSvgRenderer::get(const OvixSvgKey &key)
{
    return get(key, qHash(key, 0));
}

const QPixmap &OvixSvgRenderer::get(const OvixSvgKey &key, size_t hash)
{
    GlobalContext &cache = context();
    const auto known = cache.pixmaps.constFind(hash);
    if (known != cache.pixmaps.constEnd())
        return *known;

    QPixmap pixmap = QPixmap::fromImage(cache.render(key));
    pixmap.setDevicePixelRatio(key.devicePixelRatio);
    return *cache.pixmaps.insert(hash, pixmap);
}

QImage OvixSvgRenderer::generateShadow(QImage image, int)
{
    if (image.isNull())
        return image;
    const qreal devicePixelRatio = image.devicePixelRatio();
    image.setDevicePixelRatio(1.0);
    if (image.depth() < 8 || image.format() == QImage::Format_Indexed8)
        image.convertTo(QImage::Format_RGBA8888); // no painter works on a palette

    QImage silhouette(image.size(), QImage::Format_RGBA8888);
    silhouette.fill(Qt::transparent);
    {
        QPainter painter(&silhouette);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(silhouette.rect(), QColor(0, 0, 0, 255));
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.drawImage(0, 0, image);
    }

    QGraphicsBlurEffect blur;
    blur.setBlurRadius(shadowBlurRadius);
    QImage halo;
    if (applyEffectToImage(silhouette, halo, &blur)) {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.drawImage(0, 0, halo);
    }
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

bool OvixSvgRenderer::applyEffectToImage(QImage source, QImage &destination, QGraphicsEffect *effect)
{
    if (source.isNull() || !effect)
        return false;

    source.setDevicePixelRatio(1.0);
    destination = QImage(source.size(), QImage::Format_RGBA8888);
    destination.fill(Qt::transparent);

    QGraphicsPixmapItem *item = EffectItem::of(effect);
    item->setPixmap(QPixmap::fromImage(source));
    item->setGraphicsEffect(effect);
    QGraphicsScene scene;
    scene.addItem(item);
    {
        QPainter painter(&destination);
        scene.render(&painter, QRectF(), QRectF(source.rect()), Qt::KeepAspectRatio);
    }
    scene.removeItem(item);
    item->setPixmap(QPixmap());
    return true;
}

qsizetype OvixSvgCacheCounters::pixmaps()
{
    return OvixSvgRenderer::context().pixmaps.size();
}

qsizetype OvixSvgCacheCounters::documents()
{
    return qsizetype(OvixSvgRenderer::context().renderers.size());
}

qsizetype OvixSvgCacheCounters::loads()
{
    return OvixSvgRenderer::context().loads;
}

qint64 OvixSvgCacheCounters::bytes()
{
    qint64 sum = 0;
    for (const QPixmap &pixmap : std::as_const(OvixSvgRenderer::context().pixmaps))
        sum += qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
    return sum;
}
