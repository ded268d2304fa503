#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "frame/oVIXWindowWaitGlobal.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <thread>

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
        inAnotherThread([&wait] { wait.percentEvent(7); });
        QTRY_VERIFY(regions.painted.contains(QPoint(20, 150)));
        QVERIFY(!regions.painted.contains(QPoint(10, 10)));
        wait.removeEventFilter(&regions);

        wait.endWait();
        Events::Count timers(&wait, QEvent::Timer);
        QTest::qWait(120);
        QCOMPARE(timers.taken(), 0);
    }
};

VELMO_TEST_MAIN(WaitOverlayTest)
#include "WaitOverlayTest.moc"
