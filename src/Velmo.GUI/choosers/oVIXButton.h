#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

/// A text button, with an optional icon before the text and an optional checked state.
///
/// The text is plain text; what is too long is shown with an ellipsis. The button answers the release, not the press,
/// and only inside itself, so a left double click emits `clicked`, `doubleClicked` and
/// `clicked` again. With a focus policy set, Space and Return press it. Assistive tools see a button, or a check box,
/// with its text.
///
/// The look is the widget's own style sheet; a sheet set from outside takes its place, and may tell the checked state
/// by the selector `[checked="true"]`.
class VELMO_GUI_EXPORT oVIXButton : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(QString icon READ icon WRITE setIcon)
    Q_PROPERTY(QString checkedIcon READ checkedIcon WRITE setCheckedIcon)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable)
    /// The checked state, for style sheets to look at.
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)

public:
    /// A button without a text that is not checkable.
    explicit oVIXButton(QWidget *parent = nullptr);
    /// The same with a text.
    explicit oVIXButton(const QString &text, QWidget *parent = nullptr);
    ~oVIXButton() override;

    /// Path of the SVG file shown before the text, such as ":/Windows/AddButton"; empty for none. As high as the text's
    /// line, and dimmed while the button is disabled.
    void setIcon(const QString &filename);
    /// See `setIcon`.
    QString icon() const;
    /// The icon of the checked state; empty for the same one.
    void setCheckedIcon(const QString &filename);
    /// See `setCheckedIcon`.
    QString checkedIcon() const;

    /// Whether a left click turns the checked state round before `clicked` is emitted. Off by default.
    void setCheckable(bool checkable);
    /// See `setCheckable`.
    bool isCheckable() const;
    /// Can be set whether or not the button is checkable. Emits nothing.
    void setChecked(bool checked);
    /// Off at first.
    bool isChecked() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// A left release inside the button, a press key, or `click`. The checked state is the new one already.
    void clicked();
    /// The second press of a left double click; the `clicked` of its release follows.
    void doubleClicked();
    /// @p position is in global coordinates.
    void rightClicked(QPoint position);

public slots:
    /// Does what a left click does, for the keyboard and for assistive tools. Nothing while disabled.
    void click();
    /// The same as the `QWidget` slot, which it takes the place of.
    void setEnabled(bool enabled);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownIcon() const;
    int iconSide() const;
    int iconWidth() const;
    void paintIcon(const QRect &room, int textWidth);

    QString m_icon;
    QString m_checkedIcon;
    bool m_checkable = false;
    bool m_checked = false;
};
