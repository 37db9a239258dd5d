#include "calculator/CalcEntry.h"

#include "calculator/CalcConversions.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcNumbers.h"
#include "common/NumberText.h"

#include <bit>
#include <cstdint>

namespace Tensarix {

const double calcPi = std::bit_cast<double>(std::uint64_t{0x400921FB54442D11});

namespace {

// The operand of an operator that follows an erased entry.
constexpr std::string_view erasedOperand = "0.0";

void Show_Entry(CalcMainFrm& form) {
    ShowValue(form, std::nullopt, form.Vars.Entry.EntryText);
}

bool Is_Zero_Without_Point(std::string_view entry) {
    return !HasPoint(entry) && IsZero(Leading_Value(entry));
}

void Append_To_Entry(EntryState& entry) {
    std::string& text = entry.EntryText;
    if (entry.KeyToken == "dot")
        text += HasPoint(text) ? "" : ".";
    else if (Is_Zero_Without_Point(text))
        text = entry.KeyToken;
    else
        text += entry.KeyToken;
}

// A new number has no exponent of its own.
void Begin_Entry(CalcVariables& vars) {
    EntryState& entry = vars.Entry;
    if (!vars.Display.ResultPending) {
        entry.ExponentText.clear();
        entry.ExponentNegative = false;
    }
    entry.EntryText = entry.KeyToken == "dot" ? "0." : entry.KeyToken;
}

void Show_Exponent_Entry(CalcMainFrm& form) {
    EntryState& entry = form.Vars.Entry;
    entry.EntryText = entry.MantissaText + "E" + entry.ExponentText;
    ShowText(form, entry.EntryText, std::nullopt);
}

void Sign_Exponent(EntryState& entry) {
    entry.ExponentText =
        std::string(1, entry.ExponentNegative ? '-' : '+').append(entry.ExponentText);
}

void Keep_Last_Two(std::string& text) {
    if (text.size() > 2)
        text.erase(0, text.size() - 2);
}

void Erase_Exponent(CalcMainFrm& form) {
    EntryState& entry = form.Vars.Entry;
    if (IsZero(Leading_Value(entry.ExponentText))) {
        entry.EntryText = entry.MantissaText;
        entry.ExponentText.clear();
        entry.ExponentEntry = entry.SignPending = false;
        return Show_Entry(form);
    }
    if (entry.ExponentText.ends_with('0'))
        entry.ExponentNegative = false;
    Keep_Last_Two(entry.ExponentText);
    entry.ExponentText = std::string(1, '0').append(entry.ExponentText, 0, 1);
    Sign_Exponent(entry);
    Show_Exponent_Entry(form);
}

void Erase_Digit(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.Entry.ExponentEntry = vars.Entry.SignPending = false;
    std::string& entry = vars.Entry.EntryText;
    if (entry.size() <= (entry.starts_with('-') ? 2u : 1u)) {
        ShowValue(form, std::nullopt, "0.");
        entry.clear();
        vars.Pending.ResumeText = erasedOperand;
        return;
    }
    entry.pop_back();
    if (entry.ends_with('.'))
        entry.pop_back();
    Show_Entry(form);
    vars.Entry.MantissaText = entry;
}

void Toggle_Entry_Sign(CalcMainFrm& form) {
    std::string& entry = form.Vars.Entry.EntryText;
    if (entry.starts_with('-'))
        entry.erase(0, 1);
    else if (!IsZero(Leading_Value(entry)))
        entry = std::string(1, '-').append(entry);
    Show_Entry(form); // MantissaText stays: 12, sign, "exp" goes on with 12, as the display shows
}

// ResumeText and the operands that the next step reads anew outlive AC.
void Clear_Pending(PendingState& pending) {
    for (std::string* text : {&pending.Op1, &pending.Op2, &pending.Op3, &pending.ConstOperator})
        text->clear();
    pending.Operands.clear();
    pending.Running.reset();
    pending.ConstOperand.reset();
    pending.OpHistory.clear();
    pending.Chain.Start({});
}

} // namespace

void Digit_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    EntryState& entry = vars.Entry;
    if (entry.EntryText.empty())
        Begin_Entry(vars);
    else
        Append_To_Entry(entry);
    const auto number =
        vars.Display.ResultPending ? std::optional(vars.Display.LastResult) : std::nullopt;
    ShowValue(form, number, entry.EntryText);
    vars.Pending.ResumeText.clear();
    entry.MantissaText = entry.EntryText;
    if (vars.Display.ResultPending) {
        entry.EntryText.clear();
        vars.Pending.ResumeText = vars.Display.ResultSci;
        vars.Display.ResultPending = false;
    }
}

