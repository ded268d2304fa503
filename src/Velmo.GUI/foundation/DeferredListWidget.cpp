#include "foundation/DeferredListWidget.h"

#include <QScopedValueRollback>

#include <utility>

namespace {

/// Undoes what children took over from a parent that was held when they were made. Does not ask for repaints one by
/// one, as `QWidget::setUpdatesEnabled` does.
void enableUpdates(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UpdatesDisabled, false);
    for (QObject *object : widget->children()) {
        auto *child = qobject_cast<QWidget *>(object);
        if (child && !child->isWindow() && child->testAttribute(Qt::WA_UpdatesDisabled)
            && !child->testAttribute(Qt::WA_ForceUpdatesDisabled))
            enableUpdates(child);
    }
}

} // namespace

DeferredListWidget::DeferredListWidget(QWidget *parent) : QListWidget(parent)
{ }

DeferredListWidget::~DeferredListWidget() = default;

void DeferredListWidget::setRowWidget(QListWidgetItem *item, QWidget *widget)
{
    if (widget->minimumWidth() == widget->maximumWidth()) {
        m_centredWidgets.removeAll(nullptr);
        m_centredWidgets.append(widget);
    }
    widget->move(0, -widget->height());
    setItemWidget(item, widget);
}

void DeferredListWidget::doItemsLayout()
{
    QListWidget::doItemsLayout();
    releaseUpdates();
}

void DeferredListWidget::hideEvent(QHideEvent *event)
{
    // A hidden list does not run its posted layout, and a held viewport would not paint after the next show.
    releaseUpdates();
    QListWidget::hideEvent(event);
}

void DeferredListWidget::rowsInserted(const QModelIndex &parent, int first, int last)
{
    const QScopedValueRollback inserting(m_inserting, true);
    if (isVisible())
        holdUpdates();
    QListWidget::rowsInserted(parent, first, last);
}

void DeferredListWidget::updateEditorGeometries()
{
    if (m_inserting)
        return;
    QListWidget::updateEditorGeometries();
    centreWidgets();
}

void DeferredListWidget::centreWidgets()
{
    for (const QPointer<QWidget> &widget : std::as_const(m_centredWidgets)) {
        if (widget)
            widget->move((viewport()->width() - widget->width()) / 2, widget->y());
    }
}

void DeferredListWidget::holdUpdates()
{
    viewport()->setAttribute(Qt::WA_UpdatesDisabled, true);
    m_holdsUpdates = true;
}

void DeferredListWidget::releaseUpdates()
{
    if (!m_holdsUpdates)
        return;
    m_holdsUpdates = false;
    // The application may have disabled updates itself, on the list or on the viewport.
    if (!updatesEnabled() || viewport()->testAttribute(Qt::WA_ForceUpdatesDisabled))
        return;
    enableUpdates(viewport());
    viewport()->update();
}
