#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "Largest.h"
#include "connections/Balance.h"
#include "connections/Numbers.h"
#include "connections/SearchStandIns.h"
#include "connections/WeldConfigurations.h"

namespace Tensarix {
namespace {

const double FarthestBolt = std::pow(1 - std::exp(-3.4), 0.55);

TEST(BalancedBolts, TwoBoltsInClosedForm) {
    for (const double s : {3.0, 76.2}) {
        for (const double e : {0.5 * s, s, 4 * s, 40 * s}) {
            const double a = s * s / (4 * e);
            const double C = 2 * FarthestBolt * a / std::hypot(a, s / 2);
            EXPECT_NEAR(Balanced_Bolt_Coefficient({2, 1, s, 3}, e, 0).value_or(-1), C, 1e-6);
        }
    }
}

// The group as a rigid plate on springs, without a centre: of the plate's movements with the load
// point moved so far, it takes that of least energy, and the load is full when the farthest spring
// is at its limit. The energy is convex: its derivatives are bisected.
double Least_Energy_C(const BoltGroup& group, double ex, double degrees) {
    const double theta = degrees * pi / 180, px = std::sin(theta), py = std::cos(theta);
    double across = 0, turning = 0, along = 0, farthest = 0;
    const auto move = [&](double reach, double turn, double aside) {
        const double s = reach - turn * ex * py;
        across = turning = along = farthest = 0;
        for (int k = 0; k < group.m * group.n; ++k) {
            const double x = (k % group.n - (group.n - 1) / 2.0) * group.sh;
            const double y = (std::floor(k / double(group.n)) - (group.m - 1) / 2.0) * group.sv;
            const double dx = s * px + aside * py - turn * y, dy = s * py - aside * px + turn * x;
            const double d = std::hypot(dx, dy);
            const double part = d > 0 ? std::pow(1 - std::exp(-10 * d), 0.55) / d : 0;
            farthest = std::max(farthest, d);
            across += part * (dx * py - dy * px);
            along += part * (dx * px + dy * py);
            turning += part * (dx * (-y - ex * py * px) + dy * (x - ex * py * py));
        }
    };
    const auto bisect = [](double low, double high, const auto& isAbove) {
        for (int k = 0; k < 42; ++k) {
            const double middle = (low + high) / 2;
            (isAbove(middle) ? high : low) = middle;
        }
    };
    bisect(0, 0.34 * (3 + std::abs(ex) / group.sv), [&](double reach) {
        bisect(-1, 1, [&](double turn) {
            bisect(-5, 5, [&](double aside) {
                move(reach, turn, aside);
                return across > 0;
            });
            return turning > 0;
        });
        return farthest > 0.34;
    });
    return along;
}

TEST(BalancedBolts, AgreeWithTheLeastEnergyOfAPlateOnSprings) {
    struct Row {
        BoltGroup group;
        double ex, angle;
    };
    const Row rows[] = {{{2, 1, 3, 3}, 2, 0},  {{3, 1, 3, 3}, 8, 0},   {{6, 1, 3, 3}, 4, 0},
                        {{6, 1, 3, 3}, 4, 45}, {{4, 2, 3, 3}, 8, 30},  {{6, 2, 3, 5.5}, 7, 15},
                        {{6, 2, 3, 3}, 6, 75}, {{3, 3, 3, 4}, 10, 60}, {{12, 2, 3, 5.5}, 16, 45},
                        {{1, 4, 3, 3}, 5, 20}};
    Tests::Largest deviation;
    for (const Row& row : rows) {
        const double C = Balanced_Bolt_Coefficient(row.group, row.ex, row.angle).value_or(-1);
        const double off = std::abs(C / Least_Energy_C(row.group, row.ex, row.angle) - 1);
        const std::string at = std::to_string(row.group.m) + " x " + std::to_string(row.group.n) +
                               " at " + std::to_string(int(row.angle)) + " degrees";
        EXPECT_LT(off, 1e-5) << at;
        deviation.Take(off, at);
    }
    deviation.Record("C");
}

// A group turned by a right angle with its load is the same group.
TEST(BalancedBolts, AnglesAndSidesOfOneGroupAgree) {
    const BoltGroup upright{6, 2, 3, 5.5};
    for (const double angle : {15.0, 40.0, 75.0}) {
        const double C = Balanced_Bolt_Coefficient(upright, 7, angle).value_or(-1);
        EXPECT_GT(C, 0);
        EXPECT_NEAR(Balanced_Bolt_Coefficient(upright, 7, -angle).value_or(-2), C, 1e-6);
        EXPECT_NEAR(Balanced_Bolt_Coefficient(upright, -7, 180 - angle).value_or(-2), C, 1e-6);
        // The same line of action in the frame of the lying group.
        const double e = 7 * std::cos(angle * 3.14159265358979 / 180);
        const double other = 90 - angle;
        const double ex = e / std::cos(other * 3.14159265358979 / 180);
        EXPECT_NEAR(Balanced_Bolt_Coefficient({2, 6, 5.5, 3}, ex, -other).value_or(-2), C, 1e-6);
    }
}

// In the frame of the group: forces square to the radius from the centre, against the load that
// points down, turned clockwise by the angle, through a point at ex beside the centroid.
TEST(BalancedBolts, TheForcesAboutTheCentreBalanceTheLoad) {
    struct Case {
        BoltGroup group;
        double ex, angle;
    };
    for (const Case& c :
         {Case{{3, 1, 3, 3}, 8, 0}, Case{{6, 2, 3, 5.5}, 16, 30}, Case{{4, 3, 3, 2}, -5, 40},
          Case{{2, 4, 3, 3}, 7, -60}, Case{{5, 2, 3, 3}, 6, 140}, Case{{5, 2, 3, 3}, -6, 200}}) {
        const Balance balance = Balanced_Bolts(c.group, c.ex, c.angle).value_or(Balance{});
        ASSERT_TRUE(balance.Turns);
        const double theta = c.angle * pi / 180;
        double across = -balance.C * std::sin(theta), up = -balance.C * std::cos(theta);
        double moment = c.ex * up;
        const double turn = moment > 0 ? -1 : 1; // the forces turn the other way
        std::vector<std::array<double, 4>> bolts;
        double farthest = 0;
        for (int i = 0; i < c.group.m; ++i) {
            for (int j = 0; j < c.group.n; ++j) {
                const double x = (j - (c.group.n - 1) / 2.0) * c.group.sh;
                const double y = (i - (c.group.m - 1) / 2.0) * c.group.sv;
                bolts.push_back({x, y, x - balance.X, y - balance.Y});
                farthest = std::max(farthest, std::hypot(x - balance.X, y - balance.Y));
            }
        }
        for (const auto& [x, y, dx, dy] : bolts) {
            const double d = std::hypot(dx, dy);
            const double share = turn * std::pow(1 - std::exp(-3.4 * d / farthest), 0.55) / d;
            across -= share * dy;
            up += share * dx;
            moment += share * (x * dx + y * dy);
        }
        EXPECT_NEAR(across, 0, 1e-3) << c.angle;
        EXPECT_NEAR(up, 0, 1e-3) << c.angle;
        EXPECT_NEAR(moment, 0, 1e-2) << c.angle;
    }
}

TEST(BalancedBolts, EdgesOfTheGroup) {
    EXPECT_NEAR(Balanced_Bolt_Coefficient({3, 2, 3, 3}, 0, 30).value_or(-1), 6 * FarthestBolt,
                1e-9);
    EXPECT_NEAR(Balanced_Bolt_Coefficient({3, 2, 3, 3}, 9, 90).value_or(-1), 6 * FarthestBolt,
                1e-6);
    EXPECT_EQ(Balanced_Bolt_Coefficient({1, 1, 3, 3}, 9, 0).value_or(-1), 0);
    EXPECT_FALSE(Balanced_Bolt_Coefficient({0, 4, 3, 3}, 9, 0));
    EXPECT_FALSE(Balanced_Bolt_Coefficient({-2, -2, 3, 3}, 9, 0));
    EXPECT_FALSE(Balanced_Bolt_Coefficient({32767, 32767, 3, 3}, 9, 0));
    EXPECT_FALSE(Balanced_Bolt_Coefficient({3, 2, 1e300, 3}, 9, 0));
}

// The force of one line along the load and of one across it, in lines along.
TEST(BalancedWelds, ConcentricGroups) {
    constexpr double unit = 0.6 * 70 * 0.707106781 * 0.0625;
    EXPECT_NEAR(Balanced_Weld_Coefficient(2, 10, 5, 0, 0).value_or(-1), 2 * unit, 0.003);
    EXPECT_NEAR(Balanced_Weld_Coefficient(3, 10, 5, 0, 15).value_or(-1),
                2 * unit * (1 + 0.5 * std::pow(std::sin(75 * 3.14159265358979 / 180), 1.5)), 0.006);
    // Along and across together, AISC section J2.4: 0.85 and 1.5.
    for (const auto& [leg, angle, lines] :
         {std::array{10.0, 0.0, 2 * 0.85 + 2 * 1.5}, std::array{2.0, 0.0, 2 + 2 * 0.2},
          std::array{2.0, 90.0, 0.85 * 2 * 0.2 + 1.5 * 2}}) {
        const Balance balance = Balanced_Welds(4, 10, leg, 0, angle).value_or(Balance{});
        EXPECT_TRUE(balance.ByLines);
        EXPECT_NEAR(balance.C, unit * lines, 1e-9);
    }
    EXPECT_FALSE(Balanced_Welds(4, 10, 2, 0, 30).value_or(Balance{}).ByLines);
    EXPECT_FALSE(Balanced_Weld_Coefficient(4, 0, 10, 3, 0));
    EXPECT_FALSE(Balanced_Weld_Coefficient(4, 1e300, 10, 3, 0));
}

// Turned past a right angle, the load is that of the group upside down.
TEST(BalancedWelds, TheCentreFollowsTheSideOfTheLoad) {
    for (const double angle : {0.0, 25.0, 70.0}) {
        const Balance one = Balanced_Welds(6, 10, 5, 8, angle).value_or(Balance{});
        const Balance other = Balanced_Welds(6, 10, 5, 8, 180 - angle).value_or(Balance{});
        EXPECT_LT(one.X, 0) << angle;
        EXPECT_NEAR(one.C, other.C, 1e-3) << angle;
        EXPECT_NEAR(one.X, other.X, 1e-2) << angle;
        EXPECT_NEAR(one.Y, -other.Y, 1e-2) << angle;
    }
}

// The centre of a weld group by feeling about for it: from the elastic centre, in shorter and
// shorter steps, to where least is missed. The group stays upright, and the load leans.
struct Felt {
    double C = 0, missed = 1e9;
};

Felt Felt_Weld_C(int item, double L, double kL, double aL, double degrees) {
    constexpr int strips = 160;
    struct Piece {
        double x, y, length, tx, ty;
    };
    std::vector<Piece> pieces;
    double total = 0, xc = 0, yc = 0, polar = 0;
    for (const WeldLine& line : Weld_Configuration_Lines(item, L, kL)) {
        const double length = std::hypot(line.x2 - line.x1, line.y2 - line.y1);
        for (int k = 0; k < strips && length > 0; ++k) {
            const double t = (k + 0.5) / strips, dx = line.x2 - line.x1, dy = line.y2 - line.y1;
            pieces.push_back(
                {line.x1 + t * dx, line.y1 + t * dy, length / strips, dx / length, dy / length});
            total += length / strips;
            xc += pieces.back().x * length / strips;
            yc += pieces.back().y * length / strips;
        }
    }
    for (Piece& piece : pieces) {
        piece.x -= xc / total;
        piece.y -= yc / total;
        polar += (piece.x * piece.x + piece.y * piece.y) * piece.length / total;
    }
    const double theta = degrees * pi / 180, px = std::sin(theta), py = std::cos(theta);
    const double e = aL * py, size = e + std::sqrt(polar);
    const auto about = [&](double cx, double cy) {
        const auto angle = [&](const Piece& p) {
            const double r = std::hypot(p.x - cx, p.y - cy);
            return std::asin(std::min(1.0, std::abs((p.x - cx) * p.tx + (p.y - cy) * p.ty) / r));
        };
        double turn = 1e9, fx = 0, fy = 0, moment = 0, sum = 0;
        for (const Piece& p : pieces)
            turn = std::min(turn, std::min(1.087 * std::pow(angle(p) * 180 / pi + 6, -0.65), 0.17) /
                                      std::hypot(p.x - cx, p.y - cy));
        for (const Piece& p : pieces) {
            const double r = std::hypot(p.x - cx, p.y - cy), a = angle(p);
            const double d = turn * r / (0.209 * std::pow(a * 180 / pi + 2, -0.32));
            const double R = 0.6 * 70 * 0.707106781 / 16 * p.length *
                             (1 + 0.5 * std::pow(std::sin(a), 1.5)) *
                             std::pow(d * (1.9 - 0.9 * d), 0.3);
            fx -= R * (p.y - cy) / r;
            fy += R * (p.x - cx) / r;
            moment += R * (p.x * (p.x - cx) + p.y * (p.y - cy)) / r;
            sum += R;
        }
        const double P = fx * px + fy * py;
        return Felt{P / L, std::hypot((fx * py - fy * px) / sum, (moment - P * e) / (sum * size))};
    };
    double x = -polar / e * py, y = polar / e * px;
    Felt best = about(x, y);
    for (double step = size, lean = 0; step > 1e-8 * size;) {
        bool nearer = false;
        for (int k = 0; k < 6; ++k) {
            const double to = lean + k * pi / 3;
            const double tx = x + step * std::cos(to), ty = y + step * std::sin(to);
            if (const Felt felt = about(tx, ty); felt.missed < best.missed && felt.C > 0) {
                best = felt;
                x = tx;
                y = ty;
                nearer = true;
            }
        }
        lean += 1;
        step *= nearer ? 1 : 0.6;
    }
    return best;
}

TEST(BalancedWelds, AgreeWithACentreFeltFor) {
    Tests::Largest deviation;
    for (int item = 1; item <= 9; ++item)
        for (const double a : {0.3, 1.2})
            for (const double angle : {0.0, 30.0}) {
                const double kL = item == 1 ? 0 : 5;
                const Felt felt = Felt_Weld_C(item, 10, kL, 10 * a, angle);
                const double C =
                    Balanced_Weld_Coefficient(item, 10, kL, 10 * a, angle).value_or(-1);
                const std::string at = "item " + std::to_string(item) + ", a " +
                                       std::to_string(a).substr(0, 3) + ", " +
                                       std::to_string(int(angle)) + " degrees";
                EXPECT_LT(felt.missed, 1e-3) << at;
                EXPECT_NEAR(C / felt.C, 1, 0.005) << at;
                deviation.Take(std::abs(C / felt.C - 1), at);
            }
    deviation.Record("C");
}

TEST(BalancedWelds, AlmostEveryGroupHasACentre) {
    constexpr int all = 2000;
    std::mt19937 random(1);
    const auto between = [&random](double low, double high) {
        return low + (high - low) * (double(random()) / 4294967296.0);
    };
    int none = 0;
    for (int k = 0; k < all; ++k) {
        const int item = 1 + k % 9;
        const double L = between(2, 40), kL = L * between(0, 2), aL = L * between(0.05, 3);
        none += !Balanced_Weld_Coefficient(item, L, kL, aL, between(0, 85));
    }
    EXPECT_LE(none, all / 100);
    testing::Test::RecordProperty("without a centre",
                                  std::to_string(none) + " of " + std::to_string(all));
}

// How far the searches end from balance, which the remarks tell of each result.
TEST(BalanceRemark, TheBoltSearchIsNeverBelowTheBalancedLoad) {
    for (const double angle : {0.0, 15.0, 45.0, 75.0}) {
        Tests::Largest above;
        int remarks = 0;
        for (const int m : {2, 3, 4, 6, 8, 12})
            for (const int n : {1, 2})
                for (const double ex : {2.0, 4.0, 8.0, 16.0}) {
                    const BoltGroup group{std::int16_t(m), std::int16_t(n), 3, 3};
                    CountingTurn turn;
                    SearchYield yield(std::ref(turn));
                    const double C = BoltCoefficientC(group, ex, angle, yield);
                    const auto balanced = Balanced_Bolts(group, ex, angle);
                    EXPECT_GT(C / balanced.value_or(Balance{1e9}).C, 1.018)
                        << m << " x " << n << " at " << ex;
                    above.Take(C / balanced->C - 1, std::to_string(m) + " x " + std::to_string(n));
                    remarks += !Balance_Remark(C, balanced, boltRemarkTolerance).Text.empty();
                }
        EXPECT_TRUE(angle > 0 || remarks < 5);
        above.Record(std::to_string(int(angle)) + " degrees, " + std::to_string(remarks) +
                     " remarks");
    }
}

TEST(BalanceRemark, TheWeldSearchIsBelowTheBalancedLoadUnderAnUprightLoad) {
    for (const double angle : {0.0, 30.0, 60.0}) {
        Tests::Largest above, below;
        int remarks = 0;
        for (int item = 1; item <= 9; ++item)
            for (const double aL : {3.0, 10.0}) {
                WeldBench bench;
                bench.display.onStep = [&] {
                    bench.state.StopRequested |= bench.display.steps > 999;
                };
                const double C =
                    Weld_Configuration_Result(item, 10, 5, aL, angle, weldModeC, bench.search);
                const auto balanced = Balanced_Welds(item, 10, 5, aL, angle);
                if (bench.state.StopRequested || !balanced)
                    continue;
                const std::string at = "item " + std::to_string(item);
                above.Take(C / balanced->C - 1, at);
                below.Take(1 - C / balanced->C, at);
                remarks += !Balance_Remark(C, balanced, weldRemarkTolerance).Text.empty();
                EXPECT_TRUE(angle > 0 || C < balanced->C) << at;
            }
        const std::string run =
            std::to_string(int(angle)) + " degrees, " + std::to_string(remarks) + " remarks, ";
        above.Record(run + "above");
        below.Record(run + "below");
    }
}

TEST(BalanceRemark, StandsBeyondTheToleranceAndWeighsBySide) {
    CountingTurn turn;
    SearchYield yield(std::ref(turn));
    const BoltGroup group{3, 1, 3, 3};
    const double C = BoltCoefficientC(group, 8, 0, yield);
    const Advice none;
    EXPECT_EQ(Balance_Remark(C, Balanced_Bolts(group, 8, 0), boltRemarkTolerance),
              (Advice{"The centre that satisfies all equilibrium conditions gives C = 0.732 (this "
                      "value is 310 % higher)",
                      RemarkWeight::Unsafe}));
    EXPECT_EQ(Balance_Remark(0.9, Balance{1.0}, 0.05),
              (Advice{"The centre that satisfies all equilibrium conditions gives C = 1.000 (this "
                      "value is 10 % lower)",
                      RemarkWeight::Note}));
    EXPECT_EQ(Balance_Remark(1.1, Balance{.C = 1, .ByLines = true}, 0.05),
              (Advice{"AISC 360-05 J2.4(c), for lines along and across the load, gives C = 1.000 "
                      "(this value is 10 % higher)",
                      RemarkWeight::Unsafe}));
    EXPECT_EQ(Balance_Remark(4.5584, Balanced_Bolts({6, 1, 3, 3}, 4, 0), 0.025), none);
    EXPECT_EQ(Balance_Remark(1.0, std::nullopt, 0.025),
              (Advice{"Not checked: no centre that satisfies all equilibrium conditions was found",
                      RemarkWeight::Caution}));
    EXPECT_EQ(Balance_Remark(0.0, std::nullopt, 0.025), none); // no group, no load
    EXPECT_EQ(Balance_Remark(0.0, Balance{}, 0.025), none);
}

} // namespace
} // namespace Tensarix
