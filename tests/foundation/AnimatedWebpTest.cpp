#include "support/Drawings.h"
#include "support/Events.h"
#include "support/Files.h"
#include "support/TestCase.h"

#include "foundation/QAnimatedWebp.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int frames = 60;
constexpr int frameMsecs = 40;
const QString animation = u":/Animation/Crowd.webp"_s;

/// The time is not waited for.
void tick(QAnimatedWebp &player)
{
    QMetaObject::invokeMethod(&player, "frameTimerTriggered");
}

QImage currentImage(const QAnimatedWebp &player)
{
    QImage image;
    player.getCurrentImage(&image);
    return image;
}

/// Plays @p count frames; when each came, in milliseconds.
QList<qint64> frameTimes(QAnimatedWebp &player, int count)
{
    QList<qint64> times;
    QElapsedTimer time;
    time.start();
    QObject listener;
    QObject::connect(&player, &QAnimatedWebp::frameChanged, &listener, [&] { times << time.elapsed(); });
    player.start();
    if (!QTest::qWaitFor([&] { return times.size() >= count; }))
        return {};
    player.stop();
    return times;
}

} // namespace

class AnimatedWebpTest : public TestCase
{
    Q_OBJECT

private slots:
    void decodesEveryFrameOnceInOrder()
    {
        QAnimatedWebp player;
        QSignalSpy changed(&player, &QAnimatedWebp::frameChanged);
        player.setFileName(animation);
        tick(player);
        QCOMPARE(changed.size(), 0); // not started
        player.start();
        QImageReader reader(animation);
        QList<qint64> keys;
        for (int i = 0; i < 2 * frames; ++i) {
            tick(player);
            QCOMPARE(changed.last().at(0).toInt(), i % frames);
            const QImage image = currentImage(player);
            if (i < frames) {
                QCOMPARE(image, reader.read());
                keys << image.cacheKey();
            } else {
                QCOMPARE(image.cacheKey(), keys[i - frames]);
            }
        }
        player.setFileName(animation);
        QVERIFY(!player.hasImage());
    }

    void keepsTheTimeOfTheFrames()
    {
        QAnimatedWebp player;
        QSignalSpy changed(&player, &QAnimatedWebp::frameChanged);
        player.setFileName(animation);
        const QList<qint64> times = frameTimes(player, 4);
        QVERIFY(times.size() >= 4);
        QVERIFY2(times[3] - times[0] >= 3 * frameMsecs - 5, qPrintable(QString::number(times[3] - times[0])));
        QVERIFY(Events::untilIdle());
        const qsizetype shown = changed.size();
        player.start();
        QVERIFY(changed.wait());
        QCOMPARE(changed[shown].at(0), int(shown)); // goes on where it was stopped
    }

    void framesWithoutDelayLeaveTheEventLoopItsTurns()
    {
        QByteArray bytes = Files::read(animation);
        for (qsizetype frame = 0; (frame = bytes.indexOf("ANMF", frame + 1)) > 0;)
            bytes.replace(frame + 20, 3, QByteArray(3, '\0'));
        const QString file = m_drawings.file(bytes, u".webp"_s);

        QAnimatedWebp player;
        player.setFileName(file);
        int frameCount = 0;
        int turns = 0;
        QObject counter; // takes what is still queued at the end along
        connect(&player, &QAnimatedWebp::frameChanged, &counter, [&] {
            ++frameCount;
            QMetaObject::invokeMethod(
                &counter, [&turns] { ++turns; }, Qt::QueuedConnection);
        });
        player.start();
        QCOMPARE(frameCount, 0);
        QTRY_VERIFY(frameCount >= 20);
        player.stop();
        QVERIFY2(turns >= frameCount - 1, qPrintable(QString::number(turns)));

        QAnimatedWebp slow;
        slow.setFileName(file);
        slow.setMinDelayMs(20);
        const QList<qint64> times = frameTimes(slow, 6);
        QVERIFY(times.size() >= 6);
        QVERIFY2(times[5] - times[0] >= 5 * 20 - 8, qPrintable(QString::number(times[5] - times[0])));
    }

    void stopsQuietlyAtTheFirstBrokenFrame()
    {
        const QByteArray whole = Files::read(animation);
        QByteArray broken = whole;
        qsizetype frame = -1;
        for (int i = 0; i <= 5; ++i)
            frame = broken.indexOf("ANMF", frame + 1);
        const qsizetype next = broken.indexOf("ANMF", frame + 1);
        QVERIFY(frame > 0 && next > frame + 100);
        const qsizetype pixels = frame + 48; // past the headers, which are read before anything is shown
        broken.replace(pixels, next - pixels, QByteArray(next - pixels, '\xff'));
        for (const auto &[bytes, good] : {std::pair(broken, 5), std::pair(whole.first(whole.size() / 2), 0)}) {
            QAnimatedWebp player;
            QSignalSpy changed(&player, &QAnimatedWebp::frameChanged);
            player.setFileName(m_drawings.file(bytes, u".webp"_s));
            player.start();
            for (int i = 0; i < good; ++i)
                tick(player);
            QCOMPARE(changed.size(), good);
            QVERIFY(good == 0 || player.hasImage());
            player.start();
            QVERIFY(Events::untilIdle());
            QCOMPARE(changed.size(), good);
            QVERIFY(!player.hasImage());
        }
    }

private:
    Drawings m_drawings;
};

VELMO_TEST_MAIN(AnimatedWebpTest)
#include "AnimatedWebpTest.moc"
