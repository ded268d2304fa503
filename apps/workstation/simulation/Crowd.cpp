#include "simulation/Crowd.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace {

constexpr double arrived = 0.5; // metres
constexpr double smallestCell = 0.1;
constexpr double degrees = 180.0 / std::numbers::pi;

double length(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

/// Numbers of the generator itself: the distributions of the standard library differ from system to system.
double between(std::mt19937 &random, double low, double high)
{
    return low + (high - low) * double(random()) / double(std::mt19937::max());
}

/// From -180 to 180.
double turnTowards(double from, double to)
{
    return std::remainder(to - from, 360.0);
}

} // namespace

Crowd::Crowd(const Scene &scene, const CrowdSettings &settings)
    : m_settings(settings), m_random(std::mt19937::result_type(settings.seed))
{
    place(scene);
    assignTypes();
}

QList<SceneMover> Crowd::people() const
{
    return m_people;
}

QList<QPointF> Crowd::positions() const
{
    QList<QPointF> positions;
    positions.reserve(m_people.size());
    for (const SceneMover &person : m_people)
        positions << person.position;
    return positions;
}

bool Crowd::step(double seconds, const std::atomic_bool &cancelled)
{
    const Cells neighbours = cells();
    QList<QPointF> moved;
    moved.reserve(m_people.size());
    for (qsizetype i = 0; i < m_people.size(); ++i) {
        if (cancelled)
            return false;
        SceneMover &person = m_people[i];
        QPointF target = person.position;
        const QPointF way = person.goal - person.position;
        if (person.hasGoal && length(way) > arrived) {
            const double turn = turnTowards(person.heading, std::atan2(way.y(), way.x()) * degrees);
            const double most = m_settings.turnRate * seconds;
            person.heading = std::remainder(person.heading + std::clamp(turn, -most, most), 360.0);
            const double angle = person.heading / degrees;
            const double path = std::min(person.preferredSpeed * seconds, length(way));
            target += path * QPointF(std::cos(angle), std::sin(angle));
        }
        moved << target + pushFromOthers(i, neighbours) * seconds;
    }
    for (qsizetype i = 0; i < m_people.size(); ++i)
        m_people[i].position = moved[i];
    return true;
}

void Crowd::place(const Scene &scene)
{
    const QRectF ground = scene.bounds();
    for (int i = 0; i < m_settings.count; ++i) {
        SceneMover person;
        if (scene.people.isEmpty()) {
            person.position = {between(m_random, ground.left(), ground.right()),
                               between(m_random, ground.top(), ground.bottom())};
            person.goal = ground.center();
            person.hasGoal = true;
        } else {
            person = scene.people[i % scene.people.size()];
            if (i >= scene.people.size()) // more than the scene has: beside one of them
                person.position += {between(m_random, -3, 3), between(m_random, -3, 3)};
        }
        person.preferredSpeed = between(m_random, m_settings.slowest, m_settings.fastest);
        m_people << person;
    }
}

void Crowd::assignTypes()
{
    double whole = 0.0;
    for (const CrowdSettings::Share &share : std::as_const(m_settings.shares))
        whole += share.percent;
    if (whole <= 0.0)
        return;

    QList<qsizetype> order(m_people.size());
    std::iota(order.begin(), order.end(), 0);
    for (qsizetype i = order.size() - 1; i > 0; --i)
        order.swapItemsAt(i, qsizetype(m_random() % std::mt19937::result_type(i + 1)));
    double upTo = 0.0;
    qsizetype next = 0;
    for (const CrowdSettings::Share &share : std::as_const(m_settings.shares)) {
        upTo += share.percent / whole * double(m_people.size());
        for (; next < std::lround(upTo); ++next)
            m_people[order[next]].type = share.type;
    }
}

QPointF Crowd::pushFromOthers(qsizetype person, const Cells &cells) const
{
    QPointF push;
    const QPointF here = m_people[person].position;
    const QPoint cell = cellOf(here);
    for (int x = -1; x <= 1; ++x) {
        for (int y = -1; y <= 1; ++y) {
            for (const qsizetype other : cells.value(cell + QPoint(x, y))) {
                const QPointF away = here - m_people[other].position;
                const double distance = length(away);
                if (other != person && distance > 0.0 && distance < m_settings.spacing)
                    push += away / distance * (m_settings.spacing - distance) / m_settings.spacing;
            }
        }
    }
    return push;
}

Crowd::Cells Crowd::cells() const
{
    Cells cells;
    for (qsizetype i = 0; i < m_people.size(); ++i)
        cells[cellOf(m_people[i].position)] << i;
    return cells;
}

QPoint Crowd::cellOf(QPointF point) const
{
    const double side = std::max(m_settings.spacing, smallestCell);
    return {int(std::floor(point.x() / side)), int(std::floor(point.y() / side))};
}
