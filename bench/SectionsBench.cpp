// What a user of the section screens waits for, without the painting: View All of the longest
// family, a search over the W-shapes, a choice of a property there, a change of section on Browse.
// Each against one read of the store: the opening, the query and its rows.
#include "Compare.h"
#include "StandIns.h"
#include "sections/BrowsePage.h"
#include "sections/DesignationSearch.h"
#include "sections/FindPage.h"

using namespace Tensarix;

namespace {

const std::filesystem::path programFolder{TENSARIX_PROGRAM_DIR};
constexpr const char* ratioToRead = "ratio_to_read";

void Read_Family(const char* type) {
    const SectionRead read(programFolder, Query_By_Family(type));
    benchmark::DoNotOptimize(read.Records.RecordCount());
}

void View_All(benchmark::State& state, Profile profile, DimensionStyle style) {
    FlexGrid grid;
    const Family& family = allFamilies[unEqualDoubleAngleFamily];
    Bench::Compare(
        state, ratioToRead,
        [&] {
            benchmark::DoNotOptimize(
                family.ViewAll(grid, family.Type, {programFolder, profile, style}));
        },
        [] { Read_Family("2L-UnEq"); });
}
BENCHMARK_CAPTURE(View_All, US_Decimal, Profile::US, DimensionStyle::Decimal)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(View_All, US_Imperial, Profile::US, DimensionStyle::Imperial)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(View_All, SI, Profile::SI, DimensionStyle::Decimal)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

void Find_Over_W(benchmark::State& state, const char* criterion) {
    FlexGrid grid;
    const Family& family = allFamilies[0];
    Bench::Compare(
        state, ratioToRead,
        [&] {
            benchmark::DoNotOptimize(family.Find(
                grid, family.Type, {programFolder, Profile::US, DimensionStyle::Decimal}, true,
                {"Zx", criterion, 500}));
        },
        [] { Read_Family("W"); });
}
BENCHMARK_CAPTURE(Find_Over_W, Some, ">=")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(Find_Over_W, None, "=")->Unit(benchmark::kMillisecond)->UseManualTime();

// The list of values and the note beside it.
void Choice_Of_A_Property(benchmark::State& state) {
    Tests::TestMachine machine;
    Desk desk(machine.Host);
    FindPage page(desk);
    page.fProfileOption1.Select();
    FillFamilyList(page.fShapeType);
    page.fShapeType.Select(0);
    int position = 0;
    Bench::Compare(
        state, ratioToRead, [&] { page.fPoperty.Select(++position % page.fPoperty.Count()); },
        [] { Read_Family("W"); });
}
BENCHMARK(Choice_Of_A_Property)->Unit(benchmark::kMillisecond)->UseManualTime();

void Change_Of_Section(benchmark::State& state) {
    Tests::TestMachine machine;
    Desk desk(machine.Host);
    BrowsePage page(desk);
    page.ProfileOption1.Select();
    page.Init_ShapeFlex();
    FillFamilyList(page.ShapeType);
    page.ShapeType.Select(0);
    int position = 0;
    Bench::Compare(
        state, ratioToRead, [&] { page.ShapeSizeUS.Select(++position % page.ShapeSizeUS.Count()); },
        [] {
            const SectionRead read(programFolder, Query_By_US_Label("W18x50"));
            benchmark::DoNotOptimize(read.Records.Number("IX"));
        });
}
BENCHMARK(Change_Of_Section)->Unit(benchmark::kMillisecond)->UseManualTime();

// A designation typed key by key, each with its list.
void Search_Of_A_Designation(benchmark::State& state) {
    const DesignationSearch search(programFolder);
    const std::string typed = "hss8x8x1/2";
    std::size_t length = 0;
    Bench::Compare(
        state, ratioToRead,
        [&] {
            benchmark::DoNotOptimize(
                search.Find(std::string_view{typed}.substr(0, ++length % typed.size() + 1), 50));
        },
        [] { Read_Family("W"); });
}
BENCHMARK(Search_Of_A_Designation)->Unit(benchmark::kMillisecond)->UseManualTime();

void Names_For_The_Search(benchmark::State& state) {
    Bench::Compare(
        state, ratioToRead,
        [] { benchmark::DoNotOptimize(DesignationSearch(programFolder).Count()); },
        [] { Read_Family("W"); });
}
BENCHMARK(Names_For_The_Search)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
