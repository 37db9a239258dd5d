// The searches for bolt groups against the balanced coefficients of the same groups, and a pass of
// the weld search against one written down plainly. Each counter is a ratio of times.
#include "Compare.h"
#include "PlainWeldPass.h"
#include "connections/Balance.h"
#include "connections/WeldConfigurations.h"
#include "connections/WeldPass.h"

#include <algorithm>
#include <chrono>

namespace Tensarix {
namespace {

using Clock = std::chrono::steady_clock;

struct BoltCase {
    BoltGroup group;
    double ex = 0, angle = 0;
};

// Groups as they are tabulated, searches that overshoot among them.
std::vector<BoltCase> Tabulated_Groups() {
    std::vector<BoltCase> cases;
    for (std::int16_t m = 2; m <= 12; ++m)
        for (const std::int16_t n : {std::int16_t{1}, std::int16_t{2}})
            for (const double ex : {2.0, 3.0, 4.0, 6.0, 8.0, 10.0, 12.0, 16.0, 24.0})
                for (const double angle : {0.0, 15.0, 30.0, 45.0, 60.0, 75.0})
                    cases.push_back({{m, n, 3, n == 1 ? 3 : 5.5}, ex, angle});
    return cases;
}

double Searched(const BoltCase& bolts, int stride) {
    Clock::time_point seen;
    const auto turn = [&] {
        seen = Clock::now();
        benchmark::DoNotOptimize(seen);
        return true;
    };
    SearchYield yield(turn, stride);
    return BoltCoefficientC(bolts.group, bolts.ex, bolts.angle, yield);
}

void BM_BoltGroups(benchmark::State& state) {
    const std::vector<BoltCase> cases = Tabulated_Groups();
    double longest = 0;
    Bench::Compare(
        state, "ratio_to_balanced",
        [&] {
            for (const BoltCase& each : cases)
                longest = std::max(longest, Bench::Seconds_Of([&] {
                                       benchmark::DoNotOptimize(Searched(each, boltYieldStride));
                                   }));
        },
        [&] {
            for (const BoltCase& each : cases)
                benchmark::DoNotOptimize(Balanced_Bolts(each.group, each.ex, each.angle));
        });
    state.counters["longest_ms"] = longest * 1e3;
}
BENCHMARK(BM_BoltGroups)->Unit(benchmark::kMillisecond)->UseManualTime();

// The search of most passes up to so many bolts, with the program's stride and without asking.
void BM_BoltYield(benchmark::State& state) {
    const BoltCase bolts{{12, 12, 3, 3}, 2, 75};
    Bench::Compare(
        state, "ratio_to_never_asking",
        [&] { benchmark::DoNotOptimize(Searched(bolts, boltYieldStride)); },
        [&] { benchmark::DoNotOptimize(Searched(bolts, 1 << 30)); });
}
BENCHMARK(BM_BoltYield)->Unit(benchmark::kMillisecond)->UseManualTime();

std::vector<WeldLine> Turned_Box(double angle) {
    std::vector<WeldLine> lines = Weld_Configuration_Lines(4, 100, 50);
    const double theta = angle * Plain::truncatedPi / 180;
    for (WeldLine& line : lines) {
        const WeldLine old = line;
        line.x1 = old.x1 * std::cos(theta) - old.y1 * std::sin(theta);
        line.y1 = old.x1 * std::sin(theta) + old.y1 * std::cos(theta);
        line.x2 = old.x2 * std::cos(theta) - old.y2 * std::sin(theta);
        line.y2 = old.x2 * std::sin(theta) + old.y2 * std::cos(theta);
        line.lineAngle = WeldLineAngle(line);
    }
    return lines;
}

double Weld_Pass(const std::vector<WeldLine>& lines, std::int16_t strips, int stride) {
    WeldState state;
    state.StripsPerUnit = strips;
    WeldPass pass;
    Clock::time_point seen;
    const auto turn = [&] {
        seen = Clock::now();
        return true;
    };
    SearchYield yield(turn, stride);
    Take_Weld_Pass(lines, 123.4, state, pass, yield);
    benchmark::DoNotOptimize(seen);
    return pass.SM;
}

void BM_WeldPass(benchmark::State& state) {
    const std::vector<WeldLine> lines = Turned_Box(double(state.range(0)));
    const auto strips = std::int16_t(state.range(1));
    Bench::Compare(
        state, "ratio_to_plain",
        [&] { benchmark::DoNotOptimize(Weld_Pass(lines, strips, weldYieldStride)); },
        [&] { benchmark::DoNotOptimize(Plain::WeldPassSums(lines, 123.4, strips)); });
}
BENCHMARK(BM_WeldPass)->Args({0, 4})->Args({30, 4})->Args({0, 32})->Args({30, 32})->UseManualTime();

// The clock looked at in the program's stride against never.
void BM_WeldYield(benchmark::State& state) {
    const std::vector<WeldLine> lines = Turned_Box(double(state.range(0)));
    Bench::Compare(
        state, "ratio_to_never_asking",
        [&] { benchmark::DoNotOptimize(Weld_Pass(lines, 4, weldYieldStride)); },
        [&] { benchmark::DoNotOptimize(Weld_Pass(lines, 4, 1 << 30)); });
}
BENCHMARK(BM_WeldYield)->Arg(0)->Arg(30)->UseManualTime();

} // namespace
} // namespace Tensarix

BENCHMARK_MAIN();
