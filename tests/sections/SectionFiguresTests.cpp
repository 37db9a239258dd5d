// The section tables as files, their designations, and the store that is built from them.
#include "SectionFiguresRows.h"
#include "common/NumberText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <set>

using namespace Tensarix;

namespace {

using Fields = std::vector<std::string>;

std::vector<Fields> Read_Csv(const std::string& name) {
    std::ifstream file(TENSARIX_SOURCE_DIR "/data/sections/" + name + ".csv");
    std::vector<Fields> lines;
    for (std::string line; std::getline(file, line);) {
        Fields fields(1);
        for (const char c : line)
            if (c == ',')
                fields.emplace_back();
            else
                fields.back() += c;
        lines.push_back(std::move(fields));
    }
    return lines;
}

// "7/8", "2-1/2" or a decimal number.
double Size(const std::string& text) {
    EXPECT_EQ(text.find_first_not_of("0123456789./-"), std::string::npos) << text;
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos)
        return Text_Number(text);
    const std::size_t dash = text.find('-');
    const std::size_t start = dash == std::string::npos ? 0 : dash + 1;
    return (start == 0 ? 0 : Text_Number(text.substr(0, dash))) +
           Text_Number(text.substr(start, slash - start)) / Text_Number(text.substr(slash + 1));
}

// A designation is a prefix, sizes with an x between them, and a tail.
struct Form {
    std::string Prefix;
    std::size_t Sizes;
    std::vector<std::string> Tails;
};

const std::map<std::string, Form> forms{
    {"HSS-Rec", {"HSS", 3, {}}}, {"HSS-Sqr", {"HSS", 3, {}}},
    {"HSS-Rnd", {"HSS", 2, {}}}, {"Pipe", {"Pipe", 1, {"STD", "XXS", "XS"}}},
    {"L-Eq", {"L", 3, {}}},      {"L-UnEq", {"L", 3, {}}},
    {"2L-Eq", {"2L", 3, {}}},    {"2L-UnEq", {"2L", 3, {"LLBB", "SLBB"}}},
};

struct Designation {
    std::vector<double> Sizes; // US or SI
    std::string Tail;
};

Designation Read_Designation(const FigureRow& row, bool si) {
    std::string name = si ? row.Si : row.Us;
    const auto found = forms.find(row.Family);
    const Form form = found == forms.end() ? Form{row.Family, 2, {}} : found->second;
    EXPECT_TRUE(name.starts_with(form.Prefix)) << name;
    // Fractions of an inch, but for the decimals of rolled shapes and round HSS.
    const bool decimals = si || found == forms.end() || row.Family == "HSS-Rnd";
    EXPECT_EQ(name.find(decimals ? '/' : '.'), std::string::npos) << name;
    Designation result;
    for (const std::string& tail : form.Tails)
        if (result.Tail.empty() && name.ends_with(tail))
            result.Tail = tail;
    EXPECT_EQ(result.Tail.empty(), form.Tails.empty()) << name;
    name = name.substr(form.Prefix.size(), name.size() - form.Prefix.size() - result.Tail.size()) +
           "x";
    for (std::size_t at = 0; at < name.size(); at = name.find('x', at) + 1)
        result.Sizes.push_back(Size(name.substr(at, name.find('x', at) - at)));
    const std::size_t gap = form.Prefix == "2L" && result.Sizes.size() == 4 ? 1 : 0;
    EXPECT_EQ(result.Sizes.size(), form.Sizes + gap) << name;
    return result;
}

// What every size of a designation has to be in the row: column names in the order of the sizes.
std::vector<std::string> Size_Columns(const std::string& family, const std::string& tail) {
    if (family.starts_with("HSS"))
        return family == "HSS-Rnd" ? Fields{"OD", "TNOM"} : Fields{"HT", "B", "TNOM"};
    if (family.find("L-") != std::string::npos)
        return tail == "SLBB" ? Fields{"B", "D", "T"} : Fields{"D", "B", "T"};
    return {};
}

