#include "tags/oVIXDragDropTags.h"

#include "foundation/VelmoPalette.h"
#include "messages/MessageRules.h"
#include "tags/TagSheets.h"
#include "tags/oVIXDragDropListWidget.h"

#include "ui_oVIXDragDropTags.h"

#include <QDropEvent>
#include <QPersistentModelIndex>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int leftToRight = 1;
constexpr int rightToLeft = 2;

oVIXDragTag *tagOf(const oVIXDragDropListWidget *list, QListWidgetItem *item)
{
    return qobject_cast<oVIXDragTag *>(list->itemWidget(item));
}

QList<QString> textsOf(const QListWidget *list)
{
    QList<QString> texts;
    texts.reserve(list->count());
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

/// False, and nothing done, for an item without a tag.
bool moveTag(oVIXDragDropListWidget *source, QListWidgetItem *item, oVIXDragDropListWidget *target)
{
    const oVIXDragTag *tag = tagOf(source, item);
    if (!tag)
        return false;
    target->addCustomItem(tag->text(), tag->getButtonOptions(), true);
    delete source->takeItem(source->row(item));
    return true;
}

void addItems(oVIXDragDropListWidget *list, const QList<QString> &texts, DRAG_BUTTON button)
{
    for (const QString &text : texts)
        list->addCustomItem(text, button, true);
}

void setTitle(QLabel *label, QWidget *list, const QString &title)
{
    label->setText(title);
    list->setAccessibleName(title);
}

} // namespace

oVIXDragDropTags::oVIXDragDropTags(QWidget *parent) : QWidget(parent), m_ui(new Ui::oVIXDragDropTags)
{
    m_ui->setupUi(this);
    for (QLabel *label : {m_ui->leftTextLabel, m_ui->rightTextLabel})
        label->setStyleSheet(TagSheets::paneTitle());
    m_ui->leftListSeparatorA->setStyleSheet(TagSheets::paneSeparator(VelmoPalette::raised));
    m_ui->leftListSeparatorB->setStyleSheet(TagSheets::paneSeparator(VelmoPalette::secondaryText));
    setLeftTitle(m_ui->leftTextLabel->text());
    setRightTitle(m_ui->rightTextLabel->text());

    for (oVIXDragDropListWidget *list : {m_ui->leftList, m_ui->rightList}) {
        list->setStyleSheet(TagSheets::paneList());
        connect(list, &oVIXDragDropListWidget::dropTriggered, this, &oVIXDragDropTags::dropRequested);
    }
    connect(m_ui->leftList, &oVIXDragDropListWidget::wantsMove, this, &oVIXDragDropTags::fnLeftMove);
    connect(m_ui->rightList, &oVIXDragDropListWidget::wantsMove, this, &oVIXDragDropTags::fnRightMove);
    connect(m_ui->leftList, &oVIXDragDropListWidget::wantsChange, this, &oVIXDragDropTags::fnLeftChange);
    connect(m_ui->rightList, &oVIXDragDropListWidget::wantsChange, this, &oVIXDragDropTags::fnRightChange);
    connect(m_ui->leftList, &oVIXDragDropListWidget::addNewItem, this, &oVIXDragDropTags::fnLeftAddNewItem);
    connect(m_ui->rightList, &oVIXDragDropListWidget::addNewItem, this, &oVIXDragDropTags::fnRightAddNewItem);
}

oVIXDragDropTags::~oVIXDragDropTags() = default;

QListWidgetItem *oVIXDragDropTags::addLeftItem(QString text, DRAG_BUTTON button)
{
    return m_ui->leftList->addCustomItem(text, button, true);
}

QListWidgetItem *oVIXDragDropTags::addRightItem(QString text, DRAG_BUTTON button)
{
    return m_ui->rightList->addCustomItem(text, button, true);
}

void oVIXDragDropTags::addLeftItems(QList<QString> texts, DRAG_BUTTON button)
{
    addItems(m_ui->leftList, texts, button);
}

void oVIXDragDropTags::addRightItems(QList<QString> texts, DRAG_BUTTON button)
{
    addItems(m_ui->rightList, texts, button);
}

void oVIXDragDropTags::clearLeft()
{
    m_ui->leftList->clear();
}

void oVIXDragDropTags::clearRight()
{
    m_ui->rightList->clear();
}

QList<QString> oVIXDragDropTags::getLeftTags() const
{
    return textsOf(m_ui->leftList);
}

QList<QString> oVIXDragDropTags::getRightTags() const
{
    return textsOf(m_ui->rightList);
}

void oVIXDragDropTags::setLeftTitle(QString title)
{
    setTitle(m_ui->leftTextLabel, m_ui->leftList, title);
}

void oVIXDragDropTags::setRightTitle(QString title)
{
    setTitle(m_ui->rightTextLabel, m_ui->rightList, title);
}

void oVIXDragDropTags::setLeftTagColors(QColor background, QColor text)
{
    m_ui->leftList->setTagTextColor(background, text, -1);
}

