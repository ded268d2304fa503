#include "values/oVIXPieChartWidget.h"

#include "foundation/KeyboardPress.h"
#include "foundation/OvixSvgButton.h"
#include "values/AccessiblePieChart.h"
#include "values/PieChartPainter.h"
#include "values/PieControls.h"
#include "values/PieMenu.h"
#include "values/PieModel.h"
#include "values/PieRingView.h"
#include "values/PieShares.h"
#include "values/oVIXSliderWidget.h"

#include <QAbstractItemModel>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

constexpr int ringSide = 2 * PieRing::OuterRadius;
constexpr int labelRoom = 40;

} // namespace

oVIXPieChartWidget::oVIXPieChartWidget(QWidget *parent)
    : QWidget(parent), m_controls(new PieControls(this)), m_ring(new PieRingView)
{
    AccessiblePieChart::install();
    setMinimumSize(ringSide, ringSide);
    setMouseTracking(true);
    installEventFilter(this);

    const oVIXSliderWidget *slider = m_controls->slider();
    connect(slider, &oVIXSliderWidget::valueStarted, this, &oVIXPieChartWidget::valueStarted);
    connect(slider, qOverload<double>(&oVIXSliderWidget::valueChanged), this,
            &oVIXPieChartWidget::onSpinboxValueChanged);
    connect(slider, &oVIXSliderWidget::valueFinished, this, [this] {
        // A value that the box rounds would end an edit that goes on.
        if (!m_controls->isWriting())
            emit valueFinished();
    });
    connect(m_controls->lockButton(), &OvixSvgButton::clicked, this, &oVIXPieChartWidget::onLockButtonClicked);
    showSelection();
}

oVIXPieChartWidget::~oVIXPieChartWidget()
{
    // What the children and the model say when they go would come too late.
    disconnect(m_controls->slider(), nullptr, this, nullptr);
    if (m_model)
        disconnect(m_model, nullptr, this, nullptr);
}

void oVIXPieChartWidget::setModel(QAbstractItemModel *model)
{
    if (model == m_model)
        return;
    if (m_model)
        disconnect(m_model, nullptr, this, nullptr);
    m_model = model;
    m_current = QPersistentModelIndex();
    m_ring->turnBack();
    if (model) {
        const auto rowsChanged = [this] { modelRowsChanged(); };
        connect(model, &QAbstractItemModel::dataChanged, this, &oVIXPieChartWidget::modelDataChanged);
        connect(model, &QAbstractItemModel::headerDataChanged, this, qOverload<>(&QWidget::update));
        connect(model, &QAbstractItemModel::rowsInserted, this, rowsChanged);
        connect(model, &QAbstractItemModel::rowsRemoved, this, rowsChanged);
        connect(model, &QAbstractItemModel::rowsMoved, this, rowsChanged);
        connect(model, &QAbstractItemModel::columnsInserted, this, rowsChanged);
        connect(model, &QAbstractItemModel::columnsRemoved, this, rowsChanged);
        connect(model, &QAbstractItemModel::columnsMoved, this, rowsChanged);
        connect(model, &QAbstractItemModel::layoutChanged, this, rowsChanged);
        connect(model, &QAbstractItemModel::modelReset, this, rowsChanged);
        connect(model, &QObject::destroyed, this, rowsChanged);
    }
    modelRowsChanged();
}

QAbstractItemModel *oVIXPieChartWidget::model() const
{
    return m_model;
}

QSize oVIXPieChartWidget::sizeHint() const
{
    return QSize(ringSide, ringSide) + 2 * QSize(labelRoom, labelRoom);
}

void oVIXPieChartWidget::onSelectionChanged(int index)
{
    const QPointer<oVIXPieChartWidget> alive(this);
    if (index < 0 || PieModel::has(m_model, index))
        endEdit();
    if (!alive || (index >= 0 && !PieModel::has(m_model, index)))
        return;
    m_currentIndex = std::max(index, -1);
    m_current = index < 0 ? QModelIndex() : m_model->index(index, 0);
    showSelection();
    update();
    AccessiblePieChart::announceSelection(this, m_currentIndex);
    emit indexChanged(m_currentIndex);
}

