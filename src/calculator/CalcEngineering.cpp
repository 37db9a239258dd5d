#include "calculator/CalcEngineering.h"

#include "calculator/CalcClock.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcNumbers.h"
#include "common/NumberText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Tensarix {

namespace {

constexpr int shiftPlaces = 3;
constexpr std::string_view shiftPattern = "#0.";

std::string Signed_Exponent(int exponent) {
    return (exponent < 0 ? "E-" : "E+") + Format_Number(std::abs(exponent), "00");
}

// Zeros for the point to pass, where fewer digits than it needs stand.
std::string Zeros_For(std::size_t digits) {
    return std::string(digits < shiftPlaces ? shiftPlaces - digits : 0, '0');
}

std::string Point_To_The_Right(std::string mantissa) {
    const std::size_t point = mantissa.find('.');
    mantissa += Zeros_For(mantissa.size() - point - 1);
    mantissa.erase(point, 1);
    return mantissa.insert(point + shiftPlaces, 1, '.');
}

std::string Point_To_The_Left(std::string mantissa) {
    mantissa.insert(0, Zeros_For(mantissa.find('.')));
    const std::size_t point = mantissa.find('.');
    mantissa.erase(point, 1);
    return mantissa.insert(point - shiftPlaces, 1, '.');
}

// Shows the shifted form, unless it needs more than the panel has. The number itself stays.
void Show_Shifted(CalcMainFrm& form, bool negative, const std::string& mantissa, int exponent) {
    const double value = Leading_Value(mantissa);
    const std::string text =
        Format_Number(value, std::string{shiftPattern} + std::string(100, '#'));
    if (std::abs(exponent) > maxExponent || static_cast<int>(text.size()) - 1 > maxDigits)
        return;
    ShowText(form, (negative ? "-" : "") + text + " " + Signed_Exponent(exponent),
             Shown_Value(form.Vars));
}

// The display text with all its digits; the number itself where a text stands beside it, such as an
// angle, or where its decimals under FIX need an exponent anyway.
std::string Text_To_Shift(const CalcVariables& vars) {
    std::string text = Replace_All(vars.Display.DisplayText, " ", "");
    const bool isNumber = Is_Numeric(text);
    const std::string plain = Number_Text(isNumber ? Leading_Value(text) : Shown_Value(vars));
    const bool needsExponent = plain.find('E') != std::string::npos;
    return isNumber && (text.find('E') != std::string::npos || !needsExponent) ? text : plain;
}

void Shift(CalcMainFrm& form, bool right) {
    if (!Direct_Key_Begins(form))
        return;
    Finish_Fraction_As_Operand(form);
    if (form.Vars.Display.ErrorLatched)
        return;
    const std::string text = Text_To_Shift(form.Vars);
    if (IsZero(Leading_Value(text)))
        return;
    const std::size_t e = text.find('E');
    const bool negative = text.starts_with('-');
    if (e == std::string::npos) // brings the number into exponent form only
        return ShowText(form, Number_Text(Leading_Value(text)) + " E+00", Shown_Value(form.Vars));
    std::string mantissa = text.substr(negative ? 1 : 0, e - (negative ? 1 : 0));
    if (!HasPoint(mantissa))
        mantissa += '.';
    const int exponent = Exponent_Of(text) + (right ? -shiftPlaces : shiftPlaces);
    Show_Shifted(form, negative, right ? Point_To_The_Right(mantissa) : Point_To_The_Left(mantissa),
                 exponent);
}

} // namespace

void key_EngL(CalcMainFrm& form) {
    Shift(form, false);
}

void key_EngR(CalcMainFrm& form) {
    Shift(form, true);
}

} // namespace Tensarix
