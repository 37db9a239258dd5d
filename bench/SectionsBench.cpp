// What a user of the section screens waits for, without the painting: View All of the longest
// family, a search over the W-shapes, a change of section on Browse. The reads alone stand beside
// them, as the share of the store.
#include "StandIns.h"
#include "sections/BrowsePage.h"
#include "sections/FindPage.h"

#include <benchmark/benchmark.h>

using namespace Tensarix;

namespace {

const std::filesystem::path programFolder{TENSARIX_PROGRAM_DIR};

void View_All(benchmark::State& state, Profile profile, DimensionStyle style) {
    FlexGrid grid;
    const Family& family = Families[UnEqualDoubleAngleFamily];
    for (auto _ : state)
        benchmark::DoNotOptimize(
            family.ViewAll(grid, family.Type, {programFolder, profile, style}));
}
BENCHMARK_CAPTURE(View_All, US_Decimal, Profile::US, DimensionStyle::Decimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(View_All, US_Imperial, Profile::US, DimensionStyle::Imperial)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(View_All, SI, Profile::SI, DimensionStyle::Decimal)
    ->Unit(benchmark::kMillisecond);

void View_All_Share_Of_Store(benchmark::State& state) {
    for (auto _ : state) {
        const SectionRead read(programFolder, Query_By_Family("2L-UnEq"));
        benchmark::DoNotOptimize(read.Records.RecordCount());
    }
}
BENCHMARK(View_All_Share_Of_Store)->Unit(benchmark::kMillisecond);

void Find_Over_W(benchmark::State& state, const char* criterion) {
    FlexGrid grid;
    const Family& family = Families[0];
    for (auto _ : state)
        benchmark::DoNotOptimize(family.Find(grid, family.Type,
                                             {programFolder, Profile::US, DimensionStyle::Decimal},
                                             true, {"Zx", criterion, 500}));
}
BENCHMARK_CAPTURE(Find_Over_W, Some, ">=")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Find_Over_W, None, "=")->Unit(benchmark::kMillisecond);

void Find_Over_W_Share_Of_Store(benchmark::State& state) {
    for (auto _ : state) {
        const SectionRead read(programFolder, Query_By_Family("W"));
        benchmark::DoNotOptimize(read.Records.RecordCount());
    }
}
BENCHMARK(Find_Over_W_Share_Of_Store)->Unit(benchmark::kMillisecond);

// The list of values and the note beside it.
void Choice_Of_A_Property(benchmark::State& state) {
    Tests::TestMachine machine;
    Desk desk(machine.Host);
    FindPage page(desk);
    page.fProfileOption1.Select();
    FillFamilyList(page.fShapeType);
    page.fShapeType.Select(0);
    int position = 0;
    for (auto _ : state)
        page.fPoperty.Select(++position % page.fPoperty.Count());
}
BENCHMARK(Choice_Of_A_Property)->Unit(benchmark::kMillisecond);

void Change_Of_Section(benchmark::State& state) {
    Tests::TestMachine machine;
    Desk desk(machine.Host);
    BrowsePage page(desk);
    page.ProfileOption1.Select();
    page.Init_ShapeFlex();
    FillFamilyList(page.ShapeType);
    page.ShapeType.Select(0);
    int position = 0;
    for (auto _ : state)
        page.ShapeSizeUS.Select(++position % page.ShapeSizeUS.Count());
}
BENCHMARK(Change_Of_Section)->Unit(benchmark::kMillisecond);

void Change_Of_Section_Share_Of_Store(benchmark::State& state) {
    for (auto _ : state) {
        const SectionRead read(programFolder, Query_By_US_Label("W18x50"));
        benchmark::DoNotOptimize(read.Records.Number("IX"));
    }
}
BENCHMARK(Change_Of_Section_Share_Of_Store)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
