#include "support/Drawings.h"
#include "support/Events.h"
#include "support/TestCase.h"

#include "foundation/QAnimatedWebp.h"

#include <QElapsedTimer>
#include <QFile>
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

QByteArray animationBytes()
{
    QFile file(animation);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
        player.start();
        QVERIFY(changed.wait());
        QElapsedTimer time;
        time.start();
        QTRY_COMPARE(changed.size(), 4);
        QVERIFY2(time.elapsed() >= 3 * frameMsecs - 10, qPrintable(QString::number(time.elapsed())));
        player.stop();
        QVERIFY(Events::untilIdle());
        const int shown = changed.last().at(0).toInt();
        player.start();
        QVERIFY(changed.wait());
        QCOMPARE(changed.last().at(0).toInt(), shown + 1);
    }

    void framesWithoutDelayLeaveTheEventLoopItsTurns()
    {
        QByteArray bytes = animationBytes();
        for (qsizetype frame = 0; (frame = bytes.indexOf("ANMF", frame + 1)) > 0;)
            bytes.replace(frame + 20, 3, QByteArray(3, '\0'));
        QAnimatedWebp player;
        QSignalSpy changed(&player, &QAnimatedWebp::frameChanged);
        player.setFileName(m_drawings.file(bytes, u".webp"_s));
        player.start();
        QCOMPARE(changed.size(), 0);
        int turns = 0;
        connect(&player, &QAnimatedWebp::frameChanged, this, [this, &turns] {
            QMetaObject::invokeMethod(
                this, [&turns] { ++turns; }, Qt::QueuedConnection);
        });
        QTRY_VERIFY(changed.size() >= 20);
        player.stop();
        QVERIFY2(turns >= changed.size() - 1, qPrintable(QString::number(turns)));

        player.setMinDelayMs(20);
        player.start();
        QVERIFY(changed.wait());
        const qsizetype first = changed.size();
        tick(player); // makes up for the break
        QElapsedTimer time;
        time.start();
        QTRY_VERIFY(changed.size() >= first + 6);
        QVERIFY2(time.elapsed() >= 5 * 20 - 10, qPrintable(QString::number(time.elapsed())));
    }

    void stopsQuietlyAtTheFirstBrokenFrame()
    {
        const QByteArray whole = animationBytes();
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
