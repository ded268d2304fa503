#pragma once

#include "VelmoGuiExport.h"

#include <QString>
#include <QWidget>

#include <memory>

class QListWidgetItem;

namespace Ui {
class VelmoProjectItem;
}

/// One row of the project list: a project's file name and when it was last modified.
///
/// The row is 22 logical pixels high. It is drawn in the accent while it is selected, lighter under the pointer, and
/// grey while disabled. Texts are shown as plain text on one line and give way at the right; the name's tool tip is the
/// whole path. Owned by the list that shows it; the list item is not owned.
class VELMO_GUI_EXPORT VelmoProjectItem : public QWidget
{
    Q_OBJECT

public:
    /// @p item is the list item that hosts the row; it may be null. A row whose item has gone may only be deleted.
    explicit VelmoProjectItem(QListWidgetItem *item, QWidget *parent = nullptr);
    ~VelmoProjectItem() override;

    /// Fills the row. A relative @p path is taken from the current folder of this moment; the file need not exist.
    /// @p lastModified is shown as given.
    void set(const QString &path, const QString &lastModified);
    /// The path as given.
    QString getPath() const;

    /// The list item that was given.
    QListWidgetItem *getItem() const;

    /// Mirrors the list's selection. Emits nothing.
    void setSelected(bool selected);
    /// Off at first.
    bool isSelected() const;

    /// Fixes the width of the last-modified column, in logical pixels.
    void setWidths(int lastModified);

    /// Colours the row by its state. Every change of the state does so.
    void updateStyle();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unique_ptr<Ui::VelmoProjectItem> m_ui;
    QListWidgetItem *m_item;
    QString m_path;
    bool m_selected = false;
    bool m_hovered = false;
};
