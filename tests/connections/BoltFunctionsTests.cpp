#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "../../bench/PlainSearches.h"
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
    SearchYield yield(turn);
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

TEST(BoltCoefficientC, AnOvershootingSearchEndsNearAllBolts) {
    const Searched found = Search({6, 2, 3, 3}, 6, 75);
    EXPECT_NEAR(found.C, 12, 1e-3);
    EXPECT_NEAR(double(found.passes), 240'000, 12'000);
}

// Vertical and moment equilibrium about a centre on the horizontal, bracketed.
double Bracketed_C(const BoltGroup& group, double e) {
    double load = 0;
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
            const double share = d > 0 ? Plain::Force(0.34 * d / dmax) / Plain::Force(0.34) : 0;
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

TEST(BoltCoefficientC, AgreesWithThePlainLoopPassByPass) {
    int longSearches = 0;
    for (const int m : {1, 2, 3, 4, 7, 12}) {
        for (const int n : {1, 2, 3}) {
            for (const double angle : {0.0, 15.0, 45.0, 75.0, 90.0, 135.0}) {
                for (const double ex : {0.5, 3.0, 12.0, -30.0}) {
                    const BoltGroup group{std::int16_t(m), std::int16_t(n), 3, 5.5};
                    const Plain::Outcome plain = Plain::BoltC(group, ex, angle, 3000);
                    CountingTurn turn{0, 3000};
                    SearchYield yield(turn);
                    if (plain.passes == 3000) {
                        ++longSearches;
                        EXPECT_THROW(BoltCoefficientC(group, ex, angle, yield), SearchAbandoned);
                        continue;
                    }
                    EXPECT_NEAR(BoltCoefficientC(group, ex, angle, yield), plain.value, 1e-9);
                    EXPECT_EQ(turn.asked, plain.passes);
                }
            }
        }
    }
    EXPECT_GT(longSearches, 20);
}

TEST(BoltCoefficientC, ALongSearchTakesThePlainLoopsPasses) {
    const BoltGroup group{3, 1, 3, 3};
    const Plain::Outcome plain = Plain::BoltC(group, 8, 0);
    const Searched found = Search(group, 8, 0);
    EXPECT_GT(plain.passes, 20'000);
    EXPECT_NEAR(found.C, plain.value, 1e-9);
    EXPECT_EQ(found.passes, plain.passes);
}

// Steps fail one by one: the result is what the others leave.
TEST(BoltCoefficientC, AbsurdNumbersEndOrCanBeGivenUp) {
    struct Row {
        BoltGroup group;
        double ex, angle;
    };
    const Row rows[] = {{{0, 5, 3, 3}, 4, 0},        {{-2, -3, 3, 3}, 4, 0},
                        {{4, 2, 0, 0}, 4, 0},        {{4, 2, 1e300, 1e300}, 4, 30},
                        {{4, 2, 3, 3}, 1e300, 0},    {{4, 2, 3, 3}, 1e-300, 0},
                        {{4, 2, 3, 3}, 4, 1e308},    {{3, 1, 1e308, 1e308}, 1e308, 45},
                        {{4, 2, 1e100, 3}, 4, 0},    {{4, 2, 1e-200, 1e-200}, 4, 0},
                        {{32767, 32767, 3, 3}, 4, 0}};
    for (const Row& row : rows) {
        CountingTurn turn{0, 500};
        SearchYield yield(turn);
        const bool counted = row.group.m * row.group.n < 1'000;
        try {
            const double C = BoltCoefficientC(row.group, row.ex, row.angle, yield);
            EXPECT_TRUE(std::isfinite(C));
            if (counted && row.group.m > 0) {
                EXPECT_NEAR(C, Plain::BoltC(row.group, row.ex, row.angle, 500).value, 1e-9)
                    << row.ex << " " << row.group.sv;
            } else {
                EXPECT_EQ(C, 0);
            }
        } catch (const SearchAbandoned&) {
            EXPECT_EQ(Plain::BoltC(row.group, row.ex, row.angle, 500).passes, 500);
        }
        EXPECT_TRUE(std::isfinite(BoltCoefficientCPrime(row.group)));
    }
    CountingTurn turn;
    SearchYield yield(turn);
    EXPECT_EQ(BoltCoefficientC({-2, 3, 3, 3}, 0, 0, yield), -6);
    EXPECT_EQ(BoltCoefficientC({32767, 32767, 3, 3}, 0, 0, yield), 32767.0 * 32767.0);
}

TEST(BoltCoefficientC, ALargeGroupYieldsWithinAPass) {
    CountingTurn turn{0, 3};
    SearchYield yield(turn);
    EXPECT_THROW(BoltCoefficientC({200, 200, 3, 3}, 4, 0, yield), SearchAbandoned);
    EXPECT_EQ(turn.asked, 3);
}

TEST(BoltCoefficientCPrime, CountsTheFarthestBoltBelowOne) {
    const double farthest = std::pow(1 - std::exp(-3.4), 0.55);
    EXPECT_NEAR(BoltCoefficientCPrime({2, 1, 3, 3}), 2 * 1.5 * farthest, 1e-12);
    EXPECT_NEAR(BoltCoefficientCPrime({2, 2, 6, 8}), 4 * 5 * farthest, 1e-12);
    EXPECT_EQ(BoltCoefficientCPrime({1, 1, 3, 3}), 0);
    EXPECT_EQ(BoltCoefficientCPrime({0, 4, 3, 3}), 0);
    // AISC Manual, table 7-7: one column of 2 to 6 bolts 3 in. apart, three digits.
    std::int16_t m = 2;
    for (const double tabulated : {2.94, 5.89, 11.3, 17.1, 25.1})
        EXPECT_NEAR(BoltCoefficientCPrime({m++, 1, 3, 3}), tabulated,
                    tabulated > 10 ? 0.05 : 0.005);
}

TEST(SearchYield, AsksOnceAStride) {
    CountingTurn turn;
    SearchYield yield(turn, 16);
    for (int k = 0; k < 160; ++k)
        yield();
    EXPECT_EQ(turn.asked, 10);
}

} // namespace
} // namespace Tensarix
