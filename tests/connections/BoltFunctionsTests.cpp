#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

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

TEST(BoltCoefficientC, KnownSearches) {
    struct Row {
        BoltGroup group;
        double ex, angle, C;
        long passes;
        double CPrime;
    };
    const Row rows[] = {
        {{6, 1, 3, 3}, 4, 0, 4.5584, 45, 25.0929},
        {{6, 1, 3, 3}, -4, 0, 4.5584, 45, 25.0929},
        {{6, 2, 3, 3}, 6, 0, 7.3096, 27, 54.1667},
        {{4, 2, 3, 3}, 8, 30, 3.2532, 15, 0},
        {{6, 2, 3, 3}, 6, 90, 12, 2, 0},
        {{6, 2, 3, 3}, 0, 37, 12, 0, 0},
        {{1, 1, 3, 3}, 5, 0, 0, 1, 0},
        {{1, 1, 3, 3}, 0, 0, 1, 0, 0},
    };
    for (const Row& row : rows) {
        const Searched found = Search(row.group, row.ex, row.angle);
        EXPECT_NEAR(found.C, row.C, 5e-5) << row.ex << " at " << row.angle;
        EXPECT_EQ(found.passes, row.passes) << row.ex << " at " << row.angle;
        if (row.CPrime > 0) {
            EXPECT_NEAR(BoltCoefficientCPrime(row.group), row.CPrime, 5e-5);
        }
    }
}

// As the search walks with every step on its own, C to the last digits and every pass.
TEST(BoltCoefficientC, SearchesThatConvergeTakeTheirPasses) {
    struct Row {
        BoltGroup group;
        double ex, angle, C;
        long passes;
    };
    const Row rows[] = {
        {{2, 1, 3, 5.5}, 12, 45, 0.337883366, 22}, {{4, 1, 3, 3}, 12, 0, 0.935997554, 10},
        {{7, 3, 3, 5.5}, 3, 15, 18.186483548, 83}, {{12, 2, 3, 5.5}, -30, 45, 8.945116323, 19},
        {{5, 3, 75, 75}, 200, 0, 6.903109952, 15}, {{3, 2, 3, 5.5}, 0.5, 135, 5.862754904, 510},
        {{9, 1, 3, 3}, 24, 60, 3.907851807, 21}};
    for (const Row& row : rows) {
        const Searched found = Search(row.group, row.ex, row.angle);
        EXPECT_NEAR(found.C, row.C, 1e-9) << row.group.m << " x " << row.group.n;
        EXPECT_EQ(found.passes, row.passes) << row.group.m << " x " << row.group.n;
    }
}

// Walked to their ends these take 60,035, 240,072 and 1,920,511 passes.
TEST(BoltCoefficientC, ASearchPastItsCentreFindsTheEndOfTheWalk) {
    struct Row {
        BoltGroup group;
        double ex, angle, C;
    };
    for (const Row& row :
         {Row{{3, 1, 3, 3}, 8, 0, 2.999950000}, Row{{6, 2, 3, 3}, 6, 75, 11.999918264},
          Row{{12, 8, 3, 3}, 6, 75, 95.999872436}}) {
        const Searched found = Search(row.group, row.ex, row.angle);
        EXPECT_NEAR(found.C, row.C, 1e-8) << row.group.m << " x " << row.group.n;
        EXPECT_LT(found.passes, 1000) << row.group.m << " x " << row.group.n;
    }
}

// Vertical and moment equilibrium about a centre on the horizontal, bracketed.
double Bracketed_C(const BoltGroup& group, double e) {
    double load = 0;
    const auto force = [](double slip) { return std::pow(1 - std::exp(-10 * slip), 0.55); };
    const auto excess = [&](double Ro) {
        std::vector<double> distances;
        double dmax = 0, SM = 0, SV = 0;
        for (int k = 0; k < group.m * group.n; ++k) {
            const double y = (std::floor(k / double(group.n)) - (group.m - 1) / 2.0) * group.sv;
            const double X = Ro + (k % group.n - (group.n - 1) / 2.0) * group.sh;
            dmax = std::max(dmax, std::hypot(X, y));
        }
        for (int k = 0; k < group.m * group.n; ++k) {
            const double y = (std::floor(k / double(group.n)) - (group.m - 1) / 2.0) * group.sv;
            const double X = Ro + (k % group.n - (group.n - 1) / 2.0) * group.sh;
            const double d = std::hypot(X, y);
            const double share = d > 0 ? force(0.34 * d / dmax) / force(0.34) : 0;
            SM += share * d;
            SV += d > 0 ? share * X / d : 0;
        }
        load = SV;
        return SM / (e + Ro) - SV;
    };
    double near = 0, far = 1000;
    for (int k = 0; k < 200; ++k) {
        const double middle = (near + far) / 2;
        (excess(middle) > 0 ? near : far) = middle;
    }
    return load;
}

TEST(BoltCoefficientC, AgreesWithABracketedCentreWhereItConverges) {
    struct Row {
        BoltGroup group;
        double ex;
    };
    const Row rows[] = {{{2, 1, 3, 3}, 2},    {{4, 1, 3, 3}, 3},  {{6, 1, 3, 3}, 4},
                        {{8, 1, 6, 3}, 10},   {{4, 2, 3, 3}, 5},  {{6, 2, 3, 5.5}, 12},
                        {{10, 2, 3, 5.5}, 9}, {{6, 4, 3, 3}, 16}, {{5, 3, 75, 75}, 200}};
    for (const Row& row : rows)
        EXPECT_NEAR(Search(row.group, row.ex, 0).C, Bracketed_C(row.group, row.ex), 2e-4)
            << row.group.m << " x " << row.group.n << " at " << row.ex;
}

// Steps fail one by one: the result is what the others leave. Some never end.
TEST(BoltCoefficientC, AbsurdNumbersEndOrCanBeGivenUp) {
    struct Row {
        BoltGroup group;
        double ex, angle;
        bool ends;
    };
    const Row rows[] = {
        {{0, 5, 3, 3}, 4, 0, true},           {{-2, -3, 3, 3}, 4, 0, true},
        {{4, 2, 0, 0}, 4, 0, true},           {{4, 2, 1e300, 1e300}, 4, 30, true},
        {{4, 2, 3, 3}, 1e300, 0, true},       {{4, 2, 3, 3}, 1e-300, 0, false},
        {{4, 2, 1e100, 3}, 4, 0, false},      {{3, 1, 1e308, 1e308}, 1e308, 45, true},
        {{4, 2, 1e-200, 1e-200}, 4, 0, true}, {{32767, 32767, 3, 3}, 4, 0, true}};
    for (const Row& row : rows) {
        CountingTurn turn{0, 500};
        SearchYield yield(std::ref(turn));
        try {
            EXPECT_NEAR(BoltCoefficientC(row.group, row.ex, row.angle, yield), 0, 1e-9);
            EXPECT_TRUE(row.ends) << row.ex << " " << row.group.sv;
        } catch (const SearchAbandoned&) {
            EXPECT_FALSE(row.ends) << row.ex << " " << row.group.sv;
        }
        EXPECT_TRUE(std::isfinite(BoltCoefficientCPrime(row.group)));
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
