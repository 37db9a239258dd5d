#include "controls/TypedName.h"

#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int smallestPart = 64; // of an inch; a fraction of other parts is none yet

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
    if (of <= 0 || parts <= of || smallestPart % parts != 0)
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
std::vector<NameKey::Start> Starts_Of(std::string_view name) {
    std::vector<NameKey::Start> starts{{0, 0}};
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

// How well a typed text enters a name; the less, the better.
int Match(std::string_view name, const std::vector<NameKey::Start>& starts, std::string_view typed,
          bool closed) {
    for (const auto& start : starts) {
        const std::string_view rest = name.substr(start.At);
        if (!rest.starts_with(typed))
            continue;
        if (rest.size() == typed.size())
            return TypedName::perLevel * start.Level;
        const bool splits =
            Is_Of_Number(rest[typed.size()]) && (typed.empty() || Is_Of_Number(typed.back()));
        if (!splits || !closed)
            return TypedName::perLevel * start.Level + (splits ? 4 : 2);
    }
    return TypedName::noMatch;
}

// Of the names at these positions that begin as typed, the shortest, and of equally short ones the
// last.
template <typename NameAt>
int Nearest(const TypedName& typed, int first, int behind, NameAt nameAt) {
    int best = -1;
    std::size_t shortest = 0;
    for (int at = first; at < behind; ++at) {
        const NameKey name(nameAt(at));
        if (!typed.Begins(name) || (best >= 0 && name.Literal.size() > shortest))
            continue;
        best = at;
        shortest = name.Literal.size();
    }
    return best;
}

} // namespace

NameKey::NameKey(std::string_view name) : Literal(Lower(Without_Blanks(name, {}))) {
    bool closed = false;
    Decimal = Decimal_Form(Literal, closed);
    LiteralStarts = Starts_Of(Literal);
    DecimalStarts = Starts_Of(Decimal);
}

TypedName::TypedName(std::string_view typed) {
    const std::string lower = Lower(Trim(typed));
    for (const std::string_view between : {"", "x", "-"}) {
        Reading reading;
        reading.Literal = Without_Blanks(lower, between);
        if (reading.Literal.empty() ||
            (!readings_.empty() && reading.Literal == readings_.front().Literal))
            break; // there is but one
        reading.Decimal = Decimal_Form(reading.Literal, reading.Closed);
        readings_.push_back(std::move(reading));
    }
}

int TypedName::Match(const NameKey& name) const {
    int best = noMatch;
    for (const Reading& typed : readings_) {
        if (!typed.Decimal.empty())
            best = std::min(best, Tensarix::Match(name.Decimal, name.DecimalStarts, typed.Decimal,
                                                  typed.Closed));
        best =
            std::min(best, Tensarix::Match(name.Literal, name.LiteralStarts, typed.Literal, false));
    }
    return best;
}

int Find_By_Typing(const ComboBox& list, std::string_view typed) {
    return Nearest(TypedName(typed), 0, list.Count(),
                   [&list](int at) -> const std::string& { return list.Item(at); });
}

int Find_Row_By_Typing(const FlexGrid& grid, std::string_view typed) {
    const TypedName name(typed);
    int row = -1;
    for (int col = 0; col < std::max(grid.FixedCols(), 1) && row < 0; ++col)
        row = Nearest(name, grid.FixedRows(), grid.Rows(),
                      [&grid, col](int at) -> const std::string& { return grid.Text(at, col); });
    return row;
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

} // namespace Tensarix
