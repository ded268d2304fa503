#pragma once

#include <QList>
#include <QString>

struct Scene;

/// What a crowd is made of. Lengths are metres, speeds metres a second.
struct CrowdSettings
{
    struct Share
    {
        QString type;
        double percent = 0.0;

        bool operator==(const Share &) const = default;
    };

    int count = 0;
    double slowest = 0.8;
    double fastest = 1.6;
    /// The distance that people keep from each other.
    double spacing = 0.6;
    int seed = 1;
    /// Degrees a second.
    double turnRate = 180.0;
    /// How many people are of which type.
    QList<Share> shares;

    bool operator==(const CrowdSettings &) const = default;

    /// The crowd that a scene tells of, else one of its people. The shares are those of the types that its people have,
    /// by name, and make a hundred percent.
    static CrowdSettings of(const Scene &scene);
};
