#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "common/Failure.h"
#include "connections/Numbers.h"
#include "connections/SearchStandIns.h"
#include "connections/WeldConfigurations.h"
#include "connections/WeldPass.h"

namespace Tensarix {
namespace {

double Coefficient(WeldBench& bench, int item, double L, double kL, double aL, double angle) {
    return Weld_Configuration_Result(item, L, kL, aL, angle, weldModeC, bench.search);
}

// L = 2, kL = 1.2, as the search goes with every step on its own; stopped behind 120 passes.
TEST(SolveWeldGroup, SearchesTakeTheirPasses) {
    constexpr long most = 120;
    const std::tuple<int, double, double, double, long> rows[] = {
        {1, 0, 0.8, 2.091574694, 111},   {1, 120, 3, 1.033284685, 64},
        {2, 75, 3, 2.580590719, 118},    {3, 15, 3, 0.810804841, 79},
        {4, 0, 3, 1.169392404, most},    {5, 45, 0.8, 5.160071699, most},
        {6, 15, 3, 1.877373396, 111},    {6, 0, 3, 0.833305480, 77},
        {7, 75, 0.8, 3.621988144, most}, {8, 45, 3, 1.476060737, 68},
        {8, 120, 3, 1.885504554, 86},    {9, 0, 0.8, 1.755666654, 97},
        {9, 75, 3, 1.726641088, 74}};
    for (const auto& [item, angle, aL, expected, passes] : rows) {
        WeldBench bench;
        // The last pass stands twice on the display.
        bench.display.onStep = [&] { bench.state.StopRequested |= bench.display.steps == most; };
        const double C = Coefficient(bench, item, 2, 1.2, aL, angle);
        EXPECT_NEAR(C, expected, 1e-9) << item << " at " << angle;
        EXPECT_EQ(bench.display.steps, passes + 1) << item << " at " << angle;
    }
}

// An element on the centre, or straight above it, takes angles of the element before.
TEST(TakeWeldPass, FallsBackToSingleStepsWhereOneFails) {
    const WeldLine flat{-50, 3, 50, 3, 0}, upright{0, -50, 0, 50, pi / 2};
    WeldLine leaning{-30, -40, 30, 40, 0};
    leaning.lineAngle = WeldLineAngle(leaning);
    struct Row {
        std::vector<WeldLine> lines;
        double Ro, SM, SV;
    };
    for (const Row& row : {Row{{flat}, 0.125, 5643.785863, 0.626263969927},
                           Row{{upright}, 0, 4338.08850261, 0}, Row{{leaning}, 0, 4700.24912838, 0},
                           Row{{upright, flat}, 0.125, 11243.2652315, 2.52849101858},
                           Row{{leaning, upright}, 1e61, 3.85425016202e+63, 385.425016202}}) {
        WeldBench bench;
        WeldPass pass;
        Take_Weld_Pass(row.lines, row.Ro, bench.state, pass, bench.yield);
        EXPECT_NEAR(pass.SM / row.SM, 1, 1e-10) << row.Ro;
        EXPECT_NEAR(pass.SV, row.SV, 1e-9) << row.Ro;
    }
}

TEST(TakeWeldPass, BothWaysYieldThreeTimesAnElement) {
    const std::vector<WeldLine> lines{{0, -50, 0, 50, pi / 2}};
    for (const auto take : {Take_Weld_Pass, Take_Weld_Pass_Step_By_Step}) {
        WeldBench bench;
        WeldPass pass;
        take(lines, 5, bench.state, pass, bench.yield);
        EXPECT_EQ(bench.turn.asked, 3 * 400);
    }
}

TEST(SolveWeldGroup, ConcentricGroupsInClosedForm) {
    constexpr double unit = 0.6 * 70 * 1.4142135623730951 / 2 * 0.0625; // of a line along the load
    const auto turned = [](double degrees) {
        return 1 + 0.5 * std::pow(std::sin(degrees * pi / 180), 1.5);
    };
    const std::tuple<int, double, double, double, double> rows[] = {
        {1, 8, 0, 0, 2},
        {2, 250, 70, 0, 2},
        {2, 10, 5, 30, 2 * turned(30)},
        {3, 10, 5, 0, 2 * 1.5},
        {4, 10, 5, 0, 2 + 2 * 0.5 * 1.5},
        {4, 10, 0, 0, 2},
        {6, 10, 5, 0, 1 + 2 * 0.5 * 1.5},
        {6, 10, 0, 0, 1},
        {9, 10, 10, 30, turned(30) + turned(60)},
    };
    for (const auto& [item, L, kL, angle, lines] : rows) {
        WeldBench bench;
        EXPECT_NEAR(Coefficient(bench, item, L, kL, 0, angle), lines * unit, 1e-9) << item;
    }
    WeldBench bench;
    EXPECT_NEAR(Coefficient(bench, 2, 8, 3, 0, 0), 3.7123, 5e-5);
}

TEST(SolveWeldGroup, AConcentricGroupShowsNoMoment) {
    WeldBench bench;
    bench.state.ResumeRequested = true;
    bench.state.SavedRo = 77;
    Coefficient(bench, 1, 10, 0, 40, 90);
    EXPECT_EQ(bench.display.steps, 1);
    EXPECT_TRUE(
        bench.display.text.starts_with(" -> Ro    = 0.00000 [Rotated 90°]\r\n    Fy[v] = "));
    EXPECT_TRUE(bench.display.text.ends_with("    Fy[m] = N.A."));
}

TEST(SolveWeldGroup, AStopInTheLastPassComesTooLate) {
    const auto converge = [](WeldBench& bench) { return Coefficient(bench, 6, 10, 5, 8, 0); };
    WeldBench whole;
    const double C = converge(whole);
    const long passes = whole.display.steps - 1;
    WeldBench late;
    late.state.SavedRo = 1.5; // the older centre stays the one saved
    late.display.onStep = [&] { late.state.StopRequested |= late.display.steps == passes; };
    EXPECT_DOUBLE_EQ(converge(late), C);
    EXPECT_TRUE(late.state.StopRequested);
    EXPECT_EQ(late.state.SavedRo, 1.5);
}

TEST(SolveWeldGroup, ASearchIsGivenUpAtAnyDepth) {
    for (const long most : {1L, 3L, 7L, 100L, 1000L, 1500L, 5000L}) {
        WeldBench bench;
        bench.turn.most = most;
        EXPECT_THROW(Coefficient(bench, 8, 10, 5, 8, 20), SearchAbandoned);
        EXPECT_EQ(bench.turn.asked, most);
        EXPECT_FALSE(bench.state.StopRequested);
    }
}

TEST(SolveWeldGroup, NegativeBaseNeverConvergesAndStops) {
    WeldBench bench;
    bench.display.onStep = [&] { bench.state.StopRequested = bench.display.steps == 40; };
    EXPECT_TRUE(std::isfinite(Coefficient(bench, 2, -10, 5, 4, 0)));
    EXPECT_EQ(bench.display.steps, 41);
}

TEST(SolveWeldGroup, AbsurdNumbersFailOrEndOrCanBeGivenUp) {
    WeldBench none;
    EXPECT_THROW(Coefficient(none, 1, 0, 0, 4, 0), Failure);
    EXPECT_THROW(Coefficient(none, 2, 1e-308, 5, 4, 0), Failure);
    EXPECT_THROW(Coefficient(none, 2, 1e-10, 1e300, 4, 0), Failure);
    EXPECT_EQ(none.turn.asked, 0);
    using Row = std::array<double, 4>;
    for (const auto& [L, kL, aL, angle] :
         {Row{1e300, 5, 4, 0}, Row{10, 1e300, 4, 0}, Row{10, 5, 1e300, 0}, Row{10, 5, 4, 1e308},
          Row{1e300, 1e300, 1e300, 45}, Row{1e9, 5, 4, 0}}) {
        for (const int item : {2, 4, 8}) {
            WeldBench bench;
            bench.turn.most = 20'000;
            try {
                EXPECT_TRUE(std::isfinite(Coefficient(bench, item, L, kL, aL, angle)));
            } catch (const SearchAbandoned&) {
                EXPECT_EQ(bench.turn.asked, bench.turn.most);
            }
        }
    }
}

TEST(ConcentricWeldCapacity, ALengthBeyondTheRangeCountsAsTheOneBefore) {
    const WeldLine line{0, 0, 10, 0, 0}, beyond{0, 0, 1e200, 0, 0};
    EXPECT_EQ(ConcentricWeldCapacity({beyond}), 0);
    EXPECT_EQ(ConcentricWeldCapacity({line, beyond}), 2 * ConcentricWeldCapacity({line}));
}

TEST(WeldLines, AreOrderedAndTheShortOnesDropped) {
    WeldBench bench;
    std::vector<WeldLine> lines{{5, 9, 5, 1}, {4, 2, 1, 2}, {0, 0, 0.1, 0}, {0, 0, 0, 0.11}};
    NormalizeWeldLines(lines, bench.yield);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].y1, 1);
    EXPECT_EQ(lines[1].x1, 1);
    EXPECT_EQ(lines[2].y2, 0.11);
    EXPECT_EQ(bench.turn.asked, 4);
    EXPECT_LT(WeldLineAngle({0, 0, -3, 4}), 0);
    EXPECT_EQ(WeldLineAngle({2, 0, 2, 4}), pi / 2);
}

