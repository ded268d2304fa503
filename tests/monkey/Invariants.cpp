#include "monkey/Invariants.h"

#include "OvixMovableLabel.h"
#include "VelmoScenesTable.h"
#include "oVIXCombo.h"
#include "oVIXDragDropTags.h"
#include "oVIXPieChartWidget.h"
#include "oVIXSliderBar.h"
#include "oVIXSliderWidget.h"
#include "oVIXTimebarWidget.h"

#include <QAbstractItemModel>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool isBetween(double value, double least, double most)
{
    return std::isfinite(value) && value >= least && value <= most;
}

bool holds(const OvixMovableLabel *marker)
{
    return isBetween(marker->getValue(), 0, marker->getMaximumValue());
}

bool holds(const VelmoScenesTable *table)
{
    const int row = table->getSelectedRow();
    return row >= -1 && row < table->getSceneCount() && (row >= 0 || table->getSelectedScene().isEmpty());
}

bool holds(const oVIXCombo *combo)
{
    return combo->currentIndex() >= -1 && combo->currentIndex() < combo->count();
}

/// But for the last one, which may be the add tag.
bool isSorted(const QStringList &tags)
{
    for (qsizetype i = 1; i < tags.size() - 1; ++i) {
        if (tags[i - 1].compare(tags[i], Qt::CaseInsensitive) > 0)
            return false;
    }
    return true;
}

bool holds(const oVIXDragDropTags *editor)
{
    return isSorted(editor->getLeftTags()) && isSorted(editor->getRightTags());
}

bool holds(const oVIXPieChartWidget *chart)
{
    const QAbstractItemModel *model = chart->model();
    for (int row = 0; model && row < model->rowCount(); ++row) {
        if (!isBetween(model->index(row, 0).data(Qt::EditRole).toDouble(), 0, 100.001))
            return false;
    }
    return true;
}

bool holds(const oVIXSliderBar *bar)
{
    return isBetween(bar->getSelectedValue(), 0, 1);
}

bool holds(const oVIXSliderWidget *slider)
{
    constexpr double rounding = 1e-6;
    return isBetween(slider->value(), slider->minimum() - rounding, slider->spinBoxMaximum() + rounding);
}

/// Playing begins with the crop, also where nothing has been computed yet.
bool holds(const oVIXTimebarWidget *timebar)
{
    const int first = timebar->getCropStartValue();
    return first <= timebar->getCropEndValue()
        && isBetween(timebar->getCurrentPlayValue(), 0, std::max(first, timebar->getCached()));
}

template <class Widget> bool allHold(const QWidget *root)
{
    for (const Widget *widget : root->findChildren<Widget *>()) {
        if (!holds(widget))
            return false;
    }
    return true;
}

/// The names of the classes of which one does not hold.
template <class... Widgets> QString flawsOf(const QWidget *root)
{
    QString flaws;
    ((flaws += allHold<Widgets>(root) ? QString() : QLatin1String(Widgets::staticMetaObject.className()) + u' '), ...);
    return flaws.trimmed();
}

} // namespace

QString Invariants::flawIn(const QWidget *root)
{
    return flawsOf<OvixMovableLabel, VelmoScenesTable, oVIXCombo, oVIXDragDropTags, oVIXPieChartWidget, oVIXSliderBar,
                   oVIXSliderWidget, oVIXTimebarWidget>(root);
}
