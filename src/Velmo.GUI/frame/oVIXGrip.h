#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>
#include <QPointF>

/// An invisible strip along one edge of a window or panel that turns drags into steps of its size.
///
/// The strip shows the resize cursor and announces each step; its owner resizes. Grips are deleted when closed: an
/// owner keeps them in a `QPointer`. All lengths are logical pixels.
class VELMO_GUI_EXPORT oVIXGrip : public QLabel
{
    Q_OBJECT

public:
    /// The edge of the parent that the strip lies along.
    enum GripPosition : int {
        Top = 0, ///< changes the height, and moves the top edge
        Left = 1, ///< changes the width, and moves the left edge
        Right = 2, ///< changes the width
        Bottom = 3 ///< changes the height
    };
    Q_ENUM(GripPosition)

    /// @p inset is kept free at the strip's ends (the side strips start at the very top all the same); @p thickness is
    /// the strip's width across the edge.
    oVIXGrip(QWidget *parent, GripPosition position, int inset, int thickness);
    ~oVIXGrip() override;

    /// Places the strip along its edge of the parent and raises it.
    void autoResize();

signals:
    /// The pointer has moved by @p delta, whole pixels along the strip's axis and 0 along the other one. @p invert is
    /// true for the top and left edges.
    void resizeByGrip(QPoint delta, bool invert);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    bool isVertical() const;

    GripPosition m_position;
    bool m_pressed = false;
    QPointF m_lastGlobalPosition;
    int m_inset;
    int m_thickness;
};
