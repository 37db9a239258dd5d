#include "calculator/CalcEntry.h"

#include "calculator/CalcConversions.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcText.h"
#include "common/NumberText.h"

#include <bit>
#include <cstdint>

namespace Tensarix {

const double calcPi = std::bit_cast<double>(std::uint64_t{0x400921FB54442D11});

namespace {

// The operand of an operator that follows an erased entry.
constexpr std::string_view erasedOperand = "0.0";

void Show_Entry(CalcMainFrm& form) {
    ShowValue(form, std::nullopt, form.Vars.EntryText);
}

bool Is_Zero_Without_Point(std::string_view entry) {
    return !HasPoint(entry) && IsZero(Leading_Value(entry));
}

void Append_To_Entry(CalcVariables& vars) {
    std::string& entry = vars.EntryText;
    if (vars.KeyToken == "dot")
        entry += HasPoint(entry) ? "" : ".";
    else if (Is_Zero_Without_Point(entry))
        entry = vars.KeyToken;
    else
        entry += vars.KeyToken;
}

// A new number has no exponent of its own.
void Begin_Entry(CalcVariables& vars) {
    if (!vars.ResultPending) {
        vars.ExponentText.clear();
        vars.ExponentNegative = false;
    }
    vars.EntryText = vars.KeyToken == "dot" ? "0." : vars.KeyToken;
}

void Show_Exponent_Entry(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.EntryText = vars.MantissaText + "E" + vars.ExponentText;
    ShowText(form, vars.EntryText, std::nullopt);
}

void Sign_Exponent(CalcVariables& vars) {
    vars.ExponentText = std::string(1, vars.ExponentNegative ? '-' : '+').append(vars.ExponentText);
}

void Keep_Last_Two(std::string& text) {
    if (text.size() > 2)
        text.erase(0, text.size() - 2);
}

void Erase_Exponent(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (IsZero(Leading_Value(vars.ExponentText))) {
        vars.EntryText = vars.MantissaText;
        vars.ExponentText.clear();
        vars.ExponentEntry = vars.SignPending = false;
        return Show_Entry(form);
    }
    if (vars.ExponentText.ends_with('0'))
        vars.ExponentNegative = false;
    Keep_Last_Two(vars.ExponentText);
    vars.ExponentText = std::string(1, '0').append(vars.ExponentText, 0, 1);
    Sign_Exponent(vars);
    Show_Exponent_Entry(form);
}

void Erase_Digit(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.ExponentEntry = vars.SignPending = false;
    std::string& entry = vars.EntryText;
    if (entry.size() <= (entry.starts_with('-') ? 2u : 1u)) {
        ShowValue(form, std::nullopt, "0.");
        entry.clear();
        vars.ResumeText = erasedOperand;
        return;
    }
    entry.pop_back();
    if (entry.ends_with('.'))
        entry.pop_back();
    Show_Entry(form);
    vars.MantissaText = entry;
}

void Toggle_Entry_Sign(CalcMainFrm& form) {
    std::string& entry = form.Vars.EntryText;
    if (entry.starts_with('-'))
        entry.erase(0, 1);
    else if (!IsZero(Leading_Value(entry)))
        entry = std::string(1, '-').append(entry);
    Show_Entry(form); // MantissaText stays: 12, sign, "exp" loses the sign, which is intended
}

} // namespace

void Digit_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.EntryText.empty())
        Begin_Entry(vars);
    else
        Append_To_Entry(vars);
    const auto number = vars.ResultPending ? std::optional(vars.LastResult) : std::nullopt;
    ShowValue(form, number, vars.EntryText);
    vars.ResumeText.clear();
    vars.MantissaText = vars.EntryText;
    if (vars.ResultPending) {
        vars.EntryText.clear();
        vars.ResumeText = vars.ResultSci;
        vars.ResultPending = false;
    }
}

void Exponent_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.ExponentText.empty())
        vars.ExponentText = vars.KeyToken;
    else if (vars.KeyToken != "dot")
        vars.ExponentText += vars.KeyToken;
    Keep_Last_Two(vars.ExponentText); // drops the old sign, and rolls the digits
    Sign_Exponent(vars);
    Show_Exponent_Entry(form);
    vars.KeyToken.clear();
}

void Key_Cancel(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.ExponentEntry = vars.SignPending = false;
    vars.SexaCount.reset();
    Show_Result(form, 0); // a fraction being keyed goes on, with this 0 behind it, as intended
    vars.ExponentText.clear();
}

void Key_Point(CalcMainFrm& form) {
    form.Vars.KeyToken = form.Vars.FractionEntry ? "" : "dot";
}

void Key_Sign(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.ExponentEntry) {
        vars.ExponentNegative = !vars.ExponentNegative;
        Exponent_Step(form);
        return;
    }
    if (!vars.EntryText.empty())
        vars.SignPending = true;
    if (vars.FractionEntry)
        vars.KeyToken = '-';
    else if (!vars.EntryText.empty())
        Toggle_Entry_Sign(form);
    else
        Show_Result(form, -Shown_Value(vars));
}

void Key_Exponent(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.SexaCount.reset();
    if ((vars.EntryText.empty() && !vars.SignPending) || vars.FractionEntry)
        return;
    vars.ExponentEntry = true;
    if (vars.ExponentText.empty())
        vars.KeyToken = "00";
}

void Key_Erase(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.SexaCount.reset();
    if (vars.FractionEntry)
        Erase_Fraction(form);
    else if (vars.EntryText.find('E') != std::string::npos)
        Erase_Exponent(form);
    else if (!vars.EntryText.empty())
        Erase_Digit(form);
    vars.KeyToken.clear();
}

void Key_Pi(CalcMainFrm& form) {
    if (!form.Vars.ExponentEntry)
        Show_Result(form, calcPi);
}

// ResumeText, the modes, the memories and the data list outlive AC.
void Key_All_Clear(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    using V = CalcVariables;
    for (auto text :
         {&V::KeyToken, &V::Op1, &V::Op2, &V::Op3, &V::EntryText, &V::DisplayText, &V::ErrorText,
          &V::ExponentText, &V::MantissaText, &V::ResultSci, &V::FractionText, &V::ConstOperator})
        (vars.*text).clear();
    for (auto value : {&V::Running, &V::ConstOperand, &V::SecondResult})
        (vars.*value).reset();
    for (auto flag : {&V::ErrorLatched, &V::HasInput, &V::SignPending, &V::ExponentEntry,
                      &V::ExponentNegative, &V::ResultPending, &V::FractionEntry})
        vars.*flag = false;
    vars.Operands.clear();
    vars.Chain.Start({});
    vars.OpHistory.clear();
    vars.SexaCount.reset();
    Clear_Conversions(vars);
    form.Panel.CCalc_Indicator.clear();
    Show_Result(form, 0);
}

void End_Entry(CalcVariables& vars) {
    vars.EntryText.clear();
    vars.ExponentEntry = vars.SignPending = false;
}

void Entry_To_Operand(CalcVariables& vars) {
    vars.ResumeText = vars.EntryText.empty() ? Number_Text(Shown_Value(vars)) : vars.EntryText;
    End_Entry(vars);
}

} // namespace Tensarix
