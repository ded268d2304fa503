#include "gallery/SceneListPage.h"

#include "QClickableLabel.h"
#include "VelmoSceneItem.h"
#include "VelmoScenesTable.h"
#include "gallery/FrozenHover.h"

#include <QCoreApplication>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int narrow = 640;
constexpr int usual = 820;
constexpr int wide = 1100;
constexpr int headerHeight = 25;
constexpr int rowHeight = 25;

constexpr int heightFor(int rows)
{
    return headerHeight + rows * rowHeight + 8;
}

void addScene(VelmoScenesTable *table, const QString &name, bool newer = false, bool compatible = true)
{
    table->addScene(name, newer, u"2024-05-17 09:41"_s, compatible ? u"Baked"_s : QString(),
                    compatible ? u"240"_s : u"0"_s, compatible ? u"18"_s : u"0"_s,
                    compatible ? u"00:02:30 | 25"_s : QString(), newer ? u"9.1"_s : u"2.0.0"_s, compatible);
}

VelmoSceneItem *rowOf(VelmoScenesTable *table, const QString &name)
{
    const QList<VelmoSceneItem *> rows = table->findChildren<VelmoSceneItem *>();
    for (VelmoSceneItem *row : rows) {
        if (row->getName() == name)
            return row;
    }
    return nullptr;
}

/// Opens the edit as a user does, with a double click on the name of the selected row.
void openNameEdit(VelmoSceneItem *row)
{
    auto *name = row->findChild<QClickableLabel *>(u"nameLabel"_s);
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, {}, {}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(name, &doubleClick);
}

} // namespace

SceneListPage::SceneListPage(QWidget *parent) : GalleryPage(tr("Scene list"), parent)
{
    addStates();
    addRenaming();
    addModes();
    addMany();
    addNames();
}

VelmoScenesTable *SceneListPage::addTable(const QString &title, const QString &note, int width, int height)
{
    auto *table = new VelmoScenesTable;
    table->setFixedSize(width, height);
    addSection(title, note)->addRow({{table, {}}});
    return table;
}

void SceneListPage::addStates()
{
    VelmoScenesTable *table = addTable(tr("Rows"), tr("Each row says which state it shows."), usual, heightFor(7));
    addScene(table, tr("Normal"));
    addScene(table, tr("Selected"));
    addScene(table, tr("Chosen"));
    addScene(table, tr("Under the pointer"));
    addScene(table, tr("Saved by a newer release"), true);
    addScene(table, tr("Not compatible"), false, false);
    table->setSceneEnabled(tr("Chosen"), true);
    table->setSelectedScene(tr("Selected"));
    freezeHover(rowOf(table, tr("Under the pointer")));
}

void SceneListPage::addRenaming()
{
    VelmoScenesTable *table =
        addTable(tr("Renaming"), tr("A double click on a selected name opens the edit."), usual, heightFor(3));
    addScene(table, tr("Market square"));
    addScene(table, tr("Station hall"));
    table->setSelectedScene(tr("Market square"));
    openNameEdit(rowOf(table, tr("Market square")));
}

void SceneListPage::addModes()
{
    VelmoScenesTable *fixed =
        addTable(tr("Editing off"), tr("No renaming, no row for a new scene."), usual, heightFor(3));
    fixed->setEditingEnabled(false);
    addScene(fixed, tr("Market square"));
    addScene(fixed, tr("Station hall"));

    VelmoScenesTable *single = addTable(tr("Multi-selection off"), tr("Rows have no toggles."), usual, heightFor(3));
    single->setMultiSelectionEnabled(false);
    addScene(single, tr("Market square"));
    addScene(single, tr("Station hall"));
    single->setSelectedRow(1);

    // The row for a new scene comes with the first change.
    addTable(tr("Empty"), tr("Only the row for a new scene."), usual, heightFor(2))->clearScenes();
}

void SceneListPage::addMany()
{
    VelmoScenesTable *table =
        addTable(tr("1,000 scenes"), tr("Row 500 is selected and stands in the middle."), usual, heightFor(8));
    for (int i = 1; i <= 1000; ++i)
        addScene(table, tr("Scene %1").arg(i));
    table->setSelectedRow(499);
}

void SceneListPage::addNames()
{
    for (const int width : {narrow, wide}) {
        VelmoScenesTable *table = addTable(width == narrow ? tr("Names in a narrow list") : tr("Names in a wide list"),
                                           tr("Names are plain text and give way at the right."), width, heightFor(7));
        addScene(table,
                 tr("A very long name of a scene that tells the whole story of an evacuation drill in the "
                    "northern concourse of the central station on a rainy Friday afternoon"));
        addScene(table, u"<b>bold</b> &amp; <img src=x>"_s);
        addScene(table, u"Вокзал – полдень – σταθμός – Überführung"_s);
        addScene(table, u"two\nlines\tand a tab"_s);
        addScene(table, u"%1 %n {0} \\n"_s);
        addScene(table, QString(40, u'W'));
    }
}
