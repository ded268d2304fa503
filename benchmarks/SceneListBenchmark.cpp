// What the scene list costs: filled while it is on screen, and with another row selected.

#include "Limited.h"
#include "RowLists.h"
#include "browser/VelmoSceneItem.h"
#include "browser/VelmoScenesTable.h"

using namespace Qt::StringLiterals;
using namespace RowLists;

namespace {

struct Scenes
{
    using Table = VelmoScenesTable;
    using Row = VelmoSceneItem;

    static QString name(int number) { return u"Scene %1"_s.arg(number); }
    static bool isNewer(int number) { return number % 10 == 0; }
    static void fill(Table &table, int rows)
    {
        for (int i = 0; i < rows; ++i) {
            table.addScene(name(i), isNewer(i), u"2026-11-20 10:33"_s, u"Baked"_s, u"120"_s, u"4"_s, u"00:02:30 | 25"_s,
                           u"2.0.0"_s, true);
        }
    }
    static Row *create(int number, QWidget *parent)
    {
        auto *row = new Row(nullptr, parent);
        row->set(name(number), isNewer(number), u"2026-11-20 10:33"_s, u"Baked"_s, u"120"_s, u"4"_s, u"00:02:30 | 25"_s,
                 u"2.0.0"_s);
        return row;
    }
};

} // namespace

BENCHMARK(limited<fillOnScreen<Scenes>, 90>)
    ->Name("scene_list_fill_1000/ours")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillBoxLayout<Scenes>)
    ->Name("scene_list_fill_1000/plain")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(limited<fillOnScreen<Scenes>, 1200>)
    ->Name("scene_list_100_to_1000/ours")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillOnScreen<Scenes>)
    ->Name("scene_list_100_to_1000/plain")
    ->Arg(100)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(limited<fillOnScreen<Scenes>, 1100>)
    ->Name("scene_list_1000_to_5000/ours")
    ->Arg(5000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillOnScreen<Scenes>)
    ->Name("scene_list_1000_to_5000/plain")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(limited<changeSelection<Scenes>, 300>)->Name("scene_list_selection_1000/ours")->Iterations(200);
BENCHMARK(restyleOneRow<Scenes>)->Name("scene_list_selection_1000/plain")->Iterations(200);
