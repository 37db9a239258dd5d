// What one recalculation of the beam page costs: the rules alone, with the read of the store, a
// change of the size with its grid, and one of the code, which restores factor and span. The
// last three against one read of a section.
#include "Compare.h"
#include "StandIns.h"
#include "beam/BeamPage.h"
#include "sections/SectionStore.h"

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

void Read() {
    const SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_US_Label("W18x50"));
    benchmark::DoNotOptimize(read.Records.Number("ZX"));
}

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
    Bench::Compare(
        state, "ratio_to_read", [&] { started.Page.CalculateValues(); }, Read);
}
BENCHMARK(Recalculation)->Unit(benchmark::kMicrosecond)->UseManualTime();

void Change_Of_Size(benchmark::State& state) {
    StartedPage started;
    int size = 0;
    Bench::Compare(
        state, "ratio_to_read", [&] { started.Page.zShapeSizeUS.Select(size ^= 1); }, Read);
}
BENCHMARK(Change_Of_Size)->Unit(benchmark::kMicrosecond)->UseManualTime();

void Change_Of_Code(benchmark::State& state) {
    StartedPage started;
    int code = code9thEdition;
    Bench::Compare(
        state, "ratio_to_read",
        [&] { started.Page.AppliedCode.Select(code = code9thEdition + code13thEdition - code); },
        Read);
}
BENCHMARK(Change_Of_Code)->Unit(benchmark::kMicrosecond)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
