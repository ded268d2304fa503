#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "foundation/OvixSvgButton.h"

#include <QCursor>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A button in a window, with the pointer beside it.
struct Shown
{
    QWidget window;
    OvixSvgButton *button = new OvixSvgButton(&window);
    Told told{button};

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

    /// Whether the button keeps the event.
    bool doubleClick(Qt::MouseButton button)
    {
        QMouseEvent event = mouseEvent(QEvent::MouseButtonDblClick, button, {});
        event.setAccepted(button != Qt::LeftButton);
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

class OvixSvgButtonTest : public TestCase
{
    Q_OBJECT

private slots:
    void answersClicks_data()
    {
        QTest::addColumn<Qt::MouseButton>("mouseButton");
        QTest::addColumn<bool>("ignoring");
        QTest::addColumn<QString>("click");
        QTest::addColumn<QString>("doubleClick");
        QTest::addColumn<int>("leftToTheParent");
        QTest::newRow("left") << Qt::LeftButton << false << u"clicked"_s << u"clicked, doubleClicked, clicked"_s << 0;
        QTest::newRow("right") << Qt::RightButton << false << u"rightClicked"_s << u"rightClicked, rightClicked"_s << 0;
        QTest::newRow("middle") << Qt::MiddleButton << false << QString() << QString() << 0;
        QTest::newRow("left, ignored") << Qt::LeftButton << true << QString() << u"doubleClicked"_s << 1;
        QTest::newRow("right, ignoring left")
            << Qt::RightButton << true << u"rightClicked"_s << u"rightClicked, rightClicked"_s << 0;
    }
    void answersClicks()
    {
        QFETCH(Qt::MouseButton, mouseButton);
        QFETCH(bool, ignoring);
        QFETCH(QString, click);
        Shown shown;
        shown.button->setCheckable(true);
        shown.button->setIgnoreSingleClick(ignoring);
        Events::Count parent(&shown.window, QEvent::MouseButtonRelease);
        Gestures::press(shown.button, mouseButton);
        QCOMPARE(shown.told.taken(), QString());
        Gestures::release(shown.button, mouseButton);
        QCOMPARE(shown.told.taken(), click);
        QCOMPARE(shown.button->isChecked(), click == u"clicked"_s);
        QTEST(parent.taken(), "leftToTheParent");
        Gestures::doubleClick(shown.button, mouseButton);
        QTEST(shown.told.taken(), "doubleClick");
        shown.button->setEnabled(false);
        Gestures::doubleClick(shown.button, mouseButton);
        shown.button->click();
        QCOMPARE(shown.told.taken(), QString());
    }

    void answersOnlyUnderThePointer()
    {
        struct Case
        {
            bool toolkitSaysSo;
            QPoint pointer;
            int answers;
            bool enabled = true;
        };
        for (const auto &[toolkitSaysSo, pointer, answers, enabled] :
             {Case{false, {40, 5}, 0}, Case{false, {39, 5}, 1}, Case{true, {90, 90}, 1},
              Case{true, {5, 5}, 0, false}}) {
            Bare button; // not shown, so that the toolkit does not notice the pointer
            button.resize(40, 40);
            QCursor::setPos(button.mapToGlobal(pointer));
            button.setAttribute(Qt::WA_UnderMouse, toolkitSaysSo);
            button.setEnabled(enabled);
            QSignalSpy clicked(&button, &OvixSvgButton::clicked);
            QSignalSpy doubleClicked(&button, &OvixSvgButton::doubleClicked);
            QSignalSpy rightClicked(&button, &OvixSvgButton::rightClicked);
            button.release(Qt::LeftButton);
            button.release(Qt::RightButton, {10.5, -3.5});
            const bool kept = button.doubleClick(Qt::LeftButton),
                       leftToTheParent = !button.doubleClick(Qt::RightButton);
            QVERIFY(answers == 0 || (kept && leftToTheParent));
            QCOMPARE(clicked.size(), answers);
            QCOMPARE(doubleClicked.size(), answers);
            QCOMPARE(rightClicked.size(), answers);
            if (answers > 0)
                QCOMPARE(rightClicked[0][0].toPoint(), QPoint(11, -4)); // halves away from zero
        }
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

    void isPressedByKeysOnceItMayHaveTheFocus()
    {
        Shown shown;
        Qt::KeyboardModifiers modifiers;
        const auto takes = [&](Qt::Key key, bool repeated = false) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), repeated);
            QCoreApplication::sendEvent(shown.button, &event);
            return event.isAccepted();
        };
        Gestures::focus(shown.button);
        QVERIFY(!takes(Qt::Key_Space)); // no policy
        shown.button->setFocusPolicy(Qt::TabFocus);
        Gestures::focus(&shown.window);
        QVERIFY(!takes(Qt::Key_Space)); // the focus is elsewhere
        Gestures::focus(shown.button);
        QVERIFY(!takes(Qt::Key_A));
        modifiers = Qt::ControlModifier;
        QVERIFY(!takes(Qt::Key_Return));
        QCOMPARE(shown.told.taken(), QString());
        modifiers = Qt::KeypadModifier;
        QVERIFY(takes(Qt::Key_Space) && takes(Qt::Key_Return) && takes(Qt::Key_Enter));
        QCOMPARE(shown.told.taken(), u"clicked, clicked, clicked"_s);
        // Held down, or where single clicks are ignored: still its key, but no press.
        QVERIFY(takes(Qt::Key_Space, true));
        shown.button->setIgnoreSingleClick(true);
        QVERIFY(takes(Qt::Key_Space));
        QCOMPARE(shown.told.taken(), QString());
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
