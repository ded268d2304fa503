#include "scenes/Scene.h"

#include <QRectF>

QColor Scene::colourOf(const SceneMover &mover) const
{
    for (const int id : mover.tags) {
        for (const SceneTag &tag : tags) {
            if (tag.id == id && tag.isAssigned)
                return tag.colour;
        }
    }
    return {};
}

QRectF Scene::bounds() const
{
    if (ground.width() > 0 && ground.height() > 0)
        return {-ground.width() / 2, -ground.height() / 2, ground.width(), ground.height()};

    QPolygonF points;
    for (const QPolygonF &wall : walls)
        points += wall;
    for (const QList<SceneMover> *movers : {&people, &vehicles}) {
        for (const SceneMover &mover : *movers)
            points << mover.position;
    }
    constexpr double margin = 5.0;
    return points.boundingRect().adjusted(-margin, -margin, margin, margin);
}
