#pragma once

#include "scenes/Scene.h"
#include "simulation/CrowdSettings.h"

#include <QHash>
#include <QPoint>

#include <atomic>
#include <random>

/// People on a plane who walk to their goals, turn no faster than they can and keep apart. The same scene and settings
/// always give the same walk.
class Crowd
{
public:
    /// @p scene gives the places where people start and the goals. Without people they start all over its ground.
    Crowd(const Scene &scene, const CrowdSettings &settings);

    /// People as they stand now, for a scene to show.
    QList<SceneMover> people() const;
    QList<QPointF> positions() const;

    /// Lets @p seconds pass. False, and nobody has moved, when cancelled meanwhile.
    bool step(double seconds, const std::atomic_bool &cancelled = false);

private:
    using Cells = QHash<QPoint, QList<qsizetype>>;

    void place(const Scene &scene);
    void assignTypes();
    QPointF pushFromOthers(qsizetype person, const Cells &cells) const;
    Cells cells() const;
    QPoint cellOf(QPointF point) const;

    CrowdSettings m_settings;
    std::mt19937 m_random;
    QList<SceneMover> m_people;
};
