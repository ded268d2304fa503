#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "frame/oVIXWindowWaitGlobal.h"

#include <QPainter>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>

#ifdef __GLIBC__
#include <pthread.h>
#endif

using namespace Qt::StringLiterals;

namespace {

template <class Work> void inAnotherThread(Work work)
{
    std::thread(work).join();
}

} // namespace

class WaitOverlayTest : public TestCase
{
    Q_OBJECT

private slots:
    void followsItsParent()
    {
        QWidget window;
        window.resize(200, 100);
        auto *custom = new QWidget;
        oVIXWindowBlock block(&window);
        block.setCustomWidget(custom);
        Gestures::show(&window);
        window.resize(300, 150);
        QCOMPARE(block.size(), QSize(300, 150));
        QCOMPARE(custom->size(), QSize(300, 150));
        QWidget other;
        block.setParent(&other);
        other.resize(80, 60);
        block.show();
        other.show();
        QTRY_COMPARE(block.size(), QSize(80, 60));
        block.setCustomWidget(nullptr);
        block.setBackgroundPixmap(nullptr);
        block.clearBackgroundPixmap();
        block.drawPixmapInRect(QRect(0, 0, 5, 5), QPixmap());
        block.setParent(nullptr);
    }

    void dimsWhatIsBelowAndShowsItsPicture()
    {
        QWidget window;
        window.resize(60, 40);
        window.setStyleSheet(u"background:white"_s);
        QWidget target(&window);
        target.setGeometry(0, 0, 30, 40);
        oVIXWindowBlock block(&window);
        QPixmap red(4, 4);
        red.fill(Qt::red);
        block.setBackgroundPixmap(&red);
        block.setCentralWidget(&target);
        block.setStyleSheet(u"background:transparent"_s);
        Gestures::show(&window);
        QCOMPARE(Picture::colourAt(&block, {10, 20}), QColor(65, 0, 0));
        QCOMPARE(Picture::colourAt(&block, {50, 20}).alpha(), 190);
    }

    void showsAtOnceOrAfterASecond()
    {
        QWidget window;
        window.resize(400, 300);
        oVIXWindowWaitGlobal wait(&window);
        wait.hide();
        Gestures::show(&window);
        QSignalSpy finished(&wait, &oVIXWindowWaitGlobal::delayFinished);

        wait.startWait(false);
        QVERIFY(!wait.isVisible());
        inAnotherThread([&wait] { wait.progressEvent(u"from a worker"_s); });
        QVERIFY(!wait.isVisible());
        QCOMPARE(wait.getText(), u"from a worker"_s);
        wait.progressEvent(QString());
        QVERIFY(wait.isVisible());
        QCOMPARE(wait.getText(), u"from a worker"_s);
        wait.endWait();

        wait.startWait(true);
        const unsigned long first = wait.getWinThreadID();
        QVERIFY(first != 0);
        wait.startWait(true); // runs already
        QCOMPARE(wait.getWinThreadID(), first);
        wait.endWait();
        QCOMPARE(wait.getWinThreadID(), 0UL);
        QCOMPARE(finished.size(), 0);

        wait.startWait(true);
        QVERIFY(wait.getWinThreadID() > first);
        QTRY_VERIFY_WITH_TIMEOUT((wait.progressEvent(QString()), wait.isVisible()), 5000);
        wait.progressEvent(QString());
        QCOMPARE(finished.size(), 1);
        wait.endWait();

        wait.startWait(true);
        wait.timeElapsedEvent();
        inAnotherThread([&wait] { wait.progressEvent(7); });
        inAnotherThread([&wait] { wait.progressEvent(QString()); }); // takes the announcement away
        wait.progressEvent(QString());
        QCOMPARE(finished.size(), 1);
        QVERIFY(wait.isVisible());
        QCOMPARE(wait.getPercent(), 7);
        int crashes = 0;
        wait.applicationCrashed(&crashes, [](void *context) { ++*static_cast<int *>(context); });
        wait.progressEvent(QString());
        inAnotherThread([&wait] { wait.progressEvent(QString()); });
        QCOMPARE(crashes, 1);
    }

    void takesReportsFromAWorkerWhileItPaints()
    {
        QWidget window;
        window.resize(400, 300);
        oVIXWindowWaitGlobal wait(&window);
        wait.hide();
        Gestures::show(&window);
        wait.startWait(true);
        wait.setTextVisible(true);
        wait.setPercentVisible(true);
        std::atomic_bool done = false;
        std::thread worker([&wait, &done] {
            for (int i = 0; i <= 3000; ++i) {
                wait.progressEvent(u"Step %1"_s.arg(i));
                wait.progressEvent(i % 100);
                if (i == 100)
                    wait.timeElapsedEvent();
            }
            done = true;
        });
        while (!done)
            wait.progressEvent(QString());
        worker.join();
        wait.progressEvent(QString()); // the worker may have been the faster one
        QVERIFY(wait.isVisible());
        QCOMPARE(wait.getText(), u"Step 3000"_s);
        QCOMPARE(wait.getPercent(), 0);
    }

