#pragma once

#include "frame/oVIXTitleBarFilter.h"

class OvixSvgLabel;
class QMenuBar;
class oVIXMinMaxCloseWidget;

/// Turns a menu bar into the title bar of a frameless window: drag and double click, window buttons at the right, an
/// optional logo in the middle.
///
/// The title bar reports what the user wants; the application changes the window and tells the buttons with
/// `getCloseWidget()->setMaximized`. It is a child of the menu bar's parent, the window that it moves: the menu bar has
/// to be in its window already. Assistive tools are told a menu bar whose last child holds the window buttons.
class VELMO_GUI_EXPORT oVIXTitleBar : public oVIXTitleBarFilter
{
    Q_OBJECT

public:
    /// Gives @p menuBar its look and these window buttons, which the menu bar owns. Null makes a title bar that does
    /// nothing.
    oVIXTitleBar(QMenuBar *menuBar, bool showMinimize, bool showMaximize, bool showClose);
    ~oVIXTitleBar() override;

    /// True where there is neither a child of the menu bar nor a menu.
    bool canClick(const QPoint &pos) override;
    /// Emits `maximized`, whatever the window's state: the receiver turns it round.
    void maximize() override;
    /// Keeps the logo in the middle, besides what the base class does.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The row of window buttons; null without a menu bar.
    oVIXMinMaxCloseWidget *getCloseWidget();

    /// Shows a logo of @p size logical pixels in the middle of the menu bar; an empty name hides it.
    void setLogo(const QString &filename, const QSize &size);

signals:
    /// The user wants the window minimised.
    void minimized();
    /// The user wants the window maximised, or restored if it is: a click on the middle button or a double click.
    void maximized();
    /// The user wants the window closed.
    void closed();

private:
    void repositionLabels();

    QPointer<QMenuBar> m_menuBar;
    QPointer<QWidget> m_caption;
    QPointer<OvixSvgLabel> m_logo;
    QPointer<oVIXMinMaxCloseWidget> m_closeWidget;
};
