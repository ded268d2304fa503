#pragma once

#include <QAccessibleWidget>
#include <QHash>

class oVIXPieChartWidget;

/// The pie chart as assistive tools see it: a chart whose children are the slices, by row, and then the controls. A
/// slice says, for instance, "Tourists, 25 percent, locked"; pressing selects it, toggling locks or unlocks it.
class AccessiblePieChart : public QAccessibleWidget
{
public:
    static void install();
    /// Tells that another slice is selected.
    static void announceSelection(oVIXPieChartWidget *chart, int row);

    explicit AccessiblePieChart(QWidget *widget);
    ~AccessiblePieChart() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;

    int sliceCount() const;
    QString textOf(int row) const;
    /// The smallest rectangle round the slice on the screen.
    QRect rectOf(int row) const;
    bool isSelected(int row) const;
    bool isLocked(int row) const;
    void select(int row);
    void toggleLock(int row);

private:
    oVIXPieChartWidget *chart() const;

    mutable QHash<int, QAccessible::Id> m_slices;
};
