#pragma once

#include <QObject>

class LibraryPanel;
class ParametersPanel;
class QStackedWidget;
class SceneKeeper;
class ScenePage;
class TagsPanel;
class oVIXDock;
class oVIXMainWindow;
struct Scene;

/// What a scene is edited with: its page, the tool panels beside it, and who saves it. It takes longer to make than the
/// rest of the window.
class SceneEditor : public QObject
{
    Q_OBJECT

public:
    /// Adds the page to @p pages and the panels to @p window, whose child it is. None of them is shown.
    SceneEditor(oVIXMainWindow *window, QStackedWidget *pages);

    ScenePage *page() const;
    SceneKeeper *keeper() const;
    LibraryPanel *library() const;
    ParametersPanel *parameters() const;
    TagsPanel *tags() const;
    QList<oVIXDock *> panels() const;

    void setScene(const Scene &scene);
    /// What is being typed counts as entered.
    void finishEdits();

private:
    void connectPanels();

    ScenePage *m_page;
    SceneKeeper *m_keeper;
    LibraryPanel *m_library;
    ParametersPanel *m_parameters;
    TagsPanel *m_tags;
};
