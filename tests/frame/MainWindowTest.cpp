#include "support/Assistive.h"
#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "foundation/OvixSvgButton.h"
#include "foundation/OvixSvgLabel.h"
#include "frame/EdgeResize.h"
#include "frame/NativeWindowApi.h"
#include "frame/oVIXGrip.h"
#include "frame/oVIXMainWindow.h"
#include "frame/oVIXMinMaxCloseWidget.h"
#include "frame/oVIXTitleBar.h"
#include "frame/oVIXWindowBlock.h"
#include "frame/oVIXWindowWaitGlobal.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QSizeGrip>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// Tells which of its hooks have been called.
class Window : public oVIXMainWindow
{
public:
    QStringList told;

    void startWaitEvent(bool delayed) override { told << (delayed ? u"start delayed"_s : u"start"_s); }
    void endWaitEvent() override { told << u"end"_s; }
    void showWindowBlockEvent() override { told << u"block"_s; }
    void hideWindowBlockEvent() override { told << u"unblock"_s; }
};

oVIXGrip *edgeOf(const QWidget &window, const QRect &geometry)
{
    const QList<oVIXGrip *> grips = window.findChildren<oVIXGrip *>();
    for (oVIXGrip *grip : grips) {
        if (grip->geometry() == geometry)
            return grip;
    }
    return nullptr;
}

} // namespace

class MainWindowTest : public TestCase
{
    Q_OBJECT

private slots:
    void resizesByAStepOfAGrip_data()
    {
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<bool>("invert");
        QTest::addColumn<QRect>("result");
        const QRect before(100, 100, 300, 200);
        QTest::newRow("right edge") << QPoint(10, 0) << false << before.adjusted(0, 0, 10, 0);
        QTest::newRow("bottom edge below the minimum") << QPoint(0, -190) << false << before.adjusted(0, 0, 0, -190);
        QTest::newRow("left edge out") << QPoint(-10, 0) << true << before.adjusted(-10, 0, 0, 0);
        QTest::newRow("left edge to one above the minimum") << QPoint(199, 0) << true << before.adjusted(199, 0, 0, 0);
        QTest::newRow("left edge onto the minimum") << QPoint(200, 0) << true << before;
        QTest::newRow("top edge onto the minimum") << QPoint(0, 150) << true << before;
        QTest::newRow("top edge in") << QPoint(0, 149) << true << before.adjusted(0, 149, 0, 0);
    }
    void resizesByAStepOfAGrip()
    {
        QFETCH(QPoint, delta);
        QFETCH(bool, invert);
        QTEST(resizedByGrip(QRect(100, 100, 300, 200), delta, invert, QSize(100, 50)), "result");
    }

    void placesItsGrips()
    {
        Window window;
        window.resize(1000, 600);
        Gestures::show(&window);
        QVERIFY(edgeOf(window, QRect(5, 0, 990, 3)));
        QVERIFY(edgeOf(window, QRect(5, 597, 990, 3)));
        QVERIFY(edgeOf(window, QRect(0, 0, 3, 595)));
        QVERIFY(edgeOf(window, QRect(997, 0, 3, 595)));
        QList<QRect> corners;
        const QList<QSizeGrip *> grips = window.findChildren<QSizeGrip *>();
        for (const QSizeGrip *grip : grips)
            corners << grip->geometry();
        for (const QPoint corner : {QPoint(0, 0), QPoint(995, 0), QPoint(0, 595), QPoint(995, 595)})
            QVERIFY(corners.contains(QRect(corner, QSize(5, 5))));

        window.setGripsEnabled(false);
        for (const QSizeGrip *grip : grips)
            QVERIFY(!grip->isEnabled());
        delete edgeOf(window, QRect(5, 0, 990, 3)); // as after its close
        window.resize(500, 400);
        window.setGripsEnabled(true);
    }

