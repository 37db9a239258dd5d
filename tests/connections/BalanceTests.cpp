#include <gtest/gtest.h>

#include <cmath>

#include "connections/Balance.h"
#include "connections/SearchStandIns.h"

namespace Tensarix {
namespace {

const double FarthestBolt = std::pow(1 - std::exp(-3.4), 0.55);

TEST(BalancedBolts, TwoBoltsInClosedForm) {
    for (const double s : {3.0, 76.2}) {
        for (const double e : {0.5 * s, s, 4 * s, 40 * s}) {
            const double a = s * s / (4 * e);
            const double C = 2 * FarthestBolt * a / std::hypot(a, s / 2);
            EXPECT_NEAR(BalancedBoltCoefficient({2, 1, s, 3}, e, 0).value_or(-1), C, 1e-6);
        }
    }
}

// AISC Manual, tables 7-7 and 7-8, to their two decimals.
TEST(BalancedBolts, TabulatedCoefficients) {
    struct Row {
        BoltGroup group;
        double ex, C;
    };
    const Row rows[] = {{{2, 1, 3, 3}, 2, 1.18},
                        {{2, 1, 3, 3}, 3, 0.88},
                        {{2, 1, 3, 3}, 4, 0.69},
                        {{3, 1, 3, 3}, 8, 0.73},
                        {{6, 2, 3, 5.5}, 16, 3.55}};
    for (const Row& row : rows)
        EXPECT_NEAR(BalancedBoltCoefficient(row.group, row.ex, 0).value_or(-1), row.C, 0.0051);
}

// A group turned by a right angle with its load is the same group.
TEST(BalancedBolts, AnglesAndSidesOfOneGroupAgree) {
    const BoltGroup upright{6, 2, 3, 5.5};
    for (const double angle : {15.0, 40.0, 75.0}) {
        const double C = BalancedBoltCoefficient(upright, 7, angle).value_or(-1);
        EXPECT_GT(C, 0);
        EXPECT_NEAR(BalancedBoltCoefficient(upright, 7, -angle).value_or(-2), C, 1e-6);
        EXPECT_NEAR(BalancedBoltCoefficient(upright, -7, 180 - angle).value_or(-2), C, 1e-6);
        // The same line of action in the frame of the lying group.
        const double e = 7 * std::cos(angle * 3.14159265358979 / 180);
        const double other = 90 - angle;
        const double ex = e / std::cos(other * 3.14159265358979 / 180);
        EXPECT_NEAR(BalancedBoltCoefficient({2, 6, 5.5, 3}, ex, -other).value_or(-2), C, 1e-6);
    }
}

TEST(BalancedBolts, EdgesOfTheGroup) {
    EXPECT_NEAR(BalancedBoltCoefficient({3, 2, 3, 3}, 0, 30).value_or(-1), 6 * FarthestBolt, 1e-9);
    EXPECT_NEAR(BalancedBoltCoefficient({3, 2, 3, 3}, 9, 90).value_or(-1), 6 * FarthestBolt, 1e-6);
    EXPECT_EQ(BalancedBoltCoefficient({1, 1, 3, 3}, 9, 0).value_or(-1), 0);
    EXPECT_FALSE(BalancedBoltCoefficient({0, 4, 3, 3}, 9, 0));
    EXPECT_FALSE(BalancedBoltCoefficient({-2, -2, 3, 3}, 9, 0));
    EXPECT_FALSE(BalancedBoltCoefficient({32767, 32767, 3, 3}, 9, 0));
    EXPECT_FALSE(BalancedBoltCoefficient({3, 2, 1e300, 3}, 9, 0));
}

// The force of one line along the load and of one across it, in lines along.
TEST(BalancedWelds, ConcentricGroups) {
    constexpr double unit = 0.6 * 70 * 0.707106781 * 0.0625;
    EXPECT_NEAR(BalancedWeldCoefficient(2, 10, 5, 0, 0).value_or(-1), 2 * unit, 0.003);
    EXPECT_NEAR(BalancedWeldCoefficient(3, 10, 5, 0, 15).value_or(-1),
                2 * unit * (1 + 0.5 * std::pow(std::sin(75 * 3.14159265358979 / 180), 1.5)), 0.006);
    // Along and across together, AISC section J2.4: 0.85 and 1.5.
    EXPECT_NEAR(BalancedWeldCoefficient(4, 10, 10, 0, 0).value_or(-1), unit * (2 * 0.85 + 2 * 1.5),
                0.1);
    EXPECT_FALSE(BalancedWeldCoefficient(4, 0, 10, 3, 0));
    EXPECT_FALSE(BalancedWeldCoefficient(4, 1e300, 10, 3, 0));
}

// Two lines that lie on each other, loaded beside their middle: the centre is bracketed on the
// horizontal, every element with its own limits.
double Bracketed_Line(double a) {
    constexpr int count = 800;
    const auto forces = [&](double centre, double& moment) {
        double critical = 1e9, vertical = 0;
        moment = 0;
        const auto degrees = [&](double y) {
            return std::atan(std::abs(y) / centre) * 57.295779513;
        };
        for (int k = 0; k < count; ++k) {
            const double y = (k + 0.5) / count - 0.5;
            const double du = std::min(1.087 * std::pow(degrees(y) + 6, -0.65), 0.17);
            critical = std::min(critical, du / std::hypot(y, centre));
        }
        for (int k = 0; k < count; ++k) {
            const double y = (k + 0.5) / count - 0.5;
            const double r = std::hypot(y, centre);
            const double p = critical * r / (0.209 * std::pow(degrees(y) + 2, -0.32));
            const double R = (1 + 0.5 * std::pow(std::abs(y) / r, 1.5)) *
                             std::pow(p * (1.9 - 0.9 * p), 0.3) * 2 * 42 * 0.707106781 * 0.0625 /
                             count;
            vertical += R * centre / r;
            moment += R * r;
        }
        return vertical;
    };
    double near = 1e-6, far = 100, moment = 0;
    for (int k = 0; k < 100; ++k) {
        const double middle = (near + far) / 2;
        const double vertical = forces(middle, moment);
        (moment > vertical * (a + middle) ? near : far) = middle;
    }
    return forces(near, moment);
}

TEST(BalancedWelds, OneLineAgreesWithABracketedCentre) {
    for (const double a : {0.2, 0.5, 1.0, 2.5})
        EXPECT_NEAR(BalancedWeldCoefficient(1, 8, 0, 8 * a, 0).value_or(-1) / Bracketed_Line(a), 1,
                    0.003)
            << a;
}

TEST(BalancedWelds, AlmostEveryGroupHasACentre) {
    int none = 0, all = 0;
    for (int item = 1; item <= 9; ++item) {
        for (const double k : {0.0, 0.3, 1.0}) {
            for (const double a : {0.1, 0.5, 2.0}) {
                for (const double angle : {0.0, 20.0, 60.0}) {
                    ++all;
                    none += !BalancedWeldCoefficient(item, 10, 10 * k, 10 * a, angle);
                }
            }
        }
    }
    EXPECT_LE(none, all / 100);
}

TEST(BalanceRemark, StandsBeyondTheTolerance) {
    CountingTurn turn;
    SearchYield yield(turn);
    const BoltGroup group{3, 1, 3, 3};
    const double C = BoltCoefficientC(group, 8, 0, yield);
    EXPECT_EQ(BalanceRemark(C, BalancedBoltCoefficient(group, 8, 0), BoltRemarkTolerance),
              "The centre that satisfies all equilibrium conditions gives C = 0.732 (this value is "
              "310 % higher)");
    EXPECT_EQ(BalanceRemark(0.9, 1.0, 0.05),
              "The centre that satisfies all equilibrium conditions gives C = 1.000 (this value is "
              "10 % lower)");
    EXPECT_EQ(BalanceRemark(4.5584, BalancedBoltCoefficient({6, 1, 3, 3}, 4, 0), 0.025), "");
    EXPECT_EQ(BalanceRemark(1.0, std::nullopt, 0.025), "");
    EXPECT_EQ(BalanceRemark(0.0, 0.0, 0.025), "");
}

} // namespace
} // namespace Tensarix
