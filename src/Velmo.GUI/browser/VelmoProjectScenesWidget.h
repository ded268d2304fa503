#pragma once

#include "VelmoGuiExport.h"

#include <QString>
#include <QWidget>

#include <memory>

class QDateTime;
class QPixmap;
class VelmoSceneMetadataParser;

namespace Ui {
class VelmoProjectScenesWidget;
}

/// One project's panel of the start screen: buttons to clone and delete a scene, a bar to open one or to cancel, a
/// preview picture, and the list of scenes.
///
/// The application fills the list with the project's scene files and answers the signals: the panel itself opens,
/// clones, deletes, renames and makes nothing. Names are found whatever their case. The bar's OK half is grey and
/// deaf until the application enables it, usually while a scene is selected.
///
/// The preview is 726 logical pixels wide, and as high as the panel allows, up to 408: a picture in 16:9 shows whole
/// from a panel height of about 780 on, others show their middle.
///
/// The five signals about scenes are virtual: a subclass that overrides one takes its place, and emits it by calling
/// the panel's. A receiver may clear or fill the list from any signal.
class VELMO_GUI_EXPORT VelmoProjectScenesWidget : public QWidget
{
    Q_OBJECT

public:
    /// A panel without scenes and without a preview.
    explicit VelmoProjectScenesWidget(QWidget *parent = nullptr);
    ~VelmoProjectScenesWidget() override;

    /// Reads the scene file at @p path and appends it under its file name, as compatible. A file that cannot be read
    /// gets a row too, with the facts of `VelmoSceneMetadataParser::withDefaults`; one that cannot be opened is
    /// reported in a message box before. Blocks while the file is read.
    void addScene(const QString &path);
    /// Appends a scene whose file has been read. It is flagged when a release newer than the running one has saved it.
    /// One that is not @p compatible cannot be selected.
    void addScene(const QString &name, const VelmoSceneMetadataParser &metadata, const QDateTime &lastModified,
                  bool compatible);
    /// Reads when the file was modified, and its facts over those that @p metadata has. Of a file that is missing the
    /// time is invalid.
    void parseScene(const QString &path, VelmoSceneMetadataParser &metadata, QDateTime &lastModified);

    /// Removes all scenes without emitting `sceneSelectionChanged`.
    void clearScenes();
    /// Shows a scene under another name. An unknown name does nothing.
    void renameScene(const QString &oldName, const QString &newName);
    /// How many scenes there are.
    int getSceneCount() const;

    /// Turns the scene's toggle on or off. Emits nothing; an unknown name does nothing.
    void setSceneEnabled(const QString &name, bool enabled);
    /// Whether the scene's toggle is on; false for an unknown name.
    bool isSceneEnabled(const QString &name) const;

    /// Selects the scene, or with an unknown name what `setDefaultSelection` does.
    void setSceneSelected(const QString &name);
    /// Whether the selected scene has this name; with an empty one, whether none is selected.
    bool isSceneSelected(const QString &name) const;
    /// The selected scene's name, or an empty text.
    QString getSelectedScene() const;
    /// The selected row in the order added, or -1.
    int getSelectedRow() const;
    /// Selects the row, or the last one when there are fewer. A negative row only clears the selection.
    void setSelectedRow(int row);
    /// Selects the first scene whose toggle is on, else the first scene.
    void setDefaultSelection();

    /// Whether scenes can be cloned, deleted, renamed and made (default yes): shows or hides the two buttons and the
    /// list's add button.
    void setEditingEnabled(bool enabled);
    /// Closes an open name edit and drops what has been typed.
    void finishEditing();

    /// Whether the clone and the delete button answer (default yes).
    void setSceneButtonsEnabled(bool enabled);
    /// The OK half's text, "OPEN" at first.
    void setYesNoButtonText(const QString &text);
    /// Whether the OK half answers and is coloured (default no).
    void setYesNoButtonEnabled(bool enabled);

signals:
    /// The OK half has been pressed.
    void accept();
    /// The cancel half has been pressed.
    void reject();
    /// Another scene is selected, or none. A receiver that is done with the panel deletes it later.
    virtual void sceneSelectionChanged();
    /// The delete button has been clicked.
    virtual void deleteScenePressed();
    /// The clone button has been clicked.
    virtual void cloneScenePressed();
    /// The add button at the end of the list has been clicked.
    virtual void newScenePressed();
    /// The user has typed another name for a scene. The list keeps the old one until `renameScene`.
    virtual void renameTriggered(QString oldName, QString newName);

protected:
    /// Shows a picture of the selected scene, scaled to the preview's width for the panel's screen. A null picture, and
    /// one that would get a side of no pixel or of more than 32,767, changes nothing.
    void setPreview(const QPixmap &picture);
    /// Says that there is no preview.
    void clearPreview();

private:
    std::unique_ptr<Ui::VelmoProjectScenesWidget> m_ui;
};
