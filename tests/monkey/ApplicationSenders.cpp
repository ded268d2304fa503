#include "monkey/SenderTables.h"

#include "gallery/SampleJob.h"
#include "oVIXButton.h"
#include "oVIXCombo.h"
#include "oVIXDragDropTags.h"
#include "oVIXSliderWidget.h"
#include "oVIXWindowWaitGlobal.h"
#include "panels/CrowdEditor.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "panels/TagsPanel.h"
#include "scenes/SceneContentReader.h"
#include "start/ScenePreview.h"
#include "start/StartScreen.h"
#include "window/SceneKeeper.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WorkstationWindow.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace Senders {
namespace {

/// A folder of projects, with one scene.
QString projectsFolder()
{
    static const QTemporaryDir folder;
    return folder.path();
}

QString scenePath()
{
    const QString project = projectsFolder() + u"/Airport"_s;
    const QString path = project + u"/Hall.vscene"_s;
    QFile file(path);
    if (!file.exists() && QDir().mkpath(project) && file.open(QIODevice::WriteOnly)) {
        file.write("<VelmoSerializer>\n<tags><tag id=\"1\" name=\"vip\"/></tags>\n<actors><actor type=\"adult\" "
                   "tags=\"1\"/></actors>\n</VelmoSerializer>\n");
    }
    return path;
}

Scene hall()
{
    Scene scene;
    SceneContentReader().read(scenePath(), &scene);
    return scene;
}

template <class Panel> QObject *createPanel(QWidget *host)
{
    auto *window = new QMainWindow(host);
    auto *panel = new Panel(window);
    window->addDockWidget(Qt::LeftDockWidgetArea, panel);
    return panel;
}

ScenePage *createPage(QWidget *host)
{
    auto *page = new ScenePage(host);
    const Scene scene = hall();
    page->setScene(scene, CrowdSettings::of(scene));
    return page;
}

SceneLoading *createLoading(QWidget *host)
{
    auto *wait = new oVIXWindowWaitGlobal(host);
    return new SceneLoading(wait, wait, wait);
}

StartScreen *createStartScreen(QWidget *host)
{
    scenePath();
    return new StartScreen(projectsFolder(), host);
}

void choose(QWidget *panel)
{
    auto *combo = panel->findChild<oVIXCombo *>();
    combo->setCurrentIndex(1);
    emit combo->currentIndexChanged(1);
}

void zoom(SceneView *view)
{
    QWheelEvent wheel(QPointF(5, 5), view->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view, &wheel);
}

} // namespace
} // namespace Senders

QList<Senders::Sender> Senders::ofApplication()
{
    const Act read = with<SceneReader>([](SceneReader *reader) { reader->read({{u"Hall"_s, scenePath()}}); });
    const Act refresh = with<StartScreen>([](StartScreen *screen) { screen->refresh(); });
    return {
        {"Bake", [](QWidget *host) { return new Bake(host); }, {{"stopped()", with<Bake>([](Bake *bake) {
                                                                     const Scene scene = hall();
                                                                     bake->start(scene, CrowdSettings::of(scene), 5,
                                                                                 25);
                                                                 })}}},
        {"CrowdEditor",
         [](QWidget *host) { return new CrowdEditor(host); },
         {{"edited()",
           with<QWidget>([](QWidget *editor) { emit editor->findChild<oVIXSliderWidget *>()->valueFinished(); })},
          {"bakeClicked()",
           with<QWidget>([](QWidget *editor) { emit editor->findChild<oVIXButton *>()->clicked(); })}}},
        {"LibraryPanel",
         createPanel<LibraryPanel>,
         {{"typeSelected(QString)", with<LibraryPanel>([](LibraryPanel *panel) {
               panel->setScene(hall());
               panel->selectType(u"adult"_s);
           }),
           Deletion::Later}}},
        {"ParametersPanel", createPanel<ParametersPanel>, {{"optionsChanged(ViewOptions)", with<QWidget>(choose)}}},
        {"SampleJob",
         [](QWidget *host) { return new SampleJob(nullptr, host); },
         {{"finished()", with<SampleJob>([](SampleJob *job) { job->start(); })}}},
        {"SceneKeeper",
         [](QWidget *host) {
             auto *window = new oVIXMainWindow(host, nullptr);
             return new SceneKeeper(createPage(window), window);
         },
         {{"saved()", with<SceneKeeper>([](SceneKeeper *keeper) { keeper->save(); })}}},
        {"SceneLoading",
         createLoading,
         {{"loaded(Scene)", with<SceneLoading>([](SceneLoading *loading) { loading->load(scenePath()); })},
          {"failed(QString)", with<SceneLoading>([](SceneLoading *loading) { loading->load(projectsFolder()); })},
          {"cancelled(QString)", with<SceneLoading>([](SceneLoading *loading) {
               loading->load(scenePath());
               loading->cancel();
           })}}},
        {"ScenePage",
         createPage,
         {{"bakingChanged(bool)", with<ScenePage>([](ScenePage *page) { page->toggleBaking(); })},
          {"modifiedChanged(bool)", with<ScenePage>([](ScenePage *page) { page->toggleBaking(); }), Deletion::Later},
          {"modifiedChanged(bool)", with<ScenePage>([](ScenePage *page) { page->setTags({}, {u"new"_s}); })}}},
        {"ScenePreview",
         [](QWidget *host) { return new ScenePreview(host); },
         {{"drawn(QImage)", with<ScenePreview>([](ScenePreview *preview) {
               preview->draw(scenePath(), {100, 100}, 1);
           })}}},
        {"SceneReader",
         [](QWidget *host) { return new SceneReader(host); },
         {{"sceneRead(SceneFacts)", read}, {"finished()", read}}},
        {"SceneView",
         [](QWidget *host) {
             return placed(new SceneView(host), {200, 100});
         },
         {{"zoomChanged(double)", with<SceneView>(zoom)}, {"moverPicked(QString)", click()}}},
        {"StartScreen",
         createStartScreen,
         {{"openRequested(QString)", with<StartScreen>([](StartScreen *screen) {
               if (QTest::qWaitFor([screen] { return screen->canOpen(); }))
                   screen->openSelectedScene();
           })},
          {"selectionChanged()", refresh, Deletion::Later},
          {"projectRead()", refresh}}},
        {"TagsPanel",
         createPanel<TagsPanel>,
         {{"tagsEdited(QStringList,QStringList)",
           with<QWidget>([](QWidget *panel) { emit panel->findChild<oVIXDragDropTags *>()->itemRemoved(u"vip"_s); })},
          {"filterChanged(QString)", with<TagsPanel>([](TagsPanel *panel) {
               panel->setScene(hall());
               choose(panel);
           })}}},
        {"WorkstationWindow",
         [](QWidget *) { return new WorkstationWindow(projectsFolder()); },
         {{"loadingFinished()",
           with<WorkstationWindow>([](WorkstationWindow *window) { window->openScene(scenePath()); })}}},
    };
}
