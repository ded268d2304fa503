#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/OvixSvgButton.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A button in a window, with the pointer beside it.
struct Shown
{
    QWidget window;
    QPointer<OvixSvgButton> button = new OvixSvgButton(&window);

    Shown()
    {
        window.resize(400, 200);
        button->setGeometry(20, 20, 40, 40);
        button->setFilename(u":/Windows/Close"_s);
        Gestures::show(&window);
        Gestures::hover(&window, {120, 50});
    }
};

/// A button that takes mouse events as they are: the toolkit rounds positions and keeps events from disabled widgets.
struct Bare : OvixSvgButton
{
    void release(Qt::MouseButton button, QPointF global = {})
    {
        QMouseEvent event = mouseEvent(QEvent::MouseButtonRelease, button, global);
        mouseReleaseEvent(&event);
    }

    /// Whether the button keeps the event, which so far was @p accepted.
    bool doubleClick(Qt::MouseButton button, bool accepted)
    {
        QMouseEvent event = mouseEvent(QEvent::MouseButtonDblClick, button, {});
        event.setAccepted(accepted);
        mouseDoubleClickEvent(&event);
        return event.isAccepted();
    }

private:
    static QMouseEvent mouseEvent(QEvent::Type type, Qt::MouseButton button, QPointF global)
    {
        return {type, QPointF(5, 5), QPointF(5, 5), global, button, Qt::NoButton, Qt::NoModifier};
    }
};

} // namespace

using Act = std::function<void(Shown &)>;
Q_DECLARE_METATYPE(Act)

class OvixSvgButtonTest : public TestCase
{
    Q_OBJECT

private slots:
    void answersAClick_data()
    {
        QTest::addColumn<Qt::MouseButton>("mouseButton");
        QTest::addColumn<Act>("setUp");
        QTest::addColumn<int>("clicked");
        QTest::addColumn<int>("rightClicked");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<int>("leftToTheParent");
        const auto nothing = [](Shown &) {};
        const auto checkable = [](Shown &shown) { shown.button->setCheckable(true); };
        const auto ignoring = [](Shown &shown) {
            shown.button->setCheckable(true);
            shown.button->setIgnoreSingleClick(true);
        };
        QTest::newRow("left") << Qt::LeftButton << Act(nothing) << 1 << 0 << false << 0;
        QTest::newRow("right") << Qt::RightButton << Act(nothing) << 0 << 1 << false << 0;
        QTest::newRow("middle") << Qt::MiddleButton << Act(checkable) << 0 << 0 << false << 0;
        QTest::newRow("left, checkable") << Qt::LeftButton << Act(checkable) << 1 << 0 << true << 0;
        QTest::newRow("right, checkable") << Qt::RightButton << Act(checkable) << 0 << 1 << false << 0;
        QTest::newRow("left, ignored") << Qt::LeftButton << Act(ignoring) << 0 << 0 << false << 1;
        QTest::newRow("right, ignoring left") << Qt::RightButton << Act(ignoring) << 0 << 1 << false << 0;
    }
    void answersAClick()
    {
        QFETCH(Qt::MouseButton, mouseButton);
        QFETCH(Act, setUp);
        Shown shown;
        setUp(shown);
        QSignalSpy clicked(shown.button, &OvixSvgButton::clicked);
        QSignalSpy rightClicked(shown.button, &OvixSvgButton::rightClicked);
        Events::Count parent(&shown.window, QEvent::MouseButtonRelease);
        Gestures::press(shown.button, mouseButton);
        QCOMPARE(clicked.size() + rightClicked.size(), 0);
        Gestures::release(shown.button, mouseButton);
        QTEST(int(clicked.size()), "clicked");
        QTEST(int(rightClicked.size()), "rightClicked");
        QTEST(shown.button->isChecked(), "checked");
        QTEST(parent.taken(), "leftToTheParent");
    }

    void aDisabledButtonDoesNothing()
    {
        Shown shown;
        shown.button->setCheckable(true);
        shown.button->setEnabled(false);
        QSignalSpy clicked(shown.button, &OvixSvgButton::clicked);
        QSignalSpy doubleClicked(shown.button, &OvixSvgButton::doubleClicked);
        QSignalSpy rightClicked(shown.button, &OvixSvgButton::rightClicked);
        Gestures::doubleClick(shown.button);
        Gestures::click(shown.button, Qt::RightButton);
        shown.button->click();
        QCOMPARE(clicked.size() + doubleClicked.size() + rightClicked.size(), 0);
        QVERIFY(!shown.button->isChecked());
    }

