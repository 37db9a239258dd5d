#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>
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

const double farthestBolt = std::pow(1 - std::exp(-3.4), 0.55);

// In the frame of the group: forces square to the radius from the centre, against the load that
// points down, turned clockwise by the angle, through a point at ex beside the centroid.
TEST(BalancedBolts, TheForcesAboutTheCentreBalanceTheLoad) {
    using Case = std::tuple<BoltGroup, double, double>;
    Tests::Largest deviation;
    for (const auto& [group, ex, angle] :
         {Case{{2, 1, 3, 3}, 120, 0}, Case{{3, 1, 3, 3}, 8, 0}, Case{{6, 2, 3, 5.5}, 16, 30},
          Case{{4, 3, 3, 2}, -5, 40}, Case{{12, 2, 3, 5.5}, 16, 45}, Case{{6, 2, 3, 3}, 6, 75},
          Case{{1, 4, 3, 3}, 5, 20}, Case{{2, 4, 3, 3}, 7, -60}, Case{{5, 2, 76.2, 76.2}, 150, 140},
          Case{{5, 2, 3, 3}, -6, 200}}) {
        const Balance balance = Balanced_Bolts(group, ex, angle).value_or(Balance{});
        ASSERT_TRUE(balance.Turns);
        const double theta = angle * pi / 180;
        double across = -balance.C * std::sin(theta), up = -balance.C * std::cos(theta);
        double moment = ex * up;
        const double turn = moment > 0 ? -1 : 1; // the forces turn the other way
        std::vector<std::array<double, 4>> bolts;
        double farthest = 0, size = std::abs(ex);
        for (int i = 0; i < group.m; ++i) {
            for (int j = 0; j < group.n; ++j) {
                const double x = (j - (group.n - 1) / 2.0) * group.sh;
                const double y = (i - (group.m - 1) / 2.0) * group.sv;
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
        const double missed = std::hypot(across, up, moment / size) / balance.C;
        EXPECT_LT(missed, 1e-9) << group.m << " x " << group.n << " at " << angle;
        deviation.Take(missed, std::to_string(group.m) + " x " + std::to_string(group.n));
    }
    deviation.Record("missed of C");
}

double C_Of(const std::optional<Balance>& balance) {
    return balance.value_or(Balance{-1}).C;
}

TEST(BalancedBolts, EdgesOfTheGroup) {
    EXPECT_NEAR(C_Of(Balanced_Bolts({3, 2, 3, 3}, 0, 30)), 6 * farthestBolt, 1e-9);
    EXPECT_NEAR(C_Of(Balanced_Bolts({3, 2, 3, 3}, 9, 90)), 6 * farthestBolt, 1e-6);
    EXPECT_EQ(C_Of(Balanced_Bolts({1, 1, 3, 3}, 9, 0)), 0);
    EXPECT_FALSE(Balanced_Bolts({0, 4, 3, 3}, 9, 0));
    EXPECT_FALSE(Balanced_Bolts({-2, -2, 3, 3}, 9, 0));
    EXPECT_FALSE(Balanced_Bolts({32767, 32767, 3, 3}, 9, 0));
    EXPECT_FALSE(Balanced_Bolts({3, 2, 1e300, 3}, 9, 0));
}

// The force of one line along the load and of one across it, in lines along.
TEST(BalancedWelds, ConcentricGroups) {
    constexpr double unit = 0.6 * 70 * 0.707106781 * 0.0625;
    EXPECT_NEAR(C_Of(Balanced_Welds(2, 10, 5, 0, 0)), 2 * unit, 0.003);
    EXPECT_NEAR(C_Of(Balanced_Welds(3, 10, 5, 0, 15)),
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
    EXPECT_FALSE(Balanced_Welds(4, 0, 10, 3, 0));
    EXPECT_FALSE(Balanced_Welds(4, 1e300, 10, 3, 0));
}

// What the weld carries about the centre of a balance, no line longer than L, and by how much that
// misses the load. The group stays upright, and the load leans.
struct Carried {
    double C = 0, missed = 1e9;
};

Carried Carried_About(const Balance& centre, int item, double L, double kL, double aL,
                      double degrees) {
    struct Piece {
        double x, y, length, tx, ty;
    };
    std::vector<Piece> pieces;
    double total = 0, xc = 0, yc = 0;
    for (const WeldLine& line : Weld_Configuration_Lines(item, L, kL)) {
        const double length = std::hypot(line.x2 - line.x1, line.y2 - line.y1);
        const int strips = int(64 * length / L);
        for (int k = 0; k < strips; ++k) {
            const double t = (k + 0.5) / strips, dx = line.x2 - line.x1, dy = line.y2 - line.y1;
            pieces.push_back(
                {line.x1 + t * dx, line.y1 + t * dy, length / strips, dx / length, dy / length});
            total += length / strips;
            xc += pieces.back().x * length / strips;
            yc += pieces.back().y * length / strips;
        }
    }
    const double theta = degrees * pi / 180, px = std::sin(theta), py = std::cos(theta);
    const double side = aL * py < 0 ? -1 : 1; // the way the group turns
    double turn = 1e9;
    const auto angleOf = [](const Piece& p, double dx, double dy) {
        return std::asin(std::min(1.0, std::abs(dx * p.tx + dy * p.ty) / std::hypot(dx, dy)));
    };
    for (const Piece& p : pieces) {
        const double dx = p.x - xc / total - centre.X, dy = p.y - yc / total - centre.Y;
        const double limit = 1.087 * std::pow(angleOf(p, dx, dy) * 180 / pi + 6, -0.65);
        turn = std::min(turn, std::min(limit, 0.17) / std::hypot(dx, dy));
    }
    double fx = 0, fy = 0, moment = 0;
    for (const Piece& p : pieces) {
        const double x = p.x - xc / total, y = p.y - yc / total;
        const double dx = x - centre.X, dy = y - centre.Y;
        const double r = std::hypot(dx, dy), a = angleOf(p, dx, dy);
        const double d = turn * r / (0.209 * std::pow(a * 180 / pi + 2, -0.32));
        const double R = side * 0.6 * 70 * 0.707106781 / 16 * p.length *
                         (1 + 0.5 * std::pow(std::sin(a), 1.5)) *
                         std::pow(d * (1.9 - 0.9 * d), 0.3);
        fx -= R * dy / r;
        fy += R * dx / r;
        moment += R * (x * dx + y * dy) / r;
    }
    const double P = fx * px + fy * py;
    return {P / L, std::hypot(fx * py - fy * px, (moment - P * aL * py) / (aL + L)) / P};
}

TEST(BalancedWelds, TheForcesAboutTheCentreBalanceTheLoad) {
    Tests::Largest coefficient, missed;
    for (int item = 1; item <= 9; ++item)
        for (const double aL : {3.0, 12.0})
            for (const double angle : {0.0, 30.0, 155.0}) {
                const double kL = item == 1 ? 0 : 5;
                const Balance balance = Balanced_Welds(item, 10, kL, aL, angle).value_or(Balance{});
                const Carried carried = Carried_About(balance, item, 10, kL, aL, angle);
                const std::string at = "item " + std::to_string(item) + ", aL " +
                                       std::to_string(int(aL)) + ", " + std::to_string(int(angle)) +
                                       " degrees";
                EXPECT_LT(carried.missed, 1e-6) << at;
                EXPECT_NEAR(balance.C / carried.C, 1, 1e-6) << at;
                missed.Take(carried.missed, at);
                coefficient.Take(std::abs(balance.C / carried.C - 1), at);
            }
    coefficient.Record("C");
    missed.Record("missed of C");
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
        none += !Balanced_Welds(item, L, kL, aL, between(0, 85));
    }
    EXPECT_LE(none, all / 100);
    testing::Test::RecordProperty("without a centre",
                                  std::to_string(none) + " of " + std::to_string(all));
}

// How far the searches end from balance, which the remarks tell of each result.
struct Lean {
    Tests::Largest above, below;
    int remarks = 0;

    void Take(double C, const std::optional<Balance>& balance, double tolerance,
              const std::string& at) {
        above.Take(C / balance.value().C - 1, at);
        below.Take(1 - C / balance->C, at);
        remarks += !Balance_Remark(C, balance, tolerance).Text.empty();
    }
    void Record(const std::string& what, double angle) const {
        const std::string run = what + " at " + std::to_string(int(angle)) + " degrees, " +
                                std::to_string(remarks) + " remarks, ";
        above.Record(run + "above");
        below.Record(run + "below");
    }
};

TEST(BalanceRemark, TheBoltSearchIsNeverBelowTheBalancedLoad) {
    for (const double angle : {0.0, 15.0, 45.0, 75.0}) {
        Lean lean;
        for (const int m : {2, 3, 4, 6, 8, 12})
            for (const int n : {1, 2})
                for (const double ex : {2.0, 4.0, 8.0, 16.0}) {
                    const BoltGroup group{std::int16_t(m), std::int16_t(n), 3, 3};
                    SearchYield rare([] { return true; }, 1 << 20);
                    const double C = BoltCoefficientC(group, ex, angle, rare);
                    const auto balance = Balanced_Bolts(group, ex, angle);
                    const std::string at = std::to_string(m) + " x " + std::to_string(n);
                    EXPECT_GT(C / balance.value().C, 1.018) << at << " at " << ex;
                    lean.Take(C, balance, boltRemarkTolerance, at);
                }
        lean.Record("bolts", angle);
    }
}

TEST(BalanceRemark, TheWeldSearchIsBelowTheBalancedLoadUnderAnUprightLoad) {
    for (const double angle : {0.0, 30.0, 60.0}) {
        Lean lean;
        for (int item = 1; item <= 9; ++item)
            for (const double aL : {3.0, 10.0}) {
                WeldBench bench;
                bench.display.onStep = [&] {
                    bench.state.StopRequested |= bench.display.steps > 999;
                };
                const double C =
                    Weld_Configuration_Result(item, 10, 5, aL, angle, weldModeC, bench.search);
                const auto balance = Balanced_Welds(item, 10, 5, aL, angle);
                if (bench.state.StopRequested || !balance)
                    continue;
                EXPECT_TRUE(angle > 0 || C < balance->C) << item;
                lean.Take(C, balance, weldRemarkTolerance, "item " + std::to_string(item));
            }
        lean.Record("welds", angle);
    }
}

TEST(BalanceRemark, StandsBeyondTheTolerance) {
    CountingTurn turn;
    SearchYield yield(std::ref(turn));
    const BoltGroup group{3, 1, 3, 3};
    const double C = BoltCoefficientC(group, 8, 0, yield);
    const Advice none;
    EXPECT_EQ(
        Balance_Remark(C, Balanced_Bolts(group, 8, 0), boltRemarkTolerance),
        (Advice{"Use C = 0.732 from the centre that satisfies all equilibrium conditions: the "
                "value shown is 310 % higher",
                RemarkWeight::Unsafe}));
    EXPECT_EQ(
        Balance_Remark(0.9, Balance{1.0}, 0.05),
        (Advice{"C = 1.000 from the centre that satisfies all equilibrium conditions: the value "
                "shown is 10 % lower",
                RemarkWeight::Note}));
    EXPECT_EQ(
        Balance_Remark(1.1, Balance{.C = 1, .ByLines = true}, 0.05),
        (Advice{"Use C = 1.000 from AISC 360-05 J2.4(c), for lines along and across the load: "
                "the value shown is 10 % higher",
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
