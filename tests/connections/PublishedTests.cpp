// The coefficients against print: published/README.md tells of the figures.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "Largest.h"
#include "Walk.h"
#include "connections/Balance.h"
#include "connections/SearchStandIns.h"
#include "connections/WeldConfigurations.h"

namespace Tensarix {
namespace {

// A line of a file by the names of its columns.
struct Printed {
    std::map<std::string, std::string> texts;
    std::string at; // for messages

    const std::string& operator[](const std::string& name) const { return texts.at(name); }
    double Number(const std::string& name) const { return std::stod(texts.at(name)); }
    std::int16_t Count(const std::string& name) const {
        return static_cast<std::int16_t>(Number(name));
    }
    double Unit() const { return std::pow(10.0, -Number("decimals")); } // of the last digit
    bool Is_Cell() const {
        return texts.at("seen") != "interpolated" && texts.at("seen") != "derived";
    }
};

std::vector<std::string> Cells_Of(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream text(line);
    for (std::string cell; std::getline(text, cell, ';');)
        cells.push_back(cell);
    return cells;
}

std::vector<Printed> Figures(const std::string& name) {
    std::ifstream file(TENSARIX_SOURCE_DIR "/tests/connections/published/" + name);
    std::string line;
    std::getline(file, line);
    const std::vector<std::string> heads = Cells_Of(line);
    std::vector<Printed> figures;
    for (int number = 2; std::getline(file, line); ++number) {
        Printed& figure = figures.emplace_back();
        const std::vector<std::string> cells = Cells_Of(line);
        for (std::size_t k = 0; k < heads.size(); ++k)
            figure.texts[heads[k]] = cells.at(k);
        figure.at = name + " line " + std::to_string(number);
    }
    return figures;
}

// The required coefficients of one family of prints over the printed ones.
struct Spread {
    std::vector<double> excess;

    void Record(const std::string& family) {
        std::sort(excess.begin(), excess.end());
        std::ostringstream text;
        text.precision(3);
        text << excess.size() << " cases, least " << 100 * excess.front() << " %, median "
             << 100 * excess[excess.size() / 2] << " %, largest " << 100 * excess.back() << " %";
        testing::Test::RecordProperty(family, text.str());
    }
};

TEST(Published, BoltCoefficients) {
    const std::vector<Printed> figures = Figures("bolts.csv");
    ASSERT_EQ(figures.size(), 122u);
    std::map<std::string, Spread> spreads;
    Tests::Largest cells, others;
    Tests::FromPrint prints;
    for (const Printed& figure : figures) {
        const BoltGroup group{figure.Count("m"), figure.Count("n"), figure.Number("sv"),
                              figure.Number("sh")};
        const double printed = figure.Number("printed");
        const double ex = figure.Number("ex"), angle = figure.Number("angle");
        const bool isC = figure["quantity"] == "C";
        const auto balance = Balanced_Bolts(group, ex, angle);
        const double computed = isC ? balance->C : BoltCoefficientCPrime(group);
        const double off = std::abs(computed - printed) / figure.Unit();
        EXPECT_LE(off, figure.Is_Cell() ? 0.51 : 2) << figure.at;
        (figure.Is_Cell() ? cells : others).Take(off, figure.at);
        prints.Take(isC ? figure.Is_Cell() ? "Bolts, cells of tables" : "Bolts, interpolated"
                        : "Bolts, C'",
                    computed, printed, figure.Unit());
        if (!isC)
            continue;
        CountingTurn turn;
        SearchYield yield(std::ref(turn));
        const double C = BoltCoefficientC(group, ex, angle, yield);
        spreads[figure["source"]].excess.push_back(C / printed - 1);
        prints.Take("Bolts, required C", C, printed, figure.Unit());
        const bool isFar = std::abs(C - printed) > boltRemarkTolerance * printed + figure.Unit();
        EXPECT_TRUE(!isFar || !Balance_Remark(C, balance, boltRemarkTolerance).Text.empty())
            << figure.at;
    }
    prints.Record();
    cells.Record("units of the last digit, cells");
    others.Record("units of the last digit, interpolated");
    for (auto& [family, spread] : spreads)
        spread.Record("required C, " + family);
}

TEST(Published, WeldCoefficients) {
    const std::vector<Printed> figures = Figures("welds.csv");
    ASSERT_EQ(figures.size(), 241u);
    constexpr double L = 10;
    std::map<std::string, Spread> spreads;
    std::map<std::string, Tests::Largest> deviations;
    int searched = 0;
    Tests::FromPrint prints;
    for (const Printed& figure : figures) {
        const int item = figure.Count("item");
        const double kL = L * figure.Number("k"), aL = L * figure.Number("a");
        const double angle = figure.Number("angle"), unit = figure.Unit() / figure.Number("factor");
        const double printed = figure.Number("printed") / figure.Number("factor");
        const auto balance = Balanced_Welds(item, L, kL, aL, angle);
        const double off = std::abs(balance->C - printed);
        EXPECT_TRUE(off <= 0.006 * printed || off <= 1.01 * unit)
            << figure.at << ": " << balance->C << " for " << printed;
        EXPECT_EQ(balance->ByLines, aL == 0) << figure.at;
        const std::string family = "item " + figure["item"] + ", " +
                                   figure["source"].substr(0, 26) + (aL == 0 ? ", a = 0" : "");
        deviations[family].Take(off / printed, figure.at);
        prints.Take(aL == 0 ? "Welds, a = 0" : "Welds, item " + figure["item"], balance->C, printed,
                    unit);
        if (++searched % Tests::walkStep != 0)
            continue;
        WeldBench bench;
        SearchYield rare([] { return true; }, 1 << 20);
        WeldSearch search{bench.state, bench.display, rare};
        const double C = Weld_Configuration_Result(item, L, kL, aL, angle, weldModeC, search);
        spreads[family].excess.push_back(C / printed - 1);
        prints.Take("Welds, required C", C, printed, unit);
        const bool isFar = std::abs(C / printed - 1) > weldRemarkTolerance + 0.006;
        EXPECT_TRUE(!isFar || !Balance_Remark(C, balance, weldRemarkTolerance).Text.empty())
            << figure.at;
    }
    prints.Record();
    for (auto& [family, spread] : spreads) {
        spread.Record("required C, " + family);
        deviations[family].Record("balanced C, " + family);
    }
}

} // namespace
} // namespace Tensarix
