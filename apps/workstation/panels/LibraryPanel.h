#pragma once

#include "panels/LibraryEntry.h"

#include <oVIXDock.h>

#include <QModelIndex>

class QListView;
class QSortFilterProxyModel;
class QStandardItemModel;
class QStringListModel;

/// The kinds of people and vehicles of the open scene, with pictures. The header's search filters them.
class LibraryPanel : public oVIXDock
{
    Q_OBJECT

public:
    explicit LibraryPanel(QMainWindow *window);

    void setScene(const Scene &scene);
    /// Edge of the pictures: 0 for names only. Any other number is one of the header's sizes.
    void showThumbnails(int size);
    /// Selects a kind; none when it is not listed.
    void selectType(const QString &type);

signals:
    /// Another kind has been selected; empty for none.
    void typeSelected(const QString &type);

private:
    void fill();
    QString selectedType() const;
    /// Invalid for an empty type and for one that is not listed.
    QModelIndex indexOf(const QString &type) const;

    QList<LibraryEntry> m_entries;
    QStandardItemModel *m_model;
    QSortFilterProxyModel *m_found;
    QStringListModel *m_names;
    QListView *m_list;
};