    void answersOnlyUnderThePointer_data()
    {
        QTest::addColumn<bool>("toolkitSaysSo");
        QTest::addColumn<QPoint>("pointer");
        QTest::addColumn<int>("answers");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("away") << false << QPoint(90, 90) << 0 << true;
        QTest::newRow("just outside") << false << QPoint(40, 5) << 0 << true;
        QTest::newRow("inside, not noticed by the toolkit") << false << QPoint(39, 5) << 1 << true;
        QTest::newRow("away, said to be inside") << true << QPoint(90, 90) << 1 << true;
        QTest::newRow("inside, disabled") << true << QPoint(5, 5) << 0 << false;
    }
    void answersOnlyUnderThePointer()
    {
        QFETCH(QPoint, pointer);
        QFETCH(bool, toolkitSaysSo);
        QFETCH(int, answers);
        QFETCH(bool, enabled);
        Bare button; // not shown, so that the toolkit does not notice the pointer
        button.resize(40, 40);
        QCursor::setPos(button.mapToGlobal(pointer));
        button.setAttribute(Qt::WA_UnderMouse, toolkitSaysSo);
        button.setEnabled(enabled);
        QSignalSpy clicked(&button, &OvixSvgButton::clicked);
        QSignalSpy doubleClicked(&button, &OvixSvgButton::doubleClicked);
        QSignalSpy rightClicked(&button, &OvixSvgButton::rightClicked);
        button.release(Qt::LeftButton);
        button.release(Qt::RightButton);
        button.doubleClick(Qt::LeftButton, true);
        QCOMPARE(clicked.size(), answers);
        QCOMPARE(rightClicked.size(), answers);
        QCOMPARE(doubleClicked.size(), answers);
    }

    void leavesOtherDoubleClicksToTheParent()
    {
        Bare button;
        button.setAttribute(Qt::WA_UnderMouse);
        QSignalSpy doubleClicked(&button, &OvixSvgButton::doubleClicked);
        QVERIFY(!button.doubleClick(Qt::RightButton, true));
        QVERIFY(!button.doubleClick(Qt::MiddleButton, true));
        QCOMPARE(doubleClicked.size(), 0);
        QVERIFY(button.doubleClick(Qt::LeftButton, false));
        QCOMPARE(doubleClicked.size(), 1);
    }

    void aDoubleClickClicksTwice_data()
    {
        QTest::addColumn<bool>("ignoring");
        QTest::addColumn<QString>("emitted");
        QTest::newRow("plain") << false << u"click double click"_s;
        QTest::newRow("single clicks ignored") << true << u"double"_s;
    }
    void aDoubleClickClicksTwice()
    {
        QFETCH(bool, ignoring);
        Shown shown;
        shown.button->setIgnoreSingleClick(ignoring);
        QStringList emitted;
        connect(shown.button, &OvixSvgButton::clicked, this, [&] { emitted << u"click"_s; });
        connect(shown.button, &OvixSvgButton::doubleClicked, this, [&] { emitted << u"double"_s; });
        Gestures::doubleClick(shown.button);
        QTEST(emitted.join(u' '), "emitted");
    }

