#include "gallery/PieChartPage.h"

#include "gallery/FrozenHover.h"
#include "oVIXPieChartWidget.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QStandardItemModel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int lockedRole = Qt::UserRole + 1;

QStringList actorTypes()
{
    return {PieChartPage::tr("Tourists"),        PieChartPage::tr("Commuters"), PieChartPage::tr("Families"),
            PieChartPage::tr("Stewards"),        PieChartPage::tr("Children"),  PieChartPage::tr("Cyclists"),
            PieChartPage::tr("Wheelchair users")};
}

oVIXPieChartWidget *createChart(const QList<float> &shares, int selected = -1, const QList<int> &locked = {})
{
    auto *chart = new oVIXPieChartWidget(nullptr);
    auto *model = new QStandardItemModel(int(shares.size()), 1, chart);
    for (int row = 0; row < int(shares.size()); ++row) {
        model->setData(model->index(row, 0), shares[row], Qt::EditRole);
        model->setHeaderData(row, Qt::Vertical, actorTypes().value(row, PieChartPage::tr("Group %1").arg(row + 1)));
    }
    for (const int row : locked)
        model->setData(model->index(row, 0), true, lockedRole);
    chart->setModel(model);
    chart->setFixedSize(chart->sizeHint());
    chart->onSelectionChanged(selected);
    return chart;
}

/// A hundred percent in this many shares that differ.
QList<float> unevenShares(int count)
{
    QList<float> shares;
    float sum = 0.0F;
    for (int i = 0; i < count; ++i) {
        shares.append(float(2 + (i * 7) % 5));
        sum += shares.constLast();
    }
    for (float &share : shares)
        share *= 100.0F / sum;
    return shares;
}

oVIXPieChartWidget *hoveredAt(oVIXPieChartWidget *chart, QPoint fromCentre)
{
    freezeHover(chart);
    const QPointF point = chart->rect().center() + fromCentre;
    QMouseEvent move(QEvent::MouseMove, point, point, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(chart, &move);
    return chart;
}

} // namespace

PieChartPage::PieChartPage(QWidget *parent) : GalleryPage(tr("Pie chart"), parent)
{
    addCounts();
    addStates();
    addSizes();
}

void PieChartPage::addCounts()
{
    SampleSection *section =
        addSection(tr("Slices"), tr("Each slice is a row of a model; click one to edit its share."));
    section->addRow({
        {createChart({}), tr("none")},
        {createChart({100.0F}, 0), tr("1 slice")},
        {createChart({62.5F, 37.5F}, 0), tr("2 slices")},
        {createChart({31.0F, 22.0F, 16.0F, 12.0F, 9.5F, 6.5F, 3.0F}, 1), tr("7 slices")},
    });
    section->addRow({
        {createChart(unevenShares(12), 3), tr("12 slices")},
        {createChart(unevenShares(30), 4, {9, 10, 22}), tr("30 slices, some locked")},
        {createChart({71.0F, 15.0F, 5.0F, 1.0F, 1.0F, 1.0F, 1.0F, 1.0F, 1.0F, 1.0F, 1.0F, 1.0F}, 0, {5, 8}),
         tr("ten at the floor of 1%")},
    });
}

void PieChartPage::addStates()
{
    const QList<float> shares{40.0F, 25.0F, 20.0F, 15.0F};
    QWidget *disabled = createChart(shares, 0, {2});
    disabled->setEnabled(false);
    SampleSection *section = addSection(tr("States"));
    section->addRow({
        {createChart(shares), tr("nothing selected")},
        {createChart(shares, 0), tr("selected")},
        {createChart(shares, 2, {0, 2}), tr("selected and locked")},
        {disabled, tr("disabled")},
    });
    section->addRow({
        {hoveredAt(createChart(shares, 0), {-30, 66}), tr("pointer over a slice")},
        {hoveredAt(createChart(shares, 0), {8, -74}), tr("pointer over the start edge")},
        {hoveredAt(createChart(shares, 0), {40, 62}), tr("pointer over the end edge")},
        {createChart({30.0F, 20.0F, 10.0F}, 1), tr("less than the whole")},
    });
}

void PieChartPage::addSizes()
{
    QWidget *smallest = createChart({52.0F, 25.0F, 15.0F, 6.0F, 1.0F, 1.0F}, 0, {1});
    smallest->setFixedSize(200, 200);
    QWidget *wide = createChart({52.0F, 25.0F, 15.0F, 6.0F, 1.0F, 1.0F}, 2, {1});
    wide->setFixedSize(400, 220);
    addSection(tr("Sizes"), tr("The ring keeps its size; labels of narrow slices need room beside it."))
        ->addRow({
            {smallest, tr("smallest, 200 × 200")},
            {wide, tr("400 × 220")},
        });
}
