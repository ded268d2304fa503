#include "gallery/TagEditorPage.h"

#include "oVIXDragDropTags.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize editorSize(380, 170);
constexpr QColor chipColor(81, 81, 81);
constexpr QColor chipTextColor(219, 219, 219);

oVIXDragDropTags *createEditor(const QStringList &assigned, const QStringList &available, DRAG_BUTTON button)
{
    auto *editor = new oVIXDragDropTags;
    editor->setFixedSize(editorSize);
    editor->setLeftTitle(TagEditorPage::tr("Assigned"));
    editor->setRightTitle(TagEditorPage::tr("Available"));
    editor->setLeftTagColors(chipColor, chipTextColor);
    editor->setRightTagColors(chipColor, chipTextColor);
    editor->addLeftItems(assigned, button);
    editor->addRightItems(available, button);
    return editor;
}

} // namespace

TagEditorPage::TagEditorPage(QWidget *parent) : GalleryPage(tr("Tag editor"), parent)
{
    addUses();
    addStates();
}

void TagEditorPage::addUses()
{
    oVIXDragDropTags *moving =
        createEditor({tr("Lorry"), tr("bus")}, {tr("Car"), tr("Tram"), tr("bicycle")}, BUTTON_REMOVE_OPTIONAL);

    oVIXDragDropTags *deleting = createEditor({}, {}, BUTTON_NONE);
    deleting->setLeftShowAllButtons(false);
    deleting->setRightShowAllButtons(false);
    deleting->addLeftItems({tr("Lorry"), tr("bus")}, BUTTON_REMOVE_OPTIONAL);
    deleting->addRightItems({tr("Car"), tr("Tram")}, BUTTON_REMOVE);
    deleting->addLeftItem(tr("Add tag"), BUTTON_ADD);
    deleting->addRightItem(tr("Add tag"), BUTTON_ADD);

    addSection(tr("Two panes"), tr("Tags move by double click, by their button and by dragging; new ones are typed."))
        ->addRow({{moving, tr("Buttons move")}, {deleting, tr("Buttons delete, new tags can be added")}});
}

void TagEditorPage::addStates()
{
    QStringList many;
    for (int i = 1; i <= 200; ++i)
        many << tr("Tag %1").arg(i);
    oVIXDragDropTags *coloured = createEditor({tr("Lorry")}, many, BUTTON_REMOVE);
    coloured->setLeftTagColors(QColor(116, 211, 252), QColor(28, 28, 28));

    oVIXDragDropTags *odd = createEditor(
        {u"<b>bold</b> &amp; %1"_s, tr("A very long name of a tag that does not fit into the list"), u"Вокзал"_s},
        {tr("Car"), tr("Lorry"), tr("Tram")}, BUTTON_REMOVE_OPTIONAL);
    odd->setLeftTitle(tr("Odd names & <i>titles</i> that are rather long for this place"));
    odd->setEnabledRightItems({tr("Lorry")});

    oVIXDragDropTags *disabled = createEditor({tr("Lorry"), tr("bus")}, {tr("Car")}, BUTTON_REMOVE);
    disabled->setEnabled(false);

    SampleSection *section = addSection(tr("States"));
    section->addRow({{createEditor({}, {}, BUTTON_NONE), tr("Empty")}, {coloured, tr("In colours, 200 tags")}});
    section->addRow({{odd, tr("Odd names; only some available tags enabled")}, {disabled, tr("Disabled")}});
}
