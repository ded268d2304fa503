#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QSizeF>
#include <QString>

/// One tag of a scene's people.
struct SceneTag
{
    int id = 0;
    QString name;
    QColor colour;
    /// Tags that are set aside do not count for those who have them.
    bool isAssigned = true;
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
};

/// What a scene file holds. The plane has its origin in the middle of the ground, and y points up.
struct Scene
{
    QString name;
    QString path;
    /// The release that saved the scene.
    QString version;
    QString bakeStatus;
    QString groundName;
    QSizeF ground;
    /// Length of the scene, and the part of it that is played.
    int frames = 0;
    int framesPerSecond = 25;
    int cropFirst = 0;
    int cropLast = 0;
    QList<QPolygonF> walls;
    QList<SceneTag> tags;
    QList<SceneMover> people;
    QList<SceneMover> vehicles;

    /// The colour of the mover's first known tag that is assigned; invalid without one.
    QColor colourOf(const SceneMover &mover) const;
    /// The ground, or what lies around everything where the file does not tell its size.
    QRectF bounds() const;
};
