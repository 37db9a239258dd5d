// What one recalculation of the beam page costs: the rules alone, with the read of the store, a
// change of the size with its grid, and one of the code, which restores factor and span.
#include "StandIns.h"
#include "beam/BeamPage.h"

#include <benchmark/benchmark.h>

using namespace Tensarix;

namespace {

struct StartedPage {
    Tests::TestMachine Machine;
    Desk Shared{Machine.Host};
    BeamPage Page{Shared};

    StartedPage() {
        Page.Start_Families();
        Page.Start_Inputs();
    }
};

void Rules(benchmark::State& state) {
    BeamInput input{{95.4, 81.6, 20.7, 0.35, 53.6, 7.22}, 50, 20.0, 0};
    for (auto _ : state) {
        benchmark::DoNotOptimize(input);
        benchmark::DoNotOptimize(Beam_Load_13th(input, DesignMethod::LRFD));
    }
}
BENCHMARK(Rules);

void Recalculation(benchmark::State& state) {
    StartedPage started;
    for (auto _ : state)
        started.Page.CalculateValues();
}
BENCHMARK(Recalculation)->Unit(benchmark::kMicrosecond);

void Change_Of_Size(benchmark::State& state) {
    StartedPage started;
    int size = 0;
    for (auto _ : state)
        started.Page.zShapeSizeUS.Select(size ^= 1);
}
BENCHMARK(Change_Of_Size)->Unit(benchmark::kMicrosecond);

void Change_Of_Code(benchmark::State& state) {
    StartedPage started;
    int code = Code9thEdition;
    for (auto _ : state)
        started.Page.AppliedCode.Select(code = Code9thEdition + Code13thEdition - code);
}
BENCHMARK(Change_Of_Code)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
