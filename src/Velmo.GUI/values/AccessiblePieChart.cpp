#include "values/AccessiblePieChart.h"

#include "foundation/AccessibleWidgets.h"
#include "values/PieModel.h"
#include "values/PieRing.h"
#include "values/oVIXPieChartWidget.h"

#include <QPointer>

#include <utility>

namespace {

class AccessiblePieSlice : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessiblePieSlice(oVIXPieChartWidget *chart, int row) : m_chart(chart), m_row(row) { }

    int row() const { return m_row; }

    bool isValid() const override { return parentChart() && m_row < parentChart()->sliceCount(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return parentChart(); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && isValid() ? parentChart()->textOf(m_row) : QString();
    }
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override { return isValid() ? parentChart()->rectOf(m_row) : QRect(); }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const QAccessible::State chart = parentChart()->state();
        state.disabled = chart.disabled;
        state.invisible = chart.invisible;
        state.selectable = !chart.disabled;
        state.selected = parentChart()->isSelected(m_row);
        state.checkable = true;
        state.checked = parentChart()->isLocked(m_row);
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override
    {
        return isValid() && !state().disabled ? QStringList{pressAction(), toggleAction()} : QStringList();
    }
    void doAction(const QString &action) override
    {
        if (!actionNames().contains(action))
            return;
        if (action == pressAction())
            parentChart()->select(m_row);
        else
            parentChart()->toggleLock(m_row);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    AccessiblePieChart *parentChart() const
    {
        return m_chart ? static_cast<AccessiblePieChart *>(QAccessible::queryAccessibleInterface(m_chart)) : nullptr;
    }

    QPointer<oVIXPieChartWidget> m_chart;
    int m_row;
};

} // namespace

void AccessiblePieChart::install()
{
    static const bool filled = [] {
        AccessibleWidgets::add("oVIXPieChartWidget", [](QWidget *widget) -> QAccessibleInterface * {
            return new AccessiblePieChart(widget);
        });
        return true;
    }();
    Q_UNUSED(filled)
    AccessibleWidgets::install();
}

void AccessiblePieChart::announceSelection(oVIXPieChartWidget *chart, int row)
{
    if (!QAccessible::isActive() || row < 0)
        return;
    QAccessibleEvent event(chart, QAccessible::Selection);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

AccessiblePieChart::AccessiblePieChart(QWidget *widget) : QAccessibleWidget(widget, QAccessible::Chart)
{ }

AccessiblePieChart::~AccessiblePieChart()
{
    for (const QAccessible::Id id : std::as_const(m_slices))
        QAccessible::deleteAccessibleInterface(id);
}

int AccessiblePieChart::childCount() const
{
    return sliceCount() + QAccessibleWidget::childCount();
}

QAccessibleInterface *AccessiblePieChart::child(int index) const
{
    if (index < 0)
        return nullptr;
    if (index >= sliceCount())
        return QAccessibleWidget::child(index - sliceCount());
    auto known = m_slices.find(index);
    if (known == m_slices.end()) {
        auto *slice = new AccessiblePieSlice(chart(), index);
        known = m_slices.insert(index, QAccessible::registerAccessibleInterface(slice));
    }
    return QAccessible::accessibleInterface(*known);
}

int AccessiblePieChart::indexOfChild(const QAccessibleInterface *child) const
{
    if (const auto *slice = dynamic_cast<const AccessiblePieSlice *>(child))
        return slice->row();
    const int control = QAccessibleWidget::indexOfChild(child);
    return control < 0 ? -1 : sliceCount() + control;
}

QAccessibleInterface *AccessiblePieChart::childAt(int x, int y) const
{
    const int slice = chart()->sliceAt(chart()->mapFromGlobal(QPoint(x, y)));
    return slice < 0 ? QAccessibleWidget::childAt(x, y) : child(slice);
}

int AccessiblePieChart::sliceCount() const
{
    return PieModel::count(chart()->m_model);
}

QString AccessiblePieChart::textOf(int row) const
{
    return chart()->sliceText(row);
}

QRect AccessiblePieChart::rectOf(int row) const
{
    const PieRing::Arc *arc = chart()->arcOf(row);
    return arc ? PieRing::boundingRect(*arc, chart()->size()).translated(chart()->mapToGlobal(QPoint())) : QRect();
}

bool AccessiblePieChart::isSelected(int row) const
{
    return row == chart()->m_currentIndex;
}

bool AccessiblePieChart::isLocked(int row) const
{
    return PieModel::isLocked(chart()->m_model, row);
}

void AccessiblePieChart::select(int row)
{
    chart()->onSelectionChanged(row);
}

void AccessiblePieChart::toggleLock(int row)
{
    chart()->lockSlice(row, !isLocked(row));
}

oVIXPieChartWidget *AccessiblePieChart::chart() const
{
    return static_cast<oVIXPieChartWidget *>(widget());
}
