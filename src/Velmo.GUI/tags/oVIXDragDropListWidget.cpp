#include "tags/oVIXDragDropListWidget.h"

#include "foundation/DeferredRows.h"
#include "foundation/KeyboardPress.h"
#include "foundation/QClickableLabel.h"
#include "tags/AccessibleTags.h"
#include "tags/SortedPlace.h"
#include "tags/TagSheets.h"
#include "tags/VelmoDrag.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSet>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace {

constexpr int rowHeight = 20;
constexpr QPoint chipInTag(4, 4); // the margins of the tag's sheet
constexpr qreal chipRadius = 3;
/// What a window system takes as a picture; the names of tags know no limit.
constexpr QSize largestDragPicture(4096, 4096);

QPixmap dragPictureOf(QWidget *tag)
{
    const QSize size = tag->size().boundedTo(largestDragPicture);
    QPixmap picture(size * tag->devicePixelRatio());
    picture.setDevicePixelRatio(tag->devicePixelRatio());
    picture.fill(Qt::transparent);
    tag->render(&picture, QPoint(), QRegion(QRect(QPoint(), size)), QWidget::DrawChildren);
    return picture;
}

/// A tag of the list, which may wait until it comes into view: the toolkit shows the widget of a row at once and styles
/// every new widget at the next turn of the event loop, and that is most of what a tag costs.
class RowTag : public oVIXDragTag
{
public:
    using oVIXDragTag::oVIXDragTag;

    void wait()
    {
        m_waits = true;
        for (QObject *child : children())
            child->installEventFilter(this);
    }
    bool waits() const { return m_waits; }
    void comeIntoView()
    {
        m_waits = false;
        for (QObject *child : children())
            child->removeEventFilter(this);
        show();
    }
    void setVisible(bool visible) override
    {
        if (!visible || !m_waits)
            oVIXDragTag::setVisible(visible);
    }

protected:
    bool event(QEvent *event) override { return isTooEarly(event) || oVIXDragTag::event(event); }
    void paintEvent(QPaintEvent *event) override
    {
        oVIXDragTag::paintEvent(event);
        const auto *list = qobject_cast<const QListWidget *>(parentWidget()->parentWidget());
        if (list && list->itemWidget(list->currentItem()) == this)
            paintFocusRing(this, list, QRect(chipInTag, rect().bottomRight()), chipRadius);
    }
    bool eventFilter(QObject *child, QEvent *event) override
    {
        return isTooEarly(event) || oVIXDragTag::eventFilter(child, event);
    }

private:
    bool isTooEarly(const QEvent *event) const { return m_waits && event->type() == QEvent::PolishRequest; }

    bool m_waits = false;
};

/// Leaves the text of a row to its tag, which does not cover all of it.
class RowWithoutText : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text.clear();
    }
};

} // namespace

oVIXDragDropListWidget::oVIXDragDropListWidget(QWidget *parent)
    : QListWidget(parent), m_deferred(new DeferredRows(this))
{
    AccessibleTags::install();
    setSelectionMode(NoSelection);
    setAcceptDrops(true);
    setItemDelegate(new RowWithoutText(this));
    verticalScrollBar()->setStyleSheet(TagSheets::dropListScrollBar());

    connect(this, &QListWidget::currentItemChanged, viewport(), qOverload<>(&QWidget::update)); // the ring

    const auto forgetOrder = [this] { m_knownSorted = false; };
    connect(model(), &QAbstractItemModel::rowsMoved, this, forgetOrder);
    connect(model(), &QAbstractItemModel::layoutChanged, this, forgetOrder);
    connect(model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_addItem = nullptr;
        m_knownSorted = false;
    });
}

oVIXDragDropListWidget::~oVIXDragDropListWidget()
{
    // The model ends after this class, and tells that its rows go.
    disconnect(model(), nullptr, this, nullptr);
}

