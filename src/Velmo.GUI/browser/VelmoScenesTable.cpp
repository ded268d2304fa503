#include "browser/VelmoScenesTable.h"

#include "browser/SceneNameIndex.h"
#include "browser/VelmoSceneItem.h"
#include "foundation/OvixSvgButton.h"
#include "ui_VelmoScenesTable.h"

#include <QSignalBlocker>

#include <algorithm>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int newSceneButtonSize = 16;

// clang-format off
QString tableSheet()
{
    return u"QLabel {\tcolor:rgb(219,219,219);\tbackground-color:transparent;}"
            "#backgroundWidget {\tborder-radius:4px;\tbackground-color:rgb(59,59,59);}"
            "QListWidget {\tbackground-color:transparent;}"
            "QListWidget::item {\tselection-background-color:transparent;}"_s;
}
// clang-format on

} // namespace

VelmoScenesTable::VelmoScenesTable(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::VelmoScenesTable), m_names(new SceneNameIndex)
{
    setStyleSheet(tableSheet()); // before there are children, which it would style anew
    m_ui->setupUi(this);
    connect(m_ui->listWidget, &QListWidget::itemSelectionChanged, this, &VelmoScenesTable::listSelectionChanged);
    connect(m_ui->listWidget, &QListWidget::itemChanged, this, &VelmoScenesTable::updateNameOf);
}

VelmoScenesTable::~VelmoScenesTable() = default;

void VelmoScenesTable::addScene(const QString &name, bool versionWarning, const QString &lastModified,
                                const QString &bakeStatus, const QString &actorCount, const QString &vehicleCount,
                                const QString &timeFramerate, const QString &version, bool compatible)
{
    auto *item = new QListWidgetItem;
    if (!compatible)
        item->setFlags(item->flags() & ~Qt::ItemIsSelectable);
    m_ui->listWidget->addItem(item);

    auto *row = new VelmoSceneItem(item, m_ui->listWidget->viewport());
    row->setEnabled(compatible);
    row->set(name, versionWarning, lastModified, bakeStatus, actorCount, vehicleCount, timeFramerate, version);
    row->setAddVisible(m_multiSelectionEnabled);
    row->setEditingEnabled(m_editingEnabled);
    row->setToolTip(compatible ? QString() : tr("Scene not compatible for merge tooltip."));
    connect(row, &VelmoSceneItem::renameRequested, this, &VelmoScenesTable::renameRequested);

    m_ui->listWidget->addRow(item, row);
    m_rows.append(row);
    m_names->append(name);
    resizeItem(row);
    fixNewSceneItem();
}

void VelmoScenesTable::clearScenes()
{
    disconnect(m_ui->listWidget, &QListWidget::itemSelectionChanged, this, &VelmoScenesTable::listSelectionChanged);
    // A row may be the sender of the signal that has led here.
    for (VelmoSceneItem *row : std::as_const(m_rows)) {
        disconnect(row, nullptr, this, nullptr);
        row->m_item = nullptr;
        row->deleteLater();
    }
    m_rows.clear();
    m_names->clear();
    removeNewSceneItem();
    m_ui->listWidget->clear();
    fixNewSceneItem();
    connect(m_ui->listWidget, &QListWidget::itemSelectionChanged, this, &VelmoScenesTable::listSelectionChanged);
}

void VelmoScenesTable::renameScene(const QString &oldName, const QString &newName)
{
    if (VelmoSceneItem *row = findRow(oldName))
        row->setName(newName);
}

bool VelmoScenesTable::hasScene(const QString &name) const
{
    return findRow(name) != nullptr;
}

int VelmoScenesTable::getSceneCount() const
{
    return int(m_rows.size());
}

void VelmoScenesTable::setSceneEnabled(const QString &name, bool enabled)
{
    if (VelmoSceneItem *row = findRow(name))
        row->setAddEnabled(enabled);
}

bool VelmoScenesTable::isSceneEnabled(const QString &name) const
{
    const VelmoSceneItem *row = findRow(name);
    return row && row->isAddEnabled();
}

QStringList VelmoScenesTable::getEnabledScenes() const
{
    QStringList names;
    for (const VelmoSceneItem *row : m_rows) {
        if (row->isAddEnabled())
            names << row->getName();
    }
    return names;
}

QString VelmoScenesTable::getSelectedScene() const
{
    const int row = getSelectedRow();
    return row < 0 ? QString() : m_rows[row]->getName();
}

void VelmoScenesTable::setSelectedScene(const QString &name)
{
    clearSelection();
    if (VelmoSceneItem *row = findRow(name))
        m_ui->listWidget->select(row->getItem());
    else
        setDefaultSelection();
}

int VelmoScenesTable::getSelectedRow() const
{
    return m_ui->listWidget->selectedRow(m_rows.size());
}

