#include "calculator/CalcDisplay.h"

#include "calculator/CalcText.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr std::string_view infinityText = "Infinity";
constexpr std::string_view randomPattern = "0.000";
constexpr std::string_view fixName = "FIX", sciName = "SCI", normName = "NORM";
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
}

std::string Formatted(const CalcVariables& vars, double value) {
    if (vars.FixDigits)
        return Format_Number(value, Fixed_Pattern(*vars.FixDigits));
    if (vars.SciDigits)
        return Format_Number(value, Scientific_Pattern(*vars.SciDigits));
    return Number_Text(value);
}

// Above the range also if only the rounding of SCI makes a third exponent digit.
bool Is_Above_Range(double value, std::string_view formatted) {
    return std::max(Exponent_Of(Number_Text(value)), Exponent_Of(formatted)) > maxExponent;
}

bool Is_Below_Range(double value) {
    return Exponent_Of(Number_Text(value)) < -maxExponent;
}

} // namespace

double Shown_Value(const CalcVariables& vars) {
    return vars.DisplayValue.value_or(0);
}

void ShowNumber(CalcMainFrm& form, double value) {
    CalcVariables& vars = form.Vars;
    vars.ResultSci = Full_Scientific(value);
    vars.LastResult = value;
    vars.KeyToken =
        vars.RandomPending ? Format_Number(value, randomPattern) : Formatted(vars, value);
    vars.ResultPending = true;
    vars.RandomPending = false;
    if (Is_Above_Range(value, vars.KeyToken))
        Fail_Key(form, infinityText);
    else if (Is_Below_Range(value))
        vars.KeyToken = '0'; // the text alone; the operand for the next operator stays
}

void Show_Result(CalcMainFrm& form, double value) {
    ShowNumber(form, value);
    form.Vars.EntryText.clear();
}

void Fail_Key(CalcMainFrm& form, std::string_view message) {
    form.Vars.KeyToken = "Error";
    form.Vars.ErrorText = message;
}

void ShowValue(CalcMainFrm& form, std::optional<double> number, std::string_view text) {
    CalcVariables& vars = form.Vars;
    End_Clock(form);
    std::string shown{text};
    if (text.empty()) {
        const double value = Through_Text(number.value_or(0));
        shown = Formatted(vars, Is_Below_Range(value) ? 0 : value);
        if (Is_Above_Range(value, shown)) {
            vars.ErrorText = infinityText;
            return ShowError(form);
        }
        if (!vars.FixDigits && !vars.SciDigits)
            shown = FitFifteen(shown);
    }
    vars.DisplayValue = number ? Through_Text(*number) : Leading_Value(text);
    vars.DisplayText = text.empty() ? Number_Text(*vars.DisplayValue) : std::string{text};
    Write_Panel(form.Panel, TrimFifteen(shown));
}

void ShowText(CalcMainFrm& form, std::string_view text, std::optional<double> number) {
    form.Vars.DisplayValue = number ? Through_Text(*number) : Leading_Value(text);
    form.Vars.DisplayText = text;
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
    CalcVariables& vars = form.Vars;
    End_Clock(form);
    form.Panel.DisplayBox.assign(1, '*')
        .append(vars.ErrorText.empty() ? "Error" : vars.ErrorText)
        .append(1, '*');
    form.Panel.ExpoBox.clear();
    vars.ErrorLatched = true;
    vars.ErrorText.clear();
}

void Redisplay(CalcMainFrm& form) {
    if (form.Vars.FractionEntry)
        Show_Fraction(form, form.Vars.FractionText);
    else
        ShowValue(form, Shown_Value(form.Vars), {});
}

void End_Clock(CalcMainFrm& form) {
    form.Vars.ClockRunning = false;
    form.Panel.DateBox.clear();
}

bool Direct_Key_Begins(CalcMainFrm& form) {
    if (form.Vars.ClockRunning) {
        key_Time(form);
        return false;
    }
    if (!form.Vars.ErrorLatched)
        form.Vars.SexaCount.reset();
    return !form.Vars.ErrorLatched;
}

// Display modes

namespace {

void Choose_Display_Mode(CalcMainFrm& form, std::string_view name, int precIndex) {
    form.Panel.DispMode_Indicator = name;
    form.Panel.PrecEnabled = precIndex >= 0;
    PrecBox_Change(form, precIndex);
}

int Index_From(std::optional<int> memo) {
    return std::min(memo.value_or(firstPrecIndex), lastPrecIndex);
}

void Choose_Angle_Mode(CalcMainFrm& form, const bool CalcVariables::*flag) {
    for (auto each :
         {&CalcVariables::DegreeMode, &CalcVariables::RadianMode, &CalcVariables::GradianMode})
        form.Vars.*each = each == flag;
}

void Show_Angle_Mode(CalcMainFrm& form) {
    form.Panel.Mode_Indicator = form.Vars.RadianMode    ? "RADIAN"
                                : form.Vars.GradianMode ? "GRADIAN"
                                                        : "DEGREE";
}

void Angle_Button(CalcMainFrm& form, bool CalcVariables::*flag) {
    if (form.Vars.ClockRunning)
        key_Time(form);
    Choose_Angle_Mode(form, flag);
    Show_Angle_Mode(form);
}

} // namespace

void FxnButton(CalcMainFrm& form) {
    Choose_Display_Mode(form, fixName, Index_From(form.Vars.FixMemo));
}

void ScnButton(CalcMainFrm& form) {
    Choose_Display_Mode(form, sciName, Index_From(form.Vars.SciMemo));
}

void StdButton(CalcMainFrm& form) {
    Choose_Display_Mode(form, normName, -1);
}

void PrecBox_Change(CalcMainFrm& form, int index) {
    CalcVariables& vars = form.Vars;
    form.Panel.PrecIndex = std::clamp(index, -1, lastPrecIndex);
    const auto digits = index < 0 ? std::nullopt : std::optional<int>(form.Panel.PrecIndex);
    vars.FixDigits.reset();
    vars.SciDigits.reset();
    if (form.Panel.DispMode_Indicator == fixName)
        vars.FixDigits = vars.FixMemo = digits;
    else if (form.Panel.DispMode_Indicator == sciName)
        vars.SciDigits = vars.SciMemo = digits;
    if (!vars.ErrorLatched) // the message stays until AC
        Redisplay(form);
    vars.KeyToken.clear();
}

void DegButton(CalcMainFrm& form) {
    Angle_Button(form, &CalcVariables::DegreeMode);
}

void RadButton(CalcMainFrm& form) {
    Angle_Button(form, &CalcVariables::RadianMode);
}

void GradButton(CalcMainFrm& form) {
    Angle_Button(form, &CalcVariables::GradianMode);
}

void Open_Modes(CalcMainFrm& form) {
    Show_Angle_Mode(form);
    const CalcVariables& vars = form.Vars;
    form.Panel.DispMode_Indicator = vars.FixDigits ? fixName : vars.SciDigits ? sciName : normName;
    const auto digits = vars.FixDigits ? vars.FixDigits : vars.SciDigits;
    form.Panel.PrecEnabled = digits.has_value();
    form.Panel.PrecIndex = digits ? Index_From(digits) : -1;
}

} // namespace Tensarix
