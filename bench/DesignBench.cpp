// A weld run on the screen, its report shown as it grows, against the search alone with a report
// that nobody keeps.
#include "Compare.h"
#include "connections/WeldConfigurations.h"
#include "connections/WeldDrawing.h"
#include "window/Bind.h"
#include "window/Program.h"
#include "window/desktop/EventsAndClock.h"
#include "window/drawing/DrawingView.h"

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

double Search_Alone(const Case& c, WeldDisplay& display) {
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

// The passes of a search drawn and painted as they come, as its page has it.
class PlotDisplay final : public WeldDisplay {
  public:
    PlotDisplay() {
        Bind(&view_, plot_);
        view_.resize(320, 480);
        view_.show();
    }
    std::int64_t Now() override {
        now_ = clock_.Seconds();
        return 0;
    }
    bool Has_Text() override { return true; }
    void Replace_Text(std::string_view) override {}
    void Append_Text(std::string_view text) override { bytes_ += text.size(); }
    void Show_Elapsed(std::string_view) override {}
    void Show_Loads(double Ro, double Fv, double Fm) override {
        passes_.Add({Ro, Fv, Fm});
        if (!passes_.Is_Plot_Due(now_))
            return;
        ++Plots;
        plot_.Set_Drawing(Weld_Search_Plot(passes_));
        QCoreApplication::processEvents(); // takes over the drawing
        QCoreApplication::processEvents(); // paints it
    }
    long Plots = 0;

  private:
    SteadyClock clock_;
    WeldPasses passes_;
    DrawingBox plot_;
    DrawingView view_;
    std::size_t bytes_ = 0;
    double now_ = 0;
};

// A search of some seconds, so that many plots are drawn.
void Weld_Search_With_Its_Plot(benchmark::State& state) {
    const Case longer{5, "160", "80", "8", "45"};
    PlotDisplay plotted;
    NoDisplay alone;
    Bench::Compare(
        state, "ratio_to_search_alone",
        [&] { benchmark::DoNotOptimize(Search_Alone(longer, plotted)); },
        [&] { benchmark::DoNotOptimize(Search_Alone(longer, alone)); });
    state.counters["plots"] =
        static_cast<double>(plotted.Plots) / static_cast<double>(state.iterations());
}
BENCHMARK(Weld_Search_With_Its_Plot)->Unit(benchmark::kMillisecond)->UseManualTime();

// Another row of the table of bolts with its drawing, painted: what moving to it costs, and what a
// changed input, which searches anew.
void Change_Of_Bolt_Row(benchmark::State& state) {
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    program.Form().OptButton[static_cast<std::size_t>(Mode::Connection)].Select();
    BoltPage& bolts = program.Form().Design.Bolts;
    const auto fill = [&](int row, double ex) {
        int col = BoltColumn::FirstInput;
        for (const double input : {2.0 + row % 11, 1.0 + row % 3, 3.0, 3.0, ex, 15.0 * (row % 6)})
            bolts.cFlex.Set_Text(row, col++, std::to_string(input));
        bolts.Calculate_C(row);
    };
    for (int row = 1; row < bolts.cFlex.Rows(); ++row)
        fill(row, 4.0 + row);
    int row = 1;
    double shift = 0;
    for (auto _ : state) {
        row = row % (bolts.cFlex.Rows() - 1) + 1;
        bolts.cFlex.Move_To(row, BoltColumn::C);
        if (state.range(0) != 0)
            fill(row, 4.0 + row + (shift += 0.001));
        QCoreApplication::processEvents(); // takes over the change
        QCoreApplication::processEvents(); // paints it
    }
    program.Window().close();
}
BENCHMARK(Change_Of_Bolt_Row)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->DenseRange(0, 1);

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