void VelmoScenesTable::setSelectedRow(int row)
{
    clearSelection();
    const int existing = std::min(row, getSceneCount() - 1);
    if (existing >= 0)
        m_ui->listWidget->select(m_rows[existing]->getItem());
}

void VelmoScenesTable::setDefaultSelection()
{
    clearSelection();
    if (m_rows.isEmpty())
        return;
    const auto chosen = std::find_if(m_rows.cbegin(), m_rows.cend(), std::mem_fn(&VelmoSceneItem::isAddEnabled));
    const VelmoSceneItem *row = chosen == m_rows.cend() ? m_rows.constFirst() : *chosen;
    m_ui->listWidget->select(row->getItem());
}

void VelmoScenesTable::clearSelection()
{
    m_ui->listWidget->clearSelection();
}

void VelmoScenesTable::setEditingEnabled(bool enabled)
{
    m_editingEnabled = enabled;
    for (VelmoSceneItem *row : std::as_const(m_rows))
        row->setEditingEnabled(enabled);
    fixNewSceneItem();
}

void VelmoScenesTable::setMultiSelectionEnabled(bool enabled)
{
    m_multiSelectionEnabled = enabled;
    m_ui->addLabel->setVisible(enabled);
    for (VelmoSceneItem *row : std::as_const(m_rows))
        row->setAddVisible(enabled);
}

bool VelmoScenesTable::isMultiSelectionEnabled() const
{
    return m_multiSelectionEnabled;
}

void VelmoScenesTable::finishEditing()
{
    const QList<VelmoSceneItem *> rows = m_rows; // the application may answer the loss of focus
    for (VelmoSceneItem *row : rows) {
        disconnect(row, &VelmoSceneItem::renameRequested, this, &VelmoScenesTable::renameRequested);
        row->finishEditing();
        connect(row, &VelmoSceneItem::renameRequested, this, &VelmoScenesTable::renameRequested);
    }
}

void VelmoScenesTable::listSelectionChanged()
{
    m_ui->listWidget->showSelectionIn(m_rows);
    emit selectionChanged();
}

void VelmoScenesTable::resize()
{
    for (VelmoSceneItem *row : std::as_const(m_rows))
        resizeItem(row);
}

void VelmoScenesTable::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    resize();
}

VelmoSceneItem *VelmoScenesTable::findRow(const QString &name) const
{
    const int row = m_names->find(name);
    return row < 0 ? nullptr : m_rows[row];
}

void VelmoScenesTable::resizeItem(VelmoSceneItem *row) const
{
    row->setWidths(m_ui->statusLabel->width(), m_ui->lastModifiedLabel->width(), m_ui->bakeLabel->width(),
                   m_ui->actorsLabel->width(), m_ui->timeFramerateLabel->width(), m_ui->versionLabel->width());
}

/// The list deletes the button later: its own click may have led here.
void VelmoScenesTable::removeNewSceneItem()
{
    delete std::exchange(m_newSceneItem, nullptr);
}

/// The list selects another row when the add button's was its current one; the application hears of it when the rows
/// are whole again.
void VelmoScenesTable::fixNewSceneItem()
{
    const QList<QListWidgetItem *> selectedBefore = m_ui->listWidget->selectedItems();
    {
        const QSignalBlocker blocker(m_ui->listWidget);
        removeNewSceneItem();
        if (m_editingEnabled)
            addNewSceneItem();
    }
    if (m_ui->listWidget->selectedItems() != selectedBefore)
        listSelectionChanged();
}

void VelmoScenesTable::addNewSceneItem()
{
    m_newSceneItem = new QListWidgetItem;
    m_newSceneItem->setFlags(Qt::NoItemFlags); // a press on it must not take the selection away
    m_newSceneItem->setData(Qt::AccessibleTextRole, tr("New scene"));
    m_ui->listWidget->addItem(m_newSceneItem);

    auto *button = new OvixSvgButton(m_ui->listWidget->viewport());
    button->setFixedSize(newSceneButtonSize, newSceneButtonSize);
    button->setFilename(u":/Windows/AddButton"_s);
    button->setFilenameInverted(u":/Windows/AddButtonChecked"_s);
    button->setInvertOnHover(true);
    button->setAccessibleName(tr("New scene"));
    connect(button, &OvixSvgButton::clicked, this, &VelmoScenesTable::newScenePressed);
    m_newSceneItem->setSizeHint(QSize(0, button->height()));
    m_ui->listWidget->setRowWidget(m_newSceneItem, button);
}

/// The scene rows are the list's first rows.
void VelmoScenesTable::updateNameOf(QListWidgetItem *item)
{
    const int row = m_ui->listWidget->row(item);
    if (row >= 0 && row < m_rows.size())
        m_names->rename(row, m_rows[row]->getName());
}