QListWidgetItem *oVIXDragDropListWidget::addCustomItem(const QString &text, DRAG_BUTTON button, bool sorted)
{
    auto *item = new QListWidgetItem(text);
    item->setSizeHint(QSize(0, rowHeight));
    if (button == BUTTON_ADD) {
        item->setFlags(item->flags() & ~Qt::ItemIsSelectable);
        m_addItem = item;
    }
    const QScopedValueRollback addsItself(m_addsItself, true);
    insert(item, sorted);

    auto *tag = new RowTag(text, m_tagColor, m_tagTextColor, button, m_showAllButtons, viewport());
    DeferredRows::park(tag);
    if (button != BUTTON_ADD && isBelowView(row(item))) {
        tag->wait();
        m_tagsWait = true;
    }
    setItemWidget(item, tag);
    connect(tag, &oVIXDragTag::tagClicked, this, &oVIXDragDropListWidget::fnWantsAction);
    connect(tag, &oVIXDragTag::doubleClick, this, &oVIXDragDropListWidget::fnWantsMove);
    connect(tag, &oVIXDragTag::tagAdd, this, &oVIXDragDropListWidget::fnAdd);
    connect(tag, &oVIXDragTag::startDrag, this, &oVIXDragDropListWidget::dragTriggered);
    return item;
}

void oVIXDragDropListWidget::setEnabledItems(const QList<QString> &names)
{
    const QSet<QString> enabled(names.cbegin(), names.cend());
    for (int row = 0; row < count(); ++row) {
        oVIXDragTag *tag = tagAt(row);
        if (tag && !tag->isAdd())
            tag->setEnabled(enabled.contains(tag->text()));
    }
}

void oVIXDragDropListWidget::enableAddButton(bool enable)
{
    if (m_addItem)
        m_addItem->setHidden(!enable);
}

void oVIXDragDropListWidget::setTagTextColor(QColor background, QColor text, int row)
{
    if (row >= 0) {
        if (oVIXDragTag *tag = tagAt(row))
            tag->setColors(background, text);
        return;
    }
    m_tagColor = background;
    m_tagTextColor = text;
    for (int i = 0; i < count(); ++i) {
        if (oVIXDragTag *tag = tagAt(i))
            tag->setColors(background, text);
    }
}

void oVIXDragDropListWidget::setShowAllButtons(bool show)
{
    m_showAllButtons = show;
}

bool oVIXDragDropListWidget::getShowAllButtons() const
{
    return m_showAllButtons;
}

void oVIXDragDropListWidget::setDropType(VelmoDropData::Type type)
{
    m_dropType = type;
}

VelmoDropData::Type oVIXDragDropListWidget::getDropType() const
{
    return m_dropType;
}

void oVIXDragDropListWidget::doItemsLayout()
{
    QListWidget::doItemsLayout();
    m_deferred->release();
}

void oVIXDragDropListWidget::dragTriggered(QMouseEvent *event)
{
    auto *tag = qobject_cast<oVIXDragTag *>(sender());
    if (!tag || !event)
        return;
    const VelmoDropData payload({{tag->text(), {}}}, m_dropType);
    auto *drag = new VelmoDrag(this);
    drag->setPixmap(dragPictureOf(tag));
    drag->setHotSpot(event->position().toPoint());
    drag->setMimeData(payload.getMimeData());
    drag->exec(Qt::CopyAction); // the drop may delete tag and list
}

void oVIXDragDropListWidget::clear()
{
    m_addItem = nullptr;
    QListWidget::clear();
}

void oVIXDragDropListWidget::fnWantsAction()
{
    if (const int row = rowOfSender(); row >= 0)
        emit wantsChange(row);
}

void oVIXDragDropListWidget::fnWantsMove()
{
    if (const int row = rowOfSender(); row >= 0)
        emit wantsMove(row);
}

void oVIXDragDropListWidget::fnAdd(QString text)
{
    emit addNewItem(text);
}

void oVIXDragDropListWidget::dragEnterEvent(QDragEnterEvent *event)
{
    acceptOwnType(event);
}

void oVIXDragDropListWidget::dragMoveEvent(QDragMoveEvent *event)
{
    acceptOwnType(event);
}

void oVIXDragDropListWidget::dropEvent(QDropEvent *event)
{
    emit dropTriggered(event);
}

void oVIXDragDropListWidget::keyPressEvent(QKeyEvent *event)
{
    oVIXDragTag *tag = tagAt(currentRow());
    const bool removes = hasKeyboardFocus(this) && event->matches(QKeySequence::Delete);
    if (!tag || !tag->isEnabled() || (!removes && !isPressKey(this, event))) {
        QListWidget::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat())
        return;
    if (!removes && !tag->isAdd())
        emit tag->doubleClick();
    else if (auto *button = tag->findChild<QClickableLabel *>(); button && removes != tag->isAdd())
        button->click();
}

