#include "foundation/DeferredListWidget.h"

#include <utility>

DeferredListWidget::DeferredListWidget(QWidget *parent) : QListWidget(parent)
{ }

DeferredListWidget::~DeferredListWidget() = default;

void DeferredListWidget::setRowWidget(QListWidgetItem *item, QWidget *widget)
{
    if (widget->minimumWidth() == widget->maximumWidth()) {
        m_centredWidgets.removeAll(nullptr);
        m_centredWidgets.append(widget);
    }
    DeferredRows::park(widget);
    setItemWidget(item, widget);
}

void DeferredListWidget::doItemsLayout()
{
    QListWidget::doItemsLayout();
    m_deferred.release();
}

void DeferredListWidget::hideEvent(QHideEvent *event)
{
    m_deferred.release();
    QListWidget::hideEvent(event);
}

void DeferredListWidget::rowsInserted(const QModelIndex &parent, int first, int last)
{
    const auto inserting = m_deferred.inserting();
    QListWidget::rowsInserted(parent, first, last);
}

void DeferredListWidget::updateEditorGeometries()
{
    if (m_deferred.isInserting())
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
