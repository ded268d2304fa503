#include "simulation/CrowdSettings.h"

#include "scenes/Scene.h"

#include <QMap>

#include <algorithm>
#include <numeric>

namespace {

/// As far as they are shares of these types and no others.
QMap<QString, double> usableShares(const QList<CrowdSettings::Share> &shares, const QMap<QString, double> &people)
{
    QMap<QString, double> usable;
    for (const CrowdSettings::Share &share : shares)
        usable[share.type] = std::max(0.0, share.percent);
    const bool isWhole = std::accumulate(usable.cbegin(), usable.cend(), 0.0) > 0.0;
    return isWhole && usable.keys() == people.keys() ? usable : people;
}

} // namespace

CrowdSettings CrowdSettings::of(const Scene &scene)
{
    CrowdSettings settings = scene.crowd.value_or(CrowdSettings());
    settings.count = scene.crowdSize();
    QMap<QString, double> people;
    for (const SceneMover &person : scene.people)
        people[person.type] += 1.0;
    const QMap<QString, double> shares = usableShares(settings.shares, people);
    const double whole = std::accumulate(shares.cbegin(), shares.cend(), 0.0);
    settings.shares.clear();
    for (auto share = shares.cbegin(); share != shares.cend(); ++share)
        settings.shares.append({share.key(), 100.0 * share.value() / whole});
    return settings;
}
