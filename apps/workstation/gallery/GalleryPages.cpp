#include "gallery/GalleryPages.h"

#include "gallery/AboutPage.h"
#include "gallery/AnimatedPicturesPage.h"
#include "gallery/ChoosersPage.h"
#include "gallery/ConsentPage.h"
#include "gallery/CursorsPage.h"
#include "gallery/CurtainsPage.h"
#include "gallery/DialogsPage.h"
#include "gallery/DockingPage.h"
#include "gallery/IconStatesPage.h"
#include "gallery/IconsPage.h"
#include "gallery/LabelsPage.h"
#include "gallery/MessagesPage.h"
#include "gallery/OverlaysPage.h"
#include "gallery/PieChartPage.h"
#include "gallery/ProgressBarsPage.h"
#include "gallery/ProjectListPage.h"
#include "gallery/ProjectScenesPage.h"
#include "gallery/SceneListPage.h"
#include "gallery/SlidersPage.h"
#include "gallery/TagEditorPage.h"
#include "gallery/TagsPage.h"
#include "gallery/TimebarPage.h"
#include "gallery/TitleBarsPage.h"
#include "gallery/TogglesPage.h"
#include "gallery/TourPage.h"

using namespace Qt::StringLiterals;

QList<GalleryPages::Page> GalleryPages::all()
{
    return {
        {u"icons"_s, IconsPage::tr("Icons"), [] { return new IconsPage; }},
        {u"icon-states"_s, IconStatesPage::tr("Icon states"), [] { return new IconStatesPage; }},
        {u"labels-and-buttons"_s, LabelsPage::tr("Labels and buttons"), [] { return new LabelsPage; }},
        {u"animated-pictures"_s, AnimatedPicturesPage::tr("Animated pictures"),
         [] { return new AnimatedPicturesPage; }},
        {u"cursors"_s, CursorsPage::tr("Cursors"), [] { return new CursorsPage; }},
        {u"title-bars"_s, TitleBarsPage::tr("Title bars"), [] { return new TitleBarsPage; }},
        {u"overlays"_s, OverlaysPage::tr("Overlays"), [] { return new OverlaysPage; }},
        {u"dialogs"_s, DialogsPage::tr("Dialogs"), [] { return new DialogsPage; }},
        {u"messages"_s, MessagesPage::tr("Messages"), [] { return new MessagesPage; }},
        {u"tour"_s, TourPage::tr("Guided tour"), [] { return new TourPage; }},
        {u"consent"_s, ConsentPage::tr("Feedback consent"), [] { return new ConsentPage; }},
        {u"about"_s, AboutPage::tr("About"), [] { return new AboutPage; }},
        {u"choosers"_s, ChoosersPage::tr("Choosers"), [] { return new ChoosersPage; }},
        {u"docking"_s, DockingPage::tr("Docking"), [] { return new DockingPage; }},
        {u"sliders"_s, SlidersPage::tr("Sliders"), [] { return new SlidersPage; }},
        {u"timebar"_s, TimebarPage::tr("Timebar"), [] { return new TimebarPage; }},
        {u"progress-bars"_s, ProgressBarsPage::tr("Progress bars"), [] { return new ProgressBarsPage; }},
        {u"pie-chart"_s, PieChartPage::tr("Pie chart"), [] { return new PieChartPage; }},
        {u"toggles"_s, TogglesPage::tr("Toggles"), [] { return new TogglesPage; }},
        {u"tags"_s, TagsPage::tr("Tags"), [] { return new TagsPage; }},
        {u"tag-editor"_s, TagEditorPage::tr("Tag editor"), [] { return new TagEditorPage; }},
        {u"project-list"_s, ProjectListPage::tr("Project list"), [] { return new ProjectListPage; }},
        {u"scene-list"_s, SceneListPage::tr("Scene list"), [] { return new SceneListPage; }},
        {u"curtains"_s, CurtainsPage::tr("Curtains"), [] { return new CurtainsPage; }},
        {u"project-scenes"_s, ProjectScenesPage::tr("Project scenes"), [] { return new ProjectScenesPage; }},
    };
}

int GalleryPages::find(const QString &name)
{
    const QList<Page> pages = all();
    for (int i = 0; i < int(pages.size()); ++i) {
        const bool isIt = pages[i].id.compare(name, Qt::CaseInsensitive) == 0
            || pages[i].title.compare(name, Qt::CaseInsensitive) == 0;
        if (isIt)
            return i;
    }
    return -1;
}
