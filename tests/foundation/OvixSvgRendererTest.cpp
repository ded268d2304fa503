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

class OvixSvgRendererTest : public TestCase
{
    Q_OBJECT

private slots:
    void aKeyIsAllItsFieldsButTheShadow()
    {
        using Change = std::function<void(OvixSvgKey &)>;
        const QList<Change> same = {
            [](OvixSvgKey &key) { key.shadow = 3; },
            [](OvixSvgKey &key) { key.opacity = -0.0; },
        };
        const QList<Change> different = {
            [](OvixSvgKey &key) { key.opacity = 0.2; },
            [](OvixSvgKey &key) { key.devicePixelRatio = 1.25; },
            [](OvixSvgKey &key) { key.supersampling = 2; },
            [](OvixSvgKey &key) { key.size.setWidth(17); },
            [](OvixSvgKey &key) { key.size.setHeight(17); },
            [](OvixSvgKey &key) { key.margins.setLeft(1); },
            [](OvixSvgKey &key) { key.margins.setTop(1); },
            [](OvixSvgKey &key) { key.margins.setRight(1); },
            [](OvixSvgKey &key) { key.margins.setBottom(1); },
            [](OvixSvgKey &key) { key.inverted = true; },
            [](OvixSvgKey &key) { key.layers[1].filename = u"c"_s; },
            [](OvixSvgKey &key) { key.layers.swapItemsAt(0, 1); },
            [](OvixSvgKey &key) { key.layers.append(OvixSvgLayer()); },
            [](OvixSvgKey &key) { key.layers[0].rect.setLeft(0); },
            [](OvixSvgKey &key) { key.layers[0].rect.setTop(0); },
            [](OvixSvgKey &key) { key.layers[0].rect.setRight(9); },
            [](OvixSvgKey &key) { key.layers[0].rect.setHeight(9); },
            [](OvixSvgKey &key) { key.layers[0].elementIds.swapItemsAt(0, 1); },
            [](OvixSvgKey &key) { key.layers[0].elementIds.swap(key.layers[1].elementIds); },
        };
        OvixSvgKey key = keyOf(u"a"_s, {16, 24}, OvixSvgKey().supersampling);
        QCOMPARE(key.supersampling, 1);
        key.opacity = 0.0;
        key.layers = {{u"a"_s, {1, 2, 3, 4}, {u"x"_s, u"y"_s}}, {u"b"_s, {}, {}}};
        const QList<Change> changes = same + different;
        for (qsizetype i = 0; i < changes.size(); ++i) {
            OvixSvgKey changed = key;
            changes[i](changed);
            const bool equal = i < same.size();
            QVERIFY2((changed == key) == equal && (qHash(changed, 0) == qHash(key, 0)) == equal,
                     qPrintable(QString::number(i)));
        }
    }

    void theFirstRequestDecidesOnTheShadow()
    {
        const QByteArray dot = "<rect x=\"6\" y=\"6\" width=\"4\" height=\"4\"/>";
        for (const int first : {1, 0, -1}) {
            OvixSvgKey key = keyOf(m_drawings.svg(dot), {32, 32});
            key.shadow = first;
            const qint64 picture = OvixSvgRenderer::get(key).cacheKey();
            QCOMPARE(imageOf(key).pixelColor(10, 16).alpha() > 0, first > 0);
            key.shadow = 1 - first;
            QCOMPARE(OvixSvgRenderer::get(key).cacheKey(), picture);
        }
    }

