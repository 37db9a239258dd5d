#include "common/NumberText.h"

#include "common/Failure.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Tensarix {

namespace {

constexpr int significantDigits = 15;

// Enough digits that a text which looks like a tie at the fifteenth digit is one.
constexpr int exactDigits = 60;

// "d.ddde+xx" as std::to_chars writes it.
DecimalText Parse_Scientific(std::string_view text) {
    DecimalText number;
    std::size_t i = 0;
    if (text[i] == '-') {
        number.Negative = true;
        ++i;
    }
    for (; i < text.size() && text[i] != 'e'; ++i)
        if (text[i] != '.')
            number.Digits += text[i];
    int exponent = 0;
    const std::size_t start = text[i + 1] == '+' ? i + 2 : i + 1;
    std::from_chars(text.data() + start, text.data() + text.size(), exponent);
    number.Point = exponent + 1;
    return number;
}

void Strip_Zeros(DecimalText& number) {
    const std::size_t first = number.Digits.find_first_not_of('0');
    if (first == std::string::npos) {
        number = {};
        return;
    }
    number.Digits.erase(0, first);
    number.Point -= static_cast<int>(first);
    number.Digits.erase(number.Digits.find_last_not_of('0') + 1);
}

// Keeps so many digits (possibly none or fewer), rounding half away from zero.
void Keep_Digits(DecimalText& number, int count) {
    if (count >= static_cast<int>(number.Digits.size()))
        return;
    if (count < 0) {
        number = {};
        return;
    }
    const auto keep = static_cast<std::size_t>(count);
    const bool up = number.Digits[keep] >= '5';
    number.Digits.resize(keep);
    if (up) {
        std::size_t i = keep;
        while (i > 0 && number.Digits[i - 1] == '9')
            number.Digits[--i] = '0';
        if (i > 0) {
            ++number.Digits[i - 1];
        } else {
            number.Digits.insert(0, 1, '1');
            ++number.Point;
        }
    }
    Strip_Zeros(number);
}

// The parts of a pattern.
struct Pattern {
    std::string_view Before, Behind;
    int IntegerZeros = 0, IntegerPlaces = 0;
    int DecimalZeros = 0, DecimalPlaces = 0;
    bool Thousands = false;
    char Exponent = 0; // 'E', 'e' or none
    int ExponentZeros = 0;
};

bool Is_Placeholder(char c) {
    return c == '0' || c == '#' || c == ',' || c == '.';
}

Pattern Read_Pattern(std::string_view text) {
    Pattern p;
    std::size_t i = 0;
    while (i < text.size() && !Is_Placeholder(text[i]))
        ++i;
    p.Before = text.substr(0, i);
    bool decimals = false;
    for (; i < text.size() && Is_Placeholder(text[i]); ++i) {
        const int zero = text[i] == '0' ? 1 : 0;
        if (text[i] == '.')
            decimals = true;
        else if (text[i] == ',')
            p.Thousands = true;
        else if (decimals)
            p.DecimalZeros += zero, ++p.DecimalPlaces;
        else
            p.IntegerZeros += zero, ++p.IntegerPlaces;
    }
    if (i + 1 < text.size() && (text[i] == 'E' || text[i] == 'e') && text[i + 1] == '+') {
        p.Exponent = text[i];
        for (i += 2; i < text.size() && (text[i] == '0' || text[i] == '#'); ++i)
            p.ExponentZeros += text[i] == '0' ? 1 : 0;
    }
    p.Behind = text.substr(i);
    return p;
}

std::string Integer_Text(const DecimalText& number, const Pattern& p) {
    std::string digits;
    for (int i = 0; i < number.Point; ++i)
        digits += i < static_cast<int>(number.Digits.size())
                      ? number.Digits[static_cast<std::size_t>(i)]
                      : '0';
    if (static_cast<int>(digits.size()) < p.IntegerZeros)
        digits.insert(0, static_cast<std::size_t>(p.IntegerZeros) - digits.size(), '0');
    if (p.Thousands)
        for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3)
            digits.insert(static_cast<std::size_t>(at), 1, ',');
    return digits;
}

std::string Decimals_Text(const DecimalText& number, const Pattern& p) {
    std::string digits;
    for (int i = 0; i < p.DecimalPlaces; ++i) {
        const int at = number.Point + i;
        const bool inside = at >= 0 && at < static_cast<int>(number.Digits.size());
        digits += inside ? number.Digits[static_cast<std::size_t>(at)] : '0';
    }
    while (static_cast<int>(digits.size()) > p.DecimalZeros && digits.back() == '0')
        digits.pop_back();
    return digits;
}

std::string Exponent_Text(int exponent, const Pattern& p) {
    std::string digits = std::to_string(std::abs(exponent));
    if (static_cast<int>(digits.size()) < p.ExponentZeros)
        digits.insert(0, static_cast<std::size_t>(p.ExponentZeros) - digits.size(), '0');
    return std::string{p.Exponent, exponent < 0 ? '-' : '+'} + digits;
}

// Moves the point so that at most p.IntegerPlaces digits stand before it; gives the exponent.
int Split_Exponent(DecimalText& number, const Pattern& p) {
    const int step = p.IntegerPlaces > 0 ? p.IntegerPlaces : 1;
    const auto multiple = [step](int power) {
        return (power >= 0 ? power / step : -((-power + step - 1) / step)) * step;
    };
    if (number.Digits.empty())
        return 0;
    int exponent = multiple(number.Point - 1);
    DecimalText rounded = number;
    rounded.Point -= exponent;
    Round_Decimals(rounded, p.DecimalPlaces);
    if (rounded.Point > step) { // rounding gave one more digit
        exponent += step;
        rounded.Point -= step;
    }
    number = rounded;
    return exponent;
}

