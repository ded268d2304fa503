#pragma once

#include "VelmoGuiExport.h"

#include <QColor>
#include <QLabel>
#include <QPoint>

class oVIXAutoHideLine;

/// The button area of a tag.
enum DRAG_BUTTON {
    BUTTON_NONE = 0, ///< none
    BUTTON_REMOVE_OPTIONAL = 1, ///< a cross, where the tag is told to show buttons
    BUTTON_REMOVE = 2, ///< a cross, always
    BUTTON_ADD = 3 ///< a plus that opens a line for a new tag
};

/// A tag: a coloured chip of one row with its text, that can be dragged, double-clicked and clicked on its button.
///
/// Only tells what the user does with it; the list that shows it and that list's owner decide. 20 pixels high and as
/// wide as its text asks for; the add tag takes any width. The text is plain. The owner may delete the tag from any of
/// its signals.
class VELMO_GUI_EXPORT oVIXDragTag : public QLabel
{
    Q_OBJECT
    Q_MOC_INCLUDE(<QMouseEvent>)

public:
    /// @p showButton counts for `BUTTON_REMOVE_OPTIONAL` alone in what is shown. The add tag shows no background of its
    /// own, its line does. Colours are shown opaque, invalid ones as black.
    oVIXDragTag(const QString &text, const QColor &background, const QColor &textColor, DRAG_BUTTON button,
                bool showButton, QWidget *parent = nullptr);
    ~oVIXDragTag() override;

    /// An add tag's line keeps the colours that it was made with.
    void setColors(const QColor &background, const QColor &text);

    /// The button that the tag was made with, whether it shows or not.
    DRAG_BUTTON getButtonOptions() const;
    /// Whether this is the add tag.
    bool isAdd() const;

signals:
    /// The button of a removable tag has been pressed.
    void tagClicked();
    /// A text, which may be empty, has been typed into the add tag; its commas have become dots.
    void tagAdd(QString text);
    /// Not from the add tag.
    void doubleClick();
    /// The pressed pointer has gone as far as a drag takes. @p event is the move, in the tag's coordinates, and ends
    /// with the signal.
    void startDrag(QMouseEvent *event);

public slots:
    /// Opens the line of the add tag; nothing in others, as the next two.
    void fnAddClicked();
    /// Tells what is typed in the line and empties it.
    void fnAddNewTag();
    /// Hides the line; what is typed in it stays.
    void fnHideLine();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    bool hasButton() const;
    void addIcon(const QString &filename, const QString &invertedFilename);
    void addClickArea();
    void updateSheet();

    DRAG_BUTTON m_button;
    bool m_showButton;
    bool m_dragArmed = false;
    oVIXAutoHideLine *m_line = nullptr;
    QPoint m_pressPosition;
    QColor m_background;
    QColor m_textColor;
};
