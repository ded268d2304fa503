#include "support/Drawings.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/OvixSvgCacheCounters.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"

#include <QFile>
#include <QGraphicsOpacityEffect>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QPointer>
#include <QTest>
#include <QWidget>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// A filled square as a compressed file.
constexpr char compressedSquare[] =
    "H4sIAAAAAAACAx2LQQqAMAwEvxLyABMVPEjbg1/R0hbUShuMz7cKexiGWVPvAM+xn9ViFLlmIlXtdOxyCTQwM7UC4U5el/xY"
    "ZGDopzZ0pvhVQNMm0WITEH0KUX4mZ76jewFAHmBJYAAAAA==";

OvixSvgKey keyOf(const QString &filename, QSize size = {16, 16}, int supersampling = 0)
{
    OvixSvgKey key;
    key.supersampling = supersampling;
    key.size = size;
    key.layers = {{filename, {}, {}}};
    return key;
}

QImage imageOf(const OvixSvgKey &key)
{
    return OvixSvgRenderer::get(key).toImage();
}

/// A square of one colour in the middle of a transparent picture.
QImage squareInTheMiddle(QImage::Format format = QImage::Format_RGBA8888)
{
    QImage image(32, 32, QImage::Format_RGBA8888);
    image.fill(Qt::transparent);
    for (int y = 12; y < 20; ++y)
        for (int x = 12; x < 20; ++x)
            image.setPixelColor(x, y, Qt::red);
    return image.convertToFormat(format);
}

} // namespace

using Change = std::function<void(OvixSvgKey &)>;
Q_DECLARE_METATYPE(Change)

class OvixSvgRendererTest : public TestCase
{
    Q_OBJECT

private slots:
    void aKeyStartsWithoutAPicture()
    {
        const OvixSvgKey key;
        QCOMPARE(key.devicePixelRatio, 1.0);
        QCOMPARE(key.supersampling, 1);
        QCOMPARE(key.size, QSize(-1, -1));
        QCOMPARE(key.opacity, 1.0);
        QVERIFY(key.margins.isNull() && !key.inverted && key.shadow == 0 && key.layers.isEmpty());
    }