void Exponent_Step(CalcMainFrm& form) {
    EntryState& entry = form.Vars.Entry;
    if (entry.ExponentText.empty())
        entry.ExponentText = entry.KeyToken;
    else if (entry.KeyToken != "dot")
        entry.ExponentText += entry.KeyToken;
    Keep_Last_Two(entry.ExponentText); // drops the old sign, and rolls the digits
    Sign_Exponent(entry);
    Show_Exponent_Entry(form);
    entry.KeyToken.clear();
}

void Key_Cancel(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    EntryState& entry = vars.Entry;
    entry.ExponentEntry = entry.SignPending = false;
    vars.Conversion.SexaCount.reset();
    Show_Result(form, 0); // a fraction being keyed takes this 0 as one more digit
    entry.ExponentText.clear();
}

void Key_Point(CalcMainFrm& form) {
    form.Vars.Entry.KeyToken = form.Vars.Entry.FractionEntry ? "" : "dot";
}

void Key_Sign(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    EntryState& entry = vars.Entry;
    if (entry.ExponentEntry) {
        entry.ExponentNegative = !entry.ExponentNegative;
        Exponent_Step(form);
        return;
    }
    if (!entry.EntryText.empty())
        entry.SignPending = true;
    if (entry.FractionEntry)
        entry.KeyToken = '-';
    else if (!entry.EntryText.empty())
        Toggle_Entry_Sign(form);
    else
        Show_Result(form, -Shown_Value(vars));
}

void Key_Exponent(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    EntryState& entry = vars.Entry;
    vars.Conversion.SexaCount.reset();
    if ((entry.EntryText.empty() && !entry.SignPending) || entry.FractionEntry)
        return;
    entry.ExponentEntry = true;
    if (entry.ExponentText.empty())
        entry.KeyToken = "00";
}

void Key_Erase(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    EntryState& entry = vars.Entry;
    vars.Conversion.SexaCount.reset();
    if (entry.FractionEntry)
        Erase_Fraction(form);
    else if (entry.EntryText.find('E') != std::string::npos)
        Erase_Exponent(form);
    else if (!entry.EntryText.empty())
        Erase_Digit(form);
    entry.KeyToken.clear();
}

void Key_Pi(CalcMainFrm& form) {
    if (!form.Vars.Entry.ExponentEntry)
        Show_Result(form, calcPi);
}

// The modes, the memories and the data list stay.
void Key_All_Clear(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.Entry = {};
    Clear_Pending(vars.Pending);
    vars.Conversion.SexaCount.reset();
    vars.Conversion.SecondResult.reset();
    Clear_Conversions(vars.Conversion);
    for (std::string* text :
         {&vars.Display.DisplayText, &vars.Display.ErrorText, &vars.Display.ResultSci})
        text->clear();
    vars.Display.ErrorLatched = vars.Display.ResultPending = false;
    form.Panel.CCalc_Indicator.clear();
    Show_Result(form, 0);
}

void End_Entry(EntryState& entry) {
    entry.EntryText.clear();
    entry.ExponentEntry = entry.SignPending = false;
}

void Entry_To_Operand(CalcVariables& vars) {
    const std::string& keyed = vars.Entry.EntryText;
    vars.Pending.ResumeText = keyed.empty() ? Number_Text(Shown_Value(vars)) : keyed;
    End_Entry(vars.Entry);
}

} // namespace Tensarix
