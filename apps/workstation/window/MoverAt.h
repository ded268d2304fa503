#pragma once

#include "scenes/Scene.h"
#include "window/ViewOptions.h"

#include <QTransform>

/// The person or vehicle that is shown nearest to @p point of the view, not farther than a few pixels; null without
/// one. @p sceneToView only scales and moves.
const SceneMover *moverAt(const Scene &scene, const ViewOptions &options, const QTransform &sceneToView, QPointF point);
