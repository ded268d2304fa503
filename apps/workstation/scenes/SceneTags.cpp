#include "scenes/SceneTags.h"

#include "scenes/DistinctColours.h"
#include "scenes/Scene.h"

#include <algorithm>

namespace {

constexpr size_t tagColours = distinctColours.size() - 1; // a tag is not to look like a text

QStringList namesOf(const Scene &scene, bool assigned)
{
    QStringList names;
    for (const SceneTag &tag : scene.tags) {
        if (tag.isAssigned == assigned && !tag.name.trimmed().isEmpty())
            names << tag.name;
    }
    names.removeDuplicates();
    return names;
}

/// The ids that somebody has.
QSet<int> usedIds(const Scene &scene)
{
    QSet<int> used;
    for (const QList<SceneMover> *movers : {&scene.people, &scene.vehicles}) {
        for (const SceneMover &mover : *movers) {
            for (const int id : mover.tags)
                used.insert(id);
        }
    }
    return used;
}

QSet<QString> usedNames(const Scene &scene)
{
    const QSet<int> used = usedIds(scene);
    QSet<QString> names;
    for (const SceneTag &tag : scene.tags) {
        if (used.contains(tag.id))
            names.insert(tag.name);
    }
    return names;
}

int freeId(const Scene &scene)
{
    const QSet<int> used = usedIds(scene);
    const auto isTaken = [&](int id) {
        return used.contains(id)
            || std::any_of(scene.tags.cbegin(), scene.tags.cend(), [id](const SceneTag &tag) { return tag.id == id; });
    };
    int id = 1;
    while (isTaken(id))
        ++id;
    return id;
}

void removeOthers(Scene *scene, const QStringList &names)
{
    QSet<int> removed;
    QSet<int> kept;
    for (const SceneTag &tag : std::as_const(scene->tags))
        (tag.name.trimmed().isEmpty() || names.contains(tag.name) ? kept : removed).insert(tag.id);
    removed.subtract(kept); // a broken file may use one id twice
    const auto isRemoved = [&removed](int id) { return removed.contains(id); };
    scene->tags.removeIf(
        [&](const SceneTag &tag) { return !tag.name.trimmed().isEmpty() && !names.contains(tag.name); });
    if (removed.isEmpty())
        return;
    for (QList<SceneMover> *movers : {&scene->people, &scene->vehicles}) {
        for (SceneMover &mover : *movers)
            mover.tags.removeIf(isRemoved);
    }
}

/// The tag's name as the scene has it, after making the tag if there is none.
QString settledName(Scene *scene, const QString &name)
{
    QString similar;
    for (const SceneTag &tag : std::as_const(scene->tags)) {
        if (tag.name == name)
            return name;
        if (similar.isEmpty() && tag.name.compare(name, Qt::CaseInsensitive) == 0)
            similar = tag.name;
    }
    if (!similar.isEmpty())
        return similar;
    const QColor colour = distinctColours[size_t(scene->tags.size()) % tagColours];
    scene->tags.append({freeId(*scene), name, colour, false});
    return name;
}

} // namespace

QStringList SceneTags::assigned(const Scene &scene)
{
    return namesOf(scene, true);
}

QStringList SceneTags::available(const Scene &scene)
{
    return namesOf(scene, false);
}

void SceneTags::setAsideUnused(Scene *scene, const QSet<QString> &settled)
{
    const QSet<QString> used = usedNames(*scene);
    for (SceneTag &tag : scene->tags) {
        if (!settled.contains(tag.name))
            tag.isAssigned = used.contains(tag.name);
    }
}

void SceneTags::arrange(Scene *scene, const QStringList &assigned, const QStringList &available)
{
    removeOthers(scene, assigned + available);
    QSet<QString> wanted;
    for (const QString &name : assigned) {
        if (!name.trimmed().isEmpty())
            wanted.insert(settledName(scene, name));
    }
    for (const QString &name : available) {
        if (!name.trimmed().isEmpty())
            settledName(scene, name);
    }

    QSet<QString> settled = usedNames(*scene);
    for (const QString &name : SceneTags::assigned(*scene))
        settled.insert(name);
    for (SceneTag &tag : scene->tags) {
        if (tag.name.trimmed().isEmpty())
            continue;
        tag.isAssigned = wanted.contains(tag.name);
        if (!tag.isAssigned || settled.contains(tag.name))
            continue;
        settled.insert(tag.name);
        for (SceneMover &person : scene->people)
            person.tags << tag.id;
    }
}