    void isResizedByDraggingAnEdge()
    {
        Window window;
        window.setMinimumSize(200, 100);
        window.setGeometry(50, 50, 400, 300);
        Gestures::show(&window);
        oVIXGrip *right = edgeOf(window, QRect(397, 0, 3, 295));
        QVERIFY(right);
        QSignalSpy steps(right, &oVIXGrip::resizeByGrip);
        Gestures::press(right);
        const QPointF at = right->mapToGlobal(QPointF(right->rect().center()));
        QMouseEvent move(QEvent::MouseMove, QPointF(), at + QPointF(20.5, 7), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(right, &move);
        QCOMPARE(steps.value(0), QVariantList({QPoint(21, 0), false}));
        QCOMPARE(window.geometry(), QRect(50, 50, 421, 300));
        Gestures::release(right);

        window.showMaximized();
        QVERIFY(Events::untilIdle());
        const QRect maximized = window.geometry();
        window.resizeByGrip(QPoint(-50, -50), false);
        QCOMPARE(window.geometry(), maximized);
    }

    void dimsWhileAModalDialogIsOpen()
    {
        Window window;
        window.resize(400, 300);
        window.setCentralWidget(new QWidget); // joins the window after the overlays
        Gestures::show(&window);
        QVERIFY(!window.getWindowBlock()->isVisible());
        QDialog dialog(&window);
        QTimer::singleShot(0, &dialog, [&] {
            QVERIFY(window.getWindowBlock()->isVisible());
            QCOMPARE(window.getWindowBlock()->size(), window.size());
            QCOMPARE(window.childAt(200, 150), window.getWindowBlock());
            window.showWindowBlock(); // shows already: no second hook
            dialog.reject();
        });
        dialog.exec();
        QVERIFY(!window.getWindowBlock()->isVisible());
        QCOMPARE(window.told, QStringList({u"block"_s, u"unblock"_s}));

        window.showWindowBlock();
        window.hide();
        window.hideWindowBlock();
        window.show();
        QVERIFY(!window.getWindowBlock()->isVisible());
    }

    void runsTheWaitOverlay()
    {
        Window window;
        window.resize(400, 300);
        Gestures::show(&window);
        oVIXWindowWaitGlobal *wait = window.getWindowWait();

        window.endWait();
        window.startWaitWithPercent();
        QVERIFY(wait->isVisible() && wait->isRunning());
        QVERIFY(wait->isPercentVisible() && !wait->isTextVisible());
        window.endWait();
        QVERIFY(!wait->isVisible() && !wait->isRunning());
        window.startWaitWithText();
        QVERIFY(!wait->isPercentVisible() && wait->isTextVisible() && wait->isTextEmpty());
        window.endWait();
        window.startWaitDelayed();
        wait->progressEvent(u"soon over"_s);
        QVERIFY(wait->isRunning() && !wait->isVisible());
        window.endWait();
        QCOMPARE(window.told.join(u' '), u"start end start end start delayed end"_s);
    }

    void triesAgainUntilItWorksOrTheUserStopsIt()
    {
        Window window;
        int made = 0;
        bool cancelled = true;
        const auto succeedsAt = [&made](int attempt) { return [&made, attempt] { return ++made == attempt; }; };
        QVERIFY(!window.attemptMultipleTimes(0, 0, succeedsAt(1), &cancelled));
        QCOMPARE(made, 0);
        QVERIFY(!cancelled);
        QVERIFY(window.attemptMultipleTimes(5, 0, succeedsAt(2), nullptr));
        QCOMPARE(made, 2);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!window.attemptMultipleTimes(3, 20, succeedsAt(99), nullptr));
        QVERIFY(clock.elapsed() >= 60);
        QCOMPARE(made, 5);
        QVERIFY(!window.attemptMultipleTimes(3, 0, {}, nullptr));

        NativeWindowApi &native = NativeWindowApi::instance();
        const NativeWindowApi before = native;
        const auto restore = qScopeGuard([&] { native = before; });
        native.isKeyDown = [](int key) { return key == NativeWindowApi::Escape; };
        window.resize(200, 100);
        Gestures::show(&window);
        window.activateWindow();
        QTRY_COMPARE(QGuiApplication::focusWindow(), window.windowHandle());
        QVERIFY(!window.attemptMultipleTimes(3, 0, succeedsAt(6), &cancelled));
        QVERIFY(cancelled);
        QCOMPARE(made, 5);
        native.foregroundWindow = [] { return nullptr; }; // another program's
        QVERIFY(window.attemptMultipleTimes(3, 0, succeedsAt(6), &cancelled));
        QVERIFY(!cancelled);
    }