    void placesTheDrawing()
    {
        struct Place
        {
            QRect layer;
            QMargins margins;
            double ratio;
            QRect drawn;
        };
        for (const Place &place : {
                 Place{{}, {1, 2, 3, 4}, 1.0, {1, 2, 12, 10}},
                 Place{{}, {0, 0, 99, 99}, 1.0, {0, 0, 1, 1}},
                 Place{{}, {-4, -4, -4, -4}, 1.0, {0, 0, 16, 16}},
                 // A layer's x counts from its top and its y from its left.
                 Place{{10, 0, 4, 5}, {}, 1.0, {0, 10, 4, 5}},
                 Place{{2, 9, 4, 5}, {}, 1.0, {9, 2, 4, 5}},
                 Place{{2, 1, 4, 5}, {3, 3, 3, 3}, 1.0, {4, 5, 4, 5}},
                 Place{{10, 3, 4, 5}, {}, 1.5, {5, 15, 6, 8}},
             }) {
            OvixSvgKey key = keyOf(m_drawings.filled());
            key.layers[0].rect = place.layer;
            key.margins = place.margins;
            key.devicePixelRatio = place.ratio;
            QCOMPARE(Picture::drawnArea(imageOf(key)), place.drawn);
        }
        const QString shifted = m_drawings.svg("<rect x=\"8\" width=\"8\" height=\"16\"/>", "8 0 8 16");
        QCOMPARE(Picture::drawnArea(imageOf(keyOf(shifted))), QRect(8, 0, 8, 16));
        const QString lowered = m_drawings.svg("<rect y=\"8\" width=\"16\" height=\"8\"/>", "0 8 16 8");
        QCOMPARE(Picture::drawnArea(imageOf(keyOf(lowered))), QRect(0, 8, 16, 8));
        const QString above = m_drawings.svg("<rect y=\"-16\" width=\"16\" height=\"16\"/>", "0 -16 16 16");
        QCOMPARE(Picture::drawnArea(imageOf(keyOf(above))), QRect());
    }

    void survivesRectanglesOfAnySize()
    {
        OvixSvgKey key = keyOf(m_drawings.filled());
        key.devicePixelRatio = 2.0;
        for (const QRect rect : {QRect(largest - 9, largest - 9, 9, 9), QRect(-largest, -largest, 9, 9),
                                 QRect(QPoint(-largest, -largest), QPoint(largest, largest)), QRect(0, 0, -100, -100)})
            for (const int margin : {0, largest, smallest}) {
                key.layers[0].rect = rect;
                key.margins = QMargins(margin, margin, margin, margin);
                QCOMPARE(OvixSvgRenderer::get(key).size(), QSize(32, 32));
            }
    }

    void halvesTheSupersampledPicture()
    {
        struct Request
        {
            int supersampling;
            QSize size;
            double ratio;
            QSize pixels;
        };
        const QString filename = m_drawings.filled();
        for (const auto &[supersampling, size, ratio, pixels] : {
                 Request{0, {16, 12}, 1.0, {16, 12}},
                 Request{1, {15, 15}, 1.5, {23, 23}},
                 Request{2, {1, 16}, 1.25, {2, 20}}, // rounded at each step
                 Request{32, {16, 16}, 1.0, {1, 1}}, // the factor starts again at 1
                 Request{largest & ~31, {16, 16}, 1.0, {1, 1}}, // without halving millions of times
                 Request{-1, {16, 16}, 1.0, {0, 0}}, // as 31
                 Request{largest, {16, 16}, 1.0, {0, 0}},
                 Request{smallest, {16, 16}, 1.0, {16, 16}},
                 Request{1, {-1, -1}, 1.0, {0, 0}},
                 Request{0, {largest, largest}, 1.0, {0, 0}},
                 Request{3, {30000, 30000}, 1.0, {0, 0}},
                 Request{0, {16, 16}, 0.01, {0, 0}},
                 Request{1, {16, 16}, 0.0, {0, 0}},
                 Request{1, {-16, -16}, -1.0, {0, 0}},
                 Request{1, {16, 16}, std::numeric_limits<double>::quiet_NaN(), {0, 0}},
                 Request{1, {16, 16}, std::numeric_limits<double>::infinity(), {0, 0}},
             }) {
            OvixSvgKey key = keyOf(filename, size, supersampling);
            key.devicePixelRatio = ratio;
            const qsizetype before = OvixSvgCacheCounters::pixmaps();
            const QPixmap pixmap = OvixSvgRenderer::get(key);
            QCOMPARE(pixmap.size(), pixels);
            if (!pixmap.isNull()) {
                QCOMPARE(pixmap.devicePixelRatio(), ratio);
                QCOMPARE(Picture::drawnArea(pixmap.toImage()), QRect(QPoint(), pixels));
            }
            OvixSvgRenderer::get(key);
            QCOMPARE(OvixSvgCacheCounters::pixmaps(), before + 1);
        }
    }

