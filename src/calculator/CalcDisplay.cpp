#include "calculator/CalcDisplay.h"

#include "calculator/CalcClock.h"
#include "calculator/CalcNumbers.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace Tensarix {

namespace {

constexpr std::string_view infinityText = "Infinity";
constexpr std::string_view randomPattern = "0.000";
constexpr int lastPrecIndex = 14;
constexpr int firstPrecIndex = 2; // of a mode that had none yet

std::string With_Point(std::string text) {
    if (text.find('.') == std::string::npos)
        text += '.';
    return text;
}

void Write_Panel(CalcPanel& panel, std::string_view text) {
    const std::size_t e = text.find('E');
    panel.DisplayBox = With_Point(std::string{text.substr(0, e)});
    panel.ExpoBox.clear();
    if (e == std::string_view::npos)
        return;
    const bool plus = text.find('+') != std::string_view::npos;
    panel.ExpoBox.assign(1, plus ? ' ' : '-').append(text.substr(text.size() - 2));
    panel.ExponentCut = std::abs(Exponent_Of(text)) > maxExponent;
}

std::string Formatted(const CalcVariables& vars, double value) {
    if (vars.Display.FixDigits)
        return Format_Number(value, Fixed_Pattern(*vars.Display.FixDigits));
    if (vars.Display.SciDigits)
        return Format_Number(value, Scientific_Pattern(*vars.Display.SciDigits));
    return Number_Text(value);
}

} // namespace

double Shown_Value(const CalcVariables& vars) {
    return vars.Display.DisplayValue.value_or(0);
}

void ShowNumber(CalcMainFrm& form, double value) {
    CalcVariables& vars = form.Vars;
    vars.Display.ResultSci = Full_Scientific(value);
    vars.Display.LastResult = value;
    vars.Entry.KeyToken =
        vars.Display.RandomPending ? Format_Number(value, randomPattern) : Formatted(vars, value);
    vars.Display.ResultPending = true;
    vars.Display.RandomPending = false;
    const int exponent = Exponent_Of(Number_Text(value));
    if (exponent > maxExponent)
        Fail_Key(form, infinityText);
    else if (exponent < -maxExponent)
        vars.Entry.KeyToken = '0'; // the text alone; the operand for the next operator stays
}

void Show_Result(CalcMainFrm& form, double value) {
    ShowNumber(form, value);
    form.Vars.Entry.EntryText.clear();
}

void Fail_Key(CalcMainFrm& form, std::string_view message) {
    form.Vars.Entry.KeyToken = "Error";
    form.Vars.Display.ErrorText = message;
}

void ShowValue(CalcMainFrm& form, std::optional<double> number, std::string_view text) {
    CalcVariables& vars = form.Vars;
    End_Clock(form);
    std::string shown{text};
    if (text.empty()) {
        const double value = Through_Text(number.value_or(0));
        shown = Formatted(vars, value);
        if (!vars.Display.FixDigits && !vars.Display.SciDigits)
            shown = FitFifteen(shown);
    }
    vars.Display.DisplayValue = number ? Through_Text(*number) : Leading_Value(text);
    vars.Display.DisplayText =
        text.empty() ? Number_Text(*vars.Display.DisplayValue) : std::string{text};
    const bool wasCut = std::exchange(form.Panel.ExponentCut, false);
    Write_Panel(form.Panel, TrimFifteen(shown));
    if (form.Panel.ExponentCut)
        form.Panel.Remark = {"The number is " + Number_Text(*vars.Display.DisplayValue) +
                                 ": only two digits of its exponent are shown",
                             RemarkWeight::Caution};
    else if (wasCut)
        form.Panel.Remark = {};
}

void ShowText(CalcMainFrm& form, std::string_view text, std::optional<double> number) {
    form.Vars.Display.DisplayValue = number ? Through_Text(*number) : Leading_Value(text);
    form.Vars.Display.DisplayText = text;
    Write_Panel(form.Panel, Replace_All(text, " ", ""));
}

void Show_Fraction(CalcMainFrm& form, std::string_view fraction) {
    End_Clock(form);
    std::string text{fraction};
    const std::size_t first = text.find('/');
    if (first != text.rfind('/'))
        text[first] = ' ';
    form.Panel.DisplayBox = text + '.';
    form.Panel.ExpoBox.clear();
}

