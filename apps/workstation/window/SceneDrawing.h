#pragma once

#include "scenes/Scene.h"
#include "window/ViewOptions.h"

#include <QTransform>

class QPainter;

/// A scene as it is seen from above: ground, walls, people and vehicles. Safe in any thread, one at a time.
class SceneDrawing
{
public:
    /// Shows the whole of it.
    void setScene(const Scene &scene);
    const Scene &scene() const;

    /// Shows these people in place of the scene's own.
    void setPeople(const QList<SceneMover> &people);
    /// Where they are now, and where they were before, the latest first.
    void setPositions(const QList<QPointF> &positions, const QList<QList<QPointF>> &trail);

    /// Takes over the tags of @p scene and of its people and vehicles; everybody stays where they are. People beyond
    /// the scene's own have the tags of those they were copied from.
    void setTags(const Scene &scene);

    /// A zoom out of range becomes the nearest possible one.
    void setOptions(const ViewOptions &options);
    void setZoom(double zoom);
    const ViewOptions &options() const;

    /// The middle of what a zoom of 1 shows, in metres.
    QPointF middle() const;
    /// From metres to the pixels of a view of this size with @p centre, in metres, in its middle.
    QTransform toView(QSizeF view, QPointF centre) const;
    void paint(QPainter &painter, const QTransform &transform) const;

private:
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
};
