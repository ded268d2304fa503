#pragma once

#include "VelmoGuiExport.h"

#include <QDialog>
#include <QPointer>

class QScreen;
class oVIXDialogTitle;
class oVIXWindowBlock;
class oVIXWindowWait;

/// Base of the application's dialogs: frameless, with a title strip, optional block and wait overlays, centred on the
/// parent's window or on its screen at every show and resize.
///
/// A dialog with a layout gets the strip's height on top of the layout's margins, and a fixed height, at its first
/// show. The user cannot close it while it is blocked, busy, or closing is disabled; `accept` and `done` always do.
class VELMO_GUI_EXPORT oVIXDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p withBlock and @p withWait give the dialog the overlays. @p screen, which may be null, is where a dialog
    /// without a parent window goes.
    oVIXDialog(bool withBlock, bool withWait, bool stayOnTop, QWidget *parent, QScreen *screen);
    ~oVIXDialog() override;

    /// What the strip says, both as plain text on one line: @p title in white, @p subtitle in grey.
    void setupTitle(QString title, QString subtitle);
    /// Whether the strip moves the dialog (default no).
    void setDragEnabled(bool enabled);
    /// Whether the dialog can be closed by its close button, Escape and `reject` (default yes).
    void setCloseEnabled(bool enabled);

    /// The screen that was given; null without one, and once it is gone.
    QScreen *getPrimaryScreen() const;
    /// The screen for a dialog without a parent window; null for the application's primary one. Not owned.
    void setPrimaryScreen(QScreen *screen);

    /// Null for a dialog built without a wait overlay; the wait operations then do nothing.
    oVIXWindowWait *getWindowWait();
    /// Shows the wait overlay without text or percentage. A wait that runs goes on, with the new choice of what shows.
    void startWait();
    /// The same with the line of text.
    void startWaitWithText();
    /// The same with the percentage.
    void startWaitWithPercent();
    /// Hides the wait overlay.
    void endWait();

    /// Sizes and places the dialog before it is shown.
    void setVisible(bool visible) override;
    /// The close button, Escape and `close` all end here; nothing while the dialog is blocked, busy, or closing is
    /// disabled.
    void reject() override;

    /// The screen that shows a native window; the primary screen when it cannot be told.
    static QScreen *detectPrimaryScreen(void *nativeWindow);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void prepareToShow();
    void adjustToTitle();
    void autocenter();
    void startWaiting(bool percentVisible, bool textVisible);

    QPointer<oVIXWindowBlock> m_windowBlock;
    QPointer<oVIXWindowWait> m_windowWait;
    oVIXDialogTitle *m_title = nullptr;
    QPointer<QScreen> m_primaryScreen;
    bool m_titleAdjusted = false;
    bool m_closeEnabled = true;
};