void ShowError(CalcMainFrm& form) {
    DisplayState& display = form.Vars.Display;
    End_Clock(form);
    form.Panel.DisplayBox.assign(1, '*')
        .append(display.ErrorText.empty() ? "Error" : display.ErrorText)
        .append(1, '*');
    form.Panel.ExpoBox.clear();
    display.ErrorLatched = true;
    display.ErrorText.clear();
}

void Redisplay(CalcMainFrm& form) {
    if (form.Vars.Entry.FractionEntry)
        Show_Fraction(form, form.Vars.Entry.FractionText);
    else
        ShowValue(form, Shown_Value(form.Vars), {});
}

// Display modes

namespace {

void Choose_Display_Mode(CalcMainFrm& form, DisplayMode mode, int precIndex) {
    form.Panel.DispMode_Indicator = mode;
    form.Panel.PrecEnabled = precIndex >= 0;
    PrecBox_Change(form, precIndex);
}

int Index_From(std::optional<int> memo) {
    return std::min(memo.value_or(firstPrecIndex), lastPrecIndex);
}

void Choose_Angle_Mode(CalcMainFrm& form, AngleMode mode) {
    if (form.Vars.Display.ClockRunning)
        key_Time(form);
    form.Vars.Conversion.Angle = form.Panel.Mode_Indicator = mode;
}

} // namespace

std::string_view Indicator_Text(AngleMode mode) {
    return mode == AngleMode::RadianMode    ? "RADIAN"
           : mode == AngleMode::GradianMode ? "GRADIAN"
                                            : "DEGREE";
}

std::string_view Indicator_Text(DisplayMode mode) {
    return mode == DisplayMode::Fix ? "FIX" : mode == DisplayMode::Sci ? "SCI" : "NORM";
}

void FxnButton(CalcMainFrm& form) {
    Choose_Display_Mode(form, DisplayMode::Fix, Index_From(form.Vars.Display.FixMemo));
}

void ScnButton(CalcMainFrm& form) {
    Choose_Display_Mode(form, DisplayMode::Sci, Index_From(form.Vars.Display.SciMemo));
}

void StdButton(CalcMainFrm& form) {
    Choose_Display_Mode(form, DisplayMode::Norm, -1);
}

void PrecBox_Change(CalcMainFrm& form, int index) {
    DisplayState& display = form.Vars.Display;
    form.Panel.PrecIndex = std::clamp(index, -1, lastPrecIndex);
    const auto digits = index < 0 ? std::nullopt : std::optional<int>(form.Panel.PrecIndex);
    display.FixDigits.reset();
    display.SciDigits.reset();
    if (form.Panel.DispMode_Indicator == DisplayMode::Fix)
        display.FixDigits = display.FixMemo = digits;
    else if (form.Panel.DispMode_Indicator == DisplayMode::Sci)
        display.SciDigits = display.SciMemo = digits;
    if (!display.ErrorLatched) // the message stays until AC
        Redisplay(form);
    form.Vars.Entry.KeyToken.clear();
}

void DegButton(CalcMainFrm& form) {
    Choose_Angle_Mode(form, AngleMode::DegreeMode);
}

void RadButton(CalcMainFrm& form) {
    Choose_Angle_Mode(form, AngleMode::RadianMode);
}

void GradButton(CalcMainFrm& form) {
    Choose_Angle_Mode(form, AngleMode::GradianMode);
}

void Open_Modes(CalcMainFrm& form) {
    const DisplayState& display = form.Vars.Display;
    form.Panel.Mode_Indicator = form.Vars.Conversion.Angle;
    form.Panel.DispMode_Indicator = display.FixDigits   ? DisplayMode::Fix
                                    : display.SciDigits ? DisplayMode::Sci
                                                        : DisplayMode::Norm;
    const auto digits = display.FixDigits ? display.FixDigits : display.SciDigits;
    form.Panel.PrecEnabled = digits.has_value();
    form.Panel.PrecIndex = digits ? Index_From(digits) : -1;
}

} // namespace Tensarix
