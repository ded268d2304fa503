#include "window/SceneView.h"

#include "look/Palette.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int margin = 24;
constexpr double personDiameter = 0.9; // metres; drawn larger than life, to be seen at all
constexpr double smallestDot = 3.0; // logical pixels
constexpr QSizeF vehicleSize(4.6, 1.9);

} // namespace

SceneView::SceneView(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SceneView::setScene(const Scene &scene)
{
    m_scene = scene;
    setAccessibleName(tr("Scene %1 from above").arg(scene.name));
    update();
}

const Scene &SceneView::scene() const
{
    return m_scene;
}

void SceneView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Palette::deep);
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform transform = sceneToView();
    painter.fillRect(transform.mapRect(m_scene.bounds()), Palette::window);

    painter.setPen(QPen(Palette::secondaryText, 1.5));
    for (const QPolygonF &wall : m_scene.walls)
        painter.drawPolyline(transform.map(wall));

    painter.setPen(Qt::NoPen);
    const auto colourOf = [this](const SceneMover &mover, const QColor &otherwise) {
        const QColor colour = m_scene.colourOf(mover);
        return colour.isValid() ? colour : otherwise;
    };
    for (const SceneMover &vehicle : m_scene.vehicles) {
        QTransform place = QTransform(transform).translate(vehicle.position.x(), vehicle.position.y());
        place.rotate(vehicle.heading);
        painter.setBrush(colourOf(vehicle, Palette::warning));
        painter.drawPolygon(place.map(
            QPolygonF(QRectF(QPointF(), vehicleSize).translated(-vehicleSize.width() / 2, -vehicleSize.height() / 2))));
    }
    const double diameter = std::max(smallestDot, personDiameter * transform.m11());
    for (const SceneMover &person : m_scene.people) {
        painter.setBrush(colourOf(person, Palette::accent));
        const QPointF centre = transform.map(person.position);
        painter.drawEllipse(centre, diameter / 2, diameter / 2);
    }
}

QTransform SceneView::sceneToView() const
{
    const QRectF bounds = m_scene.bounds();
    const double scale = std::min(std::max(1, width() - 2 * margin) / bounds.width(),
                                  std::max(1, height() - 2 * margin) / bounds.height());
    QTransform transform = QTransform::fromTranslate(width() / 2.0, height() / 2.0).scale(scale, -scale);
    return transform.translate(-bounds.center().x(), -bounds.center().y());
}
