#pragma once

#include "foundation/OvixSvgLabel.h"

#include <optional>

class QFocusEvent;
class QLineEdit;
struct MarkerScale;

/// A small marker that stands for an integer from 0 to a maximum by its place on a horizontal way inside its parent.
///
/// The user reads the value on the marker, drags it with the left button, or double-clicks it and types a number:
/// Return or leaving the editor takes it over, Escape gives it up. With a focus policy set, Space and Return open the
/// editor too, and the marker has the keyboard again at its end. Positions are the x of the marker's left edge in the
/// parent, in logical pixels. A pixel may stand for many values: what `getValue` answers is that of the pixel and may
/// lie below the value that was set, but a value that was set comes back whenever the way changes, until the marker is
/// moved by other means. Assistive tools see a slider, and set its value as if it were typed.
///
/// A drag emits `moved` at each step and `released` at its end, also when the marker is hidden or disabled meanwhile;
/// an edit emits `editingStarted` and `editingFinished`, each once, and between its two clicks `released` as well. The
/// marker may be deleted from all of them; with `deleteLater` where it is being hidden or disabled.
class VELMO_GUI_EXPORT OvixMovableLabel : public OvixSvgLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(int currentValue READ getValue WRITE setCurrentValue)
    Q_PROPERTY(bool draggable READ isDraggable WRITE setDraggable)
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)
    Q_PROPERTY(QFont font READ font WRITE setFont)

public:
    /// A marker of the value 0, without a picture.
    explicit OvixMovableLabel(QWidget *parent = nullptr);
    ~OvixMovableLabel() override;

    /// The way and the highest value: 0, 100 and 100 at first. The marker keeps its value and moves to the new place;
    /// with a value above the new maximum it stays where it is. Both positions may be the same.
    void setMinMaxPosValue(int minimumPosition, int maximumPosition, int maximumValue);
    /// Moves there and shows the value of that pixel. Nothing happens below 0 and above the maximum.
    void setCurrentValue(int value);
    /// The value of the pixel that the marker is at.
    int getValue() const;
    /// The value last set, or that of the pixel once the marker has been moved by other means.
    int getKeptValue() const;
    /// The highest value.
    int getMaximumValue() const;

    /// What is written on the marker; the value replaces it at the next change.
    void setInternalText(QString text);
    /// The y of the text on the marker, 0 at first.
    void setVerticalPosSubLabel(int y);
    /// For the text, the editor and the marker itself.
    void setFont(const QFont &font);

    /// Whether the left button drags the marker (default yes).
    void setDraggable(bool draggable);
    /// See `setDraggable`.
    bool isDraggable() const;
    /// Whether a double click opens the editor (default yes).
    void setEditable(bool editable);
    /// See `setEditable`.
    bool isEditable() const;

    /// Whether the editor is open.
    bool isEditing() const;
    /// For those who hear `editingFinished`: whether the edit was given up, which leaves the value as it is.
    bool hasGivenUpEdit() const;
    /// Fills and places the editor, gives it the keyboard and selects all.
    void updateEditLabel();

signals:
    /// A step of a drag, which may have left the marker on its pixel.
    void moved();
    /// A press on the marker has ended: by its release, or because the marker has been hidden or disabled.
    void released();
    /// The editor has opened.
    void editingStarted();
    /// The editor has closed; the value is the typed one unless the edit was given up.
    void editingFinished();

public slots:
    /// Closes the editor and takes over its number. What is not a plain integer, 12.5 too, counts as 0.
    void changeValFromEdit();
    /// Announces the start of an edit, unless that has been done.
    void selectionChangedFromEdit();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    MarkerScale scale() const;
    void openEditor();
    void placeEditor();
    void closeEditor();
    void giveUpEdit();
    void leaveEditor(QFocusEvent *event);
    void endDrag();
    void announceValue();

    struct Kept
    {
        int value;
        int position;
    };

    QLabel *m_text;
    QLineEdit *m_editor;
    std::optional<Kept> m_kept;
    QPoint m_pressOffset;
    int m_minimumPosition = 0;
    int m_maximumPosition = 100;
    int m_maximumValue = 100;
    int m_textTop = 0;
    bool m_draggable = true;
    bool m_editable = true;
    bool m_pressed = false;
    bool m_editing = false;
    bool m_editAnnounced = false;
    bool m_givenUp = false;
};
