#pragma once

#include "foundation/OvixSvgLabel.h"

/// The flat icon button of the library, with an optional checked state. Assistive tools see a button or check box.
///
/// A button answers the release, not the press, and only while it is enabled and under the pointer. A left double click
/// therefore emits `clicked`, `doubleClicked` and `clicked` again. With a focus policy set, Space and Return press it.
class VELMO_GUI_EXPORT OvixSvgButton : public OvixSvgLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable)
    Q_PROPERTY(bool ignoreSingleClick READ ignoresSingleClick WRITE setIgnoreSingleClick)

public:
    /// A button without a picture that is not checkable.
    explicit OvixSvgButton(QWidget *parent = nullptr);
    ~OvixSvgButton() override;

    /// Whether a left click turns the checked state round before `clicked` is emitted. Off by default.
    void setCheckable(bool checkable);
    /// See `setCheckable`.
    bool isCheckable() const;

    /// Leaves left releases to the parent widget: no `clicked`, no check. Off by default.
    void setIgnoreSingleClick(bool ignore);
    /// See `setIgnoreSingleClick`.
    bool ignoresSingleClick() const;

signals:
    /// A left release over the button, a press key, or `click`. The checked state is the new one already.
    void clicked();
    /// The second press of a left double click; the `clicked` of its release follows.
    void doubleClicked();
    /// @p position is in global coordinates.
    void rightClicked(QPoint position);

public slots:
    /// Does what a left click does, for the keyboard and for assistive tools. Nothing while disabled or while single
    /// clicks are ignored.
    void click();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool answersPointer() const;

    bool m_checkable = false;
    bool m_ignoreSingleClick = false;
};
