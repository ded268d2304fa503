#pragma once

#include <QColor>
#include <QList>
#include <QPixmap>
#include <QString>

struct Scene;

/// One kind of people or vehicles in a scene.
struct LibraryEntry
{
    /// As in the scene; may be empty.
    QString type;
    int count = 0;
    bool isVehicle = false;
    QColor colour;

    /// The kinds of a scene, people first, each by name.
    static QList<LibraryEntry> of(const Scene &scene);

    /// Seen from above, @p side logical pixels wide and high.
    QPixmap picture(int side, qreal devicePixelRatio) const;
};
