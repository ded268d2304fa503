#pragma once

#include "values/PieRing.h"

#include <QCoreApplication>
#include <QMenu>

#include <vector>

/// The context menu of a pie chart. It goes when it closes; what its actions do is the chart's business.
class PieMenu : public QMenu
{
    Q_DECLARE_TR_FUNCTIONS(oVIXPieChartWidget)

public:
    /// For the slice of this row and name; a negative row is none.
    PieMenu(const std::vector<PieRing::Slice> &slices, int row, const QString &name, QWidget *chart);

    /// Locks the slice, or unlocks it when it is locked.
    QAction *lockAction() const { return m_lock; }
    QAction *unlockAllAction() const { return m_unlockAll; }
    QAction *makeEqualAction() const { return m_makeEqual; }

private:
    QAction *m_lock;
    QAction *m_unlockAll;
    QAction *m_makeEqual;
};
