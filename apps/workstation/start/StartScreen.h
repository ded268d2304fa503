#pragma once

#include "scenes/ProjectFolder.h"
#include "scenes/SceneReader.h"

#include <QWidget>

class ElidedLabel;
class QLabel;
class QStackedWidget;
class ScenesPanel;
class StatusLine;
class VelmoProjectsTable;

/// What the application opens with: the projects of a folder, and the scenes of the selected one.
///
/// Scene files are read in the background while it stays usable. Scenes are renamed, made, cloned and deleted on disk
/// at once; why one of that cannot be done is told in a box.
class StartScreen : public QWidget
{
    Q_OBJECT

public:
    /// @p folder may be missing: the screen says so and stays usable.
    explicit StartScreen(const QString &folder, QWidget *parent = nullptr);

    QList<ProjectFolder> projects() const;
    /// Shows the scenes of the project in this row of the list.
    void selectProject(int row);
    bool isReading() const;
    /// Reads the selected project's scenes anew; the same scene is selected again.
    void refresh();

    QSize minimumSizeHint() const override;

    /// Whether a scene is selected.
    bool canOpen() const;
    /// Asks for the selected scene to be opened.
    void openSelectedScene();
    /// Whether there is a project for a new scene.
    bool canAdd() const;
    /// Makes a scene in the selected project and selects it. Nothing without a project.
    void addScene();
    /// Asks in a box for another name of the selected scene. Nothing without one, as for the next two.
    void renameSelectedScene();
    void cloneSelectedScene();
    /// Moves the selected scene to the trash, if the user agrees. Where there is no trash, it goes for good if the user
    /// agrees to that too.
    void deleteSelectedScene();
    /// Says what has gone wrong.
    void showProblem(const QString &text);

signals:
    void openRequested(const QString &path);
    /// Another scene, or none, is selected.
    void selectionChanged();
    /// The scenes of the selected project have all been read.
    void projectRead();

private:
    QWidget *createProjectsPanel();
    QWidget *createScenesPanel();
    void listProjects(const QString &folder);
    void openSelectedProject();
    void readScenes();
    void showScene(const SceneFacts &facts);
    void finishReading();
    void renameScene(const QString &oldName, const QString &newName);
    void showAdded(const ProjectFolder::Change &change, const QString &problemTitle);
    /// Tells it from the event loop: whoever has asked for the change is still at work. What has vanished goes from the
    /// list.
    void reportFailure(const QString &title, const ProjectFolder::Change &change);
    void showProjectChanged();
    SceneFile selectedScene() const;
    /// The name of the scene to select when this one is gone: the next that can be selected, else the one before.
    QString neighbourOf(const SceneFile &scene) const;
    void updateSelection();
    QString summary() const;

    QList<ProjectFolder> m_projects;
    ProjectFolder m_project;
    QList<SceneFacts> m_scenes;
    /// What to select and to say once everything has been read; empty for the first scene and the summary.
    QString m_sceneWhenRead;
    QString m_noteWhenRead;
    SceneReader *m_reader;

    VelmoProjectsTable *m_projectsTable = nullptr;
    QStackedWidget *m_scenesStack = nullptr;
    QLabel *m_emptyNote = nullptr;
    ElidedLabel *m_scenesTitle = nullptr;
    ScenesPanel *m_scenesPanel = nullptr;
    StatusLine *m_status;
};
