// What the scene list costs: filled while it is on screen, and with another row selected.

#include "Limited.h"
#include "browser/VelmoSceneItem.h"
#include "browser/VelmoScenesTable.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QListWidget>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString sceneName(int number)
{
    return u"Scene %1"_s.arg(number);
}

void show(QWidget &window)
{
    window.resize(800, 600);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();
}

void fillTable(VelmoScenesTable &table, int rows)
{
    for (int i = 0; i < rows; ++i) {
        table.addScene(sceneName(i), i % 10 == 0, u"2026-11-20 10:33"_s, u"Baked"_s, u"120"_s, u"4"_s,
                       u"00:02:30 | 25"_s, u"2.0.0"_s, true);
    }
}

/// The events that bring what has been posted onto the screen.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void fillOnScreen(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto table = std::make_unique<VelmoScenesTable>();
        show(*table);
        state.ResumeTiming();

        fillTable(*table, int(state.range(0)));
        settle();

        state.PauseTiming();
        table.reset();
        state.ResumeTiming();
    }
}

void fillBoxLayout(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto area = std::make_unique<QScrollArea>();
        area->setWidgetResizable(true);
        auto *content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        area->setWidget(content);
        show(*area);
        state.ResumeTiming();

        for (int i = 0; i < state.range(0); ++i) {
            auto *row = new VelmoSceneItem(nullptr, content);
            row->set(sceneName(i), i % 10 == 0, u"2026-11-20 10:33"_s, u"Baked"_s, u"120"_s, u"4"_s, u"00:02:30 | 25"_s,
                     u"2.0.0"_s);
            layout->addWidget(row);
        }
        settle();

        state.PauseTiming();
        area.reset();
        state.ResumeTiming();
    }
}

void changeSelection(benchmark::State &state)
{
    VelmoScenesTable table;
    show(table);
    fillTable(table, 1000);
    settle();
    auto *list = table.findChild<QListWidget *>(u"listWidget"_s);
    int row = 0;
    for (auto _ : state) {
        row = 1 - row;
        list->setCurrentRow(row);
    }
}

void restyleOneRow(benchmark::State &state)
{
    VelmoScenesTable table;
    show(table);
    fillTable(table, 1000);
    settle();
    auto *row = table.findChild<VelmoSceneItem *>();
    bool selected = false;
    for (auto _ : state) {
        selected = !selected;
        row->setSelected(selected);
    }
}

} // namespace

BENCHMARK(limited<fillOnScreen, 90>)
    ->Name("scene_list_fill_1000/ours")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillBoxLayout)->Name("scene_list_fill_1000/plain")->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(limited<fillOnScreen, 1200>)
    ->Name("scene_list_100_to_1000/ours")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillOnScreen)->Name("scene_list_100_to_1000/plain")->Arg(100)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(limited<fillOnScreen, 1100>)
    ->Name("scene_list_1000_to_5000/ours")
    ->Arg(5000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillOnScreen)->Name("scene_list_1000_to_5000/plain")->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(limited<changeSelection, 300>)->Name("scene_list_selection_1000/ours")->Iterations(200);
BENCHMARK(restyleOneRow)->Name("scene_list_selection_1000/plain")->Iterations(200);