void oVIXPieChartWidget::onSpinboxValueChanged(double value)
{
    if (m_controls->isWriting() || m_redistributing || !m_current.isValid() || !std::isfinite(value))
        return;
    const int row = m_current.row();
    if (PieModel::isLocked(m_model, row))
        return;
    value = std::clamp(value, 0.0, double(PieShares::Whole));
    const float share = PieModel::share(m_model, row);
    const auto difference = float(value - double(share));
    if (PieShares::isSame(difference, 0.0F))
        return;
    if (value < double(PieShares::Floor) && PieShares::isSame(PieShares::Floor, share)) {
        m_controls->correctShare(double(PieShares::Floor));
        return;
    }

    const QPointer<oVIXPieChartWidget> alive(this);
    const QPersistentModelIndex changed = m_current;
    m_redistributing = true;
    const std::optional<float> result = PieModel::redistribute(m_model, row, difference);
    if (!alive)
        return;
    m_redistributing = false;
    markRingStale();
    followSelection();
    if (!alive || !result || m_current != changed)
        return;
    m_controls->correctShare(double(*result));
    emit valueChanged(double(*result));
    if (alive)
        updateLock(); // the model may have answered with a lock
}

void oVIXPieChartWidget::onLockButtonClicked()
{
    if (m_currentIndex >= 0)
        lockSlice(m_currentIndex, m_controls->lockButton()->isChecked());
}

void oVIXPieChartWidget::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    PieChartLook look = ring().look();
    const int count = int(look.arcs.size());
    const int captioned = look.hovered < 0 ? m_currentIndex : look.hovered;
    look.area = rect();
    look.selected = m_currentIndex < count ? m_currentIndex : -1;
    look.enabled = isEnabled();
    look.title = captioned < 0 && count > 0 ? tr("Select a slice") : PieModel::name(m_model, captioned);
    if (captioned != m_currentIndex && captioned < count)
        look.detail = piePercentText(look.shares[size_t(captioned)]);

    QPainter painter(this);
    paintPieChart(painter, look);
    painter.end();
    paintFocusRing(this);
}

void oVIXPieChartWidget::mousePressEvent(QMouseEvent *event)
{
    const auto [distance, angle] = calculateMousePosFromPieCenter(event->position().toPoint());
    const PieRing::Arc *arc = arcOf(m_currentIndex);
    if (event->button() != Qt::LeftButton || !PieRing::isOnRing(distance) || !arc || arc->locked)
        return;
    m_ring->press(*arc, angle, m_controls->share());
    updateHover(event->position().toPoint());
}

void oVIXPieChartWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_ring->drag().isRunning()) {
        updateHover(event->position().toPoint());
        return;
    }
    const auto [distance, angle] = calculateMousePosFromPieCenter(event->position().toPoint());
    if (!(event->buttons() & Qt::LeftButton))
        endDrag();
    else if (PieRing::isOnRing(distance))
        dragTo(angle);
}

void oVIXPieChartWidget::contextMenuEvent(QContextMenuEvent *event)
{
    const int pointed = event->reason() == QContextMenuEvent::Mouse ? sliceAt(event->pos()) : -1;
    showMenu(pointed < 0 ? m_currentIndex : pointed, event->globalPos());
    event->accept();
}

void oVIXPieChartWidget::keyPressEvent(QKeyEvent *event)
{
    const int last = m_model ? m_model->rowCount() - 1 : -1;
    const bool goesBack = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    const bool goesOn = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool locks = isPressKey(this, event);
    if (!hasKeyboardFocus(this) || last < 0 || (!goesBack && !goesOn && !locks)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!locks)
        onSelectionChanged(goesBack ? std::max(m_currentIndex - 1, 0) : std::min(m_currentIndex + 1, last));
    else if (m_current.isValid() && !event->isAutoRepeat())
        lockSlice(m_currentIndex, !PieModel::isLocked(m_model, m_currentIndex));
}

