#include "window/MoverAt.h"

#include <QLineF>

#include <algorithm>

namespace {

constexpr double reach = 6.0; // logical pixels
constexpr double personReach = 0.45; // metres
constexpr double vehicleReach = 1.5; // metres

} // namespace

const SceneMover *moverAt(const Scene &scene, const ViewOptions &options, const QTransform &sceneToView, QPointF point)
{
    const QPointF place = sceneToView.inverted().map(point);
    const SceneMover *nearest = nullptr;
    double nearestDistance = 0.0;
    const auto look = [&](const QList<SceneMover> &movers, double extent) {
        const double farthest = std::max(extent, reach / sceneToView.m11());
        for (const SceneMover &mover : movers) {
            const double distance = QLineF(place, mover.position).length();
            if (distance <= farthest && (!nearest || distance < nearestDistance)) {
                nearest = &mover;
                nearestDistance = distance;
            }
        }
    };
    if (options.mode != ViewOptions::Mode::Density)
        look(scene.people, personReach);
    if (options.vehicles)
        look(scene.vehicles, vehicleReach);
    return nearest;
}
