#pragma once

#include "scenes/Scene.h"
#include "window/ViewOptions.h"

#include <QWidget>

/// A scene seen from above: ground, walls, people and vehicles. The wheel zooms at the pointer, a drag moves the scene.
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

signals:
    /// The user has zoomed.
    void zoomChanged(double zoom);

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    /// From metres to logical pixels.
    QTransform sceneToView() const;
    void decideColours();
    void drawVehicles(QPainter &painter, const QTransform &transform) const;
    void drawPeople(QPainter &painter, const QTransform &transform) const;
    void drawTrails(QPainter &painter, const QTransform &transform) const;
    void drawDensity(QPainter &painter, const QTransform &transform) const;
    bool isBright(const SceneMover &mover) const;
    /// Takes the mover's colour, dimmed unless it is highlighted.
    void chooseColour(QPainter &painter, const SceneMover &mover, const QColor &colour) const;

    Scene m_scene;
    ViewOptions m_options;
    QList<QColor> m_peopleColours;
    QList<int> m_highlightedTags; // ids
    QList<QList<QPointF>> m_trail;
    QList<QPointF> m_goals;
    QRectF m_bounds = m_scene.bounds(); // people may leave them
    QPointF m_centre; // of the view, in metres
    QPointF m_dragged;
};