    void isCheckedBeforeItSaysClicked()
    {
        Shown shown;
        shown.button->setCheckable(true);
        QList<bool> seen;
        connect(shown.button, &OvixSvgButton::clicked, this, [&] { seen << shown.button->isChecked(); });
        Gestures::click(shown.button);
        Gestures::click(shown.button);
        QCOMPARE(seen, QList<bool>({true, false}));
        Gestures::click(shown.button);
        QVERIFY(Events::untilIdle());
        QVERIFY(shown.button->styleSheet().startsWith(u"QLabel { background-color:rgba(116, 211, 252,48);"_s));
        // Not checkable any more: a click leaves the state alone.
        Events::Count paints(shown.button, QEvent::Paint);
        shown.button->setCheckable(false);
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 1);
        Gestures::click(shown.button);
        QVERIFY(shown.button->isChecked());
    }

    void roundsTheRightClicksPosition_data()
    {
        QTest::addColumn<QPointF>("at");
        QTest::addColumn<QPoint>("told");
        QTest::newRow("whole") << QPointF(7, -3) << QPoint(7, -3);
        QTest::newRow("halves away from zero") << QPointF(10.5, -3.5) << QPoint(11, -4);
        QTest::newRow("small halves") << QPointF(0.5, -0.5) << QPoint(1, -1);
        QTest::newRow("nearest") << QPointF(10.49, -3.51) << QPoint(10, -4);
    }
    void roundsTheRightClicksPosition()
    {
        QFETCH(QPointF, at);
        Bare button;
        button.setAttribute(Qt::WA_UnderMouse);
        QSignalSpy rightClicked(&button, &OvixSvgButton::rightClicked);
        button.release(Qt::RightButton, at);
        QTEST(rightClicked.value(0).value(0).toPoint(), "told");
    }

    void mayBeDeletedFromItsSignals_data()
    {
        QTest::addColumn<Act>("act");
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        row("click", [](Shown &shown) { Gestures::click(shown.button); });
        row("checkable click", [](Shown &shown) {
            shown.button->setCheckable(true);
            Gestures::click(shown.button);
        });
        row("double click", [](Shown &shown) {
            shown.button->setIgnoreSingleClick(true);
            Gestures::hover(shown.button);
            QTest::mouseDClick(shown.window.windowHandle(), Qt::LeftButton, {}, shown.button->geometry().center());
        });
        row("right click", [](Shown &shown) { Gestures::click(shown.button, Qt::RightButton); });
        row("key", [](Shown &shown) {
            shown.button->setFocusPolicy(Qt::StrongFocus);
            Gestures::focus(shown.button);
            QTest::keyPress(shown.button, Qt::Key_Space);
        });
    }
    void mayBeDeletedFromItsSignals()
    {
        QFETCH(Act, act);
        Shown shown;
        const auto remove = [&shown] { delete shown.button; };
        connect(shown.button, &OvixSvgButton::clicked, &shown.window, remove);
        connect(shown.button, &OvixSvgButton::doubleClicked, &shown.window, remove);
        connect(shown.button, &OvixSvgButton::rightClicked, &shown.window, remove);
        act(shown);
        QVERIFY(Events::untilIdle());
        QVERIFY(!shown.button);
    }

    void isPressedByKeysOnceItMayHaveTheFocus_data()
    {
        QTest::addColumn<Qt::FocusPolicy>("policy");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<bool>("taken");
        QTest::addColumn<int>("clicked");
        const Qt::KeyboardModifiers none, control(Qt::ControlModifier), keypad(Qt::KeypadModifier);
        QTest::newRow("space") << Qt::StrongFocus << Qt::Key_Space << none << true << 1;
        QTest::newRow("return") << Qt::TabFocus << Qt::Key_Return << none << true << 1;
        QTest::newRow("enter") << Qt::StrongFocus << Qt::Key_Enter << keypad << true << 1;
        QTest::newRow("no policy") << Qt::NoFocus << Qt::Key_Space << none << false << 0;
        QTest::newRow("with a modifier") << Qt::StrongFocus << Qt::Key_Return << control << false << 0;
        QTest::newRow("other key") << Qt::StrongFocus << Qt::Key_A << none << false << 0;
    }
    void isPressedByKeysOnceItMayHaveTheFocus()
    {
        QFETCH(Qt::FocusPolicy, policy);
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(bool, taken);
        QFETCH(int, clicked);
        Shown shown;
        QCOMPARE(shown.button->focusPolicy(), Qt::NoFocus);
        shown.button->setCheckable(true);
        shown.button->setFocusPolicy(policy);
        QSignalSpy spy(shown.button, &OvixSvgButton::clicked);
        const auto send = [&](bool repeated) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), repeated);
            QCoreApplication::sendEvent(shown.button, &event);
            return event.isAccepted();
        };
        QVERIFY(!send(false)); // the focus is elsewhere
        Gestures::focus(shown.button);
        QCOMPARE(send(false), taken);
        QCOMPARE(spy.size(), clicked);
        QCOMPARE(shown.button->isChecked(), clicked == 1);
        QCOMPARE(send(true), taken); // held down: still its key, but no other press
        shown.button->setIgnoreSingleClick(true);
        QCOMPARE(send(false), taken);
        QCOMPARE(spy.size(), clicked);
    }

    void ringsTheFocus()
    {
        Shown shown;
        shown.button->setFilenames({});
        shown.button->setFocusPolicy(Qt::StrongFocus);
        Gestures::focus(&shown.window);
        const auto edges = [&shown] {
            const QImage image = Picture::of(shown.button);
            return QList<QColor>{image.pixelColor(20, 0), image.pixelColor(20, 39), image.pixelColor(0, 20),
                                 image.pixelColor(39, 20)};
        };
        QCOMPARE(edges(), QList<QColor>(4, QColor(0, 0, 0, 0)));
        Gestures::focus(shown.button);
        QCOMPARE(edges(), QList<QColor>(4, QColor(116, 211, 252)));
        QCOMPARE(Picture::colourAt(shown.button, {20, 3}).alpha(), 0);
    }
};

VELMO_TEST_MAIN(OvixSvgButtonTest)
#include "OvixSvgButtonTest.moc"
