#include "window/SceneDrawing.h"

#include "look/Palette.h"
#include "scenes/DistinctColours.h"

#include <QHash>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int margin = 24; // logical pixels
constexpr double personDiameter = 0.9; // metres; drawn larger than life, to be seen at all
constexpr double smallestDot = 3.0; // logical pixels
constexpr double goalRadius = 5.0; // logical pixels
constexpr QSizeF vehicleSize(4.6, 1.9);
constexpr double dimmed = 0.2;
constexpr double trailOpacity = 0.6;
constexpr double densityCell = 2.0; // metres
constexpr double fullDensity = 2.0; // people a square metre

/// A colour for each different text, in the order of their coming.
class KindColours
{
public:
    QColor operator[](const QString &kind)
    {
        const qsizetype place = m_places.value(kind, m_places.size());
        m_places.insert(kind, place);
        return distinctColours[size_t(place) % distinctColours.size()];
    }

private:
    QHash<QString, qsizetype> m_places;
};

QString textOf(QPointF point)
{
    return QString::number(point.x()) + u' ' + QString::number(point.y());
}

} // namespace

void SceneDrawing::setScene(const Scene &scene)
{
    m_scene = scene;
    m_bounds = scene.bounds();
    m_options.zoom = 1.0;
    setPeople(scene.people);
}

void SceneDrawing::setPeople(const QList<SceneMover> &people)
{
    m_scene.people = people;
    m_trail.clear();
    QHash<QString, QPointF> goals;
    for (const SceneMover &person : people) {
        if (person.hasGoal)
            goals.insert(textOf(person.goal), person.goal);
    }
    m_goals = goals.values();
    decideColours();
}

void SceneDrawing::setPositions(const QList<QPointF> &positions, const QList<QList<QPointF>> &trail)
{
    const qsizetype count = std::min(positions.size(), m_scene.people.size());
    for (qsizetype i = 0; i < count; ++i)
        m_scene.people[i].position = positions[i];
    m_trail = trail;
}

void SceneDrawing::setTags(const Scene &scene)
{
    m_scene.tags = scene.tags;
    for (qsizetype i = 0; i < m_scene.people.size() && !scene.people.isEmpty(); ++i)
        m_scene.people[i].tags = scene.people[i % scene.people.size()].tags;
    for (qsizetype i = 0; i < std::min(m_scene.vehicles.size(), scene.vehicles.size()); ++i)
        m_scene.vehicles[i].tags = scene.vehicles[i].tags;
    decideColours();
}

const Scene &SceneDrawing::scene() const
{
    return m_scene;
}

void SceneDrawing::setOptions(const ViewOptions &options)
{
    m_options = options;
    setZoom(options.zoom);
    decideColours();
}

void SceneDrawing::setZoom(double zoom)
{
    m_options.zoom = std::clamp(zoom, ViewOptions::smallestZoom, ViewOptions::largestZoom);
}

const ViewOptions &SceneDrawing::options() const
{
    return m_options;
}

QPointF SceneDrawing::middle() const
{
    return m_bounds.center();
}

QTransform SceneDrawing::toView(QSizeF view, QPointF centre) const
{
    const double fitting = std::min(std::max(1.0, view.width() - 2 * margin) / m_bounds.width(),
                                    std::max(1.0, view.height() - 2 * margin) / m_bounds.height());
    const double scale = fitting * m_options.zoom;
    QTransform transform = QTransform::fromTranslate(view.width() / 2, view.height() / 2).scale(scale, -scale);
    return transform.translate(-centre.x(), -centre.y());
}

void SceneDrawing::paint(QPainter &painter, const QTransform &transform) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(transform.mapRect(m_bounds), Palette::window);

    painter.setPen(QPen(Palette::secondaryText, 1.5));
    for (const QPolygonF &wall : m_scene.walls)
        painter.drawPolyline(transform.map(wall));
    if (m_options.goals) {
        painter.setPen(QPen(Palette::text, 1.5));
        for (const QPointF &goal : m_goals)
            painter.drawEllipse(transform.map(goal), goalRadius, goalRadius);
    }
    drawVehicles(painter, transform);
    switch (m_options.mode) {
    case ViewOptions::Mode::Density:
        drawDensity(painter, transform);
        break;
    case ViewOptions::Mode::Trails:
        drawTrails(painter, transform);
        [[fallthrough]];
    case ViewOptions::Mode::Dots:
        drawPeople(painter, transform);
        break;
    }
}

