#include "desktop/RealInput.h"
#include "support/TestCase.h"

#include "OvixSvgButton.h"
#include "start/StartScreen.h"
#include "window/WorkstationWindow.h"

#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class WindowFrameDesktopTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_window = std::make_unique<WorkstationWindow>(m_folder->path());
        RealInput::show(m_window.get(), place);
    }
    void cleanup()
    {
        m_window.reset();
        m_folder.reset();
        TestCase::cleanup();
    }

    void movesByItsTitle()
    {
        RealInput::drag(title(), title() + QPoint(57, 34));
        QTRY_COMPARE(m_window->geometry(), place.translated(57, 34));
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
        QTRY_COMPARE(m_window->geometry(), place + grows);
    }

    void itsButtonsAndADoubleClickDoWhatTheySay()
    {
        RealInput::doubleClick(title());
        QTRY_VERIFY(m_window->isMaximized());
        QTRY_COMPARE(m_window->geometry(), m_window->screen()->availableGeometry());
        QCOMPARE(button(u"btMax"_s)->firstFilename(), u":/Windows/Restore"_s);
        RealInput::drag(QPoint(1, 500), QPoint(90, 500)); // no grip works meanwhile
        QTRY_COMPARE(m_window->geometry(), m_window->screen()->availableGeometry());
        RealInput::click(middleOf(u"btMax"_s));
        QTRY_COMPARE(m_window->geometry(), place);
        QVERIFY(!m_window->isMaximized());

        RealInput::click(middleOf(u"btMin"_s));
        QTRY_VERIFY(m_window->isMinimized());
        m_window->showNormal();
        QTRY_COMPARE(m_window->geometry(), place);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));

        RealInput::moveTo(title()); // to where the window is again
        QTRY_VERIFY(m_window->menuBar()->underMouse());
        RealInput::click(middleOf(u"btClose"_s));
        QTRY_VERIFY(!m_window->isVisible());
    }

private:
    static constexpr QRect place{180, 100, 1240, 760};

    /// A place of the menu bar without a menu.
    QPoint title() const { return m_window->menuBar()->mapToGlobal(QPoint(300, 15)); }
    OvixSvgButton *button(const QString &name) const { return m_window->menuBar()->findChild<OvixSvgButton *>(name); }
    QPoint middleOf(const QString &name) const { return button(name)->mapToGlobal(button(name)->rect().center()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WorkstationWindow> m_window;
};

VELMO_TEST_MAIN(WindowFrameDesktopTest)
#include "WindowFrameDesktopTest.moc"
