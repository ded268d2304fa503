#pragma once

#include "VelmoGuiExport.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class VelmoProjectItem;

namespace Ui {
class VelmoProjectsTable;
}

/// The list of the user's projects: column titles above rows with a project's file name and when it was last modified.
///
/// One project can be selected. Paths are found whatever their case; of several rows with one path the first counts.
/// A row that has just been added gets its place at the next turn of the event loop. Assistive tools see a list of the
/// projects; pressing one selects it.
class VELMO_GUI_EXPORT VelmoProjectsTable : public QWidget
{
    Q_OBJECT

public:
    /// A list without projects.
    explicit VelmoProjectsTable(QWidget *parent = nullptr);
    ~VelmoProjectsTable() override;

    /// Appends a project. A relative @p path is taken from the current folder of this moment; the file need not exist.
    /// @p lastModified is shown as given.
    void addProject(const QString &path, const QString &lastModified);
    /// How many projects have been added.
    int getProjectCount() const;

    /// The selected project's path as it was given, or an empty text.
    QString getSelectedProject() const;
    /// Selects the project and scrolls it to the middle. An unknown path leaves nothing selected.
    void setSelectedProject(const QString &path);
    /// Selects the first project, if there is one, and scrolls it to the middle.
    void setDefaultSelection();
    /// Leaves nothing selected.
    void clearSelection();

    using QWidget::resize;

signals:
    /// Another project is selected, or none. A receiver that is done with the table deletes it later: the list is still
    /// at work.
    void selectionChanged();

private slots:
    void listSelectionChanged();

protected:
    /// Gives every row the widths of the column titles.
    void resize();
    void resizeEvent(QResizeEvent *event) override;

private:
    void resizeItem(VelmoProjectItem *row) const;

    std::unique_ptr<Ui::VelmoProjectsTable> m_ui;
    QList<VelmoProjectItem *> m_rows;
};