void SceneDrawing::decideColours()
{
    KindColours kinds;
    m_peopleColours.clear();
    for (const SceneMover &person : std::as_const(m_scene.people)) {
        QColor colour = m_scene.colourOf(person);
        if (m_options.colours == ViewOptions::Colours::Types)
            colour = kinds[person.type];
        else if (m_options.colours == ViewOptions::Colours::Goals)
            colour = person.hasGoal ? kinds[textOf(person.goal)] : Palette::secondaryText;
        else if (!colour.isValid())
            colour = Palette::accent;
        m_peopleColours << colour;
    }
    m_highlightedTags.clear();
    for (const SceneTag &tag : std::as_const(m_scene.tags)) {
        if (tag.isAssigned && tag.name == m_options.highlightedTag)
            m_highlightedTags << tag.id;
    }
}

void SceneDrawing::drawVehicles(QPainter &painter, const QTransform &transform) const
{
    if (!m_options.vehicles)
        return;
    painter.setPen(Qt::NoPen);
    const QRectF shape(QPointF(-vehicleSize.width() / 2, -vehicleSize.height() / 2), vehicleSize);
    for (const SceneMover &vehicle : m_scene.vehicles) {
        const QColor colour = m_scene.colourOf(vehicle);
        chooseColour(painter, vehicle, colour.isValid() ? colour : Palette::warning);
        QTransform place = QTransform(transform).translate(vehicle.position.x(), vehicle.position.y());
        painter.drawPolygon(place.rotate(vehicle.heading).map(QPolygonF(shape)));
    }
}

void SceneDrawing::drawPeople(QPainter &painter, const QTransform &transform) const
{
    painter.setPen(Qt::NoPen);
    const double radius = std::max(smallestDot, personDiameter * transform.m11()) / 2;
    for (qsizetype i = 0; i < m_scene.people.size(); ++i) {
        chooseColour(painter, m_scene.people[i], m_peopleColours[i]);
        painter.drawEllipse(transform.map(m_scene.people[i].position), radius, radius);
    }
}

void SceneDrawing::drawTrails(QPainter &painter, const QTransform &transform) const
{
    painter.setBrush(Qt::NoBrush);
    for (qsizetype i = 0; i < m_scene.people.size(); ++i) {
        QPolygonF way{transform.map(m_scene.people[i].position)};
        for (const QList<QPointF> &before : m_trail) {
            if (i < before.size())
                way << transform.map(before[i]);
        }
        chooseColour(painter, m_scene.people[i], Qt::transparent);
        painter.setOpacity(painter.opacity() * trailOpacity);
        painter.setPen(QPen(m_peopleColours[i], 1.0));
        painter.drawPolyline(way);
    }
    painter.setOpacity(1.0);
}

void SceneDrawing::drawDensity(QPainter &painter, const QTransform &transform) const
{
    QHash<QPoint, int> cells;
    for (const SceneMover &person : m_scene.people)
        ++cells[QPoint(qFloor(person.position.x() / densityCell), qFloor(person.position.y() / densityCell))];
    painter.setPen(Qt::NoPen);
    painter.setOpacity(1.0);
    for (auto cell = cells.cbegin(); cell != cells.cend(); ++cell) {
        const double share = std::min(1.0, cell.value() / (fullDensity * densityCell * densityCell));
        QColor colour = Palette::warning;
        colour.setAlphaF(float(0.15 + 0.85 * share));
        const QRectF area(QPointF(cell.key()) * densityCell, QSizeF(densityCell, densityCell));
        painter.fillRect(transform.mapRect(area), colour);
    }
}

bool SceneDrawing::isBright(const SceneMover &mover) const
{
    const bool hasTag =
        std::any_of(mover.tags.cbegin(), mover.tags.cend(), [this](int id) { return m_highlightedTags.contains(id); });
    return (m_options.highlightedType.isEmpty() || mover.type == m_options.highlightedType)
        && (m_options.highlightedTag.isEmpty() || hasTag);
}

void SceneDrawing::chooseColour(QPainter &painter, const SceneMover &mover, const QColor &colour) const
{
    painter.setOpacity(isBright(mover) ? 1.0 : dimmed);
    painter.setBrush(colour);
}
