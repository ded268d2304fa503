#include "window/SceneView.h"

#include "look/Palette.h"
#include "window/AccessibleSceneView.h"
#include "window/MoverAt.h"

#include <QApplication>
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
    AccessibleSceneView::install();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    showPointer(VelmoCursor::OpenHand);
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
    if (event->buttons() == Qt::NoButton)
        showPointer(VelmoCursor::Zoom); // until the pointer moves
    emit zoomChanged(zoom);
}

void SceneView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = m_dragged = event->position();
    m_isDragging = false;
    showPointer(moverUnder(m_pressed) ? VelmoCursor::Pick : VelmoCursor::ClosedHand);
}

void SceneView::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton)) {
        showPointerAt(event->position());
        return;
    }
    const double way = (event->position() - m_pressed).manhattanLength();
    if (!m_isDragging && way < QApplication::startDragDistance())
        return;
    m_isDragging = true;
    showPointer(VelmoCursor::ClosedHand);
    const QTransform toScene = sceneToView().inverted();
    m_centre += toScene.map(m_dragged) - toScene.map(event->position());
    m_dragged = event->position();
    update();
}

void SceneView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    showPointerAt(event->position());
    if (m_isDragging)
        return;
    pickAt(m_pressed);
}

void SceneView::pickInTheMiddle()
{
    pickAt(QRectF(rect()).center());
}

void SceneView::pickAt(QPointF point)
{
    const SceneMover *mover = moverUnder(point);
    emit moverPicked(mover ? mover->type : QString());
}

const SceneMover *SceneView::moverUnder(QPointF point) const
{
    return moverAt(scene(), options(), sceneToView(), point);
}

void SceneView::showPointer(VelmoCursor::Shape shape)
{
    const QCursor pointer = VelmoCursor::cursorFor(shape, this);
    if (pointer != cursor())
        setCursor(pointer);
}

void SceneView::showPointerAt(QPointF point)
{
    showPointer(moverUnder(point) ? VelmoCursor::Pick : VelmoCursor::OpenHand);
}

QTransform SceneView::sceneToView() const
{
    return m_drawing.toView(size(), m_centre);
}
