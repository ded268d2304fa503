// What the pie chart costs: shares redistributed in a model, and that with the ring painted again.

#include "Limited.h"
#include "values/oVIXPieChartWidget.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QStandardItemModel>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// A locked slice takes away what the others have above a hundred percent: far above the floor, every step writes all
/// of them.
void fill(QStandardItemModel &model, int rows)
{
    model.setRowCount(rows);
    model.setColumnCount(1);
    for (int row = 0; row < rows; ++row)
        model.setData(model.index(row, 0), 20.0F, Qt::EditRole);
    model.setData(model.index(0, 0), 50.0F, Qt::EditRole);
    model.setData(model.index(1, 0), 50.0F - 20.0F * float(rows - 2), Qt::EditRole);
    model.setData(model.index(1, 0), true, Qt::UserRole + 1);
}

QDoubleSpinBox *boxOf(const oVIXPieChartWidget &chart)
{
    return chart.findChild<QDoubleSpinBox *>(u"lateralSpin"_s);
}

void show(QWidget &window)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();
}

/// As typing does.
void redistribute(benchmark::State &state)
{
    QStandardItemModel model;
    fill(model, int(state.range(0)));
    oVIXPieChartWidget chart;
    chart.setModel(&model);
    chart.onSelectionChanged(0);
    show(chart);
    QDoubleSpinBox *box = boxOf(chart);
    double asked = 40.0;
    for (auto _ : state) {
        box->setValue(asked);
        asked = 100.0 - asked;
    }
    if (std::abs(model.index(0, 0).data().toDouble() + asked - 100.0) > 5.0)
        qFatal("The slice has not got its share.");
}

/// The same box and the rows that a redistribution writes.
void writeRows(benchmark::State &state)
{
    QStandardItemModel model;
    fill(model, int(state.range(0)));
    oVIXPieChartWidget chart;
    chart.setModel(&model);
    chart.onSelectionChanged(0);
    show(chart);
    QDoubleSpinBox *box = boxOf(chart);
    chart.setModel(nullptr);
    float asked = 40.0F;
    for (auto _ : state) {
        box->setValue(double(asked));
        for (int row = 0; row < model.rowCount(); ++row) {
            if (row != 1)
                model.setData(model.index(row, 0), 20.0F + asked, Qt::EditRole);
        }
        asked = 100.0F - asked;
    }
}

void redistributeAndPaint(benchmark::State &state)
{
    QStandardItemModel model;
    fill(model, int(state.range(0)));
    oVIXPieChartWidget chart;
    chart.setModel(&model);
    chart.onSelectionChanged(0);
    show(chart);
    QDoubleSpinBox *box = boxOf(chart);
    double asked = 40.0;
    for (auto _ : state) {
        box->setValue(asked);
        asked = 100.0 - asked;
        chart.repaint();
    }
}

} // namespace

BENCHMARK(limited<redistribute, 200>)->Name("pie_redistribute_12/ours")->Arg(12);
BENCHMARK(writeRows)->Name("pie_redistribute_12/plain")->Arg(12);
BENCHMARK(limited<redistribute, 200>)->Name("pie_redistribute_1000/ours")->Arg(1000);
BENCHMARK(writeRows)->Name("pie_redistribute_1000/plain")->Arg(1000);
BENCHMARK(limited<redistributeAndPaint, 8400>)->Name("pie_12_to_1000/ours")->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(redistributeAndPaint)->Name("pie_12_to_1000/plain")->Arg(12)->Unit(benchmark::kMicrosecond);