bool oVIXPieChartWidget::eventFilter(QObject *watched, QEvent *event)
{
    // A filter sees what a disabled widget does not get.
    if (watched != this || event->type() != QEvent::MouseButtonRelease || !isEnabled())
        return QWidget::eventFilter(watched, event);
    const auto *release = static_cast<QMouseEvent *>(event);
    if (release->button() != Qt::LeftButton)
        return false;
    const QPointer<oVIXPieChartWidget> alive(this);
    if (m_ring->drag().hasMoved()) {
        endDrag();
    } else {
        m_ring->endDrag();
        const int slice = sliceAt(release->position().toPoint());
        if (slice >= 0)
            onSelectionChanged(slice);
    }
    if (alive)
        updateHover(release->position().toPoint());
    return !alive; // a widget that is gone must not get the event
}

bool oVIXPieChartWidget::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int slice = sliceAt(help->pos());
    if (slice < 0)
        return QWidget::event(event);
    QToolTip::showText(help->globalPos(), sliceText(slice), this);
    return true;
}

void oVIXPieChartWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_controls->centreOn({width() / 2, height() / 2});
}

void oVIXPieChartWidget::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    setHover(-1, PieRing::Edge::None);
}

void oVIXPieChartWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    setHover(-1, PieRing::Edge::None);
    endDrag();
}

void oVIXPieChartWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::EnabledChange)
        return;
    update();
    if (!isEnabled())
        endDrag();
}

QPair<double, int> oVIXPieChartWidget::calculateMousePosFromPieCenter(const QPoint &point) const
{
    const PieRing::Polar polar = PieRing::polar(point, size());
    return {polar.distance, polar.angle};
}

PieRingView &oVIXPieChartWidget::ring() const
{
    m_ring->read(m_model);
    return *m_ring;
}

const PieRing::Arc *oVIXPieChartWidget::arcOf(int row) const
{
    return ring().arcOf(row);
}

int oVIXPieChartWidget::sliceAt(const QPoint &point) const
{
    const auto [distance, angle] = calculateMousePosFromPieCenter(point);
    return ring().sliceAt(distance, angle);
}

/// "Tourists, 25 percent, locked"
QString oVIXPieChartWidget::sliceText(int row) const
{
    const PieRing::Slice slice{PieModel::share(m_model, row), PieModel::isLocked(m_model, row)};
    const QString share = pieNumberText(slice.share);
    const QString name = PieModel::name(m_model, row);
    return slice.locked ? tr("%1, %2 percent, locked").arg(name, share) : tr("%1, %2 percent").arg(name, share);
}

void oVIXPieChartWidget::modelDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    if (topLeft.parent().isValid() || topLeft.column() > 0)
        return;
    markRingStale();
    if (m_redistributing || m_currentIndex < topLeft.row() || m_currentIndex > bottomRight.row())
        return;
    if (m_controls->shows(selectedShare()))
        updateLock();
    else
        showSelection();
}

void oVIXPieChartWidget::modelRowsChanged()
{
    markRingStale();
    setHover(-1, PieRing::Edge::None);
    // Rows may come and go while shares are written: that has an end to wait for.
    if (!m_redistributing)
        followSelection();
}

/// To the row where the selected slice is now, or to none.
void oVIXPieChartWidget::followSelection()
{
    const int row = m_current.isValid() ? m_current.row() : -1;
    if (row == m_currentIndex)
        return;
    m_currentIndex = row;
    if (row < 0) {
        const QPointer<oVIXPieChartWidget> alive(this);
        endEdit();
        if (!alive)
            return;
        showSelection();
    }
    emit indexChanged(row);
}

void oVIXPieChartWidget::markRingStale()
{
    if (m_ring->markStale())
        update();
}

double oVIXPieChartWidget::selectedShare() const
{
    return m_current.isValid() ? double(PieModel::share(m_model, m_current.row())) : 0.0;
}

/// In the controls.
void oVIXPieChartWidget::showSelection()
{
    m_controls->setShare(selectedShare());
    updateLock();
}

void oVIXPieChartWidget::updateLock()
{
    const bool selected = m_current.isValid();
    m_controls->setLock(selected, selected && PieModel::isLocked(m_model, m_current.row()));
}

