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
        QTest::newRow("dense") << QSize(32, 16) << QSize(16, 16) << 1.5 << QSize(24, 12) << QSize(24, 12)
                               << QSize(48, 24);
        QTest::newRow("rounded") << QSize(100, 100) << QSize(3, 3) << 1.5 << QSize(5, 5) << QSize(5, 5) << QSize(5, 5);
        QTest::newRow("wide bound") << QSize(10, 20) << QSize(1000000, 40) << 2.0 << QSize(40, 80) << none
                                    << QSize(40, 80);
        QTest::newRow("thin") << QSize(300, 1) << QSize(30, 30) << 1.0 << QSize(30, 1) << none << QSize(9000, 30);
        QTest::newRow("too long") << QSize(3000, 1) << QSize(30, 30) << 1.0 << QSize(30, 1) << none << none;
        QTest::newRow("too wide") << QSize(3000, 30) << QSize(40000, 30) << 1.0 << QSize(3000, 30) << none
                                  << QSize(3000, 30);
        QTest::newRow("null") << QSize(0, 0) << QSize(16, 16) << 1.0 << none << none << none;
        QTest::newRow("no width") << QSize(10, 10) << QSize(0, 10) << 1.0 << none << none << QSize(10, 10);
        QTest::newRow("huge") << QSize(10, 10) << QSize(largest, largest) << 1.0 << none << none << none;
        for (const double ratio : {0.0, -1.0, 1e300, notANumber, infinite})
            QTest::newRow(qPrintable(QString::number(ratio)))
                << QSize(10, 10) << QSize(16, 16) << ratio << none << none << none;
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
        QImage image(2, 2, QImage::Format_RGB32);
        image.fill(Qt::black);
        image.setPixelColor(0, 0, Qt::white);
        image.setPixelColor(0, 1, Qt::white);
        const QPixmap halves = QPixmap::fromImage(image);
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
        label.resize(120, 60);
        QCOMPARE(label.sizeHint(), QSize(120, 80));
        // Always from the source: what was small once is sharp again.
        QImage image = picture(300, 200).toImage();
        for (int x = 0; x < 300; x += 2)
            image.setPixelColor(x, 100, Qt::blue);
        label.setPixmap(QPixmap::fromImage(image));
        QResizeEvent event({}, {});
        for (const QSize size : {QSize(3, 3), QSize(300, 200)}) {
            label.resize(size);
            label.resizeEvent(&event);
        }
        QCOMPARE(label.pixmap().toImage().convertToFormat(image.format()), image);
    }

    void findsTheHeightForAWidth()
    {
        oVIXAspectRatioLabel label;
        label.resize(50, 37);
        QCOMPARE(label.heightForWidth(100), 37); // without a picture, its own
        label.setPixmap(picture(300, 200));
        QCOMPARE(label.heightForWidth(100), 66);
        QCOMPARE(label.heightForWidth(-100), -66);
        label.setPixmap(picture(1000, 3000));
        QCOMPARE(label.heightForWidth(1000000), 3000000);
        label.setPixmap(picture(1, 1000));
        QCOMPARE(label.heightForWidth(largest), largest);
    }

    void staysEmptyWithoutAPicture()
    {
        oVIXAspectRatioLabel label;
        label.setText(QStringLiteral("text"));
        QResizeEvent event({9, 9}, {8, 8});
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