// Length of the longest run from the start that forms a decimal number; 0 if there is none.
std::size_t Number_Length(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    std::size_t digits = 0;
    for (; i < text.size() && Is_Digit(text[i]); ++i)
        ++digits;
    if (i < text.size() && text[i] == '.')
        for (++i; i < text.size() && Is_Digit(text[i]); ++i)
            ++digits;
    if (digits == 0)
        return 0;
    if (i < text.size() && (text[i] == 'E' || text[i] == 'e')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        const std::size_t first = j;
        while (j < text.size() && Is_Digit(text[j]))
            ++j;
        if (j > first)
            i = j;
    }
    return i;
}

// False beyond the range of a double; a number too small to hold is 0.
bool Read_Double(std::string_view text, double& value) {
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc{})
        return true;
    const std::size_t e = text.find_first_of("eE");
    const bool small = e != std::string_view::npos && e + 1 < text.size() && text[e + 1] == '-';
    value = 0;
    return small || text.find_first_of("123456789") > e;
}

} // namespace

DecimalText To_Decimal(double value) {
    Finite(value);
    if (value == 0)
        return {};
    std::array<char, 128> text{};
    auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific);
    DecimalText number = Parse_Scientific({text.data(), end.ptr});
    if (number.Digits.size() > significantDigits) {
        end = std::to_chars(text.data(), text.data() + text.size(), value,
                            std::chars_format::scientific, exactDigits);
        number = Parse_Scientific({text.data(), end.ptr});
        Keep_Digits(number, significantDigits);
    }
    Strip_Zeros(number);
    return number;
}

void Round_Decimals(DecimalText& number, int decimals) {
    Keep_Digits(number, number.Point + decimals);
}

std::string Format_Number(double value, std::string_view pattern) {
    const Pattern p = Read_Pattern(pattern);
    DecimalText number = To_Decimal(value);
    const int exponent = p.Exponent != 0 ? Split_Exponent(number, p) : 0;
    Round_Decimals(number, p.DecimalPlaces);
    const std::string decimals = Decimals_Text(number, p);
    std::string text{p.Before};
    if (number.Negative)
        text += '-';
    text += Integer_Text(number, p);
    if (pattern.find('.') != std::string_view::npos)
        text += '.' + decimals;
    if (p.Exponent != 0)
        text += Exponent_Text(exponent, p);
    return text.append(p.Behind);
}

std::string General_Text(double value) {
    const DecimalText number = To_Decimal(value);
    if (number.Digits.empty())
        return "0";
    std::string text = number.Negative ? "-" : "";
    const int count = static_cast<int>(number.Digits.size());
    if (number.Point > significantDigits || count - number.Point > significantDigits) {
        text += number.Digits.substr(0, 1);
        if (count > 1)
            text += '.' + number.Digits.substr(1);
        const int exponent = number.Point - 1;
        const std::string digits = std::to_string(std::abs(exponent));
        return text + (exponent < 0 ? "E-" : "E+") + (digits.size() < 2 ? "0" : "") + digits;
    }
    if (number.Point <= 0)
        return text + "0." + std::string(static_cast<std::size_t>(-number.Point), '0') +
               number.Digits;
    if (count <= number.Point)
        return text + number.Digits +
               std::string(static_cast<std::size_t>(number.Point - count), '0');
    const auto point = static_cast<std::size_t>(number.Point);
    return text + number.Digits.substr(0, point) + '.' + number.Digits.substr(point);
}

bool Is_Numeric(std::string_view text) {
    const std::string piece = Trim(text);
    double value = 0;
    return !piece.empty() && Number_Length(piece) == piece.size() && Read_Double(piece, value);
}

double Leading_Value(std::string_view text) {
    const std::string packed = Replace_All(text, " ", {});
    const std::size_t length = Number_Length(packed);
    double value = 0;
    if (length > 0 && !Read_Double(std::string_view{packed}.substr(0, length), value))
        throw Failure("number out of range");
    return value;
}

double Text_Number(std::string_view text) {
    if (!Is_Numeric(text))
        throw Failure("text is no number");
    return Leading_Value(text);
}

double Round_Half_Even(double value) {
    return std::nearbyint(value);
}

std::int16_t Whole_16(double value) {
    const double whole = Round_Half_Even(Finite(value));
    if (std::abs(whole + 0.5) > 32767.5)
        throw Failure("beyond 16 bits");
    return static_cast<std::int16_t>(whole);
}

std::int32_t Whole_32(double value) {
    const double whole = Round_Half_Even(Finite(value));
    if (std::abs(whole + 0.5) > 2147483647.5)
        throw Failure("beyond 32 bits");
    return static_cast<std::int32_t>(whole);
}

std::string Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string{text.substr(first, text.find_last_not_of(' ') - first + 1)};
}

std::string Upper(std::string_view text) {
    std::string result{text};
    for (char& c : result)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return result;
}

std::string Replace_All(std::string_view text, std::string_view piece, std::string_view by) {
    std::string result;
    std::size_t at = 0;
    while (true) {
        const std::size_t next = piece.empty() ? std::string_view::npos : text.find(piece, at);
        result.append(text.substr(at, next - at));
        if (next == std::string_view::npos)
            return result;
        result.append(by);
        at = next + piece.size();
    }
}

} // namespace Tensarix