void oVIXPieChartWidget::lockSlice(int row, bool locked)
{
    const QPointer<oVIXPieChartWidget> alive(this);
    const bool done = PieModel::setLocked(m_model, row, locked);
    if (alive)
        endLocking(done);
}

void oVIXPieChartWidget::unlockAll()
{
    const QPointer<oVIXPieChartWidget> alive(this);
    const bool done = PieModel::unlockAll(m_model);
    if (alive)
        endLocking(done);
}

void oVIXPieChartWidget::endLocking(bool done)
{
    updateLock();
    markRingStale();
    if (done)
        emit lockedChanged();
}

void oVIXPieChartWidget::makeEqual()
{
    if (m_redistributing)
        return;
    const QPointer<oVIXPieChartWidget> alive(this);
    m_redistributing = true;
    const bool done = PieModel::makeEqual(m_model);
    if (!alive)
        return;
    m_redistributing = false;
    markRingStale();
    followSelection();
    if (!alive)
        return;
    showSelection();
    if (!done)
        return;
    if (m_current.isValid() && !PieModel::isLocked(m_model, m_current.row()))
        emit valueChanged(selectedShare());
    if (alive)
        emit valueFinished();
}

void oVIXPieChartWidget::updateHover(const QPoint &point)
{
    const auto [distance, angle] = calculateMousePosFromPieCenter(point);
    const PieRingView::Hover hover = ring().hoverAt(distance, angle, m_currentIndex);
    setHover(hover.slice, hover.edge);
}

void oVIXPieChartWidget::setHover(int slice, PieRing::Edge edge)
{
    if (edge == PieRing::Edge::None)
        unsetCursor();
    else
        setCursor(m_ring->drag().isRunning() ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    const PieRingView::Hover before = m_ring->hover();
    if (m_ring->setHover({slice, edge}))
        update(m_ring->areaOf(before, m_currentIndex, size()) + m_ring->areaOf({slice, edge}, m_currentIndex, size()));
}

void oVIXPieChartWidget::dragTo(int angle)
{
    const PieRing::Arc *before = arcOf(m_currentIndex);
    if (!before || before->locked) {
        endDrag();
        return;
    }
    const bool first = !m_ring->drag().hasMoved();
    if (!m_ring->drag().moveTo(angle))
        return;
    const QPointer<oVIXPieChartWidget> alive(this);
    if (first)
        emit valueStarted();
    if (!alive || !m_ring->drag().isRunning())
        return;

    // The slider widget announces a new value twice; one step is one redistribution.
    const double shown = m_controls->share();
    m_controls->setShare(m_ring->drag().share());
    if (m_controls->share() != shown)
        onSpinboxValueChanged(m_controls->share());
    if (!alive || !m_ring->drag().isRunning())
        return;
    if (ring().holdOtherEdge(m_currentIndex))
        update();
}

void oVIXPieChartWidget::endDrag()
{
    if (!m_ring->endDrag())
        return;
    // From now on the box counts this value as finished.
    showSelection();
    emit valueFinished();
}

/// Whatever the user does to the selected slice ends before another one is selected.
void oVIXPieChartWidget::endEdit()
{
    const QPointer<oVIXPieChartWidget> alive(this);
    endDrag();
    if (alive)
        m_controls->finishTyping();
}

void oVIXPieChartWidget::showMenu(int row, const QPoint &globalPlace)
{
    auto *menu = new PieMenu(ring().slices(), row, PieModel::name(m_model, row), this);
    // The rows may move while the menu is open.
    const QPersistentModelIndex slice = row < 0 ? QModelIndex() : m_model->index(row, 0);
    const bool locked = PieModel::isLocked(m_model, row);
    connect(menu->lockAction(), &QAction::triggered, this, [this, slice, locked] {
        if (slice.isValid() && slice.model() == m_model)
            lockSlice(slice.row(), !locked);
    });
    connect(menu->unlockAllAction(), &QAction::triggered, this, &oVIXPieChartWidget::unlockAll);
    connect(menu->makeEqualAction(), &QAction::triggered, this, &oVIXPieChartWidget::makeEqual);
    menu->popup(globalPlace);
}
