#include "support/Drawings.h"
#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "foundation/AnimationRules.h"
#include "foundation/QAnimatedLabel.h"
#include "foundation/QAnimatedWebp.h"

#include <QElapsedTimer>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr float largest = std::numeric_limits<float>::max();

/// Frames of one colour each, none like another; a few pixels are left over at the right and at the bottom.
QPixmap sheetOf(int stacks, int slices, QSize frame = {3, 2})
{
    QImage sheet(frame.width() * slices + 1, frame.height() * stacks + 1, QImage::Format_RGB32);
    for (int y = 0; y < sheet.height(); ++y) {
        for (int x = 0; x < sheet.width(); ++x)
            sheet.setPixelColor(x, y, QColor(x / frame.width(), y / frame.height(), 0));
    }
    return QPixmap::fromImage(sheet);
}

QString shownFrame(const QLabel &label)
{
    const QImage image = label.pixmap(Qt::ReturnByValue).toImage();
    if (image.isNull())
        return u"none"_s;
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours << image.pixel(x, y);
    }
    const QColor colour(*colours.cbegin());
    return colours.size() == 1 ? u"%1,%2"_s.arg(colour.red()).arg(colour.green()) : u"several"_s;
}

} // namespace

class AnimatedPicturesTest : public TestCase
{
    Q_OBJECT

private slots:
    void countsTheTime()
    {
        constexpr int most = std::numeric_limits<int>::max();
        QCOMPARE(AnimationRules::nextInterval(40, 0, 40, 40), 40);
        QCOMPARE(AnimationRules::nextInterval(40, 0, 30, 40), 40);
        QCOMPARE(AnimationRules::nextInterval(40, 0, 55, 40), 25);
        QCOMPARE(AnimationRules::nextInterval(40, 0, 5000, 40), 0);
        QCOMPARE(AnimationRules::nextInterval(0, 20, 0, 0), 20);
        QCOMPARE(AnimationRules::nextInterval(-1, -5, 0, 0), 0);
        QCOMPARE(AnimationRules::nextInterval(most, 0, std::numeric_limits<qint64>::max(), 0), 0);
        QCOMPARE(AnimationRules::nextInterval(0, most, 0, most), most);

        QCOMPARE(AnimationRules::advanced(0, 50, 12, 16), 0.6F);
        QCOMPARE(AnimationRules::advanced(15.5F, 1000, 1, 16), 0.5F);
        QCOMPARE(AnimationRules::advanced(15, 1000, 1, 16), 16.0F); // no overrun yet
        QCOMPARE(AnimationRules::advanced(0, 32000, 1, 16), 16.0F);
        QCOMPARE(AnimationRules::advanced(0, 3000, -1, 16), -3.0F);
        QCOMPARE(AnimationRules::advanced(-largest, 1000, -largest, 16), -largest);
        for (const qint64 milliseconds : {qint64(1), qint64(1) << 60}) {
            const float position = AnimationRules::advanced(3, milliseconds, largest, 16);
            QVERIFY(position > 0 && position <= 16);
        }

        QVERIFY(!AnimationRules::isOtherFrame(-0.5F, 0.5F));
        QVERIFY(AnimationRules::isOtherFrame(1.9F, 2.0F));
        QCOMPARE(AnimationRules::frameAt(-largest, 16), 0);
        QCOMPARE(AnimationRules::frameAt(15.9F, 16), 15);
        QCOMPARE(AnimationRules::frameAt(16, 16), 15);
    }

