#include "window/SceneView.h"

#include "look/Palette.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double zoomOfWheelStep = 1.25;

} // namespace

SceneView::SceneView(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SceneView::setScene(const Scene &scene)
{
    m_drawing.setScene(scene);
    m_centre = m_drawing.middle();
    setAccessibleName(tr("Scene %1 from above").arg(scene.name));
    update();
    emit zoomChanged(options().zoom);
}

void SceneView::setPeople(const QList<SceneMover> &people)
{
    m_drawing.setPeople(people);
    update();
}

void SceneView::setPositions(const QList<QPointF> &positions, const QList<QList<QPointF>> &trail)
{
    m_drawing.setPositions(positions, trail);
    update();
}

void SceneView::setTags(const Scene &scene)
{
    m_drawing.setTags(scene);
    update();
}

const Scene &SceneView::scene() const
{
    return m_drawing.scene();
}

void SceneView::setOptions(const ViewOptions &options)
{
    m_drawing.setOptions(options);
    update();
}

const ViewOptions &SceneView::options() const
{
    return m_drawing.options();
}

void SceneView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Palette::deep);
    m_drawing.paint(painter, sceneToView());
}

void SceneView::wheelEvent(QWheelEvent *event)
{
    const double steps = event->angleDelta().y() / 120.0;
    const double zoom = std::clamp(options().zoom * std::pow(zoomOfWheelStep, steps), ViewOptions::smallestZoom,
                                   ViewOptions::largestZoom);
    event->accept();
    if (zoom == options().zoom)
        return;
    // What is under the pointer stays there.
    const QPointF under = sceneToView().inverted().map(event->position());
    m_centre = under + (m_centre - under) * options().zoom / zoom;
    m_drawing.setZoom(zoom);
    update();
    emit zoomChanged(zoom);
}

void SceneView::mousePressEvent(QMouseEvent *event)
{
    m_dragged = event->position();
}

void SceneView::mouseMoveEvent(QMouseEvent *event)
{
    const QTransform toScene = sceneToView().inverted();
    m_centre += toScene.map(m_dragged) - toScene.map(event->position());
    m_dragged = event->position();
    update();
}

QTransform SceneView::sceneToView() const
{
    return m_drawing.toView(size(), m_centre);
}
