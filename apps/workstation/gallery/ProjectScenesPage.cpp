#include "gallery/ProjectScenesPage.h"

#include "VelmoProjectScenesWidget.h"
#include "VelmoSceneMetadataParser.h"
#include "gallery/SamplePicture.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

/// A panel as the application makes them.
class ProjectScenesSample : public VelmoProjectScenesWidget
{
public:
    using VelmoProjectScenesWidget::clearPreview;
    using VelmoProjectScenesWidget::setPreview;

    void addSample(const QString &name, bool newer = false, bool compatible = true)
    {
        VelmoSceneMetadataParser metadata = VelmoSceneMetadataParser::withDefaults();
        metadata.bakeStatus = compatible ? u"Baked"_s : QString();
        metadata.actorCount = u"240"_s;
        metadata.vehicleCount = u"18"_s;
        metadata.timeFramerate = u"00:02:30 | 25"_s;
        metadata.version = VelmoVersion(newer ? u"99.1"_s : u"2.0.0"_s);
        addScene(name, metadata, QDateTime(QDate(2024, 5, 17), QTime(9, 41)), compatible);
    }
};

namespace {

constexpr QSize usual(766, 576);
constexpr QSize tall(900, 800);
constexpr QSize pictureSize(960, 540);

void addThree(ProjectScenesSample *panel)
{
    panel->addSample(ProjectScenesPage::tr("Market square.vscene"));
    panel->addSample(ProjectScenesPage::tr("Station hall.vscene"));
    panel->addSample(ProjectScenesPage::tr("Harbour.vscene"));
}

} // namespace

ProjectScenesPage::ProjectScenesPage(QWidget *parent) : GalleryPage(tr("Project scenes"), parent)
{
    addStates();
    addModes();
    addCounts();
    addPreviews();
}

ProjectScenesSample *ProjectScenesPage::addPanel(const QString &title, const QString &note, QSize size)
{
    auto *panel = new ProjectScenesSample;
    panel->setFixedSize(size);
    panel->clearPreview();
    addSection(title, note)->addRow({{panel, {}}});
    return panel;
}

void ProjectScenesPage::addStates()
{
    ProjectScenesSample *selected =
        addPanel(tr("A scene is selected"), tr("It can be opened, and its preview shows whole."), tall);
    addThree(selected);
    selected->addSample(tr("Saved by a newer release.vscene"), true);
    selected->addSample(tr("Not compatible.vscene"), false, false);
    selected->setSelectedRow(0);
    selected->setPreview(SamplePicture::draw(pictureSize));
    selected->setYesNoButtonEnabled(true);

    ProjectScenesSample *none = addPanel(
        tr("None is selected"), tr("The application has disabled the two buttons. The bar starts grey."), usual);
    addThree(none);
    none->setSceneButtonsEnabled(false);
}

void ProjectScenesPage::addModes()
{
    ProjectScenesSample *fixed =
        addPanel(tr("Editing off"), tr("Scenes can only be opened, here under another name for it."), usual);
    fixed->setEditingEnabled(false);
    addThree(fixed);
    fixed->setSelectedRow(1);
    fixed->setPreview(SamplePicture::draw(pictureSize));
    fixed->setYesNoButtonText(tr("ADD"));
    fixed->setYesNoButtonEnabled(true);

    ProjectScenesSample *disabled = addPanel(tr("Disabled"), {}, usual);
    addThree(disabled);
    disabled->setSelectedRow(2);
    disabled->setPreview(SamplePicture::draw(pictureSize));
    disabled->setEnabled(false);
}

void ProjectScenesPage::addCounts()
{
    // The row for a new scene comes with the first change.
    addPanel(tr("No scenes"), {}, usual)->clearScenes();

    ProjectScenesSample *many = addPanel(tr("1,000 scenes"), tr("Row 500 is selected and stands in the middle."), tall);
    for (int i = 1; i <= 1000; ++i)
        many->addSample(tr("Scene %1.vscene").arg(i));
    many->setSelectedRow(499);
}

void ProjectScenesPage::addPreviews()
{
    ProjectScenesSample *wide = addPanel(tr("A wide preview"), tr("It keeps its shape."), usual);
    wide->setPreview(SamplePicture::draw({2000, 400}));
    addThree(wide);
    ProjectScenesSample *high = addPanel(tr("A high preview"), tr("Its middle shows."), usual);
    high->setPreview(SamplePicture::draw({600, 900}));
    addThree(high);
}