void oVIXDragDropListWidget::hideEvent(QHideEvent *event)
{
    m_deferred->release();
    QListWidget::hideEvent(event);
}

void oVIXDragDropListWidget::scrollContentsBy(int dx, int dy)
{
    QListWidget::scrollContentsBy(dx, dy);
    showTagsInView();
}

void oVIXDragDropListWidget::rowsInserted(const QModelIndex &parent, int first, int last)
{
    if (!m_addsItself)
        m_knownSorted = false;
    const auto inserting = m_deferred->inserting();
    QListWidget::rowsInserted(parent, first, last);
}

void oVIXDragDropListWidget::rowsAboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    const int addRow = m_addItem ? row(m_addItem) : -1;
    if (addRow >= first && addRow <= last) {
        m_addItem = nullptr;
        m_knownSorted = false; // what has stood behind it counts from now on
    }
    if (m_knownSorted && first < m_sortedTexts.size())
        m_sortedTexts.remove(first, std::min(last + 1, int(m_sortedTexts.size())) - first);
    QListWidget::rowsAboutToBeRemoved(parent, first, last);
}

void oVIXDragDropListWidget::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                         const QList<int> &roles)
{
    // A row that gets its tag counts as changed, too.
    const bool mayRename = roles.isEmpty() || roles.contains(Qt::DisplayRole) || roles.contains(Qt::EditRole);
    if (mayRename && !m_addsItself)
        m_knownSorted = false;
    QListWidget::dataChanged(topLeft, bottomRight, roles);
}

void oVIXDragDropListWidget::updateEditorGeometries()
{
    if (m_deferred->isInserting())
        return;
    QListWidget::updateEditorGeometries();
    showTagsInView();
}

oVIXDragTag *oVIXDragDropListWidget::tagAt(int row) const
{
    return qobject_cast<oVIXDragTag *>(itemWidget(item(row)));
}

/// Without the layout, which is put off while rows are added: a row that is taken for one below the view is shown by
/// the layout.
bool oVIXDragDropListWidget::isBelowView(int row) const
{
    return isVisible() && row - verticalScrollBar()->value() > viewport()->height() / rowHeight;
}

void oVIXDragDropListWidget::showTagsInView()
{
    if (!std::exchange(m_tagsWait, false))
        return;
    for (int row = 0; row < count(); ++row) {
        auto *tag = dynamic_cast<RowTag *>(itemWidget(item(row)));
        if (!tag || !tag->waits())
            continue;
        if (visualItemRect(item(row)).intersects(viewport()->rect()))
            tag->comeIntoView();
        else
            m_tagsWait = true;
    }
}

int oVIXDragDropListWidget::rowOfSender() const
{
    const QObject *tag = sender();
    for (int row = 0; tag && row < count(); ++row) {
        if (itemWidget(item(row)) == tag)
            return row;
    }
    return -1;
}

int oVIXDragDropListWidget::placeFor(const QString &text)
{
    if (!m_knownSorted) {
        const int addRow = m_addItem ? row(m_addItem) : -1;
        const int tags = addRow < 0 ? count() : addRow;
        m_sortedTexts.clear();
        for (int row = 0; row < tags; ++row)
            m_sortedTexts.append(item(row)->text());
        m_knownSorted = SortedPlace::isSorted(m_sortedTexts);
    }
    return m_knownSorted ? SortedPlace::amongSorted(m_sortedTexts, text) : SortedPlace::amongAny(m_sortedTexts, text);
}

void oVIXDragDropListWidget::acceptOwnType(QDragMoveEvent *event)
{
    if (event->source() == this || m_dropType < 0)
        return;
    if (VelmoDropData(event->mimeData()).getType() != m_dropType)
        return;
    event->setDropAction(event->proposedAction());
    event->accept();
}

void oVIXDragDropListWidget::insert(QListWidgetItem *item, bool sorted)
{
    const bool placed = sorted && item != m_addItem;
    const int row = placed ? placeFor(item->text()) : count();
    const bool staysSorted = m_knownSorted && placed && !isSortingEnabled();
    if (staysSorted)
        m_sortedTexts.insert(row, item->text());
    insertItem(row, item);
    m_knownSorted = staysSorted;
}