    void smoothsEdges()
    {
        const QString halfAPixel = m_drawings.svg("<rect x=\"8\" width=\"0.5\" height=\"16\"/>");
        for (const int supersampling : {0, 2}) {
            const int alpha = imageOf(keyOf(halfAPixel, {16, 16}, supersampling)).pixelColor(8, 8).alpha();
            QVERIFY2(qAbs(alpha - 128) <= 2, qPrintable(QString::number(alpha)));
        }
    }

    void keepsAPictureWhileOthersAreAdded()
    {
        const OvixSvgKey key = keyOf(m_drawings.filled("#ff0000"));
        const QPixmap first = OvixSvgRenderer::get(key);
        for (int side = 1; side <= 300; ++side)
            OvixSvgRenderer::get(keyOf(key.layers[0].filename, {side, 1}));
        QCOMPARE(OvixSvgRenderer::get(key).cacheKey(), first.cacheKey());
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
        QCOMPARE(inverted.pixelColor(8, 4).alpha(), plain.pixelColor(8, 4).alpha());
        QCOMPARE(inverted.pixelColor(8, 12).alpha(), 0);
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

    void drawsTheAskedElements()
    {
        OvixSvgKey key = keyOf(m_drawings.svg("<rect id=\"high\" x=\"2\" y=\"2\" width=\"4\" height=\"4\"/>"
                                              "<rect id=\"low\" x=\"10\" y=\"12\" width=\"6\" height=\"4\"/>"));
        QCOMPARE(Picture::drawnArea(imageOf(key)), QRect(2, 2, 14, 14));
        key.layers[0].elementIds = {u"low"_s, u"high"_s};
        QCOMPARE(Picture::drawnArea(imageOf(key)), QRect(2, 2, 14, 14));
        key.layers[0].elementIds = {u"no"_s, u"high"_s};
        const QString line = u"Element with Id no is not present in the file %1 ."_s.arg(key.layers[0].filename);
        QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
        QCOMPARE(Picture::drawnArea(imageOf(key)), QRect(2, 2, 4, 4));
    }

    void leavesOutBadFiles()
    {
        for (const QString &filename :
             {QString(), m_drawings.newName(), QFileInfo(m_drawings.newName()).path(), m_drawings.file(""),
              m_drawings.file("GIF89a\x01\x02"), m_drawings.file("<html><p/></html>"),
              m_drawings.file("<svg xmlns=\"http://www.w3.org/2000/svg\"><g></svg>"),
              m_drawings.file("<svg/>", u".SVGZ"_s), m_drawings.file("\x1f\x8b\x08\x01\x02\x03")}) {
            const qsizetype loads = OvixSvgCacheCounters::loads();
            OvixSvgKey key = keyOf(filename);
            QCOMPARE(OvixSvgRenderer::get(key).size(), QSize(16, 16));
            QCOMPARE(Picture::drawnArea(imageOf(key)), QRect());
            key.layers.append({m_drawings.filled(), {}, {}});
            QCOMPARE(Picture::drawnArea(imageOf(key)), QRect(0, 0, 16, 16));
            QVERIFY2(OvixSvgCacheCounters::loads() <= loads + 2, qPrintable(filename));
        }
    }

    void readsUnusualDocuments()
    {
        const QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">";
        const QByteArray rect = "<rect width=\"16\" height=\"16\"/></svg>";
        const QByteArray compressed =
            QByteArray::fromBase64("H4sIAAAAAAACAx2LQQqAMAwEvxLyABMVPEjbg1/R0hbUShuMz7cKexiGWVPvAM+xn9ViFLlmIlXt"
                                   "dOxyCTQwM7UC4U5el/xYZGDopzZ0pvhVQNMm0WITEH0KUX4mZ76jewFAHmBJYAAAAA==");
        for (const QString &filename :
             {m_drawings.file(svg + "<tool:view tool:zoom=\"2\"/>" + rect), m_drawings.file(svg + rect + "<svg"),
              m_drawings.file(svg + rect, {}), m_drawings.file(compressed, u".svgz"_s)})
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
            QVERIFY(qAbs(halo.alpha() - shadowed.pixelColor(10, 16).alpha()) <= 2); // centred
        }
        const QRect area = Picture::drawnArea(shadowed);
        QVERIFY2(QRect(2, 2, 28, 28).contains(area), "too far for a blur of 4 pixels");
        QCOMPARE(OvixSvgRenderer::generateShadow(plain, 100), shadowed); // the radius is not used
    }

