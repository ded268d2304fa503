#include "desktop/Journey.h"
#include "desktop/RealInput.h"

#include "OvixSvgButton.h"
#include "oVIXDockBar.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "panels/TagsPanel.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

class PanelsJourney : public Journey
{
    Q_OBJECT

private slots:
    void init()
    {
        Journey::init();
        openScene(u"Central Station"_s, u"Platform 4 transfer"_s);
    }

    void floatsAndDocksOnTheOtherSide()
    {
        detachLibrary();
        keep(u"detached"_s);
        RealInput::drag(titleOf(library()), place.center() + QPoint(-150, -250));
        QTRY_VERIFY(place.contains(library()->geometry()));
        keep(u"floating"_s);
        // Above the parameters, at the right.
        const oVIXDock *parameters = window()->parametersPanel();
        RealInput::drag(titleOf(library()), parameters->mapToGlobal(QPoint(parameters->width() / 2, 15)));
        QTRY_VERIFY(!library()->isFloating());
        QTRY_COMPARE(window()->dockWidgetArea(library()), Qt::RightDockWidgetArea);
        keep(u"docked"_s);

        restart(); // everything is where it was
        openScene(u"Central Station"_s, u"Platform 4 transfer"_s);
        QVERIFY(library()->isVisible() && !library()->isFloating());
        QCOMPARE(window()->dockWidgetArea(library()), Qt::RightDockWidgetArea);
        keep(u"restarted"_s);
    }

    void staysAfloatOverARestart()
    {
        detachLibrary();
        RealInput::drag(titleOf(library()), place.center() + QPoint(-150, -250));
        QTRY_VERIFY(place.contains(library()->geometry()));
        const QRect afloat = library()->geometry();
        restart();
        QVERIFY(!library()->isVisible());
        openScene(u"Central Station"_s, u"Platform 4 transfer"_s);
        QVERIFY(library()->isVisible() && library()->isFloating());
        QTRY_COMPARE(library()->geometry(), afloat);
        press(library(), u"Detach or dock"_s);
        QTRY_VERIFY(!library()->isFloating());
        QCOMPARE(window()->dockWidgetArea(library()), Qt::LeftDockWidgetArea);
    }

    void isStackedOnAnother()
    {
        const oVIXDock *tags = window()->tagsPanel();
        RealInput::drag(titleOf(library()), middleOf(tags));
        QTRY_COMPARE(window()->tabifiedDockWidgets(library()).size(), 1);
        QTRY_VERIFY(!library()->isFloating());
        keep(u"tabs"_s);
        auto *bar = window()->findChild<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(bar && bar->isVisible());
        QCOMPARE(bar->count(), 2);
        for (int tab : {0, 1, 0}) {
            RealInput::click(bar->mapToGlobal(bar->tabRect(tab).center()));
            const QWidget *front =
                bar->tabText(tab).startsWith(u"Tags"_s) ? static_cast<const QWidget *>(tags) : library();
            QTRY_VERIFY(!front->visibleRegion().isEmpty());
        }
        keep(u"other-tab"_s);
    }

    void isHiddenAndShownByTheMenu()
    {
        press(library(), u"Close"_s);
        QTRY_VERIFY(!library()->isVisible());
        keep(u"closed"_s);
        chooseFromMenu(u"Window"_s, u"Library: Kinds"_s);
        QTRY_VERIFY(library()->isVisible());
        chooseFromMenu(u"Window"_s, u"Parameters: View"_s);
        QTRY_VERIFY(!window()->parametersPanel()->isVisible());
        chooseFromMenu(u"Window"_s, u"Tags: Crowd"_s);
        QTRY_VERIFY(!window()->tagsPanel()->isVisible());
        keep(u"library-alone"_s);
        chooseFromMenu(u"Scene"_s, u"Back to projects"_s);
        QTRY_VERIFY(!library()->isVisible());
        openScene(u"Central Station"_s, u"Ticket hall study"_s); // it stays as it was
        QVERIFY(library()->isVisible());
        QVERIFY(!window()->tagsPanel()->isVisible() && !window()->parametersPanel()->isVisible());
    }

private:
    void detachLibrary()
    {
        press(library(), u"Detach or dock"_s);
        QTRY_VERIFY(library()->isFloating());
        QVERIFY(QTest::qWaitForWindowExposed(library()));
        QTest::qWait(200); // the window manager's echoes of the placing
    }

    LibraryPanel *library() const { return window()->libraryPanel(); }
    /// A place of the header that takes hold of the panel: not in the search field, nor on a button.
    static QPoint titleOf(oVIXDock *dock)
    {
        const QWidget *header = dock->getTitleWidget();
        return header->mapToGlobal(QPoint(header->width() * 6 / 10, 12));
    }
    /// Presses a button of a panel's header, which shows them under the pointer.
    void press(oVIXDock *dock, const QString &button)
    {
        RealInput::moveTo(titleOf(dock));
        click(seen<OvixSvgButton>(button, dock->getTitleWidget()));
    }
};

VELMO_TEST_MAIN(PanelsJourney)
#include "PanelsJourney.moc"