    void aKeyIsAllItsFieldsButTheShadow_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("equal");
        const auto row = [](const char *name, bool equal, const Change &change) {
            QTest::newRow(name) << change << equal;
        };
        row("nothing", true, [](OvixSvgKey &) {});
        row("shadow", true, [](OvixSvgKey &key) { key.shadow = 3; });
        row("sign of zero", true, [](OvixSvgKey &key) { key.opacity = -0.0; });
        row("opacity", false, [](OvixSvgKey &key) { key.opacity = 0.2; });
        row("ratio", false, [](OvixSvgKey &key) { key.devicePixelRatio = 1.25; });
        row("supersampling", false, [](OvixSvgKey &key) { key.supersampling = 2; });
        row("width", false, [](OvixSvgKey &key) { key.size.setWidth(17); });
        row("height", false, [](OvixSvgKey &key) { key.size.setHeight(17); });
        row("sides swapped", false, [](OvixSvgKey &key) { key.size.transpose(); });
        row("left", false, [](OvixSvgKey &key) { key.margins.setLeft(1); });
        row("top", false, [](OvixSvgKey &key) { key.margins.setTop(1); });
        row("right", false, [](OvixSvgKey &key) { key.margins.setRight(1); });
        row("bottom", false, [](OvixSvgKey &key) { key.margins.setBottom(1); });
        row("inverted", false, [](OvixSvgKey &key) { key.inverted = true; });
        row("file", false, [](OvixSvgKey &key) { key.layers[1].filename = u"c"_s; });
        row("order of the layers", false, [](OvixSvgKey &key) { key.layers.swapItemsAt(0, 1); });
        row("no layers", false, [](OvixSvgKey &key) { key.layers.clear(); });
        row("one more layer", false, [](OvixSvgKey &key) { key.layers.append(OvixSvgLayer()); });
        row("rectangle moved", false, [](OvixSvgKey &key) { key.layers[0].rect.translate(1, 0); });
        row("rectangle moved down", false, [](OvixSvgKey &key) { key.layers[0].rect.translate(0, 1); });
        row("rectangle wider", false, [](OvixSvgKey &key) { key.layers[0].rect.setWidth(9); });
        row("rectangle higher", false, [](OvixSvgKey &key) { key.layers[0].rect.setHeight(9); });
        row("order of the elements", false, [](OvixSvgKey &key) { key.layers[0].elementIds = {u"y"_s, u"x"_s}; });
        row("all elements", false, [](OvixSvgKey &key) { key.layers[0].elementIds.clear(); });
        row("elements moved to the next layer", false,
            [](OvixSvgKey &key) { key.layers[0].elementIds.swap(key.layers[1].elementIds); });
    }
    void aKeyIsAllItsFieldsButTheShadow()
    {
        QFETCH(Change, change);
        QFETCH(bool, equal);
        OvixSvgKey key = keyOf(u"a"_s, {16, 24}, 1);
        key.opacity = 0.0;
        key.layers = {{u"a"_s, {1, 2, 3, 4}, {u"x"_s, u"y"_s}}, {u"b"_s, {}, {}}};
        OvixSvgKey changed = key;
        change(changed);
        QCOMPARE(changed == key, equal);
        QCOMPARE(changed != key, !equal);
        QCOMPARE(qHash(changed, 0) == qHash(key, 0), equal);
    }

    void theFirstRequestDecidesOnTheShadow()
    {
        const QByteArray dot = "<rect x=\"6\" y=\"6\" width=\"4\" height=\"4\"/>";
        for (const int first : {1, 0}) {
            OvixSvgKey key = keyOf(m_drawings.svg(dot), {32, 32});
            key.shadow = first;
            const qint64 picture = OvixSvgRenderer::get(key).cacheKey();
            QCOMPARE(imageOf(key).pixelColor(10, 16).alpha() > 0, first > 0);
            key.shadow = 1 - first;
            QCOMPARE(OvixSvgRenderer::get(key).cacheKey(), picture);
        }
        OvixSvgKey negative = keyOf(m_drawings.svg(dot), {32, 32});
        negative.shadow = -1;
        QCOMPARE(imageOf(negative).pixelColor(10, 16).alpha(), 0);
    }

    void placesTheDrawing_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QRect>("drawn");
        const auto row = [](const char *name, QRect drawn, const Change &change) {
            QTest::newRow(name) << change << drawn;
        };
        const QString covered = m_drawings.filled();
        const auto layer = [covered](QRect rect) { return QList<OvixSvgLayer>{{covered, rect, {}}}; };
        const QString shifted = m_drawings.svg("<rect x=\"8\" width=\"8\" height=\"16\"/>", "8 0 8 16");
        const QString lowered = m_drawings.svg("<rect y=\"8\" width=\"16\" height=\"8\"/>", "0 8 16 8");
        const QString beside = m_drawings.svg("<rect x=\"-16\" width=\"16\" height=\"16\"/>", "-16 0 16 16");
        const QString above = m_drawings.svg("<rect y=\"-16\" width=\"16\" height=\"16\"/>", "0 -16 16 16");

        row("whole", {0, 0, 16, 16}, [](OvixSvgKey &) {});
        row("margins", {1, 2, 12, 10}, [](OvixSvgKey &key) { key.margins = {1, 2, 3, 4}; });
        row("margins beyond the picture", {0, 0, 1, 1}, [](OvixSvgKey &key) { key.margins = {0, 0, 99, 99}; });
        row("margins beyond any picture", {0, 0, 1, 1}, [](OvixSvgKey &key) {
            key.margins = {0, 0, largest, largest};
        });
        row("margins outwards", {0, 0, 16, 16}, [](OvixSvgKey &key) { key.margins = {-4, -4, -4, -4}; });
        row("layer, x from its top", {0, 10, 4, 5}, [=](OvixSvgKey &key) { key.layers = layer({10, 0, 4, 5}); });
        row("layer, y from its left", {9, 2, 4, 5}, [=](OvixSvgKey &key) { key.layers = layer({2, 9, 4, 5}); });
        row("layer inside margins", {4, 5, 4, 5}, [=](OvixSvgKey &key) {
            key.layers = layer({2, 1, 4, 5});
            key.margins = {3, 3, 3, 3};
        });
        row("layer on a dense screen", {5, 15, 6, 8}, [=](OvixSvgKey &key) {
            key.layers = layer({10, 3, 4, 5}); // 15 and 4.5 down to 15 and 5, 6 by 7.5 to 6 by 8
            key.devicePixelRatio = 1.5;
        });
        row("layer outside", {}, [=](OvixSvgKey &key) { key.layers = layer({40, 40, 4, 5}); });
        row("view box that starts to the right", {8, 0, 8, 16},
            [=](OvixSvgKey &key) { key.layers[0].filename = shifted; });
        row("view box that starts below", {0, 8, 16, 8}, [=](OvixSvgKey &key) { key.layers[0].filename = lowered; });
        row("view box that ends at x 0", {}, [=](OvixSvgKey &key) { key.layers[0].filename = beside; });
        row("view box that ends at y 0", {}, [=](OvixSvgKey &key) { key.layers[0].filename = above; });
    }
    void placesTheDrawing()
    {
        QFETCH(Change, change);
        OvixSvgKey key = keyOf(m_drawings.filled());
        change(key);
        QTEST(Picture::drawnArea(imageOf(key)), "drawn");
    }

    void survivesRectanglesOfAnySize_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QMargins>("margins");
        QTest::newRow("far away") << QRect(largest - 9, largest - 9, 9, 9) << QMargins();
        QTest::newRow("far away on the other side") << QRect(-largest, -largest, 9, 9) << QMargins();
        QTest::newRow("huge") << QRect(0, 0, largest, largest) << QMargins();
        QTest::newRow("negative") << QRect(0, 0, -100, -100) << QMargins();
        QTest::newRow("everywhere") << QRect(QPoint(-largest, -largest), QPoint(largest, largest)) << QMargins();
        QTest::newRow("huge margins") << QRect() << QMargins(largest, largest, largest, largest);
        QTest::newRow("hugely outward margins") << QRect() << QMargins(smallest, smallest, smallest, smallest);
    }
    void survivesRectanglesOfAnySize()
    {
        QFETCH(QRect, rect);
        QFETCH(QMargins, margins);
        OvixSvgKey key = keyOf(m_drawings.filled());
        key.devicePixelRatio = 2.0;
        key.layers[0].rect = rect;
        key.margins = margins;
        QCOMPARE(OvixSvgRenderer::get(key).size(), QSize(32, 32));
    }

    void halvesTheSupersampledPicture_data()
    {
        QTest::addColumn<int>("supersampling");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QSize>("pixels");
        QTest::newRow("none") << 0 << QSize(16, 12) << 1.0 << QSize(16, 12);
        QTest::newRow("once, dense") << 1 << QSize(16, 12) << 2.0 << QSize(32, 24);
        QTest::newRow("once, 1.5") << 1 << QSize(15, 15) << 1.5 << QSize(23, 23);
        QTest::newRow("rounded at each step") << 2 << QSize(1, 16) << 1.25 << QSize(2, 20);
        QTest::newRow("thrice") << 3 << QSize(7, 16) << 1.0 << QSize(7, 16);
        QTest::newRow("32 starts again at 1") << 32 << QSize(16, 16) << 1.0 << QSize(1, 1);
        QTest::newRow("33") << 33 << QSize(16, 4) << 1.0 << QSize(1, 1);
        QTest::newRow("millions of times") << (largest & ~31) << QSize(16, 16) << 1.0 << QSize(1, 1);
        QTest::newRow("-32") << -32 << QSize(16, 16) << 1.0 << QSize(16, 16);
        QTest::newRow("lowest") << smallest << QSize(16, 16) << 1.0 << QSize(16, 16);
        QTest::newRow("-1 is 31") << -1 << QSize(16, 16) << 1.0 << QSize();
        QTest::newRow("highest") << largest << QSize(16, 16) << 1.0 << QSize();
        // Sizes that no picture has.
        QTest::newRow("default size") << 1 << QSize(-1, -1) << 1.0 << QSize();
        QTest::newRow("no width") << 1 << QSize(0, 16) << 1.0 << QSize();
        QTest::newRow("no height") << 1 << QSize(16, 0) << 1.0 << QSize();
        QTest::newRow("huge") << 0 << QSize(largest, largest) << 1.0 << QSize();
        QTest::newRow("very wide") << 0 << QSize(40000, 1) << 1.0 << QSize(40000, 1);
        QTest::newRow("too large to be held") << 0 << QSize(32000, 32000) << 1.0 << QSize();
        QTest::newRow("too large to be supersampled") << 3 << QSize(30000, 30000) << 1.0 << QSize();
        QTest::newRow("less than a pixel") << 0 << QSize(16, 16) << 0.01 << QSize();
        QTest::newRow("ratio 0") << 1 << QSize(16, 16) << 0.0 << QSize();
        QTest::newRow("negative ratio") << 1 << QSize(16, 16) << -1.0 << QSize();
        QTest::newRow("ratio no number") << 1 << QSize(16, 16) << notANumber << QSize();
        QTest::newRow("ratio infinite") << 1 << QSize(16, 16) << infinite << QSize();
        QTest::newRow("infinite ratio of nothing") << 1 << QSize(0, 0) << infinite << QSize();
    }
    void halvesTheSupersampledPicture()
    {
        QFETCH(int, supersampling);
        QFETCH(QSize, size);
        QFETCH(double, ratio);
        QFETCH(QSize, pixels);
        OvixSvgKey key = keyOf(m_drawings.filled(), size, supersampling);
        key.devicePixelRatio = ratio;

        const qsizetype before = OvixSvgCacheCounters::pixmaps();
        const QPixmap pixmap = OvixSvgRenderer::get(key);
        QCOMPARE(pixmap.isNull(), pixels.isEmpty());
        if (!pixmap.isNull()) {
            QCOMPARE(pixmap.size(), pixels);
            QCOMPARE(pixmap.devicePixelRatio(), ratio);
            if (pixels.width() < 32768) // as far as a painter reaches
                QCOMPARE(Picture::drawnArea(pixmap.toImage()), QRect(QPoint(), pixels));
        }
        OvixSvgRenderer::get(key);
        QCOMPARE(OvixSvgCacheCounters::pixmaps(), before + 1);
    }

    void smoothsEdges()
    {
        const QString halfAPixel = m_drawings.svg("<rect x=\"8\" width=\"0.5\" height=\"16\"/>");
        for (const int supersampling : {0, 1, 2}) {
            const int alpha = imageOf(keyOf(halfAPixel, {16, 16}, supersampling)).pixelColor(8, 8).alpha();
            QVERIFY2(qAbs(alpha - 128) <= 2, qPrintable(QString::number(alpha)));
        }
    }

    void keepsAPictureWhileOthersAreAdded()
    {
        const OvixSvgKey key = keyOf(m_drawings.filled("#ff0000"));
        const QPixmap first = OvixSvgRenderer::get(key);
        const qint64 bytes = OvixSvgCacheCounters::bytes();
        for (int side = 1; side <= 300; ++side)
            OvixSvgRenderer::get(keyOf(key.layers[0].filename, {side, 1}));
        QCOMPARE(OvixSvgRenderer::get(key).cacheKey(), first.cacheKey());
        QCOMPARE(first.toImage().pixelColor(8, 8), QColor(Qt::red));
        QVERIFY(OvixSvgCacheCounters::bytes() >= bytes + 4 * 300 * 301 / 2);
    }

    void invertsColoursAndKeepsAlpha()
    {
        OvixSvgKey key =
            keyOf(m_drawings.svg("<path d=\"M0 4H16\" stroke=\"#000\" stroke-width=\"8\" opacity=\"0.5\"/>"));
        const QImage plain = imageOf(key);
        key.inverted = true;
        const QImage inverted = imageOf(key);
        QCOMPARE(plain.pixelColor(8, 4).rgb(), QColor(Qt::black).rgb());
        QCOMPARE(inverted.pixelColor(8, 4).rgb(), QColor(Qt::white).rgb());
        QVERIFY(qAbs(plain.pixelColor(8, 4).alpha() - 128) <= 1);
        for (const QPoint point : {QPoint(8, 4), QPoint(8, 12)})
            QCOMPARE(inverted.pixelColor(point).alpha(), plain.pixelColor(point).alpha());
    }

    void layersAddUpAtTheirOpacity()
    {
        OvixSvgKey key = keyOf(m_drawings.filled("#402000"));
        key.layers.append({m_drawings.filled("#201008"), {}, {}});
        QCOMPARE(imageOf(key).pixelColor(8, 8), QColor(0x60, 0x30, 0x08));
        key.opacity = 0.25;
        const QColor thin = imageOf(key).pixelColor(8, 8);
        QVERIFY2(qAbs(thin.alpha() - 128) <= 2, qPrintable(thin.name(QColor::HexArgb)));
    }

    void drawsTheAskedElements_data()
    {
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QRect>("drawn");
        QTest::addColumn<QStringList>("missing");
        QTest::newRow("all") << QStringList() << QRect(2, 2, 14, 14) << QStringList();
        QTest::newRow("one") << QStringList{u"low"_s} << QRect(10, 12, 6, 4) << QStringList();
        QTest::newRow("two") << QStringList{u"low"_s, u"high"_s} << QRect(2, 2, 14, 14) << QStringList();
        QTest::newRow("missing ones") << QStringList{u"no"_s, u"high"_s, u""_s} << QRect(2, 2, 4, 4)
                                      << QStringList{u"no"_s, u""_s};
    }
    void drawsTheAskedElements()
    {
        QFETCH(QStringList, ids);
        QFETCH(QStringList, missing);
        OvixSvgKey key = keyOf(m_drawings.svg("<rect id=\"high\" x=\"2\" y=\"2\" width=\"4\" height=\"4\"/>"
                                              "<rect id=\"low\" x=\"10\" y=\"12\" width=\"6\" height=\"4\"/>"));
        key.layers[0].elementIds = ids;
        for (const QString &id : std::as_const(missing)) {
            const QString line =
                u"Element with Id %1 is not present in the file %2 ."_s.arg(id, key.layers[0].filename);
            QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
        }
        QTEST(Picture::drawnArea(imageOf(key)), "drawn");
    }

    void leavesOutBadFiles_data()
    {
        QTest::addColumn<QString>("filename");
        QTest::newRow("none") << QString();
        QTest::newRow("missing") << m_drawings.newName();
        QTest::newRow("missing resource") << u":/Windows/NoSuchIcon"_s;
        QTest::newRow("folder") << QFileInfo(m_drawings.newName()).path();
        QTest::newRow("empty") << m_drawings.file("");
        QTest::newRow("no XML") << m_drawings.file("GIF89a\x01\x02");
        QTest::newRow("other root") << m_drawings.file("<html><p/></html>");
        QTest::newRow("cut off") << m_drawings.file("<svg xmlns=\"http://www.w3.org/2000/svg\"><rect width=\"9\"");
        QTest::newRow("end tag missing") << m_drawings.file("<svg xmlns=\"http://www.w3.org/2000/svg\"><g></svg>");
        QTest::newRow("not compressed, as the name says") << m_drawings.file("<svg/>", u".SVGZ"_s);
        QTest::newRow("compressed, which the name does not say") << m_drawings.file("\x1f\x8b\x08\x01\x02\x03");
    }
    void leavesOutBadFiles()
    {
        QFETCH(QString, filename);
        const qsizetype before = OvixSvgCacheCounters::documents();
        const qsizetype loads = OvixSvgCacheCounters::loads();
        OvixSvgKey key = keyOf(filename);
        QCOMPARE(OvixSvgRenderer::get(key).size(), QSize(16, 16));
        QCOMPARE(Picture::drawnArea(imageOf(key)), QRect());
        key.layers.append({m_drawings.filled(), {}, {}});
        QCOMPARE(Picture::drawnArea(imageOf(key)), QRect(0, 0, 16, 16));
        QCOMPARE(OvixSvgCacheCounters::documents(), before + 2);
        QVERIFY(OvixSvgCacheCounters::loads() <= loads + 2);
    }

    void readsUnusualDocuments_data()
    {
        QTest::addColumn<QString>("filename");
        const auto row = [this](const char *name, const QByteArray &content, const QString &ending = u".svg"_s) {
            QTest::newRow(name) << m_drawings.file(content, ending);
        };
        const QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">";
        const QByteArray rect = "<rect width=\"16\" height=\"16\"/></svg>";
        row("leading comment", "<?xml version=\"1.0\"?>\n<!-- drawn by hand -->\n" + svg + rect);
        row("undeclared prefix", svg + "<tool:view tool:zoom=\"2\"/>" + rect);
        row("document type", "<!DOCTYPE svg [<!ENTITY side \"16\">]>" + svg + rect);
        row("no namespace", "<svg viewBox=\"0 0 16 16\">" + rect);
        row("something behind", svg + rect + "<svg");
        row("no ending", svg + rect, QString());
        row("compressed", QByteArray::fromBase64(compressedSquare), u".svgz"_s);
    }
    void readsUnusualDocuments()
    {
        QFETCH(QString, filename);
        QCOMPARE(Picture::drawnArea(imageOf(keyOf(filename))), QRect(0, 0, 16, 16));
    }

    void readsAFileOnce()
    {
        const QString late = m_drawings.newName();
        QCOMPARE(Picture::drawnArea(imageOf(keyOf(late))), QRect());
        QVERIFY(QFile::copy(m_drawings.filled(), late));
        QCOMPARE(Picture::drawnArea(imageOf(keyOf(late, {8, 8}))), QRect());

        const qsizetype loads = OvixSvgCacheCounters::loads();
        const QString gone = m_drawings.filled();
        imageOf(keyOf(gone));
        QVERIFY(QFile::remove(gone));
        QCOMPARE(Picture::drawnArea(imageOf(keyOf(gone, {8, 8}))), QRect(0, 0, 8, 8));
        QCOMPARE(OvixSvgCacheCounters::loads(), loads + 1);
    }

    void shadowIsACentredBlackHaloBehind()
    {
        const QImage plain = squareInTheMiddle();
        const QImage shadowed = OvixSvgRenderer::generateShadow(plain, 4);
        QCOMPARE(shadowed.size(), plain.size());
        QCOMPARE(shadowed.pixelColor(16, 16), QColor(Qt::red));
        for (const QPoint side : {QPoint(10, 16), QPoint(21, 16), QPoint(16, 10), QPoint(16, 21)}) {
            const QColor halo = shadowed.pixelColor(side);
            QCOMPARE(halo.rgb(), QColor(Qt::black).rgb());
            QVERIFY2(halo.alpha() > 0 && halo.alpha() < 128, qPrintable(QString::number(halo.alpha())));
            QVERIFY(qAbs(halo.alpha() - shadowed.pixelColor(10, 16).alpha()) <= 2);
        }
        const QRect area = Picture::drawnArea(shadowed);
        QVERIFY2(QRect(2, 2, 28, 28).contains(area), "too far for a blur of 4 pixels");
        // The radius is not used.
        for (const int radius : {-1, 0, 100})
            QCOMPARE(OvixSvgRenderer::generateShadow(plain, radius), shadowed);
        QVERIFY(OvixSvgRenderer::generateShadow(QImage(), 4).isNull());
    }

    void shadowsAnyKindOfImage()
    {
        QImage dense = squareInTheMiddle();
        dense.setDevicePixelRatio(2.0);
        QImage shadowed = OvixSvgRenderer::generateShadow(dense, 4);
        QCOMPARE(shadowed.devicePixelRatio(), 2.0);
        shadowed.setDevicePixelRatio(1.0);
        QCOMPARE(shadowed, OvixSvgRenderer::generateShadow(squareInTheMiddle(), 4));
        QCOMPARE(dense.pixelColor(10, 16).alpha(), 0);

        for (const QImage::Format format : {QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_RGB32,
                                            QImage::Format_Alpha8, QImage::Format_ARGB32_Premultiplied})
            QCOMPARE(OvixSvgRenderer::generateShadow(squareInTheMiddle(format), 4).size(), QSize(32, 32));
    }

    void rendersThroughAnEffectThatStaysTheCallers()
    {
        QPointer<QGraphicsOpacityEffect> effect = new QGraphicsOpacityEffect;
        effect->setOpacity(0.5);
        QImage destination(3, 3, QImage::Format_RGB32);
        destination.fill(Qt::blue);
        const QImage untouched = destination;
        QVERIFY(!OvixSvgRenderer::applyEffectToImage(QImage(), destination, effect));
        QVERIFY(!OvixSvgRenderer::applyEffectToImage(squareInTheMiddle(), destination, nullptr));
        QCOMPARE(destination, untouched);

        for (const int scale : {1, 2}) {
            QImage source = squareInTheMiddle().scaled(32 * scale, 32 * scale);
            source.setDevicePixelRatio(scale); // its pixels count, not its ratio
            QVERIFY(OvixSvgRenderer::applyEffectToImage(source, destination, effect));
            QVERIFY(effect);
            QCOMPARE(destination.size(), source.size());
            QCOMPARE(destination.format(), QImage::Format_RGBA8888);
            QCOMPARE(Picture::drawnArea(destination), QRect(12 * scale, 12 * scale, 8 * scale, 8 * scale));
            const QColor middle = destination.pixelColor(16 * scale, 16 * scale);
            QVERIFY(qAbs(middle.alpha() - 128) <= 2 && middle.red() >= 250);
        }
        QVERIFY2(effect->children().size() <= 1, "more with every use");
        delete effect;
    }

    void takesAnEffectFromWhereItIsInstalled()
    {
        QImage destination;
        QWidget widget;
        auto *onWidget = new QGraphicsOpacityEffect;
        widget.setGraphicsEffect(onWidget);
        QVERIFY(OvixSvgRenderer::applyEffectToImage(squareInTheMiddle(), destination, onWidget));

        QGraphicsScene scene;
        QGraphicsRectItem *item = scene.addRect(0, 0, 9, 9);
        QPointer<QGraphicsOpacityEffect> onItem = new QGraphicsOpacityEffect;
        item->setGraphicsEffect(onItem);
        QVERIFY(OvixSvgRenderer::applyEffectToImage(squareInTheMiddle(), destination, onItem));
        delete item;
        QVERIFY(onItem);
        // And back to another one, which then owns it as usual.
        QGraphicsRectItem *other = scene.addRect(0, 0, 9, 9);
        other->setGraphicsEffect(onItem);
        delete other;
        QVERIFY(!onItem);
        delete onWidget;
    }

    void everyIconDraws_data()
    {
        QTest::addColumn<QString>("filename");
        const QList<std::pair<QString, QString>> folders = {
            {u"Windows"_s,
             u"AddButton AddButtonChecked ArrowHide ArrowShow CancelCross CancelIcon ClearCross Close "_s
             "Detach DownArrow DropArrow LeftArrow Maximize Minimize Restore RightArrow SceneAddOff "
             "Thumbnail ToggleOff ToggleOnChecked UpArrow Wait Warning"},
            {u"Design"_s, u"CheckWhite Lock LockChecked"_s},
            {u"ProjectWindow"_s, u"Delete Duplicate"_s},
            {u"Timebar"_s, u"MarkerLeft MarkerMiddle MarkerRight"_s},
        };
        for (const auto &[folder, icons] : folders)
            for (const QString &icon : icons.split(u' ')) {
                const QString filename = u":/"_s + folder + u'/' + icon;
                QTest::newRow(qPrintable(filename)) << filename;
            }
    }
    void everyIconDraws()
    {
        QFETCH(QString, filename);
        QVERIFY(!Picture::drawnArea(imageOf(keyOf(filename, {16, 16}, 1))).isNull());
        // Style sheets load it through the picture plug-in.
        QVERIFY(!Picture::drawnArea(QImage(filename)).isNull());
    }

    void theBusyMarkTurns()
    {
        QSet<QByteArray> pictures;
        for (int i = 0; i < 12; ++i) {
            OvixSvgKey key = keyOf(u":/Windows/Wait"_s, {24, 24});
            key.layers[0].elementIds = {u"wait%1"_s.arg(i)};
            const QImage image = imageOf(key);
            QVERIFY(!Picture::drawnArea(image).isNull());
            pictures.insert(QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
        }
        QCOMPARE(pictures.size(), 12);
    }

private:
    Drawings m_drawings;
};

VELMO_TEST_MAIN(OvixSvgRendererTest)
#include "OvixSvgRendererTest.moc"
