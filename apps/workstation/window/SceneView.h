#pragma once

#include "window/SceneDrawing.h"

#include <VelmoCursor.h>

#include <QWidget>

/// A scene seen from above: ground, walls, people and vehicles. The wheel zooms at the pointer, a drag moves the scene,
/// a click picks somebody. With the
/// keyboard, which Tab gives it, the arrows move, plus and minus zoom, Space and Return pick who is in the middle.
class SceneView : public QWidget
{
    Q_OBJECT

public:
    explicit SceneView(QWidget *parent = nullptr);

    /// Shows the whole of it.
    void setScene(const Scene &scene);
    const Scene &scene() const;

    /// Shows these people in place of the scene's own.
    void setPeople(const QList<SceneMover> &people);
    /// Where they are now, and where they were before, the latest first.
    void setPositions(const QList<QPointF> &positions, const QList<QList<QPointF>> &trail = {});

    /// Takes over the tags of @p scene and of its people and vehicles; everybody stays where they are. People beyond
    /// the scene's own have the tags of those they were copied from.
    void setTags(const Scene &scene);

    void setOptions(const ViewOptions &options);
    const ViewOptions &options() const;

    /// As a click in the middle of the view does, for the keyboard and for assistive tools.
    void pickInTheMiddle();

signals:
    /// The user has zoomed.
    void zoomChanged(double zoom);
    /// The user has clicked on a person or vehicle of this type; empty for the ground.
    void moverPicked(const QString &type);

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    /// From metres to logical pixels.
    QTransform sceneToView() const;
    /// By steps of the wheel; what is at @p point stays there. False when it is as near or far as it can be.
    bool setZoomAt(QPointF point, double steps);
    void zoomInTheMiddle(int steps);
    /// By logical pixels.
    void pan(QPointF way);
    void paintFocus(QPainter *painter) const;
    void pickAt(QPointF point);
    const SceneMover *moverUnder(QPointF point) const;
    void showPointer(VelmoCursor::Shape shape);
    void showPointerAt(QPointF point);

    SceneDrawing m_drawing;
    QPointF m_centre; // of the view, in metres
    QPointF m_pressed;
    QPointF m_dragged;
    bool m_isDragging = false;
    /// The user goes by keys: the focus that a new page hands out is nobody's concern.
    bool m_showsFocus = false;
};
