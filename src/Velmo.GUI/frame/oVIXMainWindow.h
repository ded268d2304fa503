#pragma once

#include "VelmoGuiExport.h"

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <functional>

class QScreen;
class QSizeGrip;
class oVIXGrip;
class oVIXWindowBlock;
class oVIXWindowWaitGlobal;

/// Base of the application's main window: what a frameless window needs to be resized, kept busy and blocked.
///
/// It owns four corner grips, four edge grips, the busy overlay and the dimming overlay that shows while a modal dialog
/// blocks the window. It sets no window flags: the application makes it frameless and gives it a title bar
/// (`oVIXTitleBar`). An application-wide event filter while it lives. GUI thread only.
class VELMO_GUI_EXPORT oVIXMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// A window without a parent.
    oVIXMainWindow();
    /// @p screen is kept for subclasses.
    oVIXMainWindow(QWidget *parent, QScreen *screen);
    ~oVIXMainWindow() override;

    /// What subclasses do when a wait starts, and at every further start while it runs. @p delayed: the overlay shows
    /// only after its start delay. Nothing here.
    virtual void startWaitEvent(bool delayed);
    /// What subclasses do when a wait that ran has ended; the overlay is hidden by then. Nothing here.
    virtual void endWaitEvent();
    /// What subclasses do before the block overlay shows. Nothing here.
    virtual void showWindowBlockEvent();
    /// The same after it has been hidden. Nothing here.
    virtual void hideWindowBlockEvent();
    /// Side of the square corner grips in logical pixels: 5. The edge strips do not depend on it.
    virtual int gripSize() const;
    /// For windows that show the open scenes as tabs: brings these up to date. Nothing here, and nothing here calls it.
    virtual void updateSceneTabs();

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Enables or disables all eight grips.
    void setGripsEnabled(bool enabled);

    /// The dimming overlay, owned by the window.
    oVIXWindowBlock *getWindowBlock() const;
    /// The busy overlay, owned by the window; long operations report to it.
    oVIXWindowWaitGlobal *getWindowWait() const;

    /// Tries an operation that may fail while another program holds a resource, until it succeeds, @p attempts are used
    /// up, or the user holds Escape in this application. Returns the last result; false for fewer than one attempt or
    /// an empty @p attempt.
    ///
    /// The calling thread sleeps @p sleepMsecs milliseconds after every attempt, a successful one included. @p
    /// cancelled may be null; it tells whether the user has stopped the attempts.
    bool attemptMultipleTimes(int attempts, int sleepMsecs, const std::function<bool()> &attempt, bool *cancelled);

signals:
    /// The window is being closed; a receiver cannot stop that.
    void closed();

public slots:
    /// Shows the busy overlay, without text or percent. The delay of a wait that runs already stays.
    void startWait();
    /// The same with a line of text, empty at first.
    void startWaitWithText();
    /// The same with a percentage, 0 at first.
    void startWaitWithPercent();
    /// The same as `startWait`, but the overlay shows at the first report after a second.
    void startWaitDelayed();
    /// Ends the wait; nothing when none runs.
    void endWait();
    /// Dims the window, as a modal dialog does; nothing while it is dimmed. Calls `showWindowBlockEvent` before.
    void showWindowBlock();
    /// Takes the dimming away; nothing while there is none. Calls `hideWindowBlockEvent` afterwards.
    void hideWindowBlock();
    /// One step of an edge grip: moves the right and bottom edges, with @p invert the left and top ones unless that
    /// would take the size to its minimum. Nothing while the window is maximised.
    void resizeByGrip(QPoint p, bool invert);
    /// Emits `closed` and lets the window close: a subclass that may refuse asks before it calls this.
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

protected:
    /// The screen given at construction; null without one, and once it is gone.
    QPointer<QScreen> m_screen;

private:
    void startWaiting(bool delayed);

    // Grips are deleted when closed.
    QPointer<QSizeGrip> m_bottomLeft;
    QPointer<QSizeGrip> m_bottomRight;
    QPointer<QSizeGrip> m_topLeft;
    QPointer<QSizeGrip> m_topRight;
    std::array<QPointer<oVIXGrip>, 4> m_edges; // top, bottom, left, right
    QPointer<oVIXWindowBlock> m_windowBlock;
    QPointer<oVIXWindowWaitGlobal> m_windowWait;
};
