// What the list of tags costs: filled in order while it is on screen, the search for a tag's place, and changes of all
// its tags.

#include "Limited.h"
#include "tags/SortedPlace.h"
#include "tags/oVIXDragDropListWidget.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Names in no order, the same every time.
QStringList tagNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names << u"Tag %1"_s.arg(i);
    QRandomGenerator random(1);
    std::shuffle(names.begin(), names.end(), random);
    return names;
}

/// The events that bring what has been posted onto the screen.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void fillSorted(benchmark::State &state)
{
    const QStringList names = tagNames(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto list = std::make_unique<oVIXDragDropListWidget>();
        list->resize(300, 600);
        list->show();
        if (!QTest::qWaitForWindowExposed(list.get()))
            qFatal("The window does not come up.");
        settle();
        state.ResumeTiming();

        for (const QString &name : names)
            list->addCustomItem(name, BUTTON_REMOVE, true);
        settle();

        state.PauseTiming();
        list.reset();
        state.ResumeTiming();
    }
}

void appendToHiddenList(benchmark::State &state)
{
    const QStringList names = tagNames(int(state.range(0)));
    for (auto _ : state) {
        auto list = std::make_unique<QListWidget>();
        for (const QString &name : names) {
            auto *item = new QListWidgetItem(name, list.get());
            item->setSizeHint(QSize(0, 20));
            list->setItemWidget(
                item, new oVIXDragTag(name, QColor(39, 39, 39), QColor(), BUTTON_REMOVE, true, list->viewport()));
        }
        state.PauseTiming();
        list.reset();
        state.ResumeTiming();
    }
}

void searchPlaces(benchmark::State &state)
{
    const QStringList names = tagNames(int(state.range(0)));
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end(), SortedPlace::isLess);
    for (auto _ : state) {
        for (const QString &name : names)
            benchmark::DoNotOptimize(SortedPlace::amongSorted(sorted, name));
    }
}

void addAndSort(benchmark::State &state)
{
    const QStringList names = tagNames(int(state.range(0)));
    for (auto _ : state) {
        QListWidget list;
        list.addItems(names);
        list.sortItems();
    }
}

std::unique_ptr<oVIXDragDropListWidget> filledList(const QStringList &names)
{
    auto list = std::make_unique<oVIXDragDropListWidget>();
    for (const QString &name : names)
        list->addCustomItem(name, BUTTON_REMOVE, false);
    settle();
    return list;
}

void recolourList(benchmark::State &state)
{
    const auto list = filledList(tagNames(int(state.range(0))));
    QColor colour = Qt::red;
    for (auto _ : state) {
        colour = colour == Qt::red ? Qt::blue : Qt::red;
        list->setTagTextColor(colour, Qt::white, -1);
    }
}

void recolourChips(benchmark::State &state)
{
    const auto list = filledList(tagNames(int(state.range(0))));
    const QList<oVIXDragTag *> chips = list->findChildren<oVIXDragTag *>();
    QColor colour = Qt::red;
    for (auto _ : state) {
        colour = colour == Qt::red ? Qt::blue : Qt::red;
        for (oVIXDragTag *chip : chips)
            chip->setColors(colour, Qt::white);
    }
}

/// As many names as tags, half of which are there.
void enableTags(benchmark::State &state)
{
    const int count = int(state.range(0));
    const QStringList names = tagNames(2 * count);
    const auto list = filledList(names.first(count));
    const QStringList enabled = names.mid(count / 2, count);
    for (auto _ : state) {
        list->setEnabledItems(enabled);
        list->setEnabledItems({});
    }
}

void enableChips(benchmark::State &state)
{
    const int count = int(state.range(0));
    const auto list = filledList(tagNames(count));
    const QList<oVIXDragTag *> chips = list->findChildren<oVIXDragTag *>();
    for (auto _ : state) {
        for (int i = 0; i < count; ++i)
            chips[i]->setEnabled(i >= count / 2);
        for (oVIXDragTag *chip : chips)
            chip->setEnabled(false);
    }
}

} // namespace

BENCHMARK(limited<fillSorted, 140>)
    ->Name("tag_list_fill_1000/ours")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(appendToHiddenList)
    ->Name("tag_list_fill_1000/plain")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(limited<fillSorted, 1200>)
    ->Name("tag_list_100_to_1000/ours")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillSorted)->Name("tag_list_100_to_1000/plain")->Arg(100)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(limited<searchPlaces, 30>)->Name("tag_list_search_1000/ours")->Arg(1000);
BENCHMARK(addAndSort)->Name("tag_list_search_1000/plain")->Arg(1000);
BENCHMARK(limited<recolourList, 120>)->Name("tag_list_recolour/ours")->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(recolourChips)->Name("tag_list_recolour/plain")->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(limited<enableTags, 200>)->Name("tag_list_enable/ours")->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(enableChips)->Name("tag_list_enable/plain")->Arg(1000)->Unit(benchmark::kMillisecond);
