#include "gallery/TagsPage.h"

#include "VelmoStyle.h"
#include "gallery/FrozenHover.h"
#include "oVIXDragDropListWidget.h"
#include "oVIXDragTag.h"
#include "oVIXTagListWidget.h"
#include "oVIXTagListWidgetItem.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize listSize(200, 150);
constexpr QColor chipColor(39, 39, 39);
constexpr QColor chipTextColor(219, 219, 219);

QWidget *createChip(const QString &text, DRAG_BUTTON button, bool showButton, bool enabled)
{
    auto *plate = new QWidget;
    plate->setFixedSize(150, 24);
    auto *chip = new oVIXDragTag(text, chipColor, chipTextColor, button, showButton, plate);
    if (chip->isAdd())
        chip->resize(plate->width(), chip->height());
    chip->setEnabled(enabled);
    return plate;
}

QStringList tagNames(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i)
        names << TagsPage::tr("Tag %1").arg(i);
    return names;
}

oVIXDragDropListWidget *createDropList(const QStringList &names, DRAG_BUTTON button)
{
    auto *list = new oVIXDragDropListWidget;
    list->setFixedSize(listSize);
    list->setStyleSheet(VelmoStyle::styleDragDropList(true, true));
    list->setTagTextColor(chipColor, chipTextColor, -1);
    for (const QString &name : names)
        list->addCustomItem(name, button, true);
    return list;
}

oVIXDragTag *addAddTag(oVIXDragDropListWidget *list)
{
    return qobject_cast<oVIXDragTag *>(
        list->itemWidget(list->addCustomItem(TagsPage::tr("Add tag"), BUTTON_ADD, true)));
}

oVIXTagListWidget *createTagList(const QStringList &names)
{
    auto *list = new oVIXTagListWidget;
    list->setFixedSize(listSize);
    for (const QString &name : names) {
        auto *item = new QListWidgetItem(list);
        item->setSizeHint(QSize(0, 20));
        auto *chip = new oVIXTagListWidgetItem(list->viewport());
        chip->setText(name);
        list->setItemWidget(item, chip);
    }
    return list;
}

} // namespace

TagsPage::TagsPage(QWidget *parent) : GalleryPage(tr("Tags"), parent)
{
    addChips();
    addDropLists();
    addTagLists();
}

void TagsPage::addChips()
{
    SampleSection *section = addSection(tr("Tags"), tr("A chip as wide as its text, with or without a button."));
    for (const bool enabled : {true, false}) {
        const QString state = enabled ? tr("enabled") : tr("disabled");
        section->addRow({
            {createChip(tr("Vehicle"), BUTTON_NONE, true, enabled), tr("No button, %1").arg(state)},
            {createChip(tr("Vehicle"), BUTTON_REMOVE_OPTIONAL, false, enabled), tr("Optional, off, %1").arg(state)},
            {createChip(tr("Vehicle"), BUTTON_REMOVE_OPTIONAL, true, enabled), tr("Optional, on, %1").arg(state)},
            {createChip(tr("Vehicle"), BUTTON_REMOVE, false, enabled), tr("Remove, %1").arg(state)},
            {createChip(tr("Add tag"), BUTTON_ADD, true, enabled), tr("Add, %1").arg(state)},
        });
    }
}

void TagsPage::addDropLists()
{
    SampleSection *section = addSection(tr("Lists of tags"), tr("Tags can be dragged out and dropped here."));
    oVIXDragDropListWidget *many = createDropList(tagNames(200), BUTTON_REMOVE);
    addAddTag(many);
    section->addRow({
        {createDropList({}, BUTTON_REMOVE), tr("Empty")},
        {createDropList(tagNames(1), BUTTON_REMOVE), tr("One tag")},
        {many, tr("200 tags")},
    });

    oVIXDragDropListWidget *closed = createDropList({tr("Bus"), tr("car"), tr("Lorry")}, BUTTON_REMOVE);
    addAddTag(closed);
    oVIXDragDropListWidget *open = createDropList({tr("Bus"), tr("car"), tr("Lorry")}, BUTTON_REMOVE);
    addAddTag(open)->fnAddClicked();
    oVIXDragDropListWidget *odd = createDropList(
        {u"<b>bold</b> &amp; %1"_s, tr("A very long name of a tag that does not fit into the list"), u"Вокзал"_s},
        BUTTON_REMOVE_OPTIONAL);
    odd->setEnabledItems({u"Вокзал"_s});
    section->addRow(
        {{closed, tr("With the add tag")}, {open, tr("Typing a new tag")}, {odd, tr("Odd names, disabled")}});
}

void TagsPage::addTagLists()
{
    SampleSection *section = addSection(tr("Tag list"), tr("Tags to look at and to click."));
    oVIXTagListWidget *usual = createTagList({tr("Bus"), tr("Car"), tr("Lorry")});
    freezeHover(usual->itemWidget(usual->item(1)));
    oVIXTagListWidget *coloured = createTagList({tr("Bus"), tr("Car"), tr("Lorry")});
    coloured->setTagColors(QColor(116, 211, 252), QColor(28, 28, 28));
    oVIXTagListWidget *disabled = createTagList({tr("Bus"), tr("Car")});
    disabled->setEnabled(false);
    section->addRow({{usual, tr("One under the pointer")},
                     {coloured, tr("In other colours")},
                     {createTagList(tagNames(200)), tr("200 tags")},
                     {disabled, tr("Disabled")}});
}
