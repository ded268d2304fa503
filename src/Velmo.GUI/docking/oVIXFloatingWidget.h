#pragma once

#include "foundation/oVIXFrameBorder.h"

#include <QPointer>

class QTimer;

/// Base of the small pop-up panels: a frameless window with a rounded border that is shown at a point, kept inside its
/// parent, and closes by itself.
///
/// While it shows it looks every `DelayTimer` milliseconds whether the keyboard focus or the pointer is still inside,
/// and hides when neither is. It is not deleted then: its owner shows it again. Whoever wants to delete it in answer to
/// `shown` or `hidden` uses `deleteLater`. When it hides with the keyboard focus, that goes back to the window which
/// was active before. GUI thread only.
class VELMO_GUI_EXPORT oVIXFloatingWidget : public oVIXFrameBorder
{
    Q_OBJECT

public:
    /// Milliseconds between two looks.
    static constexpr int DelayTimer = 100;

    /// @p parent is the widget, usually a window, that the pop-up is kept inside. Without one it is kept inside the
    /// screen.
    explicit oVIXFloatingWidget(QWidget *parent);
    ~oVIXFloatingWidget() override;

    /// Fits the pop-up to its contents, shows it with its top left corner at @p globalPos (global coordinates) or as
    /// near as the parent's edges allow, and gives it the keyboard focus. It stays clear of the right and bottom edges
    /// by one pixel; when it is larger than the parent it sticks out at the left or at the top.
    void showAt(const QPoint &globalPos);

    /// Hiding it hands the keyboard focus back.
    void setVisible(bool visible) override;

signals:
    /// It is being shown, by `showAt` before it has its final place.
    void shown();
    /// It is hidden, by itself or by its owner.
    void hidden();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void hideTimerFinished();

private:
    QRect surroundings(const QPoint &globalPos) const;
    bool holdsFocus() const;
    bool holdsPointer() const;

    QTimer *m_hideTimer;
    QPointer<QWidget> m_activeBefore;
};
