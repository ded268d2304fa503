#include "apps/WindowTest.h"
#include "desktop/RealInput.h"

#include "OvixSvgButton.h"
#include "window/WorkstationWindow.h"

#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

class WindowFrameDesktopTest : public WindowTest
{
    Q_OBJECT

public:
    WindowFrameDesktopTest() : WindowTest({}) { }

private slots:
    void movesByItsTitle()
    {
        RealInput::drag(title(), title() + QPoint(57, 34));
        QTRY_COMPARE(window()->geometry(), place.translated(57, 34));
    }

    void resizesFromEveryEdgeAndCorner_data()
    {
        QTest::addColumn<QPoint>("handle");
        QTest::addColumn<QMargins>("grows"); // for a pointer that moves 40 to the right and 28 down
        const int middleX = place.center().x();
        const int middleY = place.center().y();
        QTest::newRow("top") << QPoint(middleX, place.top() + 1) << QMargins(0, -28, 0, 0);
        QTest::newRow("bottom") << QPoint(middleX, place.bottom() - 1) << QMargins(0, 0, 0, 28);
        QTest::newRow("left") << QPoint(place.left() + 1, middleY) << QMargins(-40, 0, 0, 0);
        QTest::newRow("right") << QPoint(place.right() - 1, middleY) << QMargins(0, 0, 40, 0);
        // Beside the side strips, which reach to the very top.
        QTest::newRow("top left") << place.topLeft() + QPoint(3, 3) << QMargins(-40, -28, 0, 0);
        QTest::newRow("top right") << place.topRight() + QPoint(-3, 3) << QMargins(0, -28, 40, 0);
        QTest::newRow("bottom left") << place.bottomLeft() + QPoint(3, -3) << QMargins(-40, 0, 0, 28);
        QTest::newRow("bottom right") << place.bottomRight() + QPoint(-3, -3) << QMargins(0, 0, 40, 28);
    }
    void resizesFromEveryEdgeAndCorner()
    {
        QFETCH(QPoint, handle);
        QFETCH(QMargins, grows);
        RealInput::drag(handle, handle + QPoint(40, 28));
        QTRY_COMPARE(window()->geometry(), place + grows);
    }

    void itsButtonsAndADoubleClickDoWhatTheySay()
    {
        RealInput::doubleClick(title());
        QTRY_VERIFY(window()->isMaximized());
        QTRY_COMPARE(window()->geometry(), window()->screen()->availableGeometry());
        QCOMPARE(button(u"btMax"_s)->firstFilename(), u":/Windows/Restore"_s);
        RealInput::drag(QPoint(1, 500), QPoint(90, 500)); // no grip works meanwhile
        QTRY_COMPARE(window()->geometry(), window()->screen()->availableGeometry());
        RealInput::click(middleOf(u"btMax"_s));
        QTRY_COMPARE(window()->geometry(), place);
        QVERIFY(!window()->isMaximized());

        RealInput::click(middleOf(u"btMin"_s));
        QTRY_VERIFY(window()->isMinimized());
        window()->showNormal();
        QTRY_COMPARE(window()->geometry(), place);
        QVERIFY(QTest::qWaitForWindowActive(window()));

        RealInput::moveTo(title()); // to where the window is again
        QTRY_VERIFY(window()->menuBar()->underMouse());
        RealInput::click(middleOf(u"btClose"_s));
        QTRY_VERIFY(!window()->isVisible());
    }

private:
    static constexpr QRect place{180, 100, 1240, 760};

    void show(QWidget *window) const override { RealInput::show(window, place); }

    /// A place of the menu bar without a menu.
    QPoint title() const { return window()->menuBar()->mapToGlobal(QPoint(300, 15)); }
    OvixSvgButton *button(const QString &name) const { return window()->menuBar()->findChild<OvixSvgButton *>(name); }
    QPoint middleOf(const QString &name) const { return button(name)->mapToGlobal(button(name)->rect().center()); }
};

VELMO_TEST_MAIN(WindowFrameDesktopTest)
#include "WindowFrameDesktopTest.moc"
