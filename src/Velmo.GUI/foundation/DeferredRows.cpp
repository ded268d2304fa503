#include "foundation/DeferredRows.h"

#include <QAbstractItemView>

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

DeferredRows::DeferredRows(QAbstractItemView *view) : m_view(view)
{ }

void DeferredRows::park(QWidget *widget)
{
    widget->move(0, -widget->height());
}

QScopedValueRollback<bool> DeferredRows::inserting()
{
    if (m_view->isVisible()) {
        m_view->viewport()->setAttribute(Qt::WA_UpdatesDisabled, true);
        m_holdsUpdates = true;
    }
    return QScopedValueRollback<bool>(m_inserting, true);
}

bool DeferredRows::isInserting() const
{
    return m_inserting;
}

void DeferredRows::release()
{
    if (!m_holdsUpdates)
        return;
    m_holdsUpdates = false;
    // The application may have disabled updates itself, on the view or on the viewport.
    QWidget *viewport = m_view->viewport();
    if (!m_view->updatesEnabled() || viewport->testAttribute(Qt::WA_ForceUpdatesDisabled))
        return;
    enableUpdates(viewport);
    viewport->update();
}