// A row comes behind the one before it: by its tail (STD, XS, XXS; LLBB, SLBB), then by falling
// sizes; the gap of a double angle rises.
bool In_Order(const FigureRow& before, const FigureRow& row) {
    Designation a = Read_Designation(before, false), b = Read_Designation(row, false);
    if (a.Tail != b.Tail)
        return a.Tail < b.Tail;
    if (!forms.contains(row.Family)) // rolled shapes are grouped by depth, not sorted by weight
        return a.Sizes[0] >= b.Sizes[0];
    a.Sizes.resize(4);
    b.Sizes.resize(4);
    std::swap(a.Sizes[3], b.Sizes[3]);
    return a.Sizes > b.Sizes;
}

// Whether the double is the SI figure of the US text: nearest at three digits, a tie upwards. In
// whole numbers: stored = digits x 10^point, exact = us x factor.
bool Is_Rounded_Conversion(double stored, const std::string& us, std::int64_t top,
                           std::int64_t bottom, int power) {
    __extension__ using Wide = __int128;
    DecimalText s = To_Decimal(stored);
    const DecimalText u = To_Decimal(Text_Number(us));
    if (s.Digits.size() > 3)
        return false;
    s.Digits.resize(3, '0');
    Wide exact = std::stoll(u.Digits), scale = std::stoll(s.Digits);
    int exponent = u.Point - static_cast<int>(u.Digits.size()) - (s.Point - 3);
    for (int i = 0; i < power; ++i) {
        exact *= top;
        scale *= bottom;
    }
    const Wide unit = scale / std::stoll(s.Digits);
    const Wide half = s.Digits == "100" ? 20 : 2; // below 100 the next figure is nearer
    Wide grow = 1;
    for (int i = 0; i < std::abs(exponent); ++i)
        grow *= 10;
    const Wide left = exponent > 0 ? exact * grow : exact;
    const Wide right = exponent > 0 ? 1 : grow;
    return half * left >= (half * scale - unit) * right && 2 * left < (2 * scale + unit) * right;
}

int Power_Of(const std::string& column) {
    static const std::map<std::string, int> powers{
        {"A", 2},   {"WNO", 2}, {"ZX", 3},        {"SX", 3},     {"ZY", 3},   {"SY", 3},
        {"C", 3},   {"QF", 3},  {"QW", 3},        {"IX", 4},     {"IY", 4},   {"J", 4},
        {"SW", 4},  {"CW", 6},  {"H", 0},         {"BF_2TF", 0}, {"H_TW", 0}, {"B_T", 0},
        {"H_T", 0}, {"D_T", 0}, {"TAN_ALPHA", 0}, {"QS", 0}};
    const auto power = powers.find(column);
    return power == powers.end() ? 1 : power->second;
}

bool Is_Si_Of(const FigureRow& row, const std::string& column, const std::string& us) {
    const double si = row("x" + column);
    if (Power_Of(column) == 0)
        return si == row(column);
    if (column != "W")
        return Is_Rounded_Conversion(si, us, 254, 10, Power_Of(column));
    if (!forms.contains(row.Family))
        return si == Read_Designation(row, true).Sizes.back();
    return Is_Rounded_Conversion(si, us, 45'359'237, 30'480'000, 1);
}

} // namespace

