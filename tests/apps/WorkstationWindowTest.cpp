#include "apps/WindowTest.h"

#include "BoxAnswer.h"

#include "VelmoDropData.h"
#include "oVIXButton.h"
#include "oVIXCombo.h"
#include "oVIXDragDropTags.h"
#include "oVIXSliderWidget.h"
#include "oVIXWindowWaitGlobal.h"
#include "panels/CrowdEditor.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "panels/TagsPanel.h"
#include "start/StartScreen.h"
#include "start/StatusLine.h"
#include "window/SceneFactsDialog.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WelcomeDialog.h"
#include "window/WorkstationWindow.h"

#include <QAction>
#include <QDockWidget>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class WorkstationWindowTest : public WindowTest
{
    Q_OBJECT

public:
    WorkstationWindowTest() : WindowTest({{u"Hall"_s, "<actors><actor/><actor/></actors>"}}) { }

private slots:
    void opensTheSelectedSceneAndReturns()
    {
        QVERIFY(action(u"Open"_s)->isEnabled() && !action(u"Facts"_s)->isEnabled());
        action(u"Open"_s)->trigger();
        QVERIFY(window()->isLoading());
        QVERIFY(!action(u"Open"_s)->isEnabled());
        QTRY_VERIFY(!window()->isLoading());
        QVERIFY(window()->showsScene());
        QVERIFY(!wait()->isVisible() && !wait()->isRunning());
        QCOMPARE(window()->scenePage()->scene().people.size(), 2);
        QVERIFY(window()->windowTitle().startsWith(u"Hall"_s));
        action(u"Back to projects"_s)->trigger();
        QVERIFY(!window()->showsScene());
    }

    void aLongLoadIsShownAndCancelled()
    {
        write(u"Crowd"_s, "<actors>" + QByteArray("<actor name=\"A\"/>").repeated(400000) + "</actors>");
        window()->openScene(path(u"Crowd"_s));
        wait()->timeElapsedEvent(); // instead of a whole second
        QTRY_VERIFY(wait()->isVisible());
        QTRY_COMPARE(wait()->getText(), u"Reading people"_s);
        QTRY_VERIFY(wait()->getPercent() > 0);
        QVERIFY(wait()->isTextVisible() && wait()->isPercentVisible());
        QTest::keyClick(window(), Qt::Key_Escape);
        QTRY_VERIFY(!window()->isLoading());
        QVERIFY(!wait()->isVisible());
        QVERIFY(!window()->showsScene());
        QVERIFY(status()->showsProblem());

        window()->openScene(path(u"Crowd"_s)); // and the window goes meanwhile
    }

    void saysWhyASceneCannotBeOpened()
    {
        bool isBoxShown = false;
        QTimer poll; // reading ends some time
        poll.callOnTimeout([&isBoxShown] {
            if (auto *box = qobject_cast<VelmoMessageWidget *>(QApplication::activeModalWidget())) {
                isBoxShown = true;
                box->fnAccept();
            }
        });
        poll.start(10);
        window()->openScene(path(u"None"_s));
        QTRY_VERIFY(isBoxShown);
        QVERIFY(!window()->isLoading());
        QVERIFY(!window()->showsScene());
        QVERIFY2(status()->text().contains(u"None"_s), qPrintable(status()->text()));
    }

    void aDialogDimsTheWindow()
    {
        window()->showSceneFacts(); // about no scene: nothing
        open();
        QWidget *block = window()->getWindowBlock();
        QVERIFY(!block->isVisible());
        window()->showSceneFacts();
        QPointer<SceneFactsDialog> dialog = window()->findChild<SceneFactsDialog *>();
        QTRY_VERIFY(dialog && dialog->isVisible());
        QTRY_VERIFY(block->isVisible());
        QCOMPARE(block->size(), window()->size());
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        QTRY_VERIFY(!dialog);
        QVERIFY(!block->isVisible());
    }

    void whatEditsIsMadeWhenItIsNeeded()
    {
        QVERIFY(!window()->findChild<ScenePage *>() && !action(u"Library: Kinds"_s));
        QMenu *menu = action(u"Window"_s)->menu();
        menu->popup(window()->pos());
        const QAction *entry = menu->actions().value(3);
        QVERIFY(entry && entry->text() == u"Library: Kinds"_s && !entry->isEnabled());
        menu->close();
        QVERIFY(!window()->showsScene() && window()->startScreen()->isVisible());
        QCOMPARE(window()->findChildren<QDockWidget *>().size(), 3);
        window()->openScene(path(u"Hall"_s));
        QTRY_VERIFY(window()->showsScene());
        QCOMPARE(window()->findChildren<QDockWidget *>().size(), 3);
    }

    void comesBackAsLargeAsItWas()
    {
        window()->resize(1100, 700);
        window()->close();
        openWindow();
        QCOMPARE(window()->size(), QSize(1100, 700));
    }

    void theLibraryFindsAndHighlightsKinds()
    {
        write(u"Street"_s,
              "<actors><actor type=\"adult\"/><actor type=\"adult\"/><actor type=\"child\"/></actors>"
              "<vehicles><vehicle type=\"tram\"/></vehicles>");
        open(u"Street"_s);
        LibraryPanel *library = window()->libraryPanel();
        auto *list = library->findChild<QListView *>();
        const auto shown = [list] {
            QStringList texts;
            for (int row = 0; row < list->model()->rowCount(); ++row)
                texts << list->model()->index(row, 0).data().toString();
            return texts.join(u"; "_s);
        };
        QCOMPARE(shown(), u"adult, 2; child, 1; tram, 1"_s);
        library->changeSearchLabel(u"TR"_s);
        QCOMPARE(shown(), u"tram, 1"_s);
        list->setCurrentIndex(list->model()->index(0, 0));
        QCOMPARE(window()->scenePage()->view()->options().highlightedType, u"tram"_s);
        for (const int size : {200, 0}) {
            library->showThumbnails(size);
            QCOMPARE(list->model()->index(0, 0).data(Qt::DecorationRole).isNull(), size == 0);
        }
        QCOMPARE(window()->scenePage()->view()->options().highlightedType, u"tram"_s);
        window()->openScene(path(u"Hall"_s)); // without trams
        QTRY_COMPARE(window()->scenePage()->view()->options().highlightedType, QString());
    }

    void aChangeOfTheCrowdEndsItsBake()
    {
        write(u"Walk"_s,
              "<timeline frames=\"40\" fps=\"100\"><crop first=\"10\" last=\"20\"/></timeline><actors><actor>"
              "<goal x=\"50\" y=\"0\"/></actor></actors>");
        open(u"Walk"_s);
        ScenePage *page = window()->scenePage();
        page->setPlaying(true);
        QVERIFY(!page->isPlaying()); // nothing is baked
        CrowdEditor *crowd = window()->parametersPanel()->crowd();
        crowd->findChild<oVIXButton *>()->click();
        QTRY_VERIFY(!page->bake().isRunning());
        QCOMPARE(page->bake().computedFrames(), 40);
        page->setPlaying(true);
        QVERIFY(page->isPlaying());
        auto *count = crowd->findChild<oVIXSliderWidget *>();
        count->setValue(5);
        emit count->valueFinished();
        QVERIFY(!page->isPlaying());
        QCOMPARE(page->bake().computedFrames(), 0);
        QCOMPARE(page->view()->scene().people.size(), 5);
        crowd->findChild<oVIXButton *>()->click();
        answerNextBox([](VelmoMessageWidget *box) { box->fnOther(); });
        window()->closeScene();
        QVERIFY(!page->bake().isRunning());
    }

    void asksBeforeItReplacesABake()
    {
        write(u"Walk"_s, "<timeline frames=\"8\" fps=\"100\"/><actors><actor/></actors>");
        open(u"Walk"_s);
        ScenePage *page = window()->scenePage();
        page->toggleBaking(); // nothing to be replaced
        QTRY_VERIFY(!page->bake().isRunning());
        answerNextBox([](VelmoMessageWidget *box) {
            QVERIFY(!box->findChild<oVIXButton *>(u"lbDont"_s)->isEnabled()); // time to think
            box->fnReject();
        });
        page->toggleBaking();
        QVERIFY(!page->bake().isRunning() && !page->isPlaying());
        answerNextBox([](VelmoMessageWidget *box) { box->fnOther(); });
        page->toggleBaking();
        QVERIFY(!page->bake().isRunning() && page->isPlaying());
        QCOMPARE(page->bake().computedFrames(), 8);
        answerNextBox([](VelmoMessageWidget *box) { box->fnAccept(); });
        QSignalSpy baking(page, &ScenePage::bakingChanged);
        page->toggleBaking();
        QTRY_COMPARE(baking.size(), 2);
        QVERIFY(!page->isPlaying());

        answerNextBox([this](VelmoMessageWidget *) { deleteWindow(); }); // and the window goes meanwhile
        page->toggleBaking();
    }

    void tagsAreKeptWithTheScene()
    {
        write(u"Square"_s,
              "<tags><tag id=\"1\" name=\"vip\" color=\"#ff0000\"/><tag id=\"2\" name=\"staff\"/></tags>"
              "<actors><actor tags=\"1\"/><actor/></actors>");
        open(u"Square"_s);
        TagsPanel *panel = window()->tagsPanel();
        const SceneView *view = window()->scenePage()->view();
        auto *editor = panel->findChild<oVIXDragDropTags *>();
        const auto shown = [editor] {
            return editor->getLeftTags().join(u',') + u'|' + editor->getRightTags().join(u',');
        };
        QCOMPARE(shown(), u"vip,|staff,"_s); // the add tags are without a text
        editor->fnRightMove(0);
        QTRY_COMPARE(view->scene().people[1].tags, QList<int>{2});
        editor->fnLeftMove(1);
        QTRY_VERIFY(!view->scene().colourOf(view->scene().people[0]).isValid());
        editor->fnRightAddNewItem(u"Staff"_s); // which the other side has
        QTRY_COMPARE(shown(), u"staff,|vip,"_s);
        editor->fnRightAddNewItem(u"late"_s);
        answerNextBox([](VelmoMessageWidget *box) { box->fnAccept(); });
        editor->fnRightChange(1);
        QTRY_COMPARE(shown(), u"staff,|late,"_s);
        QTRY_COMPARE(view->scene().people[0].tags, QList<int>{2});

        const Scene scene = window()->scenePage()->scene();
        TagsPanel again(window());
        again.setScene(scene);
        QCOMPARE(again.findChild<oVIXDragDropTags *>()->getLeftTags(), editor->getLeftTags());
        QCOMPARE(again.findChild<oVIXDragDropTags *>()->getRightTags(), editor->getRightTags());
    }

    void aDroppedTagIsFilteredBy()
    {
        write(u"Square"_s, "<tags><tag id=\"7\" name=\"vip\"/></tags><actors><actor tags=\"7\"/></actors>");
        open(u"Square"_s);
        TagsPanel *panel = window()->tagsPanel();
        const SceneView *view = window()->scenePage()->view();
        auto *combo = panel->findChild<oVIXCombo *>();
        const auto drop = [combo](const QString &name, VelmoDropData::Type type) {
            const std::unique_ptr<QMimeData> data(VelmoDropData({{name, {}}}, type).getMimeData());
            emit combo->dropped(data.get(), nullptr);
        };
        drop(u"vip"_s, VelmoDropData::Categories);
        drop(u"nobody's"_s, VelmoDropData::Tags);
        QCOMPARE(view->options().highlightedTag, QString());
        drop(u"vip"_s, VelmoDropData::Tags);
        QCOMPARE(combo->getCurrentComboText(), u"vip"_s);
        QCOMPARE(view->options().highlightedTag, u"vip"_s);
        window()->scenePage()->setTags({}, {});
        panel->setScene(window()->scenePage()->scene());
        QCOMPARE(view->options().highlightedTag, QString());
    }

    void theWelcomePageExits()
    {
        action(u"Welcome"_s)->trigger();
        const QPointer<WelcomeDialog> dialog = window()->findChild<WelcomeDialog *>();
        QTRY_VERIFY(dialog && dialog->isVisible());
        dialog->findChild<QPushButton *>(u"exitButton"_s)->click();
        QVERIFY(!window()->isVisible());
        QTRY_VERIFY(!dialog);
    }

private:
    oVIXWindowWaitGlobal *wait() const { return window()->getWindowWait(); }
    StatusLine *status() const { return window()->startScreen()->findChild<StatusLine *>(); }
};

VELMO_TEST_MAIN(WorkstationWindowTest)
#include "WorkstationWindowTest.moc"
