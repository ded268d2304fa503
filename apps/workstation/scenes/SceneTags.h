#pragma once

#include <QSet>
#include <QStringList>

struct Scene;

/// The tags of a scene by name. What has been set aside keeps its people: assigned again, it is theirs again. Several
/// tags of one name count as one; tags without a name are left alone.
namespace SceneTags {

/// The names of the tags that the crowd has, and of those that it could have, in the scene's order.
QStringList assigned(const Scene &scene);
QStringList available(const Scene &scene);

/// Sets those tags aside that nobody has, and no others. The ones called as in @p settled stay where they are.
void setAsideUnused(Scene *scene, const QSet<QString> &settled = {});

/// Makes the scene have exactly these tags. New names become new tags, unless they differ from a present one in case
/// only; tags in neither list are taken from everybody for good. A name in both lists is assigned. An assigned tag that
/// nobody has goes to all people.
void arrange(Scene *scene, const QStringList &assigned, const QStringList &available);

} // namespace SceneTags