TEST(SectionFigures, TheStoreHoldsTheTables) {
    std::map<std::string, std::string> exceptions;
    for (const Fields& line : Read_Csv("si-exceptions"))
        exceptions[line[1] + line[2]] = line[3];
    std::size_t used = 0;
    for (const auto& [family, rows] : All_Rows()) {
        const std::vector<Fields> lines = Read_Csv(family);
        ASSERT_EQ(rows.size() + 1, lines.size()) << family;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const FigureRow& row = rows[i];
            const Fields& line = lines[i + 1];
            ASSERT_EQ(row.Us, line[0]);
            ASSERT_EQ(row.Si, line[1]);
            std::size_t filled = 0;
            for (std::size_t c = 2; c < line.size(); ++c) {
                if (line[c].empty())
                    continue;
                ++filled;
                const std::string& column = lines[0][c];
                EXPECT_EQ(row(column), Text_Number(line[c])) << row.Us << ' ' << column;
                const auto exception = exceptions.find(row.Us + "x" + column);
                if (exception == exceptions.end()) {
                    EXPECT_TRUE(Is_Si_Of(row, column, line[c]))
                        << row.Us << " x" << column << ' ' << row("x" + column);
                    continue;
                }
                ++used;
                EXPECT_EQ(row("x" + column), Text_Number(exception->second));
                EXPECT_FALSE(Is_Si_Of(row, column, line[c])) << "needless: " << exception->first;
            }
            EXPECT_EQ(row.Figures.size(), 2 * filled) << row.Us; // all else is Null
        }
    }
    EXPECT_EQ(used + 1, exceptions.size()); // the head is one
}

TEST(SectionFigures, SiFiguresAsPublished) {
    const struct {
        const char *Label, *Column;
        double Value;
    } samples[] = {{"W44x335", "xA", 63500},       {"W44x335", "xIX", 12900e6},
                   {"W44x335", "xCW", 144e12},     {"W44x335", "xJ", 31.1e6},
                   {"W44x335", "xW", 499},         {"W44x335", "xZX", 26.5e6},
                   {"W36x256", "xD", 951},         {"HSS20x12x5/8", "xW", 189},
                   {"HSS16x16x5/8", "xC", 4.52e6}, {"HSS12.750x0.500", "xOD", 324},
                   {"Pipe1/2STD", "xOD", 21.3},    {"L8x8x1-1/8", "xT", 28.6},
                   {"MT6.25x6.2", "xW", 9.25}};
    for (const auto& sample : samples) {
        const SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_US_Label(sample.Label));
        EXPECT_EQ(read.Records.Number(sample.Column), sample.Value)
            << sample.Label << ' ' << sample.Column;
    }
}

TEST(SectionFigures, EveryFamilyIsWholeAndInOrder) {
    const std::map<std::string, std::size_t> counts{
        {"W", 274},     {"M", 18},       {"HP", 11},       {"S", 28},       {"C", 31},
        {"MC", 39},     {"WT", 274},     {"MT", 14},       {"ST", 28},      {"Pipe", 37},
        {"L-Eq", 51},   {"L-UnEq", 76},  {"HSS-Rec", 276}, {"HSS-Sqr", 91}, {"HSS-Rnd", 128},
        {"2L-Eq", 153}, {"2L-UnEq", 444}};
    std::set<std::string> us, si;
    for (const auto& [family, rows] : All_Rows()) {
        EXPECT_EQ(rows.size(), counts.at(family)) << family;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_TRUE(us.insert(rows[i].Us).second) << rows[i].Us;
            EXPECT_TRUE(si.insert(rows[i].Si).second) << rows[i].Si;
            EXPECT_TRUE(i == 0 || In_Order(rows[i - 1], rows[i])) << rows[i].Us;
        }
    }
}