    void playsTheFirstFramesRowByRow_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("frames");
        QTest::newRow("all") << 0 << 12;
        QTest::newRow("negative") << -3 << 12;
        QTest::newRow("some") << 6 << 6;
    }
    void playsTheFirstFramesRowByRow()
    {
        QFETCH(int, count);
        QFETCH(int, frames);
        QAnimatedLabel label;
        QSet<QString> seen;
        connect(&label, &QAnimatedLabel::frameUpdated, this, [&] { seen << shownFrame(label); });
        label.setStacksAndSlices(sheetOf(3, 4), 3, 4, count);
        QCOMPARE(shownFrame(label), u"0,0"_s);
        QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), QSize(3, 2));
        Gestures::show(&label);
        label.setSpeed(300);
        label.play(1);
        QSet<QString> expected;
        for (int i = 0; i < frames; ++i)
            expected << u"%1,%2"_s.arg(i % 4).arg(i / 4);
        QTRY_COMPARE(seen, expected);
        label.pause();
        QVERIFY(!label.isPlaying());
        label.stop();
        QCOMPARE(shownFrame(label), u"0,0"_s);
    }

    void cutsOnlyWhatThereIs()
    {
        QAnimatedLabel label;
        QSignalSpy updated(&label, &QAnimatedLabel::frameUpdated);
        label.setStacksAndSlices(sheetOf(1, 1), 1, 1, 0);
        label.play(1000);
        label.stop();
        QCOMPARE(updated.size(), 0); // a single one is never shown
        QCOMPARE(shownFrame(label), u"none"_s);

        QPixmap dense = sheetOf(2, 2, {4, 4});
        dense.setDevicePixelRatio(2);
        label.setStacksAndSlices(dense, 2, 2, 0);
        QCOMPARE(label.pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(2, 2));
        for (const auto &[stacks, slices, count] :
             {std::tuple(0, 4, 0), std::tuple(4, -1, 3), std::tuple(70000, 70000, 0), std::tuple(1, 1, 70000)})
            label.setStacksAndSlices({}, stacks, slices, count);
        QCOMPARE(shownFrame(label), u"0,0"_s);
        for (const QPixmap &sheet : {QPixmap(), sheetOf(2, 2)}) { // nothing, and fewer pixels than frames
            label.setStacksAndSlices(sheet, 2, 40, 0);
            QCOMPARE(shownFrame(label), u"none"_s);
        }
        label.setStacksAndSlices(sheetOf(2, 2), 2, 2, 60000); // rows far below the sheet
        QCOMPARE(shownFrame(label), u"0,0"_s);
    }

    void ignoresWhatCannotBePlayed()
    {
        QAnimatedLabel label;
        label.play(-1);
        QVERIFY(!label.isPlaying());
        label.setStacksAndSlices(sheetOf(2, 2), 2, 2, 0);
        label.setSpeed(1000);
        for (const float speed : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()})
            label.setSpeed(speed);
        Gestures::show(&label);
        label.play(1);
        QTRY_COMPARE(shownFrame(label), u"1,1"_s);
        label.setSingle();
        QVERIFY(!label.isPlaying());
        label.play(1);
        QCOMPARE(shownFrame(label), u"0,0"_s);
    }

    void standsStillWhileHiddenAndCatchesUp()
    {
        QAnimatedLabel hidden;
        QAnimatedLabel clock;
        for (QAnimatedLabel *label : {&hidden, &clock})
            label->setStacksAndSlices(sheetOf(2, 100), 2, 100, 0);
        Gestures::show(&clock);
        QStringList shown;
        connect(&hidden, &QAnimatedLabel::frameUpdated, this, [&] { shown << shownFrame(hidden); });
        QSignalSpy ticked(&clock, &QAnimatedLabel::frameUpdated);
        hidden.setSpeed(50);
        clock.setSpeed(50);
        hidden.play(1);
        clock.play(1);
        QVERIFY(hidden.isPlaying());
        QTRY_VERIFY(ticked.size() > 5);
        QCOMPARE(shown, QStringList(u"0,0"_s));
        Gestures::show(&hidden);
        QTRY_VERIFY(shown.size() > 1);
        QVERIFY2(shown[1].section(u',', 0, 0).toInt() >= 5 || shown[1].endsWith(u",1"_s), qPrintable(shown[1]));
        hidden.hide();
        QVERIFY(hidden.isPlaying());
    }

    void leavesForeignTimersAlone()
    {
        QAnimatedLabel label;
        label.setStacksAndSlices(sheetOf(4, 4), 4, 4, 0);
        label.setSpeed(100000);
        Gestures::show(&label);
        label.play(1000000);
        QSignalSpy updated(&label, &QAnimatedLabel::frameUpdated);
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < 5) { }
        QTimerEvent foreign(123456);
        QCoreApplication::sendEvent(&label, &foreign);
        QCOMPARE(updated.size(), 0);
    }

    void showsAStillPictureOnce()
    {
        QAnimatedWebp player;
        QSignalSpy changed(&player, &QAnimatedWebp::frameChanged);
        player.setFileName(stillPicture());
        player.start();
        QCOMPARE(changed.size(), 0);
        QVERIFY(!player.hasImage());
        QVERIFY(changed.wait());
        QVERIFY(Events::untilIdle());
        QCOMPARE(changed.size(), 1);
        QVERIFY(player.hasImage() && player.hasStarted());
        player.setFileName(stillPicture());
        QVERIFY(!player.hasImage() && !player.hasStarted());
    }

    void stopsQuietlyWhereThereIsNothingToPlay()
    {
        for (const QString &file : {QString(), u"/"_s, m_drawings.newName(u".webp"_s),
                                    m_drawings.file("no picture", u".webp"_s), m_drawings.file("", u".png"_s)}) {
            QAnimatedWebp player;
            QSignalSpy changed(&player, &QAnimatedWebp::frameChanged);
            player.setFileName(file);
            QCOMPARE(player.isValid(), !file.isEmpty());
            for (int again = 0; again < 2; ++again) {
                player.start();
                QVERIFY(Events::untilIdle());
                QVERIFY(player.hasStarted() && !player.hasImage());
            }
            QCOMPARE(changed.size(), 0);
            QImage image(1, 1, QImage::Format_RGB32);
            player.getCurrentImage(&image);
            player.getCurrentImage(nullptr);
            QVERIFY(image.isNull());
        }
    }

private:
    QString stillPicture()
    {
        const QString file = m_drawings.newName(u".png"_s);
        sheetOf(1, 1).toImage().save(file);
        return file;
    }

    Drawings m_drawings;
};

VELMO_TEST_MAIN(AnimatedPicturesTest)
#include "AnimatedPicturesTest.moc"
