#pragma once

#include "scenes/SceneSaving.h"

#include <QObject>
#include <QTimer>

class ScenePage;
class oVIXMainWindow;

/// Saves the open scene, and sees to it that nobody loses what has been edited. What it cannot do it tells in a box.
/// The window may be gone after each of its operations, and the answer is no then.
class SceneKeeper : public QObject
{
    Q_OBJECT

public:
    /// @p window, whose child it is, waits while a scene is being saved. Both have to live as long.
    SceneKeeper(ScenePage *page, oVIXMainWindow *window);

    /// Whether the scene is saved now. A file that somebody else has changed is replaced only if the user agrees.
    bool save();
    /// Whether the scene may be left. The user is asked about what is not saved and about a bake that runs; nothing
    /// runs any more when the answer is yes. No while another question is open.
    bool mayLeave();

signals:
    void saved();

private:
    bool ask();
    bool saveNow();
    SceneSaving::Outcome write(SceneSaving::ChangedFile changed);

    ScenePage *m_page;
    oVIXMainWindow *m_window;
    bool m_isBusy = false;
};
