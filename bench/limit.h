// bench/limit.h
//
// Prints a benchmark's figure beside the limit it is to hold.

#pragma once

#include <benchmark/benchmark.h>

namespace lv {

/// `figure` and `limit` in the same unit; the ratio is below 1 while the limit holds.
inline void SetLimit(benchmark::State& state, double figure, double limit) {
    state.counters["figure"] = figure;
    state.counters["limit"] = limit;
    state.counters["ratio"] = figure / limit;
}

}  // namespace lv
