#include "scenes/SceneAttributes.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

double SceneAttributes::number(const QXmlStreamAttributes &attributes, QLatin1String name, double otherwise)
{
    constexpr double largest = 1e6;
    bool isNumber = false;
    const double value = attributes.value(name).toDouble(&isNumber);
    return isNumber && std::abs(value) <= largest ? value : otherwise;
}

int SceneAttributes::wholeNumber(const QXmlStreamAttributes &attributes, QLatin1String name, int otherwise)
{
    bool isNumber = false;
    const int value = attributes.value(name).toInt(&isNumber);
    return isNumber ? value : otherwise;
}

QString SceneAttributes::text(const QXmlStreamAttributes &attributes, QLatin1String name)
{
    return attributes.value(name).toString();
}

double SceneAttributes::framesPerSecond(const QXmlStreamAttributes &timeline)
{
    return std::clamp(number(timeline, "fps"_L1, 25.0), 1.0, 240.0);
}

int SceneAttributes::bakedFrames(const QXmlStreamAttributes &bake)
{
    return std::clamp(wholeNumber(bake, "last"_L1, -1), -1, std::numeric_limits<int>::max() - 1) + 1;
}

SceneTag SceneAttributes::tag(const QXmlStreamAttributes &tag)
{
    return {wholeNumber(tag, "id"_L1), text(tag, "name"_L1), QColor(text(tag, "color"_L1)),
            tag.value("assigned"_L1) != "false"_L1};
}

bool SceneAttributes::tellsStanding(const QXmlStreamAttributes &tag)
{
    return tag.hasAttribute("assigned"_L1);
}

QList<int> SceneAttributes::tagIds(const QXmlStreamAttributes &mover)
{
    QList<int> ids;
    // Older releases separate them by commas.
    const QStringList words = text(mover, "tags"_L1).replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words)
        ids << word.toInt();
    return ids;
}
