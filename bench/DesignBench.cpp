// A weld run on the screen, its report shown as it grows, against the search alone with a report
// that nobody keeps.
#include "Compare.h"
#include "connections/WeldConfigurations.h"
#include "window/Program.h"

#include <QApplication>
#include <QTemporaryDir>

namespace {

using namespace Tensarix;

// Some hundred passes, and some thousand.
struct Case {
    int item;
    const char *L, *kL, *aL, *angle;
};
constexpr Case cases[] = {{6, "10", "5", "8", "30"}, {5, "40", "20", "2", "45"}};
constexpr int quarterStrip = 0;

struct NoDisplay final : WeldDisplay {
    std::int64_t Now() override { return 0; }
    bool Has_Text() override { return true; }
    void Replace_Text(std::string_view) override {}
    void Append_Text(std::string_view text) override { bytes += text.size(); }
    void Show_Elapsed(std::string_view) override { ++passes; }
    std::size_t bytes = 0;
    long passes = 0;
};

double Search_Alone(const Case& c, NoDisplay& display) {
    WeldState weld;
    auto turn = [] { return true; };
    SearchYield yield{turn, weldYieldStride};
    WeldSearch search{weld, display, yield};
    return Weld_Configuration_Result(c.item, std::atof(c.L), std::atof(c.kL), std::atof(c.aL),
                                     std::atof(c.angle), weldModeC, search);
}

void Weld_Run_On_The_Screen(benchmark::State& state) {
    const Case& c = cases[state.range(0)];
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    DesignPage& design = program.Form().Design;
    program.Form().OptButton[static_cast<std::size_t>(Mode::Connection)].Select();
    design.DesignSSTab.Select(weldTab);
    design.Welds.WeldStripBox.Select(quarterStrip);
    design.Welds.WeldView.Click(c.item);
    int row = 0;
    for (const char* text : {c.L, c.kL, c.aL, c.angle})
        design.Welds.WeldFlex.Set_Text(row++, 1, text);
    QCoreApplication::processEvents();
    NoDisplay display;
    Bench::Compare(
        state, "ratio_to_search_alone", [&] { design.Welds.StartIterationButton.Click(); },
        [&] { benchmark::DoNotOptimize(Search_Alone(c, display)); });
    state.counters["passes"] =
        static_cast<double>(display.passes) / static_cast<double>(state.iterations());
    program.Window().close();
}
BENCHMARK(Weld_Run_On_The_Screen)->DenseRange(0, 1)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toLocal8Bit());
    QApplication application(argc, argv);
    Tensarix::Program::Prepare_Application();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
