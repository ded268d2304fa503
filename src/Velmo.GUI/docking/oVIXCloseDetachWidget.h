#pragma once

#include "VelmoGuiExport.h"
#include "docking/OvixThumbnailSize.h"

#include <QFrame>
#include <QList>
#include <QMainWindow>
#include <QPointer>

#include <memory>

class OvixSvgButton;
class OvixThumbnailSizeWidget;

namespace Ui {
class oVIXCloseDetachWidget;
}

/// The buttons of a panel's header: thumbnail size, detach, close. It reports clicks and keeps the thumbnail size; the
/// panel does the rest.
///
/// Which buttons belong to the group is one thing (`hideClose`, `hideDock`, `thumbAvailable`; the group is as wide as
/// they are), whether they show just now another (`hideIcons`, `showIcons`). A button that is taken out never comes
/// back. At first there are detach and close.
class VELMO_GUI_EXPORT oVIXCloseDetachWidget : public QFrame
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(int thumbnailSize READ getThumbnailSize WRITE setThumbnailSize)

public:
    /// A group with detach and close.
    explicit oVIXCloseDetachWidget(QWidget *parent);
    ~oVIXCloseDetachWidget() override;

    /// Takes the close button out; the detach button gets its place.
    void hideClose();
    /// Takes the detach button out.
    void hideDock();
    /// Adds the thumbnail button.
    void thumbAvailable();

    /// Hides all three buttons. The group keeps its width.
    void hideIcons();
    /// Shows the buttons that belong to the group.
    void showIcons();

    /// Whether the detach button belongs to the group.
    bool getIsDockAvailable();

    /// The window that the thumbnail-size pop-up is made for, on first use. With null, the default, the pop-up has no
    /// parent and is kept inside the screen.
    void setParentWindow(QMainWindow *window);

    /// What the pop-up shows as checked; nothing is emitted. 100 at first. A size that is not in
    /// `OvixThumbnailSize::Sizes` is kept too, and checks nothing.
    void setThumbnailSize(int size);
    /// The size last set or chosen, in logical pixels.
    int getThumbnailSize() const;

signals:
    /// The user has chosen a thumbnail size; it is kept already.
    void thumbClicked(int size);
    /// The close button has been clicked.
    void closeClicked();
    /// The detach button has been clicked.
    void detachClicked();

private slots:
    void thumbTriggered();
    void thumbSizeTriggered(int size);

private:
    friend class AccessibleDockBar;

    /// Those that belong to the group.
    QList<OvixSvgButton *> buttons() const;
    void reCalcSize();

    std::unique_ptr<Ui::oVIXCloseDetachWidget> m_ui;
    bool m_thumbVisible = false;
    bool m_closeVisible = true;
    bool m_detachVisible = true;
    QPointer<QMainWindow> m_parentWindow;
    int m_thumbnailSize = OvixThumbnailSize::Small;
    QPointer<OvixThumbnailSizeWidget> m_thumbChooser; // may go with the window
};
