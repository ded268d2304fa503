#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "foundation/QPixmapScaling.h"
#include "foundation/oVIXAspectRatioLabel.h"

#include <QHBoxLayout>
#include <QPixmap>
#include <QTest>

#include <limits>

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

QPixmap picture(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class PictureScalingTest : public TestCase
{
    Q_OBJECT

private slots:
    void scalesToDevicePixels_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<QSize>("asked");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QSize>("fitted");
        QTest::addColumn<QSize>("byWidth");
        QTest::addColumn<QSize>("byHeight");
        const QSize none;
        const auto row = [](const char *name, QSize source, QSize asked, double ratio, QSize fitted, QSize byWidth,
                            QSize byHeight) {
            QTest::newRow(name) << source << asked << ratio << fitted << byWidth << byHeight;
        };
        row("dense", {32, 16}, {16, 16}, 1.5, {24, 12}, {24, 12}, {48, 24});
        row("high picture", {10, 40}, {20, 20}, 1.0, {5, 20}, {20, 80}, {5, 20});
        row("rounded", {100, 100}, {3, 3}, 1.5, {5, 5}, {5, 5}, {5, 5});
        row("less than one", {100, 100}, {20, 20}, 0.5, {10, 10}, {10, 10}, {10, 10});
        row("no upper bound", {10, 20}, {1000000, 40}, 2.0, {40, 80}, none, {40, 80});
        row("thin", {300, 1}, {30, 30}, 1.0, {30, 1}, none, {9000, 30});
        row("too long", {3000, 1}, {30, 30}, 1.0, {30, 1}, none, none);
        row("too wide", {3000, 30}, {40000, 30}, 1.0, {3000, 30}, none, {3000, 30});
        row("null", {0, 0}, {16, 16}, 1.0, none, none, none);
        row("no width", {10, 10}, {0, 10}, 1.0, none, none, {10, 10});
        row("negative height", {10, 10}, {10, -10}, 1.0, none, {10, 10}, none);
        row("huge", {10, 10}, {largest, largest}, 1.0, none, none, none);
        row("hugely dense", {10, 10}, {16, 16}, 1e300, none, none, none);
        row("ratio 0", {10, 10}, {16, 16}, 0.0, none, none, none);
        row("negative ratio", {10, 10}, {16, 16}, -1.0, none, none, none);
        row("ratio no number", {10, 10}, {16, 16}, notANumber, none, none, none);
        row("ratio infinite", {10, 10}, {16, 16}, infinite, none, none, none);
    }
    void scalesToDevicePixels()
    {
        QFETCH(QSize, source);
        QFETCH(QSize, asked);
        QFETCH(double, ratio);
        QPixmap pixmap = picture(source.width(), source.height());
        pixmap.setDevicePixelRatio(3.0); // the given picture's own ratio does not matter
        const QPixmap fitted = QPixmapScaling::scale(pixmap, asked.width(), asked.height(), ratio);
        const QPixmap byWidth = QPixmapScaling::scaleToWidth(pixmap, asked.width(), ratio);
        const QPixmap byHeight = QPixmapScaling::scaleToHeight(pixmap, asked.height(), ratio);
        const auto sizeOf = [](const QPixmap &result) { return result.isNull() ? QSize() : result.size(); };
        QTEST(sizeOf(fitted), "fitted");
        QTEST(sizeOf(byWidth), "byWidth");
        QTEST(sizeOf(byHeight), "byHeight");
        for (const QPixmap &result : {fitted, byWidth, byHeight})
            QVERIFY(result.isNull() || qFuzzyCompare(result.devicePixelRatio(), ratio));
    }

    void scalesSmoothly()
    {
        QPixmap halves = picture(2, 2);
        halves.fill(Qt::black);
        QImage image = halves.toImage();
        image.setPixelColor(0, 0, Qt::white);
        image.setPixelColor(0, 1, Qt::white);
        halves = QPixmap::fromImage(image);
        oVIXAspectRatioLabel label;
        label.resize(1, 1);
        label.setPixmap(halves);
        for (const QPixmap &result :
             {QPixmapScaling::scale(halves, 1, 1, 1.0), QPixmapScaling::scaleToWidth(halves, 1, 1.0),
              QPixmapScaling::scaleToHeight(halves, 1, 1.0), label.pixmap()}) {
            const int grey = result.toImage().pixelColor(0, 0).red();
            QVERIFY2(grey > 100 && grey < 155, qPrintable(QString::number(grey)));
        }
    }

    void keepsTheShapeOfThePicture()
    {
        oVIXAspectRatioLabel label;
        QCOMPARE(label.minimumSize(), QSize(1, 1));
        QVERIFY(!label.hasScaledContents());
        label.resize(90, 90);
        label.setPixmap(picture(300, 200));
        QCOMPARE(label.pixmap().size(), QSize(90, 60));
        QCOMPARE(label.scaledPixmap().size(), QSize(90, 60));
        QCOMPARE(label.sizeHint(), QSize(90, 60));
        QWidget window;
        label.setParent(&window);
        Gestures::show(&window);
        // Always from the source: what was small once is sharp again.
        label.resize(3, 3);
        label.resize(300, 100);
        QCOMPARE(label.pixmap().size(), QSize(150, 100));
        QImage image = picture(300, 200).toImage();
        for (int y = 0; y < 200; ++y)
            for (int x = y % 2; x < 300; x += 2)
                image.setPixelColor(x, y, Qt::blue);
        label.setPixmap(QPixmap::fromImage(image));
        label.resize(3, 3);
        label.resize(300, 200);
        QCOMPARE(label.pixmap().toImage().convertToFormat(image.format()), image);
        label.setParent(nullptr);
    }

    void findsTheHeightForAWidth_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("truncated") << QSize(300, 200) << 100 << 66;
        QTest::newRow("negative, towards zero") << QSize(300, 200) << -100 << -66;
        QTest::newRow("nothing") << QSize(300, 200) << 0 << 0;
        QTest::newRow("product beyond 32 bits") << QSize(1000, 3000) << 1000000 << 3000000;
        QTest::newRow("beyond every height") << QSize(1, 1000) << largest << largest;
        QTest::newRow("without a picture, its own") << QSize(0, 0) << 100 << 37;
    }
    void findsTheHeightForAWidth()
    {
        QFETCH(QSize, source);
        QFETCH(int, width);
        oVIXAspectRatioLabel label;
        label.resize(50, 37);
        label.setPixmap(picture(source.width(), source.height()));
        QTEST(label.heightForWidth(width), "height");
        QCOMPARE(label.sizeHint(), QSize(50, label.heightForWidth(50)));
    }

    void staysEmptyWithoutAPicture()
    {
        oVIXAspectRatioLabel label;
        QVERIFY(label.scaledPixmap().isNull());
        QResizeEvent event({9, 9}, {8, 8});
        label.resizeEvent(&event);
        QVERIFY(label.pixmap().isNull());
        label.setText(QStringLiteral("text"));
        label.resizeEvent(&event);
        QCOMPARE(label.text(), QStringLiteral("text"));
        label.setPixmap(picture(4, 4));
        label.setPixmap(QPixmap());
        QVERIFY(label.pixmap().isNull() && label.scaledPixmap().isNull());
    }

    void growsAndShrinksWithItsLayout()
    {
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        oVIXAspectRatioLabel label;
        label.setPixmap(picture(300, 200));
        layout->addWidget(&label);
        Gestures::show(&window);
        for (const int side : {200, 20, 100}) {
            window.resize(side, side);
            QVERIFY(Events::untilIdle());
            QCOMPARE(label.size(), QSize(side, side));
            QCOMPARE(label.pixmap().size(), QSize(300, 200).scaled(side, side, Qt::KeepAspectRatio));
        }
    }
};

VELMO_TEST_MAIN(PictureScalingTest)
#include "PictureScalingTest.moc"
