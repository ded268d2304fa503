#pragma once

#include "VelmoGuiExport.h"
#include "frame/oVIXDialog.h"

#include <memory>

class QPixmap;

namespace Ui {
class oVIXDialogModalBase;
}

/// A modal information dialog to derive from: a logo above a title, pages, links and two buttons, which close the
/// dialog and quit the application. Both buttons are hidden at first.
///
/// Pages, links and logo are added before the first show, which fixes the height.
class VELMO_GUI_EXPORT oVIXDialogModalBase : public oVIXDialog
{
    Q_OBJECT

public:
    /// A dialog without pages and links, with block and wait overlays.
    explicit oVIXDialogModalBase(QWidget *parent);
    ~oVIXDialogModalBase() override;

    /// The text of the title label.
    void addTitleLabel(const QString &title);
    /// Adds a page, which the dialog owns from then on. Nothing for null.
    void addWidget(QWidget *page);
    /// Adds a link to a web address below the others: see `LinkLabel`.
    void addNewWebLink(const QString &text, const QString &target);
    /// The same for a link that starts a program.
    void addNewAppLink(const QString &text, const QString &target);
    /// Shows a picture no wider than the logo label may be, and gives the label its size for good. It is drawn for the
    /// density of the screen that the dialog is on by then. A picture that cannot be read takes no room.
    void setLogoImg(const QString &path);

    /// @p pixmap in its proportions and at most @p maxWidth pixels wide. A picture has always a width, so @p maxHeight
    /// does not count, and a tall one may exceed it. Null for a null pixmap and a width below 1.
    static QPixmap scaleImg(const QPixmap &pixmap, int maxWidth, int maxHeight);
    /// The same for the picture in a file; null when it cannot be read.
    static QPixmap loadScaledImg(const QString &path, int maxWidth, int maxHeight);

protected:
    /// Shows or hides the button that quits the application.
    void enableExitButton(bool enable);
    /// The opposite of `enableExitButton`.
    void disableExitButton(bool disable);
    /// Shows or hides the button that closes the dialog.
    void enableCloseButton(bool enable);
    /// The opposite of `enableCloseButton`.
    void disableCloseButton(bool disable);

protected slots:
    /// Rejects the dialog.
    virtual void onCloseButtonClicked();
    /// Ends the application's event loop with code 0.
    virtual void onExitButtonClicked();

private:
    void addLink(const QString &text, const QString &target, int kind);

    std::unique_ptr<Ui::oVIXDialogModalBase> m_ui;
};
