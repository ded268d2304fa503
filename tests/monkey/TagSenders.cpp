#include "monkey/SenderTables.h"

#include "QClickableLabel.h"
#include "VelmoDropData.h"
#include "VelmoMessageBox.h"
#include "oVIXAutoHideLine.h"
#include "oVIXDragDropListWidget.h"
#include "oVIXDragDropTags.h"
#include "oVIXDragTag.h"
#include "oVIXTagListWidget.h"

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Senders {
namespace {

constexpr QSize tagSize(200, 20);
constexpr QSize listSize(250, 200);

oVIXDragTag *createTag(DRAG_BUTTON button, QWidget *parent)
{
    return placed(new oVIXDragTag(u"Tree"_s, Qt::black, Qt::white, button, true, parent), tagSize);
}

oVIXDragTag *tagIn(QWidget *list, int row)
{
    auto *tags = qobject_cast<oVIXDragDropListWidget *>(list);
    tags->doItemsLayout();
    return qobject_cast<oVIXDragTag *>(tags->itemWidget(tags->item(row)));
}

void pressButton(QWidget *tag)
{
    Gestures::click(tag->findChild<QClickableLabel *>());
}

void addTag(oVIXDragTag *tag)
{
    tag->fnAddClicked();
    type(tag->findChild<oVIXAutoHideLine *>(), u"Road"_s);
}

void startSmallDrag(oVIXTagListWidget *list)
{
    QWidget *viewport = list->viewport();
    Gestures::send(viewport, QEvent::MouseButtonPress, {10, 10});
    Gestures::send(viewport, QEvent::MouseMove, {11, 10});
}

oVIXDragDropTags *createEditor(QWidget *host)
{
    auto *editor = new oVIXDragDropTags(host);
    editor->setGeometry(0, 0, 600, 300);
    editor->addLeftItems({u"Tree"_s, u"House"_s}, BUTTON_REMOVE_OPTIONAL);
    editor->addLeftItem({}, BUTTON_ADD);
    return editor;
}

QWidget *leftListOf(QWidget *editor)
{
    return partOf(editor, u"leftList"_s);
}

/// And agrees to it.
void deleteFirstTag(oVIXDragDropTags *editor)
{
    editor->setLeftShowAllButtons(false);
    QTimer::singleShot(0, qApp, [] {
        if (auto *box = qobject_cast<VelmoMessageWidget *>(QApplication::activeModalWidget()))
            box->fnAccept();
    });
    editor->fnLeftChange(0);
}

} // namespace
} // namespace Senders

QList<Senders::Sender> Senders::ofTags()
{
    const auto createList = [](QWidget *host) {
        auto *list = placed(new oVIXDragDropListWidget(host), listSize);
        list->setDropType(VelmoDropData::Tags);
        list->addCustomItem(u"Tree"_s, BUTTON_REMOVE, true);
        list->addCustomItem({}, BUTTON_ADD, true);
        return list;
    };
    const auto createTagList = [](QWidget *host) {
        auto *list = placed(new oVIXTagListWidget(host), listSize);
        list->addItem(u"Tree"_s);
        list->setEmitDrag(true);
        return list;
    };
    const Act drop = with<oVIXDragDropListWidget>([](oVIXDragDropListWidget *list) { dropTag(list->viewport()); });
    const Act changeList = with<oVIXDragDropTags>([](oVIXDragDropTags *editor) {
        editor->fnChangedList(static_cast<oVIXDragDropListWidget *>(leftListOf(editor)));
    });
    const auto onTag = [](int row, auto act) { return with<QWidget>([=](QWidget *list) { act(tagIn(list, row)); }); };
    const auto onLeftTag = [](int row, auto act) {
        return with<QWidget>([=](QWidget *editor) { act(tagIn(leftListOf(editor), row)); });
    };
    const auto doubleClickOn = [](QWidget *tag) { Gestures::doubleClick(tag); };
    return {
        {"oVIXDragTag",
         [](QWidget *host) { return createTag(BUTTON_REMOVE, host); },
         {{"tagClicked()", with<QWidget>(pressButton)},
          {"tagAdd(QString)", {}},
          {"doubleClick()", doubleClick()},
          {"startDrag(QMouseEvent*)", drag({}, QPoint(60, 40))}}},
        {"oVIXDragDropListWidget",
         createList,
         {{"wantsChange(int)", onTag(0, pressButton)},
          {"wantsMove(int)", onTag(0, doubleClickOn)},
          {"dropTriggered(QDropEvent*)", drop},
          {"addNewItem(QString)", onTag(1, addTag)}}},
        {"oVIXDragDropTags",
         createEditor,
         {{"userTagChanged(QStringList)", changeList},
          {"newItemAdded(QString)", onLeftTag(2, addTag)},
          {"itemRemoved(QString)", with<oVIXDragDropTags>(deleteFirstTag)},
          {"genericTagChanged(int)", onLeftTag(0, doubleClickOn)},
          {"genericTagChanged(int)", onLeftTag(0, pressButton)}}},
        {"oVIXTagListWidget",
         createTagList,
         {{"startDragSignal(QMouseEvent*)", with<oVIXTagListWidget>(startSmallDrag)}}},
    };
}
