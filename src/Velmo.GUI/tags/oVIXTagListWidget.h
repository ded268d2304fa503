#pragma once

#include "VelmoGuiExport.h"

#include <QColor>
#include <QListWidget>
#include <QPoint>

/// A list of tags to look at and to click: rows show `oVIXTagListWidgetItem` chips, which the owner makes and gives to
/// `setItemWidget`, in the list's two colours.
///
/// Takes no keyboard focus and leaves all keys to the parent widget. With single selection the inherited `itemPressed`
/// comes once more on release, with the selected item. Assistive tools see a list of the chips; pressing one selects it
/// and emits `itemPressed` once.
class VELMO_GUI_EXPORT oVIXTagListWidget : public QListWidget
{
    Q_OBJECT
    Q_MOC_INCLUDE(<QMouseEvent>)
    // For forms; see the setters.
    Q_PROPERTY(bool emitDrag MEMBER m_emitDrag WRITE setEmitDrag)

public:
    /// A list without rows.
    explicit oVIXTagListWidget(QWidget *parent = nullptr);
    ~oVIXTagListWidget() override;

    /// Background and text of the chips. Shown opaque, invalid ones as black. Dark grey text on grey by default.
    void setTagColors(QColor tag, QColor text);
    /// Background of the chips.
    QColor getTagColor() const;
    /// Text of the chips.
    QColor getTextColor() const;

    /// Whether `startDragSignal` comes (default no).
    void setEmitDrag(bool emitDrag);

signals:
    /// A pressed tag begins to move: the owner may start a drag. Comes with the first move that stays below the drag
    /// distance. @p event is that move and ends with the signal.
    void startDragSignal(QMouseEvent *event);

protected:
    /// Builds the style sheet from the colours.
    virtual void updateStyle();

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QColor m_tagColor;
    QColor m_textColor;
    QPoint m_pressPosition;
    bool m_dragArmed = false;
    bool m_emitDrag = false;
};
