#pragma once

#include "scenes/SceneLoading.h"

#include <oVIXMainWindow.h>

#include <QTimer>

class LibraryPanel;
class Onboarding;
class ParametersPanel;
class QAction;
class QMenu;
class QSettings;
class QStackedWidget;
class SceneEditor;
class ScenePage;
class StartScreen;
class TagsPanel;
class oVIXTitleBar;

/// The application's window: frameless, with the menu bar as its title bar, the start screen, and the page of the open
/// scene with its tool panels.
class WorkstationWindow : public oVIXMainWindow
{
    Q_OBJECT

public:
    /// @p projectsFolder may be missing: the start screen says so. @p settings keep the place of the window and of its
    /// panels, and whether the tour is to be seen again; null forgets them. They have to live longer.
    explicit WorkstationWindow(const QString &projectsFolder, QSettings *settings = nullptr);
    ~WorkstationWindow() override;

    StartScreen *startScreen() const;
    /// What a scene is edited with is made when it is first needed.
    ScenePage *scenePage();
    LibraryPanel *libraryPanel();
    ParametersPanel *parametersPanel();
    TagsPanel *tagsPanel();
    bool showsScene() const;
    bool isLoading() const;

    /// Loads a scene file in the background and shows it. Only a load of more than a second shows the wait overlay.
    /// Nothing while another one is being loaded, or when the user does not want to leave the one that is open.
    void openScene(const QString &path);
    /// Saves the open scene to its file.
    void saveScene();
    /// Returns to the projects, which show what has been saved. Asks first when there is something to be lost.
    void closeScene();
    /// Opens the dialog about the open scene.
    void showSceneFacts();
    void showWelcome();
    void showAbout();
    void showFeedbackConsent();
    /// What new users are shown at the start of the application: see `Onboarding`. A window never does it by itself.
    void beginOnboarding();
    /// Shows the guided tour of what the window shows.
    void showTour();

signals:
    /// The load that `openScene` has begun is over, for good or bad.
    void loadingFinished();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void createMenus();
    void createTitleBar();
    SceneEditor *editor();
    void showPage(QWidget *page);
    /// Panels belong to the open scene: on the start screen there are none.
    void hidePanels();
    void restorePanels();
    void saveLayout();
    void restoreLayout();
    void toggleMaximized();
    void showScene(const Scene &scene);
    /// The window may be gone when the answer is no.
    bool mayLeaveScene();
    void noteProblem(const QString &problem);
    void reportProblem(const QString &problem);
    void endLoading();
    void updateActions();

    Onboarding *m_onboarding;
    QStackedWidget *m_pages = nullptr;
    StartScreen *m_startScreen = nullptr;
    /// Null until the first scene is opened.
    SceneEditor *m_editor = nullptr;
    oVIXTitleBar *m_titleBar = nullptr;
    QString m_projectsFolder;
    QMenu *m_windowMenu = nullptr;
    /// What is only there for an open scene; null before the first one.
    QMenu *m_playMenu = nullptr;
    QMenu *m_detachMenu = nullptr;
    QAction *m_openAction = nullptr;
    QAction *m_newAction = nullptr;
    /// What is done to the file of the selected scene.
    QList<QAction *> m_fileActions;
    QAction *m_saveAction = nullptr;
    QAction *m_closeSceneAction = nullptr;
    QAction *m_factsAction = nullptr;
    QAction *m_maximizeAction = nullptr;
    QSettings *m_settings;
    /// The start screen does not show yet what has been saved.
    bool m_isListStale = false;
    /// Where the panels are while a scene is open; empty for where they come up.
    QByteArray m_panelState;
    /// Lets the wait overlay show what the loading thread says.
    QTimer m_reportTimer;
    SceneLoading m_loading; // the last member: its thread reports to the overlay until it is gone
};
