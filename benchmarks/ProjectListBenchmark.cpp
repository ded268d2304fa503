// What the project list costs: filled while it is on screen, and with another row selected.

#include "Limited.h"
#include "RowLists.h"
#include "browser/VelmoProjectItem.h"
#include "browser/VelmoProjectsTable.h"

using namespace Qt::StringLiterals;
using namespace RowLists;

namespace {

struct Projects
{
    using Table = VelmoProjectsTable;
    using Row = VelmoProjectItem;

    static QString path(int number) { return u"/projects/Project %1.vproj"_s.arg(number); }
    static void fill(Table &table, int rows)
    {
        for (int i = 0; i < rows; ++i)
            table.addProject(path(i), u"2026-11-20 10:33"_s);
    }
    static Row *create(int number, QWidget *parent)
    {
        auto *row = new Row(nullptr, parent);
        row->set(path(number), u"2026-11-20 10:33"_s);
        return row;
    }
};

} // namespace

BENCHMARK(limited<fillOnScreen<Projects>, 90>)
    ->Name("project_list_fill_1000/ours")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillBoxLayout<Projects>)
    ->Name("project_list_fill_1000/plain")
    ->Arg(1000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(limited<changeSelection<Projects>, 300>)->Name("project_list_selection_1000/ours")->Iterations(200);
BENCHMARK(restyleOneRow<Projects>)->Name("project_list_selection_1000/plain")->Iterations(200);
