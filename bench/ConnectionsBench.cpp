// One pass of each search against the plain loops. Each counter is the engine's time over that
// of the loop it is named for.
#include "Compare.h"
#include "PlainSearches.h"
#include "connections/WeldConfigurations.h"
#include "connections/WeldPass.h"

#include <chrono>

namespace Tensarix {
namespace {

using Clock = std::chrono::steady_clock;

constexpr long Passes = 2000;

// Searches that overshoot, so that they have passes enough.
struct BoltCase {
    BoltGroup group;
    double ex = 0, angle = 0;
};

BoltCase Case_Of(const benchmark::State& state) {
    return {{std::int16_t(state.range(0)), std::int16_t(state.range(1)), 3, 3},
            double(state.range(2)),
            double(state.range(3))};
}

double Some_Bolt_Passes(const BoltCase& bolts, int stride) {
    long left = Passes / stride;
    Clock::time_point seen;
    const auto turn = [&] {
        seen = Clock::now();
        benchmark::DoNotOptimize(seen);
        return --left > 0;
    };
    SearchYield yield(turn, stride);
    try {
        return BoltCoefficientC(bolts.group, bolts.ex, bolts.angle, yield);
    } catch (const SearchAbandoned&) {
        return 0;
    }
}

void BM_BoltPass(benchmark::State& state) {
    const BoltCase bolts = Case_Of(state);
    Bench::Compare(
        state, "ratio_to_plain",
        [&] { benchmark::DoNotOptimize(Some_Bolt_Passes(bolts, BoltYieldStride)); },
        [&] {
            benchmark::DoNotOptimize(Plain::BoltC(bolts.group, bolts.ex, bolts.angle, Passes));
        });
}
BENCHMARK(BM_BoltPass)
    ->Args({3, 1, 8, 0})
    ->Args({4, 1, 12, 0})
    ->Args({6, 2, 6, 75})
    ->Args({12, 4, 6, 75})
    ->Args({40, 10, 6, 75})
    ->UseManualTime();

// The program's stride against never asking.
void BM_BoltYield(benchmark::State& state) {
    const BoltCase bolts = Case_Of(state);
    Bench::Compare(
        state, "ratio_to_never_asking",
        [&] { benchmark::DoNotOptimize(Some_Bolt_Passes(bolts, BoltYieldStride)); },
        [&] { benchmark::DoNotOptimize(Some_Bolt_Passes(bolts, Passes)); });
}
BENCHMARK(BM_BoltYield)->Args({3, 1, 8, 0})->Args({6, 2, 6, 75})->UseManualTime();

std::vector<WeldLine> Turned_Box(double angle) {
    std::vector<WeldLine> lines = Weld_Configuration_Lines(4, 100, 50);
    const double theta = angle * Plain::TruncatedPi / 180;
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
        [&] { benchmark::DoNotOptimize(Weld_Pass(lines, strips, WeldYieldStride)); },
        [&] { benchmark::DoNotOptimize(Plain::WeldPassSums(lines, 123.4, strips)); });
}
BENCHMARK(BM_WeldPass)->Args({0, 4})->Args({30, 4})->Args({0, 32})->Args({30, 32})->UseManualTime();

// The clock looked at in the program's stride against never.
void BM_WeldYield(benchmark::State& state) {
    const std::vector<WeldLine> lines = Turned_Box(double(state.range(0)));
    Bench::Compare(
        state, "ratio_to_never_asking",
        [&] { benchmark::DoNotOptimize(Weld_Pass(lines, 4, WeldYieldStride)); },
        [&] { benchmark::DoNotOptimize(Weld_Pass(lines, 4, 1 << 30)); });
}
BENCHMARK(BM_WeldYield)->Arg(0)->Arg(30)->UseManualTime();

} // namespace
} // namespace Tensarix

BENCHMARK_MAIN();
