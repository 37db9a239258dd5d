// One way to measure a ratio on a machine that others use too.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace Tensarix::Bench {

template <typename Work>
double Seconds_Of(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Reports the work's time, and as a counter the work's best time over the reference's best. The
// two take turns, so that another process on the machine weighs on neither. Register the benchmark
// with UseManualTime.
template <typename Work, typename Reference>
void Compare(benchmark::State& state, const char* counter, Work&& work, Reference&& reference) {
    double best = 1e9;
    double bestReference = 1e9;
    for (auto _ : state) {
        const double seconds = Seconds_Of(work);
        state.SetIterationTime(seconds);
        best = std::min(best, seconds);
        bestReference = std::min(bestReference, Seconds_Of(reference));
    }
    state.counters[counter] = best / bestReference;
}

} // namespace Tensarix::Bench
