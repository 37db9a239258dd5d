#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "connections/BoltFunctions.h"
#include "connections/SearchStandIns.h"

namespace Tensarix {
namespace {

struct Searched {
    double C;
    long passes;
};

Searched Search(const BoltGroup& group, double ex, double angle) {
    CountingTurn turn;
    SearchYield yield(std::ref(turn));
    const double C = BoltCoefficientC(group, ex, angle, yield);
    return {C, turn.asked};
}

// As the search walks with every step on its own, C to the last digits and every pass. Walked to
// their ends the last three take 60,035, 240,072 and 1,920,511 passes: here few, uncounted.
TEST(BoltCoefficientC, SearchesTakeTheirPasses) {
    constexpr long few = -1;
    const std::tuple<BoltGroup, double, double, double, long> rows[] = {
        {{6, 2, 3, 3}, 6, 90, 12, 2},
        {{6, 2, 3, 3}, 0, 37, 12, 0},
        {{1, 1, 3, 3}, 5, 0, 0, 1},
        {{1, 1, 3, 3}, 0, 0, 1, 0},
        {{2, 1, 3, 5.5}, 12, 45, 0.337883366, 22},
        {{4, 1, 3, 3}, 12, 0, 0.935997554, 10},
        {{7, 3, 3, 5.5}, 3, 15, 18.186483548, 83},
        {{12, 2, 3, 5.5}, -30, 45, 8.945116323, 19},
        {{5, 3, 75, 75}, 200, 0, 6.903109952, 15},
        {{3, 2, 3, 5.5}, 0.5, 135, 5.862754904, 510},
        {{9, 1, 3, 3}, 24, 60, 3.907851807, 21},
        {{3, 1, 3, 3}, 8, 0, 2.999950000, few},
        {{6, 2, 3, 3}, 6, 75, 11.999918264, few},
        {{12, 8, 3, 3}, 6, 75, 95.999872436, few}};
    for (const auto& [group, ex, angle, C, passes] : rows) {
        const Searched found = Search(group, ex, angle);
        const std::string at = std::to_string(group.m) + " x " + std::to_string(group.n);
        EXPECT_NEAR(found.C, C, passes == few ? 1e-8 : 1e-9) << at;
        EXPECT_TRUE(passes == few ? found.passes < 1000 : found.passes == passes)
            << at << ": " << found.passes;
    }
}

// Steps fail one by one: the result is what the others leave. Some never end.
TEST(BoltCoefficientC, AbsurdNumbersEndOrCanBeGivenUp) {
    const std::tuple<BoltGroup, double, double, bool> rows[] = {
        {{0, 5, 3, 3}, 4, 0, true},           {{-2, -3, 3, 3}, 4, 0, true},
        {{4, 2, 0, 0}, 4, 0, true},           {{4, 2, 1e300, 1e300}, 4, 30, true},
        {{4, 2, 3, 3}, 1e300, 0, true},       {{4, 2, 3, 3}, 1e-300, 0, false},
        {{4, 2, 1e100, 3}, 4, 0, false},      {{3, 1, 1e308, 1e308}, 1e308, 45, true},
        {{4, 2, 1e-200, 1e-200}, 4, 0, true}, {{32767, 32767, 3, 3}, 4, 0, true}};
    for (const auto& [group, ex, angle, ends] : rows) {
        CountingTurn turn{0, 500};
        SearchYield yield(std::ref(turn));
        try {
            EXPECT_NEAR(BoltCoefficientC(group, ex, angle, yield), 0, 1e-9);
            EXPECT_TRUE(ends) << ex << " " << group.sv;
        } catch (const SearchAbandoned&) {
            EXPECT_FALSE(ends) << ex << " " << group.sv;
        }
        EXPECT_TRUE(std::isfinite(BoltCoefficientCPrime(group)));
    }
    EXPECT_EQ(Search({-2, 3, 3, 3}, 0, 0).C, -6);
    EXPECT_EQ(Search({32767, 32767, 3, 3}, 0, 0).C, 32767.0 * 32767.0);
}

TEST(BoltCoefficientC, ALargeGroupYieldsWithinAPass) {
    CountingTurn turn{0, 3};
    SearchYield yield(std::ref(turn));
    EXPECT_THROW(BoltCoefficientC({200, 200, 3, 3}, 4, 0, yield), SearchAbandoned);
    EXPECT_EQ(turn.asked, 3);
}

TEST(BoltCoefficientCPrime, CountsTheFarthestBoltBelowOne) {
    const double farthest = std::pow(1 - std::exp(-3.4), 0.55);
    EXPECT_NEAR(BoltCoefficientCPrime({2, 1, 3, 3}), 2 * 1.5 * farthest, 1e-12);
    EXPECT_NEAR(BoltCoefficientCPrime({2, 2, 6, 8}), 4 * 5 * farthest, 1e-12);
    EXPECT_EQ(BoltCoefficientCPrime({1, 1, 3, 3}), 0);
    EXPECT_EQ(BoltCoefficientCPrime({0, 4, 3, 3}), 0);
}

TEST(SearchYield, AsksOnceAStride) {
    CountingTurn turn;
    SearchYield yield(std::ref(turn), 16);
    for (int k = 0; k < 160; ++k)
        yield();
    EXPECT_EQ(turn.asked, 10);
}

} // namespace
} // namespace Tensarix
