#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "choosers/QMultiCompleterLineEdit.h"
#include "docking/oVIXDock.h"
#include "docking/oVIXDockBar.h"
#include "foundation/OvixSvgButton.h"
#include "frame/oVIXTitleBarFilter.h"

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// A main window on screen with a panel docked at its left.
struct Application
{
    QMainWindow window;
    oVIXDock *dock;

    Application()
    {
        window.setGeometry(100, 100, 700, 500);
        window.setCentralWidget(new QWidget);
        dock = new oVIXDock(&window, u"props"_s, false, true, false, &window);
        dock->setWidget(new QLabel(u"content"_s));
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        Gestures::show(&window);
    }
};

QList<QRect> gripsOf(const QWidget &dock)
{
    QList<QRect> places;
    const QList<oVIXGrip *> grips = dock.findChildren<oVIXGrip *>();
    for (const oVIXGrip *grip : grips)
        places << grip->geometry();
    return places;
}

bool showsGrips(const QWidget &dock)
{
    const QList<oVIXGrip *> grips = dock.findChildren<oVIXGrip *>();
    return std::all_of(grips.cbegin(), grips.cend(), [](const oVIXGrip *grip) { return grip->isVisible(); });
}

} // namespace

class DockTest : public TestCase
{
    Q_OBJECT

private slots:
    void floatsWithGripsAndABorder()
    {
        Application application;
        oVIXDock *dock = application.dock;
        const QList<QRect> before = gripsOf(*dock);
        QVERIFY(!showsGrips(*dock));
        application.window.resizeDocks({dock}, {300}, Qt::Horizontal);
        QCOMPARE(gripsOf(*dock), before);

        Gestures::click(dock->findChild<OvixSvgButton *>(u"btDetach"_s));
        QVERIFY(dock->isFloating() && showsGrips(*dock));
        const QString sheet = u"oVIXDock { border: 2px solid; background-color:rgb(59,59,59); }"_s;
        QCOMPARE(dock->styleSheet(), sheet);
        dock->resize(321, 234);
        QCOMPARE(gripsOf(*dock), QList<QRect>({{2, 229, 317, 5}, {0, 0, 5, 232}, {318, 0, 3, 232}}));
        dock->setWidget(new QWidget);
        QVERIFY(qobject_cast<oVIXGrip *>(dock->childAt(3, 100)));
        Events::Count styled(dock->widget(), QEvent::StyleChange);
        dock->dockChanged();
        QCOMPARE(styled.taken(), 0);
        const QByteArray state = application.window.saveState();
        dock->detachTriggered();
        QVERIFY(!dock->isFloating() && !dock->findChild<oVIXGrip *>()->isVisible());
        QCOMPARE(dock->styleSheet(), QString());
        QVERIFY(application.window.restoreState(state));
        QVERIFY(dock->isFloating() && showsGrips(*dock));
        QCOMPARE(dock->styleSheet(), sheet);

        delete dock->findChild<oVIXGrip *>(); // as after its close
        dock->setFloating(true);
        dock->resize(400, 300);
    }

    void isResizedByItsGrips()
    {
        Application application;
        oVIXDock *dock = application.dock;
        dock->setFloating(true);
        dock->setMinimumSize(150, 100);
        dock->setGeometry(200, 200, 300, 200);
        const QList<oVIXGrip *> grips = dock->findChildren<oVIXGrip *>();
        emit grips.at(1)->resizeByGrip(QPoint(-20, 0), true);
        QCOMPARE(dock->geometry(), QRect(180, 200, 320, 200));
        emit grips.at(1)->resizeByGrip(QPoint(170, 0), true); // onto the minimum
        QCOMPARE(dock->geometry(), QRect(180, 200, 320, 200));
        emit grips.at(2)->resizeByGrip(QPoint(-200, 0), false);
        emit grips.at(0)->resizeByGrip(QPoint(0, 15), false);
        QCOMPARE(dock->geometry(), QRect(180, 200, 150, 215));
    }

