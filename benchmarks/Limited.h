#pragma once

#include <benchmark/benchmark.h>

/// A benchmark of ours with the highest ratio to its plain counterpart that is promised, in hundredths.
template <void (*Measure)(benchmark::State &), int Hundredths> void limited(benchmark::State &state)
{
    Measure(state);
    state.counters["limit"] = Hundredths / 100.0;
}
