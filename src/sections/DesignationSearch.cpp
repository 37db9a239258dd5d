#include "sections/DesignationSearch.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/FamilyTable.h"

#include <algorithm>
#include <array>

namespace Tensarix {

namespace {

constexpr std::string_view valuePattern = "0.00##";
constexpr int smallestPart = 64; // of an inch; a fraction of other parts is none yet
constexpr int noMatch = 1000;

bool Is_Digit(char c) {
    return c >= '0' && c <= '9';
}
bool Is_Of_Number(char c) {
    return Is_Digit(c) || c == '.';
}
bool Is_Small_Letter(char c) {
    return c >= 'a' && c <= 'z';
}

// Reads the digits from a place on, and goes behind them.
std::string_view Digits(std::string_view text, std::size_t& at) {
    const std::size_t first = at;
    while (at < text.size() && Is_Digit(text[at]))
        ++at;
    return text.substr(first, at - first);
}

int Small_Number(std::string_view digits) {
    return digits.empty() || digits.size() > 2 ? 0 : std::stoi(std::string{digits});
}

// The decimals of "/16" behind a numerator: empty if this is no proper fraction of an inch.
std::string Fraction_Decimals(std::string_view numerator, std::string_view text, std::size_t& at) {
    if (at >= text.size() || text[at] != '/')
        return {};
    std::size_t end = at + 1;
    const int parts = Small_Number(Digits(text, end)), of = Small_Number(numerator);
    if (of == 0 || parts <= of || smallestPart % parts != 0)
        return {};
    at = end;
    std::string decimals;
    for (int rest = of; rest != 0; rest %= parts) {
        rest *= 10;
        decimals += static_cast<char>('0' + rest / parts);
    }
    return decimals;
}

// A number of a designation in its shortest decimal form: 1-1/8 gives 1.125, 0.500 gives .5, and 0
// the point of the decimals to come. What is not yet complete stays as it is. closed: zeros behind
// the point were left out, so that no further digit can follow.
std::string Decimal_Number(std::string_view text, std::size_t& at, bool& closed) {
    closed = false;
    std::string_view whole = Digits(text, at);
    if (std::string decimals = Fraction_Decimals(whole, text, at); !decimals.empty())
        return "." + decimals;
    while (!whole.empty() && whole.front() == '0')
        whole.remove_prefix(1);
    std::string number{whole};
    if (at < text.size() && text[at] == '.') {
        ++at;
        std::string_view decimals = Digits(text, at);
        if (decimals.empty())
            return number + ".";
        while (!decimals.empty() && decimals.back() == '0') {
            decimals.remove_suffix(1);
            closed = true;
        }
        return decimals.empty() ? number : number.append(".").append(decimals);
    }
    if (at < text.size() && text[at] == '-') {
        std::size_t end = at + 1;
        const std::string_view numerator = Digits(text, end);
        if (std::string decimals = Fraction_Decimals(numerator, text, end); !decimals.empty()) {
            at = end;
            return number.append(".").append(decimals);
        }
    }
    return number.empty() ? "." : number;
}

std::string Decimal_Form(std::string_view literal, bool& closed) {
    std::string form;
    closed = false;
    for (std::size_t at = 0; at < literal.size();) {
        if (Is_Of_Number(literal[at])) {
            form += Decimal_Number(literal, at, closed);
        } else {
            form += literal[at++];
            closed = false;
        }
    }
    return form;
}

std::string Lower(std::string_view text) {
    std::string lower{text};
    for (char& c : lower)
        c = c == '*' ? 'x' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return lower;
}

// Without blanks. One between two numbers may stand for something.
std::string Without_Blanks(std::string_view text, std::string_view betweenDigits) {
    std::string kept;
    std::size_t blanks = 0;
    for (const char c : text) {
        if (c == ' ' || c == '\t') {
            ++blanks;
            continue;
        }
        if (blanks > 0 && Is_Of_Number(c) && !kept.empty() && Is_Of_Number(kept.back()))
            kept += betweenDigits;
        blanks = 0;
        kept += c;
    }
    return kept;
}

// Where a name can be entered: at its begin, at the first number or word behind it, and at the
// later ones.
std::vector<DesignationSearch::Key::Start> Starts_Of(std::string_view name) {
    std::vector<DesignationSearch::Key::Start> starts{{0, 0}};
    bool past = false; // the first number of a dimension
    for (std::size_t at = 1; at < name.size(); ++at) {
        const char before = name[at - 1];
        const bool number =
            Is_Of_Number(name[at]) && !Is_Of_Number(before) && before != '-' && before != '/';
        const bool word = Is_Small_Letter(name[at]) && Is_Digit(before) && name[at] != 'x';
        if (!number && !word)
            continue;
        starts.push_back({static_cast<std::uint8_t>(at), static_cast<std::uint8_t>(past ? 2 : 1)});
        past = past || number;
    }
    return starts;
}

DesignationSearch::Key Key_Of(std::string_view name) {
    DesignationSearch::Key key;
    bool closed = false;
    key.Literal = Lower(Without_Blanks(name, {}));
    key.Decimal = Decimal_Form(key.Literal, closed);
    key.LiteralStarts = Starts_Of(key.Literal);
    key.DecimalStarts = Starts_Of(key.Decimal);
    return key;
}

// What was typed, in one reading of its blanks.
struct Typed {
    std::string Decimal, Literal;
    bool Closed = false;
};

std::vector<Typed> Readings_Of(std::string_view text) {
    std::vector<Typed> readings;
    const std::string lower = Lower(Trim(text));
    for (const std::string_view between : {"", "x", "-"}) {
        Typed typed;
        typed.Literal = Without_Blanks(lower, between);
        if (typed.Literal.empty() ||
            (!readings.empty() && typed.Literal == readings.front().Literal))
            break; // there is but one
        typed.Decimal = Decimal_Form(typed.Literal, typed.Closed);
        readings.push_back(std::move(typed));
    }
    return readings;
}

// How well the text enters the name; the less, the better.
int Match(std::string_view name, const std::vector<DesignationSearch::Key::Start>& starts,
          std::string_view typed, bool closed) {
    for (const auto& start : starts) {
        const std::string_view rest = name.substr(start.At);
        if (!rest.starts_with(typed))
            continue;
        if (rest.size() == typed.size())
            return 8 * start.Level;
        const bool splits =
            Is_Of_Number(rest[typed.size()]) && (typed.empty() || Is_Of_Number(typed.back()));
        if (!splits || !closed)
            return 8 * start.Level + (splits ? 4 : 2);
    }
    return noMatch;
}

int Match(const DesignationSearch::Key& key, const std::vector<Typed>& readings) {
    int best = noMatch;
    for (const Typed& typed : readings) {
        if (!typed.Decimal.empty())
            best =
                std::min(best, Match(key.Decimal, key.DecimalStarts, typed.Decimal, typed.Closed));
        best = std::min(best, Match(key.Literal, key.LiteralStarts, typed.Literal, false));
    }
    return best;
}

constexpr std::string_view query =
    "SELECT TYPE, IDE_STD_Nomenclature, xIDE_STD_Nomenclature, W, xW, D, xD, HT, xHT, OD, xOD "
    "FROM ShapeTable ORDER BY SEQ";

// The first of the columns that the section has.
std::string Measure(const SectionRecordset& record, std::initializer_list<const char*> columns,
                    std::string_view unit) {
    std::string text;
    for (const char* column : columns)
        if (Attempt([&] { text = Format_Number(record.Number(column), valuePattern); }))
            return text.append(" ").append(unit);
    return text;
}

int Position_Of_Type(std::string_view type) {
    const auto* found = std::find_if(Families.begin(), Families.end(),
                                     [&](const Family& family) { return family.Type == type; });
    if (found == Families.end())
        throw Failure("no such family");
    return static_cast<int>(found - Families.begin());
}

} // namespace

DesignationSearch::DesignationSearch(const std::filesystem::path& programFolder) {
    Attempt([&] {
        SectionRead read(programFolder, std::string{query});
        const SectionRecordset& record = read.Records;
        std::array<int, Families.size()> counts{};
        for (read.Records.MoveFirst(); !record.At_End(); read.Records.MoveNext()) {
            Attempt([&] {
                Section section;
                section.Place.Family = Position_Of_Type(Trim(record.Text("TYPE")));
                section.Place.Position = counts[static_cast<std::size_t>(section.Place.Family)]++;
                section.Names[0] = Trim(record.Text("IDE_STD_Nomenclature"));
                section.Names[1] = Trim(record.Text("xIDE_STD_Nomenclature"));
                section.Weights[0] = Measure(record, {"W"}, "lb/ft");
                section.Weights[1] = Measure(record, {"xW"}, "kg/m");
                section.Depths[0] = Measure(record, {"D", "HT", "OD"}, "in.");
                section.Depths[1] = Measure(record, {"xD", "xHT", "xOD"}, "mm");
                for (const std::size_t profile : {0U, 1U})
                    section.Keys[profile] = Key_Of(section.Names[profile]);
                sections_.push_back(std::move(section));
            });
        }
    });
}

FoundSection DesignationSearch::Found(const Section& section, Profile units, bool whole) const {
    const auto own = static_cast<std::size_t>(units);
    return {section.Place,
            units,
            section.Names[own],
            section.Names[1 - own],
            section.Weights[own],
            section.Depths[own],
            whole};
}

std::vector<FoundSection> DesignationSearch::Find(std::string_view typed, std::size_t most) const {
    const std::vector<Typed> readings = Readings_Of(typed);
    struct Hit {
        int Rank;
        std::size_t At;
    };
    std::vector<Hit> hits;
    for (std::size_t i = 0; !readings.empty() && i < sections_.size(); ++i) {
        const int us = Match(sections_[i].Keys[0], readings);
        const int si = Match(sections_[i].Keys[1], readings) + 1; // the odd ranks
        if (const int rank = std::min(us, si); rank < noMatch)
            hits.push_back({rank, i});
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const Hit& a, const Hit& b) { return a.Rank < b.Rank; });
    hits.resize(std::min(hits.size(), most));
    std::vector<FoundSection> found;
    for (const Hit& hit : hits)
        found.push_back(
            Found(sections_[hit.At], hit.Rank % 2 == 0 ? Profile::US : Profile::SI, hit.Rank < 2));
    return found;
}

std::vector<double> Numbers_In_Name(std::string_view name) {
    bool closed = false;
    const std::string form = Decimal_Form(Lower(Trim(name)), closed);
    std::vector<double> numbers;
    for (std::size_t at = 0; at < form.size();) {
        const std::size_t first = at;
        while (at < form.size() && Is_Of_Number(form[at]))
            ++at;
        if (at > first)
            numbers.push_back(Leading_Value(form.substr(first, at - first)));
        else
            ++at;
    }
    return numbers;
}

std::string Other_Family_Note(std::string_view typed, int family,
                              const std::filesystem::path& programFolder) {
    const std::vector<FoundSection> found = DesignationSearch(programFolder).Find(typed, 1);
    if (found.empty() || !found[0].Whole || found[0].Place.Family == family)
        return {};
    return found[0].Name + " is in the list of " +
           std::string{Family_At(found[0].Place.Family).Name};
}

} // namespace Tensarix
