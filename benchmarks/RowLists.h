#pragma once

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QListWidget>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

/// What lists of row widgets cost: filled while they are on screen, and with another row selected. `Rows` names the
/// classes `Table` and `Row`, fills a table (`fill`) and makes a single row (`create`).
namespace RowLists {

using namespace Qt::StringLiterals;

inline void show(QWidget &window)
{
    window.resize(800, 600);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();
}

/// The events that bring what has been posted onto the screen.
inline void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

template <class Rows> void fillOnScreen(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto table = std::make_unique<typename Rows::Table>();
        show(*table);
        state.ResumeTiming();

        Rows::fill(*table, int(state.range(0)));
        settle();

        state.PauseTiming();
        table.reset();
        state.ResumeTiming();
    }
}

template <class Rows> void fillBoxLayout(benchmark::State &state)
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

        for (int i = 0; i < state.range(0); ++i)
            layout->addWidget(Rows::create(i, content));
        settle();

        state.PauseTiming();
        area.reset();
        state.ResumeTiming();
    }
}

template <class Rows> void changeSelection(benchmark::State &state)
{
    typename Rows::Table table;
    show(table);
    Rows::fill(table, 1000);
    settle();
    auto *list = table.template findChild<QListWidget *>(u"listWidget"_s);
    int row = 0;
    for (auto _ : state) {
        row = 1 - row;
        list->setCurrentRow(row);
    }
}

template <class Rows> void restyleOneRow(benchmark::State &state)
{
    typename Rows::Table table;
    show(table);
    Rows::fill(table, 1000);
    settle();
    auto *row = table.template findChild<typename Rows::Row *>();
    bool selected = false;
    for (auto _ : state) {
        selected = !selected;
        row->setSelected(selected);
    }
}

} // namespace RowLists
