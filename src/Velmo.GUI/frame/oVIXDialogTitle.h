#pragma once

#include "VelmoGuiExport.h"

#include <QFrame>
#include <QPoint>

class OvixSvgButton;
class TitleLabel;

/// The title strip of a frameless dialog: white title, grey subtitle, close button. 30 logical pixels high. With
/// dragging on, the strip moves its parent widget.
class VELMO_GUI_EXPORT oVIXDialogTitle : public QFrame
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool dragEnabled MEMBER m_dragEnabled WRITE setDragEnabled)

public:
    /// A strip for @p parent, the dialog, which owns it and gives it its width.
    explicit oVIXDialogTitle(QWidget *parent);
    ~oVIXDialogTitle() override;

    /// Both are plain text, shown as typed on one line that ends in an ellipsis where it does not fit.
    void setTitle(QString title, QString subtitle);
    /// Off by default.
    void setDragEnabled(bool enabled);
    /// Enables or disables the close button.
    void setCloseEnabled(bool enabled);

signals:
    /// The close button has been clicked; the dialog does the closing.
    void closeClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    OvixSvgButton *m_closeButton;
    TitleLabel *m_titleLabel;
    QPoint m_dragOrigin; // null: no drag
    bool m_dragEnabled = false;
};
