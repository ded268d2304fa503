#pragma once

#include "VelmoGuiExport.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

class QListWidgetItem;
class SceneNameIndex;
class VelmoSceneItem;

namespace Ui {
class VelmoScenesTable;
}

/// The list of a project's scenes: column titles above rows with a toggle, the scene's name and its facts.
///
/// Rows of scenes that are not compatible are shown disabled and cannot be selected. With editing enabled, a selected
/// row's name can be edited in place and a last row holds an add button. The table only asks: the application renames
/// and makes files, then calls `renameScene` and `addScene`.
///
/// Names are found whatever their case; of several rows with one name the first counts. Row numbers count the scenes
/// in the order added, from 0. A row that has just been added gets its place at the next turn of the event loop.
/// Assistive tools see a list of the scenes, with the add button at its end; pressing one selects it, toggling chooses
/// it.
class VELMO_GUI_EXPORT VelmoScenesTable : public QWidget
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool editingEnabled MEMBER m_editingEnabled WRITE setEditingEnabled)
    Q_PROPERTY(bool multiSelectionEnabled READ isMultiSelectionEnabled WRITE setMultiSelectionEnabled)

public:
    /// A list without scenes.
    explicit VelmoScenesTable(QWidget *parent = nullptr);
    ~VelmoScenesTable() override;

    /// Appends a scene. The texts are shown as they are. @p versionWarning shows the warning icon; a scene that is not
    /// @p compatible cannot be selected.
    void addScene(const QString &name, bool versionWarning, const QString &lastModified, const QString &bakeStatus,
                  const QString &actorCount, const QString &vehicleCount, const QString &timeFramerate,
                  const QString &version, bool compatible);
    /// Removes all scenes without emitting `selectionChanged`. May be called from any signal of this table.
    void clearScenes();
    /// Shows a scene under another name. An unknown name does nothing.
    void renameScene(const QString &oldName, const QString &newName);
    /// Whether there is a scene of this name.
    bool hasScene(const QString &name) const;
    /// How many scenes there are; the add button does not count.
    int getSceneCount() const;

    /// Turns the scene's toggle on or off. Emits nothing; an unknown name does nothing.
    void setSceneEnabled(const QString &name, bool enabled);
    /// False for an unknown name.
    bool isSceneEnabled(const QString &name) const;
    /// Names of the scenes whose toggle is on, in the order added.
    QStringList getEnabledScenes() const;

    /// The selected scene's name, or an empty text.
    QString getSelectedScene() const;
    /// Selects the scene and scrolls it to the middle. An unknown name gives the default selection.
    void setSelectedScene(const QString &name);
    /// The selected row, or -1.
    int getSelectedRow() const;
    /// Selects the row, or the last one when there are fewer, and scrolls it to the middle. A negative row only clears
    /// the selection.
    void setSelectedRow(int row);
    /// Selects the first scene whose toggle is on, else the first scene.
    void setDefaultSelection();
    /// Leaves nothing selected.
    void clearSelection();

    /// Whether names can be edited and scenes added (default yes).
    void setEditingEnabled(bool enabled);
    /// Whether rows have toggles (default yes).
    void setMultiSelectionEnabled(bool enabled);
    /// See `setMultiSelectionEnabled`.
    bool isMultiSelectionEnabled() const;

    /// Closes an open name edit and drops what has been typed.
    void finishEditing();

    using QWidget::resize;

signals:
    /// Another scene is selected, or none. A receiver that is done with the table deletes it later: the list is still
    /// at work.
    void selectionChanged();
    /// The add button has been clicked.
    void newScenePressed();
    /// The user has typed another name for a scene.
    void renameRequested(QString oldName, QString newName);

private slots:
    void listSelectionChanged();

protected:
    /// Gives every row the widths of the column titles.
    void resize();
    void resizeEvent(QResizeEvent *event) override;

private:
    VelmoSceneItem *findRow(const QString &name) const;
    void resizeItem(VelmoSceneItem *row) const;
    void removeNewSceneItem();
    void fixNewSceneItem();
    void addNewSceneItem();
    void updateNameOf(QListWidgetItem *item);

    std::unique_ptr<Ui::VelmoScenesTable> m_ui;
    std::unique_ptr<SceneNameIndex> m_names;
    QList<VelmoSceneItem *> m_rows;
    QListWidgetItem *m_newSceneItem = nullptr;
    bool m_editingEnabled = true;
    bool m_multiSelectionEnabled = true;
};
