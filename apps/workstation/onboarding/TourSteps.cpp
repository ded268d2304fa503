#include "onboarding/TourSteps.h"

#include "onboarding/PictureStep.h"
#include "onboarding/WidgetStep.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "panels/TagsPanel.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WorkstationWindow.h"

#include <oVIXTimebarWidget.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenuBar>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TourSteps)
};

/// The first widget inside @p root of the first class that has one.
const QWidget *firstOf(const QWidget *root, std::initializer_list<const char *> classNames)
{
    const QList<QWidget *> widgets = root->findChildren<QWidget *>();
    for (const char *className : classNames) {
        for (const QWidget *widget : widgets) {
            if (widget->inherits(className))
                return widget;
        }
    }
    return nullptr;
}

} // namespace

TourSteps::Steps TourSteps::ofStartScreen(const WorkstationWindow *window)
{
    const StartScreen *screen = window->startScreen();
    Steps steps;
    steps.push_back(std::make_unique<PictureStep>(
        Texts::tr("Welcome to %1").arg(QGuiApplication::applicationDisplayName()),
        Texts::tr("A short tour of the window.\nThe arrow keys go on and back, Escape leaves it.")));
    steps.push_back(std::make_unique<WidgetStep>(
        Texts::tr("Projects"), Texts::tr("Every project of the folder is listed here.\nA click shows its scenes."),
        [screen] {
            return firstOf(screen, {"VelmoProjectsTable", "QListWidget"});
        }));
    steps.push_back(std::make_unique<WidgetStep>(
        Texts::tr("Scenes"),
        Texts::tr("The scenes of the selected project.\nA double click on a name renames it, the plus adds a scene."),
        [screen] {
            return firstOf(screen, {"VelmoProjectScenesWidget", "VelmoScenesTable"});
        }));
    steps.push_back(std::make_unique<WidgetStep>(
        Texts::tr("Menus"),
        Texts::tr("Open the selected scene with Scene > Open.\nThen Help > Guided tour shows how to edit it."),
        [window] { return window->menuBar(); }));
    return steps;
}

TourSteps::Steps TourSteps::ofScene(WorkstationWindow *window)
{
    const ScenePage *page = window->scenePage();
    Steps steps;
    const auto add = [&steps](const QString &title, const QString &description, WidgetStep::Finder find) {
        steps.push_back(std::make_unique<WidgetStep>(title, description, std::move(find)));
    };
    add(Texts::tr("The scene"),
        Texts::tr(
            "Seen from above. Drag it to move it, turn the wheel to zoom.\nA click on somebody picks their kind."),
        [page] { return page->view(); });
    add(Texts::tr("Library"), Texts::tr("All kinds of people and vehicles.\nThe selected one stays bright."),
        [window] { return window->libraryPanel(); });
    add(Texts::tr("Tags"), Texts::tr("Drag tags from one side to the other,\nor onto the filter."),
        [window] { return window->tagsPanel(); });
    add(Texts::tr("Parameters"), Texts::tr("How the scene is shown, and what its crowd is made of.\nBake it here."),
        [window] { return window->parametersPanel(); });
    add(Texts::tr("Timeline"), Texts::tr("What has been baked is played here,\nbetween the two ends of the crop."),
        [page] { return page->timebar(); });
    return steps;
}
