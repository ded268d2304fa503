#include "panels/LibraryPanel.h"

#include "look/Sheets.h"

#include <QMultiCompleterLineEdit.h>
#include <oVIXDockBar.h>

#include <QListView>
#include <QMainWindow>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringListModel>

using namespace Qt::StringLiterals;

namespace {

constexpr int entryTypeRole = Qt::UserRole;
constexpr int textHeight = 24;

} // namespace

LibraryPanel::LibraryPanel(QMainWindow *window)
    : oVIXDock(window, u"library"_s, false, true, false, window), m_model(new QStandardItemModel(this)),
      m_found(new QSortFilterProxyModel(this)), m_names(new QStringListModel(this)), m_list(new QListView)
{
    setTitle(tr("Library"), tr("Kinds"), u"Inter"_s, 11);
    setSuggestionModel(m_names);
    setSearchEnabled(true);
    getTitleWidget()->getSearchLabel()->setPlaceholderText(tr("Search the library")); // it stands for the title

    m_found->setSourceModel(m_model);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_list->setModel(m_found);
    m_list->setAccessibleName(tr("Library"));
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setUniformItemSizes(true);
    m_list->setStyleSheet(Sheets::library());
    m_list->verticalScrollBar()->setStyleSheet(Sheets::scrollBar());
    setWidget(m_list);

    connect(this, &oVIXDock::s_search, m_found, &QSortFilterProxyModel::setFilterFixedString);
    connect(this, &oVIXDock::thumbClicked, this, &LibraryPanel::showThumbnails);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { emit typeSelected(selectedType()); });
    showThumbnails(getThumbnailSize());
}

void LibraryPanel::setScene(const Scene &scene)
{
    m_entries = LibraryEntry::of(scene);
    QStringList names;
    for (const LibraryEntry &entry : std::as_const(m_entries))
        names << entry.type;
    names.removeAll(QString());
    names.removeDuplicates();
    m_names->setStringList(names);
    fill();
}

void LibraryPanel::showThumbnails(int size)
{
    setThumbnailSize(size);
    m_list->setViewMode(size > 0 ? QListView::IconMode : QListView::ListMode);
    m_list->setMovement(QListView::Static); // the mode has its own
    m_list->setIconSize(QSize(size, size));
    m_list->setGridSize(size > 0 ? QSize(size, size + textHeight) : QSize());
    fill();
}

void LibraryPanel::selectType(const QString &type)
{
    if (const QModelIndex index = indexOf(type); index.isValid())
        m_list->setCurrentIndex(index);
    else
        m_list->clearSelection();
}

void LibraryPanel::fill()
{
    const QString selected = selectedType();
    m_model->clear();
    const int side = getThumbnailSize();
    for (const LibraryEntry &entry : std::as_const(m_entries)) {
        const QString name = entry.type.isEmpty() ? tr("Without type") : entry.type;
        auto *item = new QStandardItem(tr("%1, %2").arg(name, QString::number(entry.count)));
        item->setData(entry.type, entryTypeRole);
        item->setTextAlignment(side > 0 ? Qt::AlignHCenter : Qt::AlignLeft);
        if (side > 0)
            item->setIcon(entry.picture(side, devicePixelRatio()));
        m_model->appendRow(item);
    }

    // The list has forgotten its selection without a word.
    if (const QModelIndex index = indexOf(selected); index.isValid())
        m_list->setCurrentIndex(index);
    else
        emit typeSelected(QString());
}

QString LibraryPanel::selectedType() const
{
    const QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? QString() : selected.first().data(entryTypeRole).toString();
}

QModelIndex LibraryPanel::indexOf(const QString &type) const
{
    if (type.isEmpty())
        return {};
    const QModelIndexList found = m_found->match(m_found->index(0, 0), entryTypeRole, type, 1, Qt::MatchExactly);
    return found.value(0);
}