void oVIXDragDropTags::setRightTagColors(QColor background, QColor text)
{
    m_ui->rightList->setTagTextColor(background, text, -1);
}

void oVIXDragDropTags::setLeftShowAllButtons(bool show)
{
    m_ui->leftList->setShowAllButtons(show);
}

void oVIXDragDropTags::setRightShowAllButtons(bool show)
{
    m_ui->rightList->setShowAllButtons(show);
}

void oVIXDragDropTags::setDropType(VelmoDropData::Type type)
{
    m_ui->leftList->setDropType(type);
    m_ui->rightList->setDropType(type);
}

void oVIXDragDropTags::enableAddButton(bool enable)
{
    m_ui->leftList->enableAddButton(enable);
    m_ui->rightList->enableAddButton(enable);
}

void oVIXDragDropTags::setEnabledRightItems(const QList<QString> &names)
{
    m_ui->rightList->setEnabledItems(names);
}

VelmoMsgReturnCode oVIXDragDropTags::promptDeleteQuestion(QString name)
{
    const QString message = tr("Delete tag or category %1 question message.");
    return VelmoQuestionMessage(tr("Delete"), bodyNaming(message, name), this, nullptr);
}

void oVIXDragDropTags::fnLeftMove(int row)
{
    move(m_ui->leftList, row);
}

void oVIXDragDropTags::fnRightMove(int row)
{
    move(m_ui->rightList, row);
}

void oVIXDragDropTags::fnLeftChange(int row)
{
    change(m_ui->leftList, row);
}

void oVIXDragDropTags::fnRightChange(int row)
{
    change(m_ui->rightList, row);
}

void oVIXDragDropTags::fnLeftAddNewItem(QString text)
{
    addNewItem(m_ui->leftList, text);
}

void oVIXDragDropTags::fnRightAddNewItem(QString text)
{
    addNewItem(m_ui->rightList, text);
}

void oVIXDragDropTags::fnChangedList(oVIXDragDropListWidget *list)
{
    if (!list || !list->getShowAllButtons())
        return;
    QList<QString> tags;
    for (int row = 0; row < list->count(); ++row) {
        const oVIXDragTag *tag = tagOf(list, list->item(row));
        if (tag && !tag->isAdd())
            tags.append(tag->text());
    }
    emit userTagChanged(tags);
}

void oVIXDragDropTags::dropRequested(QDropEvent *event)
{
    auto *target = qobject_cast<oVIXDragDropListWidget *>(sender());
    if (!target || !event)
        return;
    const VelmoDropData payload(event->mimeData());
    if (target->getDropType() < 0 || payload.getType() != target->getDropType())
        return;
    auto *source = qobject_cast<oVIXDragDropListWidget *>(event->source());
    if (!source || source != otherList(target))
        return;
    const QList<QString> names = payload.getItemNames();
    for (const QString &name : names) {
        const QList<QListWidgetItem *> matches = source->findItems(name, Qt::MatchExactly);
        for (QListWidgetItem *item : matches)
            moveTag(source, item, target);
    }
    emit genericTagChanged(directionFrom(source));
}

void oVIXDragDropTags::move(oVIXDragDropListWidget *source, int row)
{
    if (moveTag(source, source->item(row), otherList(source)))
        emit genericTagChanged(directionFrom(source));
}

void oVIXDragDropTags::change(oVIXDragDropListWidget *list, int row)
{
    if (list->getShowAllButtons()) {
        move(list, row);
        return;
    }
    const QListWidgetItem *item = list->item(row);
    if (!item)
        return;
    const QString text = item->text();
    const QPointer<oVIXDragDropTags> alive(this);
    // The question and the signal may change the list's rows.
    const QPersistentModelIndex place = list->model()->index(row, 0);
    if (promptDeleteQuestion(text) == MsgRejected || !alive || !place.isValid())
        return;
    emit itemRemoved(text);
    if (!alive)
        return;
    if (place.isValid())
        delete list->takeItem(place.row());
    fnChangedList(list);
}

void oVIXDragDropTags::addNewItem(oVIXDragDropListWidget *list, const QString &text)
{
    const QList<QString> texts = textsOf(list);
    const auto isEqual = [&text](const QString &other) { return other.compare(text, Qt::CaseInsensitive) == 0; };
    if (std::any_of(texts.begin(), texts.end(), isEqual))
        return;
    list->addCustomItem(text, BUTTON_REMOVE, true);
    emit newItemAdded(text);
}

oVIXDragDropListWidget *oVIXDragDropTags::otherList(const oVIXDragDropListWidget *list) const
{
    return list == m_ui->leftList ? m_ui->rightList : m_ui->leftList;
}

int oVIXDragDropTags::directionFrom(const oVIXDragDropListWidget *source) const
{
    return source == m_ui->leftList ? leftToRight : rightToLeft;
}