    void showsAtOnceWhenNoThreadCanBeStarted()
    {
#if defined(__GLIBC__) && !defined(__SANITIZE_THREAD__)
        pthread_attr_t before;
        pthread_getattr_default_np(&before);
        const auto restore = qScopeGuard([&before] { pthread_setattr_default_np(&before); });
        pthread_attr_t greedy;
        pthread_attr_init(&greedy);
        pthread_attr_setstacksize(&greedy, size_t(1) << 46);
        pthread_setattr_default_np(&greedy);

        QWidget window;
        oVIXWindowWaitGlobal wait(&window);
        wait.hide();
        Gestures::show(&window);
        wait.startWait(true);
        QCOMPARE(wait.getWinThreadID(), 0UL);
        wait.progressEvent(QString());
        QVERIFY(wait.isVisible());
#else
        QSKIP("Threads cannot be made to fail here.");
#endif
    }

    void staysAwayOnceEndedByItsAnnouncement()
    {
        QWidget window;
        oVIXWindowWaitGlobal wait(&window);
        wait.hide();
        Gestures::show(&window);
        connect(&wait, &oVIXWindowWaitGlobal::delayFinished, &wait, [&wait] { wait.endWait(); });
        wait.startWait(true);
        wait.timeElapsedEvent();
        wait.progressEvent(u"late"_s);
        QVERIFY(!wait.isVisible());

        connect(&wait, &oVIXWindowWaitGlobal::delayFinished, &wait, [&wait] { wait.startWait(true); });
        wait.startWait(true);
        wait.timeElapsedEvent();
        wait.progressEvent(QString());
        QVERIFY(wait.isRunning() && !wait.isVisible());
    }

    void mayBeReportedToOutOfAPaint()
    {
        class Reporting : public QWidget
        {
        public:
            Reporting(QWidget *parent, oVIXWindowWait *overlay) : QWidget(parent), wait(overlay) { }
            oVIXWindowWait *wait;

        protected:
            void paintEvent(QPaintEvent *) override
            {
                const QPainter painter(this);
                wait->progressEvent(u"painting"_s);
            }
        };
        QWidget window;
        window.resize(300, 200);
        oVIXWindowWait wait(&window);
        Reporting sibling(&window, &wait);
        sibling.resize(50, 50);
        QTest::qWait(60); // past the throttle
        Gestures::show(&window);
        QTRY_VERIFY(wait.isVisible());
        QCOMPARE(wait.getText(), u"painting"_s);
    }

    void survivesWhatAReportLeadsTo()
    {
        auto *window = new QWidget;
        window->resize(400, 300);
        auto *wait = new oVIXWindowWait(window);
        Gestures::show(window);
        wait->startWait();
        QTest::qWait(60); // past the throttle
        QMetaObject::invokeMethod(
            wait,
            [wait, window] {
                wait->progressEvent(u"nested"_s);
                delete window;
            },
            Qt::QueuedConnection);
        wait->progressEvent(u"outer"_s);
    }

    void repaintsItsWidgetsAtOnce()
    {
        QWidget window;
        window.resize(300, 200);
        QWidget scene(&window);
        auto *gone = new QWidget(&window);
        oVIXWindowWait wait(&window);
        for (QWidget *widget : {&scene, gone, static_cast<QWidget *>(nullptr)})
            wait.addWidgetToUpdate(widget);
        delete gone;
        Gestures::show(&window);
        wait.startWait();
        QVERIFY(Events::untilIdle());
        Events::Count paints(&scene, QEvent::Paint);
        int ticks = 0;
        QTRY_VERIFY((ticks += paints.taken()) > 0);
        wait.endWait();
        QCOMPARE(paints.taken(), 1);
    }

    void paintsOnlyWhatChanges()
    {
        QWidget window;
        window.resize(400, 300);
        oVIXWindowWait wait(&window);
        Gestures::show(&window);
        wait.setTextVisible(true);
        wait.setPercentVisible(true);
        wait.startWait();
        QTRY_VERIFY(wait.isVisible());

        struct Regions : QObject
        {
            QRegion painted;
            bool eventFilter(QObject *, QEvent *event) override
            {
                if (event->type() == QEvent::Paint)
                    painted += static_cast<QPaintEvent *>(event)->region();
                return false;
            }
        } regions;
        QTest::qWait(120);
        wait.installEventFilter(&regions);
        inAnotherThread([&wait] { wait.progressEvent(u"Reading actors"_s); });
        QTRY_VERIFY(regions.painted.contains(QPoint(200, 240)));
        inAnotherThread([&wait] { wait.percentEvent(1'000'000'000); }); // wider than the mark behind it
        QTRY_VERIFY(regions.painted.contains(QPoint(131, 150)));
        for (const QPoint unchanged : {QPoint(10, 10), QPoint(10, 150), QPoint(10, 240)})
            QVERIFY(!regions.painted.contains(unchanged));
        wait.removeEventFilter(&regions);

        wait.endWait();
        Events::Count timers(&wait, QEvent::Timer);
        QTest::qWait(120);
        QCOMPARE(timers.taken(), 0);
    }
};

VELMO_TEST_MAIN(WaitOverlayTest)
#include "WaitOverlayTest.moc"
