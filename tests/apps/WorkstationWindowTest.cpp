#include "support/Gestures.h"
#include "support/TestCase.h"

#include "BoxAnswer.h"

#include "OvixSvgButton.h"
#include "VelmoDropData.h"
#include "oVIXButton.h"
#include "oVIXCombo.h"
#include "oVIXDragDropTags.h"
#include "oVIXGrip.h"
#include "oVIXSliderWidget.h"
#include "oVIXTimebarWidget.h"
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

#include <QDir>
#include <QFile>
#include <QListView>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

class WorkstationWindowTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"Airport"_s));
        write(u"Hall"_s, "<actors><actor/><actor/></actors>");
        m_settings = std::make_unique<QSettings>(m_folder->filePath(u"settings.ini"_s), QSettings::IniFormat);
        m_window = std::make_unique<WorkstationWindow>(m_folder->path(), m_settings.get());
        Gestures::show(m_window.get());
        QTRY_VERIFY(!m_window->startScreen()->isReading());
    }
    void cleanup()
    {
        m_window.reset();
        m_settings.reset();
        m_folder.reset();
        TestCase::cleanup();
    }

    void opensTheSelectedSceneAndReturns()
    {
        QVERIFY(action(u"Open"_s)->isEnabled() && !action(u"Facts"_s)->isEnabled());
        action(u"Open"_s)->trigger();
        QVERIFY(m_window->isLoading());
        QVERIFY(!action(u"Open"_s)->isEnabled());
        QTRY_VERIFY(!m_window->isLoading());
        QVERIFY(m_window->showsScene());
        QVERIFY(!wait()->isVisible() && !wait()->isRunning());
        QCOMPARE(m_window->scenePage()->scene().people.size(), 2);
        QVERIFY(m_window->windowTitle().startsWith(u"Hall"_s));
        action(u"Back to projects"_s)->trigger();
        QVERIFY(!m_window->showsScene());
    }

    void aLongLoadIsShownAndCancelled()
    {
        write(u"Crowd"_s, "<actors>" + QByteArray("<actor name=\"A\"/>").repeated(400000) + "</actors>");
        m_window->openScene(path(u"Crowd"_s));
        wait()->timeElapsedEvent(); // instead of a whole second
        QTRY_VERIFY(wait()->isVisible());
        QTRY_COMPARE(wait()->getText(), u"Reading people"_s);
        QTRY_VERIFY(wait()->getPercent() > 0);
        QVERIFY(wait()->isTextVisible() && wait()->isPercentVisible());
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QTRY_VERIFY(!m_window->isLoading());
        QVERIFY(!wait()->isVisible());
        QVERIFY(!m_window->showsScene());
        QVERIFY(status()->showsProblem());

        m_window->openScene(path(u"Crowd"_s)); // and the window goes meanwhile
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
        m_window->openScene(path(u"None"_s));
        QTRY_VERIFY(isBoxShown);
        QVERIFY(!m_window->isLoading());
        QVERIFY(!m_window->showsScene());
        QVERIFY2(status()->text().contains(u"None"_s), qPrintable(status()->text()));
    }

    void aDialogDimsTheWindow()
    {
        m_window->showSceneFacts(); // about no scene: nothing
        m_window->openScene(path(u"Hall"_s));
        QTRY_VERIFY(m_window->showsScene());
        QWidget *block = m_window->getWindowBlock();
        QVERIFY(!block->isVisible());
        m_window->showSceneFacts();
        QPointer<SceneFactsDialog> dialog = m_window->findChild<SceneFactsDialog *>();
        QTRY_VERIFY(dialog && dialog->isVisible());
        QTRY_VERIFY(block->isVisible());
        QCOMPARE(block->size(), m_window->size());
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        QTRY_VERIFY(!dialog);
        QVERIFY(!block->isVisible());
    }

    void panelsBelongToTheOpenScene()
    {
        LibraryPanel *library = m_window->libraryPanel();
        ParametersPanel *parameters = m_window->parametersPanel();
        QVERIFY(!library->isVisible() && !action(u"Library: Kinds"_s)->isEnabled());
        m_window->openScene(path(u"Hall"_s));
        QTRY_VERIFY(library->isVisible() && parameters->isVisible());
        action(u"Library: Kinds"_s)->trigger();
        parameters->setFloating(true);
        m_window->closeScene();
        QVERIFY(!library->isVisible() && !parameters->isVisible());
        m_window->resize(1100, 700);
        m_window->close();

        WorkstationWindow again(m_folder->path(), m_settings.get());
        Gestures::show(&again);
        QCOMPARE(again.size(), QSize(1100, 700));
        QVERIFY(!again.parametersPanel()->isVisible());
        again.openScene(path(u"Hall"_s));
        QTRY_VERIFY(again.parametersPanel()->isVisible());
        QVERIFY(again.parametersPanel()->isFloating() && !again.libraryPanel()->isVisible());
    }

    void theLibraryFindsAndHighlightsKinds()
    {
        write(u"Street"_s,
              "<actors><actor type=\"adult\"/><actor type=\"adult\"/><actor type=\"child\"/></actors>"
              "<vehicles><vehicle type=\"tram\"/></vehicles>");
        m_window->openScene(path(u"Street"_s));
        QTRY_VERIFY(m_window->showsScene());
        LibraryPanel *library = m_window->libraryPanel();
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
        QCOMPARE(m_window->scenePage()->view()->options().highlightedType, u"tram"_s);
        for (const int size : {200, 0}) {
            library->showThumbnails(size);
            QCOMPARE(list->model()->index(0, 0).data(Qt::DecorationRole).isNull(), size == 0);
        }
        QCOMPARE(m_window->scenePage()->view()->options().highlightedType, u"tram"_s);
        m_window->openScene(path(u"Hall"_s)); // without trams
        QTRY_COMPARE(m_window->scenePage()->view()->options().highlightedType, QString());
    }

    void bakesAndPlaysInsideTheCrop()
    {
        write(u"Walk"_s,
              "<timeline frames=\"40\" fps=\"100\"><crop first=\"10\" last=\"20\"/></timeline><actors><actor>"
              "<goal x=\"50\" y=\"0\"/></actor></actors>");
        m_window->openScene(path(u"Walk"_s));
        QTRY_VERIFY(m_window->showsScene());
        ScenePage *page = m_window->scenePage();
        oVIXTimebarWidget *timebar = page->timebar();
        page->setPlaying(true);
        QVERIFY(!page->isPlaying()); // nothing is baked
        CrowdEditor *crowd = m_window->parametersPanel()->crowd();
        crowd->findChild<oVIXButton *>()->click();
        QTRY_VERIFY(!page->bake().isRunning());
        QCOMPARE(page->bake().computedFrames(), 40);
        QCOMPARE(timebar->getMax(), 39);
        QCOMPARE(timebar->getCached(), 39);
        QCOMPARE(timebar->getCropStartValue(), 10);
        QCOMPARE(timebar->getCropEndValue(), 20);

        const auto shownX = [page] { return page->view()->scene().people.first().position.x(); };
        page->goToFrame(18);
        QCOMPARE(shownX(), page->bake().positions(18).first().x());
        page->setPlaying(true);
        QTRY_VERIFY(timebar->getCurrentPlayValue() < 18); // beyond its end the crop begins again
        for (int i = 0; i < 30; ++i) {
            QTest::qWait(5);
            QVERIFY(timebar->getCurrentPlayValue() >= 10 && timebar->getCurrentPlayValue() <= 20);
        }
        auto *count = crowd->findChild<oVIXSliderWidget *>();
        count->setValue(5);
        emit count->valueFinished();
        QVERIFY(!page->isPlaying());
        QCOMPARE(page->bake().computedFrames(), 0);
        QCOMPARE(page->view()->scene().people.size(), 5);
        crowd->findChild<oVIXButton *>()->click();
        answerNextBox([](VelmoMessageWidget *box) { box->fnOther(); });
        m_window->closeScene();
        QVERIFY(!page->bake().isRunning());
    }

    void asksBeforeItReplacesABake()
    {
        write(u"Walk"_s, "<timeline frames=\"8\" fps=\"100\"/><actors><actor/></actors>");
        m_window->openScene(path(u"Walk"_s));
        QTRY_VERIFY(m_window->showsScene());
        ScenePage *page = m_window->scenePage();
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

        answerNextBox([this](VelmoMessageWidget *) { m_window.reset(); }); // and the window goes meanwhile
        page->toggleBaking();
    }

    void tagsAreKeptWithTheScene()
    {
        write(u"Square"_s,
              "<tags><tag id=\"1\" name=\"vip\" color=\"#ff0000\"/><tag id=\"2\" name=\"staff\"/></tags>"
              "<actors><actor tags=\"1\"/><actor/></actors>");
        m_window->openScene(path(u"Square"_s));
        QTRY_VERIFY(m_window->showsScene());
        TagsPanel *panel = m_window->tagsPanel();
        const SceneView *view = m_window->scenePage()->view();
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

        const Scene scene = m_window->scenePage()->scene();
        TagsPanel again(m_window.get());
        again.setScene(scene);
        QCOMPARE(again.findChild<oVIXDragDropTags *>()->getLeftTags(), editor->getLeftTags());
        QCOMPARE(again.findChild<oVIXDragDropTags *>()->getRightTags(), editor->getRightTags());
    }

    void aDroppedTagIsFilteredBy()
    {
        write(u"Square"_s, "<tags><tag id=\"7\" name=\"vip\"/></tags><actors><actor tags=\"7\"/></actors>");
        m_window->openScene(path(u"Square"_s));
        QTRY_VERIFY(m_window->showsScene());
        TagsPanel *panel = m_window->tagsPanel();
        const SceneView *view = m_window->scenePage()->view();
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
        m_window->scenePage()->setTags({}, {});
        panel->setScene(m_window->scenePage()->scene());
        QCOMPARE(view->options().highlightedTag, QString());
    }

    void theWelcomePageExits()
    {
        action(u"Welcome"_s)->trigger();
        const QPointer<WelcomeDialog> dialog = m_window->findChild<WelcomeDialog *>();
        QTRY_VERIFY(dialog && dialog->isVisible());
        dialog->findChild<QPushButton *>(u"exitButton"_s)->click();
        QVERIFY(!m_window->isVisible());
        QTRY_VERIFY(!dialog);
    }

    void viewAndParametersKeepOneZoom()
    {
        m_window->openScene(path(u"Hall"_s));
        QTRY_VERIFY(m_window->showsScene());
        SceneView *view = m_window->scenePage()->view();
        const auto combos = m_window->parametersPanel()->findChildren<oVIXCombo *>();
        QCOMPARE(combos[1]->getCurrentComboText(), u"100 %"_s);
        QWheelEvent turn(QPointF(50, 50), view->mapToGlobal(QPointF(50, 50)), {}, {0, 120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view, &turn);
        QCOMPARE(combos[1]->getCurrentComboText(), u"125 %"_s);
        QVERIFY(combos[1]->isOverride());
        combos[2]->setChecked(true);
        emit combos[2]->currentIndexChanged(0);
        QCOMPARE(view->options().zoom, 1.25);
        QVERIFY(view->options().goals);
    }

    void maximisesAndRestores()
    {
        auto *button = m_window->findChild<OvixSvgButton *>(u"btMax"_s);
        const auto grips = m_window->findChildren<oVIXGrip *>(QString(), Qt::FindDirectChildrenOnly);
        const QRect before = m_window->geometry();
        Gestures::click(button);
        QTRY_VERIFY(m_window->isMaximized());
        QCOMPARE(button->firstFilename(), u":/Windows/Restore"_s);
        QVERIFY(!grips.first()->isEnabled());
        action(u"Restore"_s)->trigger();
        QTRY_VERIFY(!m_window->isMaximized());
        QCOMPARE(button->firstFilename(), u":/Windows/Maximize"_s);
        QVERIFY(grips.first()->isEnabled());
        QTRY_COMPARE(m_window->geometry(), before);
    }

private:
    QString path(const QString &scene) const { return m_folder->filePath(u"Airport/%1.vscene"_s.arg(scene)); }

    void write(const QString &scene, const QByteArray &content) const
    {
        QFile file(path(scene));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<VelmoSerializer>\n<scenemetadata/>\n" + content + "</VelmoSerializer>\n");
    }

    QAction *action(const QString &text) const
    {
        for (QAction *candidate : m_window->findChildren<QAction *>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    oVIXWindowWaitGlobal *wait() const { return m_window->getWindowWait(); }
    StatusLine *status() const { return m_window->startScreen()->findChild<StatusLine *>(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<WorkstationWindow> m_window;
};

VELMO_TEST_MAIN(WorkstationWindowTest)
#include "WorkstationWindowTest.moc"
