#include "scenes/Scene.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <tuple>

using namespace Qt::StringLiterals;

bool SceneMover::operator==(const SceneMover &other) const
{
    const auto facts = [](const SceneMover &mover) {
        return std::tie(mover.name, mover.type, mover.position, mover.goal, mover.hasGoal, mover.heading,
                        mover.preferredSpeed, mover.maximumSpeed);
    };
    // The toolkit compares lists of numbers by their bytes, which empty ones do not have.
    return facts(*this) == facts(other) && std::equal(tags.begin(), tags.end(), other.tags.begin(), other.tags.end());
}

QColor Scene::colourOf(const SceneMover &mover) const
{
    for (const int id : mover.tags) {
        for (const SceneTag &tag : tags) {
            if (tag.id == id && tag.isAssigned)
                return tag.colour;
        }
    }
    return {};
}

QRectF Scene::bounds() const
{
    if (ground.width() > 0 && ground.height() > 0)
        return {-ground.width() / 2, -ground.height() / 2, ground.width(), ground.height()};

    QPolygonF points;
    for (const QPolygonF &wall : walls)
        points += wall;
    for (const QList<SceneMover> *movers : {&people, &vehicles}) {
        for (const SceneMover &mover : *movers)
            points << mover.position;
    }
    constexpr double margin = 5.0;
    return points.boundingRect().adjusted(-margin, -margin, margin, margin);
}

bool Scene::hasCrop() const
{
    return frames > 0 && cropFirst >= 0 && cropLast >= cropFirst;
}

int Scene::crowdSize() const
{
    return crowd ? crowd->count : int(people.size());
}

QString Scene::timeText() const
{
    const auto seconds = qint64(std::floor(frames / framesPerSecond + 1e-6)); // whole ones stay whole
    const auto twoDigits = [](qint64 number) { return u"%1"_s.arg(number, 2, 10, QChar(u'0')); };
    return u"%1:%2:%3 | %4"_s.arg(twoDigits(seconds / 3600), twoDigits(seconds / 60 % 60), twoDigits(seconds % 60),
                                  QString::number(framesPerSecond));
}

void Scene::setBaked(int count)
{
    bakedFrames = count;
    bakeStatus = count <= 0 ? notBakedStatus() : count < frames ? u"Partial"_s : u"Baked"_s;
}
