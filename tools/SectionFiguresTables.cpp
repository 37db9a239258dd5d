// The section tables as files, their designations, and the store that is built from them. Nothing
// here is the builder's: what both computed in the same way, both could get wrong.
#include "SectionFigures.h"
#include "common/NumberText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <stdexcept>

namespace Tensarix {

namespace {

using Fields = std::vector<std::string>;

Fields Split(const std::string& text, char by) {
    Fields fields(1);
    for (const char c : text)
        if (c == by)
            fields.emplace_back();
        else
            fields.back() += c;
    return fields;
}

std::vector<Fields> Read_Csv(const std::filesystem::path& file) {
    std::ifstream stream(file);
    std::vector<Fields> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(Split(line, ','));
    return lines;
}

// "7/8", "2-1/2" or a decimal number.
double Size(const std::string& text) {
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

[[noreturn]] void Fail(const FigureRow& row, const std::string& what) {
    throw std::runtime_error(row.Us + ": " + what);
}

Designation Read_Designation(const FigureRow& row, bool si) {
    std::string name = si ? row.Si : row.Us;
    const auto found = forms.find(row.Family);
    const Form form = found == forms.end() ? Form{row.Family, 2, {}} : found->second;
    // Fractions of an inch, but for the decimals of rolled shapes and round HSS.
    const bool decimals = si || found == forms.end() || row.Family == "HSS-Rnd";
    Designation result;
    for (const std::string& tail : form.Tails)
        if (result.Tail.empty() && name.ends_with(tail))
            result.Tail = tail;
    const std::string sizes =
        name.substr(form.Prefix.size(), name.size() - form.Prefix.size() - result.Tail.size());
    if (!name.starts_with(form.Prefix) || result.Tail.empty() != form.Tails.empty() ||
        sizes.find_first_not_of(decimals ? "0123456789.x" : "0123456789/-x") != std::string::npos)
        Fail(row, "designation " + name);
    for (const std::string& size : Split(sizes, 'x'))
        result.Sizes.push_back(Size(size));
    const std::size_t gap = form.Prefix == "2L" && result.Sizes.size() == 4 ? 1 : 0;
    if (result.Sizes.size() != form.Sizes + gap)
        Fail(row, "sizes of " + name);
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

class TablesCheck {
  public:
    TablesCheck(const FigureRows& rows, std::filesystem::path tables, Faults& faults)
        : rows_(rows), tables_(std::move(tables)), faults_(faults) {
        for (const Fields& line : Read_Csv(tables_ / "si-exceptions.csv"))
            exceptions_[line[1] + line[2]] = line[3];
    }

    void All() {
        Check_Counts();
        for (const auto& [family, rows] : rows_) {
            Check_Store(family, rows);
            for (std::size_t i = 0; i < rows.size(); ++i) {
                Expect(rows[i], i == 0 || In_Order(rows[i - 1], rows[i]), "order");
                Check_Designation(rows[i]);
                Check_Fillets(rows[i]);
                Check_Zeros(rows[i]);
            }
        }
        Check_Pipes();
        Check_Samples();
    }

  private:
    void Expect(const FigureRow& row, bool holds, const std::string& what) {
        faults_.Expect(holds, row.Us + ": " + what);
    }

    void Check_Counts() {
        const std::map<std::string, std::size_t> counts{
            {"W", 274},     {"M", 18},       {"HP", 11},       {"S", 28},       {"C", 31},
            {"MC", 39},     {"WT", 274},     {"MT", 14},       {"ST", 28},      {"Pipe", 37},
            {"L-Eq", 51},   {"L-UnEq", 76},  {"HSS-Rec", 276}, {"HSS-Sqr", 91}, {"HSS-Rnd", 128},
            {"2L-Eq", 153}, {"2L-UnEq", 444}};
        for (const auto& [family, count] : counts)
            faults_.Expect(rows_.at(family).size() == count, family + ": number of sections");
        faults_.Expect(rows_.size() == counts.size(), "number of families");
    }

    void Check_Store(const std::string& family, const std::vector<FigureRow>& rows) {
        const std::vector<Fields> lines = Read_Csv(tables_ / (family + ".csv"));
        if (lines.size() != rows.size() + 1)
            return faults_.Expect(false, family + ": number of lines");
        for (std::size_t i = 0; i < rows.size(); ++i)
            Check_Row(rows[i], lines[0], lines[i + 1]);
    }

    void Check_Row(const FigureRow& row, const Fields& head, const Fields& line) {
        Expect(row, row.Us == line[0] && row.Si == line[1], "designations");
        std::size_t filled = 0;
        for (std::size_t c = 2; c < line.size(); ++c)
            if (!line[c].empty()) {
                ++filled;
                Check_Figure(row, head[c], line[c]);
            }
        Expect(row, row.Figures.size() == 2 * filled, "a figure that the table leaves open");
    }

    void Check_Figure(const FigureRow& row, const std::string& column, const std::string& us) {
        Expect(row, row(column) == Text_Number(us), column);
        const auto exception = exceptions_.find(row.Us + "x" + column);
        const bool listed = exception != exceptions_.end();
        Expect(row, Is_Si_Of(row, column, us) != listed,
               "x" + column + (listed ? ", a needless exception" : ""));
        if (listed)
            Expect(row, row("x" + column) == Text_Number(exception->second), "x" + column);
    }

    void Check_Designation(const FigureRow& row) {
        const Designation us = Read_Designation(row, false), si = Read_Designation(row, true);
        if (us.Tail != si.Tail || us.Sizes.size() != si.Sizes.size())
            Fail(row, "designations differ in form");
        const std::string& family = row.Family;
        const std::vector<std::string> columns = Size_Columns(family, us.Tail);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            // Walls of round HSS are named to a thousandth, SI sizes to a tenth or a whole mm.
            const double wall = family == "HSS-Rnd" ? 0.0006 : 0;
            Expect(row, std::abs(row(columns[i]) - us.Sizes[i]) <= wall, columns[i] + " is named");
            const bool legs = family.find("L-") != std::string::npos && i < 2;
            Expect(row, std::abs(si.Sizes[i] - 25.4 * us.Sizes[i]) <= (legs ? 0.5 : 0.07),
                   columns[i] + " is named in mm");
        }
        if (us.Sizes.size() == 4)
            Expect(row, si.Sizes[3] == std::trunc(25.4 * us.Sizes[3]), "gap");
        if (!forms.contains(family))
            Check_Rolled_Name(row, us, si);
        if (family == "HSS-Sqr" || family.ends_with("L-Eq"))
            Expect(row, us.Sizes[0] == us.Sizes[1], "sides differ");
        else if (family == "HSS-Rec" || family.ends_with("UnEq"))
            Expect(row, us.Sizes[0] > us.Sizes[1], "sides");
    }

    void Check_Rolled_Name(const FigureRow& row, const Designation& us, const Designation& si) {
        Expect(row, row("W") == us.Sizes[1], "weight is named");
        Expect(row, std::abs(si.Sizes[1] / (row("W") * 1.48816) - 1) <= 0.05, "mass is named");
        const std::string depth = row.Family + General_Text(us.Sizes[0]);
        Expect(row, siDepths_.try_emplace(depth, si.Sizes[0]).first->second == si.Sizes[0],
               "depth is named in mm");
    }

    void Check_Fillets(const FigureRow& row) {
        for (const char* column : {"KDET", "K1", "T"}) {
            const double sixteenths = row.Has(column) ? row(column) * 16 : 0;
            Expect(row, sixteenths == std::round(sixteenths), column);
        }
        if (row.Has("KDET")) {
            const double more = row("KDET") - row("KDES");
            const bool wide = row.Family == "W" || row.Family == "WT";
            Expect(row, wide ? more > -0.06 && more < 0.74 : std::abs(more) <= 0.0625, "KDET");
        }
        if (row.Has("K1")) { // from the middle of the web as KDET from the face of the flange
            const double more = row("K1") - row("TW") / 2 - (row("KDES") - row("TF"));
            Expect(row, more > -0.12 && more < 0.66, "K1");
        }
    }

    // The value formatter of SI figures works on the zeros of these numbers.
    void Check_Zeros(const FigureRow& row) {
        for (const char* column : {"xIX", "xZX", "xSX", "xIY", "xZY", "xSY", "xJ", "xCW", "xWNO",
                                   "xSW", "xQF", "xQW", "xC"})
            if (row.Has(column)) {
                const double value = row(column);
                Expect(row,
                       value == std::round(value) && (value < 1000 || std::fmod(value, 10) == 0),
                       column);
            }
    }

    void Check_Pipes() {
        const std::map<double, double> nominal{
            {0.5, 15}, {0.75, 20}, {1, 25},  {1.25, 32}, {1.5, 40}, {2, 50},   {2.5, 65}, {3, 80},
            {3.5, 90}, {4, 100},   {5, 125}, {6, 150},   {8, 200},  {10, 250}, {12, 300}};
        for (const FigureRow& row : rows_.at("Pipe"))
            Expect(row,
                   Read_Designation(row, true).Sizes[0] ==
                       nominal.at(Read_Designation(row, false).Sizes[0]),
                   "nominal size in mm");
    }

    // Of published metric tables.
    void Check_Samples() {
        const struct {
            const char *Family, *Label, *Column;
            double Value;
        } samples[] = {{"W", "W44x335", "xA", 63500},
                       {"W", "W44x335", "xIX", 12900e6},
                       {"W", "W44x335", "xCW", 144e12},
                       {"W", "W44x335", "xJ", 31.1e6},
                       {"W", "W44x335", "xW", 499},
                       {"W", "W44x335", "xZX", 26.5e6},
                       {"W", "W36x256", "xD", 951},
                       {"HSS-Rec", "HSS20x12x5/8", "xW", 189},
                       {"HSS-Sqr", "HSS16x16x5/8", "xC", 4.52e6},
                       {"HSS-Rnd", "HSS12.750x0.500", "xOD", 324},
                       {"Pipe", "Pipe1/2STD", "xOD", 21.3},
                       {"L-Eq", "L8x8x1-1/8", "xT", 28.6},
                       {"MT", "MT6.25x6.2", "xW", 9.25}};
        for (const auto& sample : samples) {
            const auto& rows = rows_.at(sample.Family);
            const auto row = std::find_if(rows.begin(), rows.end(), [&sample](const auto& each) {
                return each.Us == sample.Label;
            });
            faults_.Expect(row != rows.end() && (*row)(sample.Column) == sample.Value,
                           std::string{sample.Label} + ": published " + sample.Column);
        }
    }

    const FigureRows& rows_;
    std::filesystem::path tables_;
    Faults& faults_;
    std::map<std::string, std::string> exceptions_; // by designation and column
    std::map<std::string, double> siDepths_;        // by family and US depth
};

} // namespace

void Check_Figures_With_Tables(const FigureRows& rows, const std::filesystem::path& tables,
                               Faults& faults) {
    TablesCheck(rows, tables, faults).All();
}

} // namespace Tensarix
