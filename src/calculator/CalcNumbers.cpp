#include "calculator/CalcNumbers.h"

#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>
#include <cmath>

namespace Tensarix {

namespace {

constexpr int longPlaces = 100; // more decimals than any number has digits
constexpr int wholePlaces = 13;

std::string Pattern(int decimals, char place) {
    return "0." + std::string(static_cast<std::size_t>(std::max(decimals, 0)), place);
}

int Length(std::string_view text) {
    return static_cast<int>(text.size());
}

bool Holds(std::string_view text, char c) {
    return text.find(c) != std::string_view::npos;
}

// The decimals that leave 15 digits beside the whole part. The whole part is rounded, so that 9.7
// counts two digits and 29 / 3 shows fourteen (docs/validation.md).
int Decimals_That_Fit(double value) {
    const std::string whole = Format_Number(value, "0");
    return std::max(maxDigits - std::max(Length(whole) - (value < 0 ? 1 : 0), 1), 0);
}

double Snap_Nines(double value, int nines) {
    const double whole = std::trunc(std::abs(value));
    const std::string decimals = Format_Number(std::abs(value) - whole, Fixed_Pattern(maxDigits));
    const bool snaps =
        decimals.starts_with("0." + std::string(static_cast<std::size_t>(nines), '9'));
    return snaps ? (whole + 1) * Sign_Of(value) : value;
}

std::string Cut_Mantissa(std::string_view mantissa, std::string_view exponent) {
    const int digits =
        Length(mantissa) - (Holds(mantissa, '.') ? 1 : 0) - (Holds(mantissa, '-') ? 1 : 0);
    if (digits <= maxDigits)
        return std::string{mantissa}.append(exponent);
    const double value = Leading_Value(mantissa);
    return FitFifteen(Format_Number(value, Optional_Pattern(longPlaces))).append(exponent);
}

std::string Cut_Decimals(double value, int decimals) {
    const std::string text = Format_Number(value, Optional_Pattern(decimals));
    const bool isLong = Length(text) > maxDigits;
    return isLong ? Format_Number(value, Optional_Pattern(decimals - 1)) : text;
}

} // namespace

std::string Number_Text(double value) {
    const DecimalText number = To_Decimal(value);
    const int decimals = Length(number.Digits) - number.Point;
    if (number.Point < 0 && decimals >= maxDigits) // "0." takes one of the fifteen places
        return Replace_All(Full_Scientific(value), ".E", "E");
    return General_Text(value);
}

double Through_Text(double value) {
    return Leading_Value(Number_Text(value));
}

int Exponent_Of(std::string_view text) {
    const std::size_t e = text.find('E');
    return e == std::string_view::npos ? 0 : Whole_32(Leading_Value(text.substr(e + 1)));
}

std::string Fixed_Pattern(int decimals) {
    return Pattern(decimals, '0');
}

std::string Scientific_Pattern(int decimals) {
    return Pattern(decimals, '0') + "E+00";
}

std::string Optional_Pattern(int decimals) {
    return Pattern(decimals, '#');
}

std::string Full_Scientific(double value) {
    return Format_Number(value, Optional_Pattern(longPlaces) + "E+00");
}

std::string FitFifteen(std::string_view text) {
    const std::size_t e = std::min(text.find('E'), text.size());
    const double value = Leading_Value(text.substr(0, e));
    return Format_Number(value, Optional_Pattern(Decimals_That_Fit(value))).append(text.substr(e));
}

std::string TrimFifteen(std::string_view text) {
    const std::size_t e = std::min(text.find('E'), text.size());
    const int digits =
        static_cast<int>(e) - (Holds(text, '-') ? 1 : 0) - (Holds(text, '.') ? 1 : 0);
    return digits > maxDigits ? CutFifteen(text) : std::string{text};
}

std::string CutFifteen(std::string_view text) {
    if (const std::size_t e = text.find('E'); e != std::string_view::npos)
        return Cut_Mantissa(text.substr(0, e), text.substr(e));
    const std::size_t point = std::min(text.find('.'), text.size());
    const int whole = static_cast<int>(point) - (Holds(text, '-') ? 1 : 0);
    const int decimals = std::max(Length(text) - static_cast<int>(point) - 1, 0);
    if (whole + decimals <= maxDigits)
        return std::string{text};
    const double value = Leading_Value(text);
    if (whole > maxDigits)
        return FitFifteen(Full_Scientific(value));
    if (decimals < maxDigits)
        return Cut_Decimals(value, decimals);
    return FitFifteen(Format_Number(value, Optional_Pattern(longPlaces)));
}

double Snap14(double value) {
    return Snap_Nines(value, 14);
}

double Snap12(double value) {
    return Snap_Nines(value, 12);
}

double SnapWhole(double value) {
    const std::string text = Number_Text(value);
    if (Holds(text, 'E') || !Holds(text, '.'))
        return value;
    const double whole = std::trunc(std::abs(value));
    double decimals = value - whole; // of the signed number
    if (Equal_To_Decimals(decimals, 1, wholePlaces))
        decimals = 1;
    else if (Equal_To_Decimals(decimals, 0, wholePlaces))
        decimals = 0;
    return (decimals + whole) * Sign_Of(value);
}

bool IsWhole(double value) {
    return Format_Number(SnapWhole(value), Optional_Pattern(wholePlaces)).ends_with('.');
}

bool Equal_To_Decimals(double a, double b, int decimals) {
    const std::string pattern = Fixed_Pattern(decimals);
    return Leading_Value(Format_Number(a, pattern)) == Leading_Value(Format_Number(b, pattern));
}

bool IsZero(double value) {
    return value == 0.0;
}

bool IsNegative(double value) {
    return value < 0;
}

bool HasPoint(std::string_view text) {
    return Holds(Trim(text), '.');
}

double Checked_Power(double x, double y) {
    if (x >= 0)
        return Finite(std::pow(x, y));
    const double inverse = Finite(1 / y);
    const double order = Round_Half_Even(std::max(SnapWhole(y), SnapWhole(inverse)));
    if (std::fmod(order, 2) == 0) {
        if (!IsWhole(y))
            throw Failure("even root of a negative number");
        return Finite(std::pow(x, y));
    }
    if (!IsWhole(y) && !IsWhole(inverse))
        throw Failure("broken power of a negative number");
    return Finite(std::pow(-x, y)) * Sign_Of(x);
}

} // namespace Tensarix