    void shadowsAnyKindOfImage()
    {
        for (const QImage::Format format : {QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_Alpha8})
            QCOMPARE(OvixSvgRenderer::generateShadow(squareInTheMiddle(format), 4).size(), QSize(32, 32));
        QImage dense = squareInTheMiddle();
        dense.setDevicePixelRatio(2.0);
        QImage shadowed = OvixSvgRenderer::generateShadow(dense, 4);
        QCOMPARE(shadowed.devicePixelRatio(), 2.0);
        shadowed.setDevicePixelRatio(1.0);
        QCOMPARE(shadowed, OvixSvgRenderer::generateShadow(squareInTheMiddle(), 4));
        QVERIFY(OvixSvgRenderer::generateShadow(QImage(), 4).isNull());
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

        QImage source = squareInTheMiddle().scaled(64, 64);
        source.setDevicePixelRatio(2.0); // its pixels count, not its ratio
        for (int i = 0; i < 2; ++i)
            QVERIFY(OvixSvgRenderer::applyEffectToImage(source, destination, effect));
        QCOMPARE(destination.size(), source.size());
        QCOMPARE(destination.format(), QImage::Format_RGBA8888);
        QCOMPARE(Picture::drawnArea(destination), QRect(24, 24, 16, 16));
        const QColor middle = destination.pixelColor(32, 32);
        QVERIFY(qAbs(middle.alpha() - 128) <= 2 && middle.red() >= 250);
        QVERIFY(effect);
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
        delete onWidget;

        QGraphicsScene scene;
        QPointer<QGraphicsOpacityEffect> onItem = new QGraphicsOpacityEffect;
        QGraphicsRectItem *item = scene.addRect(0, 0, 9, 9), *next = scene.addRect(0, 0, 9, 9);
        item->setGraphicsEffect(onItem);
        QVERIFY(OvixSvgRenderer::applyEffectToImage(squareInTheMiddle(), destination, onItem));
        delete item;
        QVERIFY(onItem);
        next->setGraphicsEffect(onItem); // which then owns it as usual
        delete next;
        QVERIFY(!onItem);
    }

    void everyIconDraws()
    {
        const QString icons =
            u"Windows/AddButton Windows/AddButtonChecked Windows/ArrowHide Windows/ArrowShow Windows/CancelCross "_s
            "Windows/CancelIcon Windows/ClearCross Windows/Close Windows/Detach Windows/DownArrow Windows/DropArrow "
            "Windows/LeftArrow Windows/Maximize Windows/Minimize Windows/Restore Windows/RightArrow "
            "Windows/SceneAddOff Windows/Thumbnail Windows/ToggleOff Windows/ToggleOnChecked Windows/UpArrow "
            "Windows/Wait Windows/Warning Design/CheckWhite Design/Lock Design/LockChecked ProjectWindow/Delete "
            "ProjectWindow/Duplicate Timebar/MarkerLeft Timebar/MarkerMiddle Timebar/MarkerRight";
        for (const QString &icon : icons.split(u' ')) {
            const QString filename = u":/"_s + icon;
            QVERIFY2(!Picture::drawnArea(imageOf(keyOf(filename))).isNull(), qPrintable(icon));
            QVERIFY2(!Picture::drawnArea(QImage(filename)).isNull(), qPrintable(icon)); // as a style sheet loads it
        }
        QSet<QByteArray> busy;
        for (int i = 0; i < 12; ++i) {
            OvixSvgKey key = keyOf(u":/Windows/Wait"_s, {24, 24});
            key.layers[0].elementIds = {u"wait%1"_s.arg(i)};
            const QImage image = imageOf(key);
            busy.insert(QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
        }
        QCOMPARE(busy.size(), 12);
    }

private:
    Drawings m_drawings;
};

VELMO_TEST_MAIN(OvixSvgRendererTest)
#include "OvixSvgRendererTest.moc"
