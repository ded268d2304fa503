#include "monkey/SenderTables.h"

#include "VelmoProjectScenesWidget.h"
#include "VelmoProjectsTable.h"
#include "VelmoSceneItem.h"
#include "VelmoSceneMetadataParser.h"
#include "VelmoScenesTable.h"
#include "VelmoYesNoWidget.h"
#include "oVIXGuideOverlay.h"

#include <QDateTime>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace Senders {
namespace {

/// The row's own widget; the last row of a list of scenes is its add button.
QWidget *rowOf(QWidget *table, int row)
{
    auto *list = table->findChild<QListWidget *>(u"listWidget"_s);
    list->doItemsLayout();
    return list->itemWidget(list->item(row));
}

void clickSecondRow(QWidget *table)
{
    Gestures::click(rowOf(table, 1));
}

void clickAddButton(QWidget *table)
{
    Gestures::click(rowOf(table, 2));
}

/// The name of a scene is typed where it stands.
void rename(QWidget *row, Qt::Key last = Qt::Key_Return)
{
    Gestures::focus(row);
    Gestures::doubleClick(partOf(row, u"nameLabel"_s));
    type(partOf(row, u"nameEdit"_s), u"Square"_s, last);
}

VelmoYesNoWidget *createBar(QWidget *host)
{
    auto *bar = placed(new VelmoYesNoWidget(host), {400, 36});
    bar->enableOkButtonAndColor(true);
    return bar;
}

VelmoScenesTable *createScenes(QWidget *host)
{
    auto *table = new VelmoScenesTable(host);
    table->setGeometry(0, 0, 600, 300);
    for (const QString &name : {u"Plaza"_s, u"Hall"_s})
        table->addScene(name, false, {}, {}, {}, {}, {}, {}, true);
    table->setSelectedRow(0);
    return table;
}

VelmoProjectScenesWidget *createPanel(QWidget *host)
{
    host->resize(800, 700);
    auto *panel = new VelmoProjectScenesWidget(host);
    panel->setGeometry(0, 0, 780, 680);
    for (const QString &name : {u"Plaza"_s, u"Hall"_s})
        panel->addScene(name, VelmoSceneMetadataParser::withDefaults(), QDateTime(), true);
    panel->setSelectedRow(0);
    panel->setYesNoButtonEnabled(true);
    return panel;
}

VelmoProjectsTable *createProjects(QWidget *host)
{
    auto *table = new VelmoProjectsTable(host);
    table->setGeometry(0, 0, 500, 300);
    table->addProject(u"Airport"_s, {});
    table->addProject(u"Station"_s, {});
    return table;
}

VelmoSceneItem *createScene(QWidget *host)
{
    auto *row = new VelmoSceneItem(nullptr, host);
    row->setGeometry(0, 0, 600, 25);
    row->set(u"Plaza"_s, false, {}, {}, {}, {}, {}, {});
    row->setSelected(true);
    row->setEditingEnabled(true);
    return row;
}

} // namespace
} // namespace Senders

QList<Senders::Sender> Senders::ofMessagesAndBrowser()
{
    const Act select = with<QWidget>(clickSecondRow);
    const Act add = with<QWidget>(clickAddButton);
    const Act renameFirst = with<QWidget>([](QWidget *table) { rename(rowOf(table, 0)); });
    const Act addByRow = with<VelmoSceneItem>([](VelmoSceneItem *row) {
        row->setEditingEnabled(false);
        Gestures::doubleClick(partOf(row, u"versionLabel"_s));
    });
    const Act finishRenaming = with<VelmoSceneItem>([](VelmoSceneItem *row) {
        rename(row, Qt::Key_2);
        row->finishEditing();
    });
    return {
        {"VelmoYesNoWidget",
         createBar,
         {{"accept()", click(u"okButton"_s)}, {"reject()", pressByTools(u"cancelButton"_s)}}},
        {"oVIXGuideOverlay",
         [](QWidget *host) { return new oVIXGuideOverlay(host); },
         {{"sgGuideFinished()", click(u"skipButton"_s)},
          {"sgAnimationProgressChanged(float)",
           with<oVIXGuideOverlay>([](oVIXGuideOverlay *tour) { tour->revealStep(); })}}},
        {"VelmoSceneItem",
         createScene,
         {{"addChanged()", click(u"addButton"_s)},
          {"addChanged()", addByRow},
          {"renameRequested(QString,QString)", with<QWidget>([](QWidget *row) { rename(row); })},
          {"renameRequested(QString,QString)", finishRenaming}}},
        {"VelmoScenesTable",
         createScenes,
         {{"selectionChanged()", select, Deletion::Later},
          {"newScenePressed()", add},
          {"renameRequested(QString,QString)", renameFirst}}},
        {"VelmoProjectsTable", createProjects, {{"selectionChanged()", select, Deletion::Later}}},
        {"VelmoProjectScenesWidget",
         createPanel,
         {{"accept()", click(u"okButton"_s)},
          {"reject()", click(u"cancelButton"_s)},
          {"sceneSelectionChanged()", select, Deletion::Later},
          {"deleteScenePressed()", click(u"deleteSceneButton"_s)},
          {"cloneScenePressed()", click(u"closeSceneButton"_s)},
          {"newScenePressed()", add},
          {"renameTriggered(QString,QString)", renameFirst}}},
    };
}