    void isDraggedOutByItsTitle()
    {
        Application application;
        oVIXDock *dock = application.dock;
        // What an application does on the way: it must not disturb the drag.
        connect(dock, &QDockWidget::topLevelChanged, dock, [dock] {
            dock->setTitle(u"Library"_s, u"Props"_s, u"Inter"_s, 11);
            dock->setSearchEnabled(true);
            dock->setWidget(new QWidget);
        });
        QSignalSpy changed(dock, &QDockWidget::topLevelChanged);
        QWidget *bar = dock->getTitleWidget();
        QWindow *handle = application.window.windowHandle();
        const QPoint start = bar->mapTo(&application.window, QPoint(30, 12));
        QCursor::setPos(application.window.mapToGlobal(start));
        QTest::mousePress(handle, Qt::LeftButton, {}, start);
        for (const QPoint step : {QPoint(40, 40), QPoint(200, 150), QPoint(300, 200)}) {
            QCursor::setPos(application.window.mapToGlobal(start + step));
            QTest::mouseMove(handle, start + step);
            QCoreApplication::processEvents();
        }
        QTest::mouseRelease(handle, Qt::LeftButton, {}, start + QPoint(300, 200));
        QTRY_VERIFY(dock->isFloating() && showsGrips(*dock));
        QCOMPARE(changed.size(), 1);

        // A button is no place to drag by.
        const QPoint onButton = bar->rect().center() + QPoint(bar->width() / 2 - 12, 0);
        QMouseEvent press(QEvent::MouseButtonPress, onButton, {}, Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(bar, &press);
        QVERIFY(press.isAccepted());
    }

    void passesItsHeaderOn()
    {
        Application application;
        oVIXDock *dock = application.dock;
        oVIXDockBar *bar = dock->getTitleWidget();
        QCOMPARE(bar->height(), 24);
        QCOMPARE(dock->widget()->y(), 24);
        QCOMPARE(bar->styleSheet(),
                 u"QLabel {\tfont-family:\"default\";\tbackground-color:rgb(59,59,59);}QGroupBox{\tfont-size:11px;}"_s);
        dock->setTitle(u"Library"_s, u"Props"_s, u"Inter"_s, 10);
        QCOMPARE(dock->windowTitle(), u"Library: Props"_s);
        const auto *title = bar->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(title->text(),
                 u"<font color=\"#ffffff\"> &nbsp;&nbsp;LIBRARY:&nbsp;</font>"
                 "<font color=\"#9c9c9c\"> Props</font>"_s);

        Told told(dock);
        dock->changeSearchLabel(u"lamp"_s);
        bar->clearSearchText();
        emit bar->thumbClicked(150);
        dock->setSearchEnabled(true);
        dock->setSearchEnabled(false);
        QCOMPARE(dock->minimumWidth(), 240);
        QCOMPARE(dock->allowedAreas(), Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        dock->dockAtBottom();
        QCOMPARE(dock->allowedAreas(), Qt::BottomDockWidgetArea);
        dock->setWidget(nullptr);
        dock->setHideSearchUntilHover(false);
        connect(dock, &oVIXDock::closeClicked, this, [dock] { QVERIFY(dock->isHidden()); });
        Gestures::click(bar->findChild<OvixSvgButton *>(u"btClose"_s));
        QCOMPARE(told.taken(),
                 u"s_search lamp, s_search , s_clearoptions, s_search , thumbClicked 150, closeClicked"_s);
    }

    void movesTheWindowItStandsIn()
    {
        QWidget window;
        window.setGeometry(100, 100, 401, 301);
        auto *dock = new oVIXDock(&window, u"alone"_s, false, false, false, nullptr);
        QCOMPARE(dock->geometry().center(), window.geometry().center());
        dock->setGeometry(0, 0, 400, 300);
        dock->createTitleBar(nullptr);
        dock->createTitleBar(&window);
        dock->createTitleBar(&window);
        QCOMPARE(window.findChildren<oVIXTitleBarFilter *>().size(), 1);
        Gestures::show(&window);
        const QPoint before = window.pos();
        QWidget *bar = dock->getTitleWidget();
        const QPoint start = bar->mapToGlobal(QPoint(40, 12));
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(40, 12), start, Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(bar, &press);
        QMouseEvent move(QEvent::MouseMove, QPoint(40, 12), start + QPoint(30, 20), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(bar, &move);
        QCOMPARE(window.pos(), before + QPoint(30, 20));
        delete dock;
        QVERIFY(!window.findChild<oVIXTitleBarFilter *>());
    }
};

VELMO_TEST_MAIN(DockTest)
#include "DockTest.moc"