TEST(WeldConfigurations, CentroidsInClosedForm) {
    constexpr double L = 10;
    struct Row {
        int item;
        double kL, xL, yL;
    };
    const Row rows[] = {
        {1, 6, 0, 5},
        {2, 6, 3, 5},
        {3, 6, 5, 3},
        {4, 6, 3, 5},
        {5, 6, 5, 3},
        {6, 6, 6.0 * 6 / 22, 5},
        {7, 6, 6.0 * 6 / 22, 5},
        {8, 6, 6.0 * 3 / 16, 10 * 5.0 / 16},
        {9, 6, 6.0 * 3 / 16, 10 * 5.0 / 16},
        {8, 10, 2.5, 2.5},
        {6, 0, 0, 5},
        {9, 0, 0, 5},
    };
    WeldBench bench;
    for (const double unit : {1.0, 25.4}) {
        for (const Row& row : rows) {
            const auto of = [&](std::int16_t mode) {
                return Weld_Configuration_Result(row.item, L * unit, row.kL * unit, 0, 0, mode,
                                                 bench.search);
            };
            EXPECT_NEAR(of(weldModeXL), row.xL * unit, 1e-12 * unit) << row.item;
            EXPECT_NEAR(of(weldModeYL), row.yL * unit, 1e-12 * unit) << row.item;
            EXPECT_EQ(of(3), 0);
        }
    }
}

