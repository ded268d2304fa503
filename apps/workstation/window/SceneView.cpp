#include "window/SceneView.h"

#include "look/Palette.h"
#include "window/AccessibleSceneView.h"
#include "window/MoverAt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double zoomOfWheelStep = 1.25;
constexpr int panStep = 40;
constexpr int crossArm = 8;

/// Where a key moves what is in the middle of the view, in steps.
QPointF wayOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

SceneView::SceneView(QWidget *parent) : QWidget(parent)
{
    AccessibleSceneView::install();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
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
    if (hasFocus() && m_showsFocus)
        paintFocus(&painter);
}

void SceneView::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (!setZoomAt(event->position(), event->angleDelta().y() / 120.0))
        return;
    if (event->buttons() == Qt::NoButton)
        showPointer(VelmoCursor::Zoom); // until the pointer moves
    emit zoomChanged(options().zoom);
}

void SceneView::focusInEvent(QFocusEvent *event)
{
    m_showsFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QWidget::focusInEvent(event);
}

void SceneView::keyPressEvent(QKeyEvent *event)
{
    const QPointF way = wayOf(event->key());
    const bool zooms = event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus;
    const bool picks = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool hasModifier = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (hasModifier || (way.isNull() && !zooms && !picks)) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_showsFocus = true;
    update();
    if (picks)
        pickInTheMiddle();
    else if (zooms)
        zoomInTheMiddle(event->key() == Qt::Key_Plus ? 1 : -1);
    else
        pan(way * panStep);
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
    pan(m_dragged - event->position());
    m_dragged = event->position();
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

void SceneView::zoomInTheMiddle(int steps)
{
    if (setZoomAt(QRectF(rect()).center(), steps))
        emit zoomChanged(options().zoom);
}

void SceneView::pan(QPointF way)
{
    const QTransform toScene = sceneToView().inverted();
    m_centre += toScene.map(way) - toScene.map(QPointF());
    update();
}

bool SceneView::setZoomAt(QPointF point, double steps)
{
    const double zoom = std::clamp(options().zoom * std::pow(zoomOfWheelStep, steps), ViewOptions::smallestZoom,
                                   ViewOptions::largestZoom);
    if (zoom == options().zoom)
        return false;
    const QPointF under = sceneToView().inverted().map(point);
    m_centre = under + (m_centre - under) * options().zoom / zoom;
    m_drawing.setZoom(zoom);
    update();
    return true;
}

/// A ring round the view, and a cross where the keys pick.
void SceneView::paintFocus(QPainter *painter) const
{
    const QPointF middle = QRectF(rect()).center();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Palette::accent);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->drawLine(middle - QPointF(crossArm, 0), middle + QPointF(crossArm, 0));
    painter->drawLine(middle - QPointF(0, crossArm), middle + QPointF(0, crossArm));
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
