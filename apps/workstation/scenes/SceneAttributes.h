#pragma once

#include "scenes/Scene.h"

#include <QXmlStreamAttributes>

/// What the attributes of a scene file's elements say. What is no sensible value counts as none.
namespace SceneAttributes {

/// A finite number of at most 1,000,000 either way, else @p otherwise.
double number(const QXmlStreamAttributes &attributes, QLatin1String name, double otherwise = 0.0);
int wholeNumber(const QXmlStreamAttributes &attributes, QLatin1String name, int otherwise = 0);
QString text(const QXmlStreamAttributes &attributes, QLatin1String name);

double framesPerSecond(const QXmlStreamAttributes &timeline);
int bakedFrames(const QXmlStreamAttributes &bake);
SceneTag tag(const QXmlStreamAttributes &tag);
/// Whether the file itself tells where the tag stands.
bool tellsStanding(const QXmlStreamAttributes &tag);
/// The ids of the tags that an actor or a vehicle has.
QList<int> tagIds(const QXmlStreamAttributes &mover);

} // namespace SceneAttributes
