// One way to measure a ratio on a machine that others use too.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>

#include <time.h>

namespace Tensarix::Bench {

inline double Cpu_Seconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Processor time: what is waited for another process doesn't count.
template <typename Work>
double Seconds_Of(Work&& work) {
    const double start = Cpu_Seconds();
    work();
    return Cpu_Seconds() - start;
}

// Reports the work's time, and as a counter the work's best time over the reference's best. The
// two take turns, so that both meet the same machine. Register the benchmark with UseManualTime.
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