// Item 7 alone is shown, and converges, in scaled units.
TEST(WeldConfigurations, OneItemIsShownScaled) {
    const auto shown = [](int item) {
        WeldBench bench;
        Coefficient(bench, item, 10, 5, 0, 0);
        const std::string label = "Fy[v] = ";
        return std::stod(bench.display.text.substr(bench.display.text.find(label) + label.size()));
    };
    EXPECT_NEAR(shown(7), 10 * shown(6), 1e-3);
}

TEST(IterationReport, OneStepInItsWords) {
    RecordingDisplay display;
    WeldState state;
    display.text = "  ";
    display.now = 1'000;
    state.IterationStart = 995;
    state.LastClearTime = 995;
    ShowIterationStep(22.5, 12.5, 100, -50, 12.5, false, state, display);
    const std::string first = "   -> Ro    = 1.00000 [Rotated 22.5°]\r\n    Fy[v] = 8.0000\r\n"
                              "    Fy[m] = -4.0000";
    EXPECT_EQ(display.text, first);
    EXPECT_EQ(display.elapsed, "Iteration Time »  00h:00m:05s ");
    display.now = 1'010; // 15 seconds don't clear yet
    ShowIterationStep(0, 0, 0, 0, 1, true, state, display);
    EXPECT_TRUE(display.text.starts_with(first + "\r\n\r\n -> Ro"));
    display.now = 1'011;
    ShowIterationStep(0, 0, 0, 0, 1, true, state, display);
    EXPECT_TRUE(display.text.starts_with(
        "**Previous Iteration DELETED...[1]\r\n[Iteration Display is cleared every\r\n15 sec. to "
        "maintain iteration speed]\r\n\r\n -> Ro    = 0.00000 [Rotated 0°]\r\n"));
    EXPECT_EQ(state.ClearCount, 1);
    EXPECT_EQ(state.ElapsedSeconds, 16);
}

TEST(IterationReport, TimesAreCutFromFractions) {
    EXPECT_EQ(FormatIterationTime(0), "00h:00m:00s ");
    EXPECT_EQ(FormatIterationTime(59), "00h:00m:59s ");
    EXPECT_EQ(FormatIterationTime(125), "00h:02m:05s ");
    EXPECT_EQ(FormatIterationTime(3'725), "01h:02m:05s ");
    EXPECT_EQ(FormatIterationTime(3'660), "01h:00m:00s "); // a minute short, as ever
    EXPECT_EQ(FormatIterationTime(360'000), "100h:00m:00s ");
}

} // namespace
} // namespace Tensarix