    void isMovedByItsTitle()
    {
        Window window;
        window.setGeometry(60, 60, 600, 300);
        window.menuBar()->addMenu(u"Scene"_s);
        oVIXTitleBar title(window.menuBar(), true, true, true);
        Gestures::show(&window);
        QSignalSpy maximized(&title, &oVIXTitleBar::maximized);

        const auto send = [&window](QEvent::Type type, QPoint at, QPoint global, Qt::MouseButton button) {
            QMouseEvent event(type, at, global, button, type == QEvent::MouseMove ? button : Qt::NoButton, {});
            QCoreApplication::sendEvent(window.menuBar(), &event);
        };
        const QPoint free(300, 5);
        const auto drag = [&](QPoint from, Qt::MouseButton button) {
            const QPoint start = window.pos() + QPoint(300, 5);
            send(QEvent::MouseButtonPress, from, start, button);
            send(QEvent::MouseMove, from, start + QPoint(30, 20), button);
            send(QEvent::MouseButtonRelease, from, start + QPoint(30, 20), button);
        };
        const QPoint before = window.pos();
        drag(free, Qt::RightButton);
        drag(window.menuBar()->actionGeometry(window.menuBar()->actions().constFirst()).center(), Qt::LeftButton);
        QCOMPARE(window.pos(), before);
        QTest::keyClick(QApplication::activePopupWidget() ? QApplication::activePopupWidget() : &window,
                        Qt::Key_Escape);
        drag(free, Qt::LeftButton);
        QCOMPARE(window.pos(), before + QPoint(30, 20));
        send(QEvent::MouseButtonDblClick, free, window.pos(), Qt::LeftButton);
        QCOMPARE(maximized.size(), 1);

        QSignalSpy closed(&title, &oVIXTitleBar::closed);
        Gestures::click(title.getCloseWidget()->findChild<OvixSvgButton *>(u"btClose"_s));
        QCOMPARE(closed.size(), 1);
        auto *middle = title.getCloseWidget()->findChild<OvixSvgButton *>(u"btMax"_s);
        title.getCloseWidget()->setMaximized(true);
        QCOMPARE(middle->firstFilename(), u":/Windows/Restore"_s);

        title.setLogo(u":/Windows/Wait"_s, QSize(40, 20));
        const auto *logo = window.menuBar()->findChild<OvixSvgLabel *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(logo->x(), window.menuBar()->width() / 2 - 20);
        window.resize(800, 300);
        QVERIFY(Events::untilIdle());
        QCOMPARE(logo->x(), window.menuBar()->width() / 2 - 20);
        title.setLogo(QString(), QSize());
        QVERIFY(logo->isHidden());
        title.getCloseWidget()->hideCloseButtons();
        QCOMPARE(title.getCloseWidget()->height(), 32);
        QCOMPARE(window.menuBar()->sizeHint().height(), 32);
        auto *last = new QLabel;
        title.getCloseWidget()->insertWidget(last, 99);
        QCOMPARE(title.getCloseWidget()->layout()->indexOf(last), 3);
    }

    void itsTitleIsUsedByAssistiveTools()
    {
        Window window;
        QMenu *scene = window.menuBar()->addMenu(u"&Scene"_s);
        scene->addAction(u"Open"_s);
        window.menuBar()->addAction(u"Save && close"_s);
        oVIXTitleBar title(window.menuBar(), false, false, true);
        window.resize(600, 300);
        Gestures::show(&window);
        QAccessibleInterface *bar = Assistive::of(window.menuBar());
        QVERIFY(bar->role() == QAccessible::MenuBar && bar->childCount() == 3 && !bar->child(3));
        const QString showMenu = QAccessibleActionInterface::showMenuAction();
        const QString press = QAccessibleActionInterface::pressAction();
        QAccessibleInterface *entry = bar->child(1);
        QCOMPARE(entry->text(QAccessible::Name), u"Save & close"_s);
        QCOMPARE(bar->childAt(entry->rect().center().x(), entry->rect().center().y()), entry);
        QSignalSpy triggered(window.menuBar()->actions().at(1), &QAction::triggered);
        entry->actionInterface()->doAction(press);
        QTRY_COMPARE(triggered.size(), 1);
        bar->child(0)->actionInterface()->doAction(showMenu);
        QVERIFY(scene->isVisible() && bar->child(0)->state().expanded);
        QCOMPARE(bar->child(0)->child(0), Assistive::of(scene));
        bar->child(0)->actionInterface()->doAction(showMenu);
        QVERIFY(!scene->isVisible());

        QAccessibleInterface *buttons = bar->child(2);
        QVERIFY(buttons->object() == title.getCloseWidget() && bar->indexOfChild(buttons) == 2);
        delete window.menuBar()->actions().at(1);
        QCOMPARE(bar->childCount(), 2);
        QCOMPARE(bar->child(1), buttons);
    }

    void saysThatItCloses()
    {
        auto *window = new Window;
        QSignalSpy closed(window, &oVIXMainWindow::closed);
        Gestures::show(window);
        QVERIFY(window->close());
        QCOMPARE(closed.size(), 1);
        delete window;
        oVIXTitleBar(nullptr, true, true, true).setLogo(u"x"_s, QSize(-1, -1));
    }
};

VELMO_TEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