TEST(SectionFigures, DesignationsAgreeWithTheFigures) {
    std::map<std::string, double> siDepths; // family and US depth
    for (const auto& [family, rows] : All_Rows())
        for (const FigureRow& row : rows) {
            const Designation us = Read_Designation(row, false), si = Read_Designation(row, true);
            EXPECT_EQ(us.Tail, si.Tail) << row.Us;
            ASSERT_EQ(us.Sizes.size(), si.Sizes.size()) << row.Us;
            const std::vector<std::string> columns = Size_Columns(family, us.Tail);
            for (std::size_t i = 0; i < columns.size(); ++i) {
                // Walls of round HSS are named to a thousandth, SI sizes to a tenth or a whole mm.
                EXPECT_NEAR(row(columns[i]), us.Sizes[i], family == "HSS-Rnd" ? 0.0006 : 0);
                const bool legs = family.find("L-") != std::string::npos && i < 2;
                EXPECT_NEAR(si.Sizes[i], 25.4 * us.Sizes[i], legs ? 0.5 : 0.07) << row.Us;
            }
            if (us.Sizes.size() == 4) {
                EXPECT_EQ(si.Sizes[3], std::trunc(25.4 * us.Sizes[3])) << row.Us;
            }
            if (!forms.contains(family)) {
                EXPECT_EQ(row("W"), us.Sizes[1]) << row.Us;
                EXPECT_NEAR(si.Sizes[1] / (row("W") * 1.48816), 1, 0.05) << row.Us;
                const auto depth =
                    siDepths.try_emplace(family + General_Text(us.Sizes[0]), si.Sizes[0]).first;
                EXPECT_EQ(depth->second, si.Sizes[0]) << row.Us;
            }
            if (family == "HSS-Sqr" || family.ends_with("L-Eq")) {
                EXPECT_EQ(us.Sizes[0], us.Sizes[1]) << row.Us;
            } else if (family == "HSS-Rec" || family.ends_with("UnEq")) {
                EXPECT_GT(us.Sizes[0], us.Sizes[1]) << row.Us;
            }
        }
}

TEST(SectionFigures, PipesHaveTheirNominalMetricSize) {
    const std::map<double, double> nominal{{0.5, 15}, {0.75, 20}, {1, 25},  {1.25, 32}, {1.5, 40},
                                           {2, 50},   {2.5, 65},  {3, 80},  {3.5, 90},  {4, 100},
                                           {5, 125},  {6, 150},   {8, 200}, {10, 250},  {12, 300}};
    for (const FigureRow& row : All_Rows().at("Pipe"))
        EXPECT_EQ(Read_Designation(row, true).Sizes[0],
                  nominal.at(Read_Designation(row, false).Sizes[0]))
            << row.Us;
}

TEST(SectionFigures, FilletDimensionsArePlausible) {
    for (const auto& [family, rows] : All_Rows())
        for (const FigureRow& row : rows) {
            for (const char* column : {"KDET", "K1", "T"}) {
                const double sixteenths = row.Has(column) ? row(column) * 16 : 0;
                EXPECT_EQ(sixteenths, std::round(sixteenths)) << row.Us << ' ' << column;
            }
            if (row.Has("KDET")) {
                const double more = row("KDET") - row("KDES");
                const bool wide = family == "W" || family == "WT";
                EXPECT_TRUE(wide ? more > -0.06 && more < 0.74 : std::abs(more) <= 0.0625)
                    << row.Us << ' ' << more;
            }
            if (row.Has("K1")) { // from the middle of the web as KDET from the face of the flange
                const double more = row("K1") - row("TW") / 2 - (row("KDES") - row("TF"));
                EXPECT_TRUE(more > -0.12 && more < 0.66) << row.Us << ' ' << more;
            }
        }
}

// The value formatter of SI figures works on the zeros of these numbers.
TEST(SectionFigures, SecondMomentsAreWholeNumbersEndingInZeros) {
    for (const auto& [family, rows] : All_Rows())
        for (const FigureRow& row : rows)
            for (const char* column : {"xIX", "xZX", "xSX", "xIY", "xZY", "xSY", "xJ", "xCW",
                                       "xWNO", "xSW", "xQF", "xQW", "xC"})
                if (row.Has(column)) {
                    const double value = row(column);
                    EXPECT_EQ(value, std::round(value)) << row.Us << ' ' << column;
                    EXPECT_TRUE(value < 1000 || std::fmod(value, 10) == 0) << row.Us << column;
                }
}
