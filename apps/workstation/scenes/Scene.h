#pragma once

#include "simulation/CrowdSettings.h"

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QSizeF>
#include <QString>

#include <optional>

/// One tag of a scene's people.
struct SceneTag
{
    int id = 0;
    QString name;
    QColor colour;
    /// Tags that are set aside do not count for those who have them.
    bool isAssigned = true;

    bool operator==(const SceneTag &) const = default;
};

/// Somebody or something that moves. Lengths are metres, speeds metres a second, headings degrees from the x axis.
struct SceneMover
{
    QString name;
    QString type;
    QPointF position;
    QPointF goal;
    bool hasGoal = false;
    double heading = 0.0;
    double preferredSpeed = 1.4;
    double maximumSpeed = 2.5;
    QList<int> tags;

    bool operator==(const SceneMover &other) const;
};

/// What a scene file holds. The plane has its origin in the middle of the ground, and y points up.
struct Scene
{
    QString name;
    QString path;
    /// The file as it was read: what of it nobody here knows has to be written back.
    QByteArray document;
    /// The release that saved the scene.
    QString version;
    QString bakeStatus;
    /// How many frames have been baked, from the first on.
    int bakedFrames = 0;
    QString groundName;
    QSizeF ground;
    /// Length of the scene, and the part of it that is played; all of it without a crop.
    int frames = 0;
    double framesPerSecond = 25.0;
    int cropFirst = 0;
    int cropLast = -1;
    QList<QPolygonF> walls;
    QList<SceneTag> tags;
    QList<SceneMover> people;
    QList<SceneMover> vehicles;
    /// None where the file tells only who is there.
    std::optional<CrowdSettings> crowd;

    bool operator==(const Scene &) const = default;

    /// The colour of the mover's first known tag that is assigned; invalid without one.
    QColor colourOf(const SceneMover &mover) const;
    /// The ground, or what lies around everything where the file does not tell its size.
    QRectF bounds() const;
    bool hasCrop() const;
    /// How many people its crowd has.
    int crowdSize() const;
    /// For a list of scenes: length and frame rate, as in "00:02:30 | 25".
    QString timeText() const;
    /// Takes over how many frames have been baked, and what this means for the whole scene.
    void setBaked(int count);

    static QString notBakedStatus() { return QStringLiteral("Not baked"); }
    /// What the list of scenes shows for a scene without a background.
    static QString noGroundName() { return QStringLiteral("None"); }
};
