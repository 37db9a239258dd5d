#include "calculator/CalcMainFrm.h"

#include "calculator/CalcClock.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcFunctions.h"
#include "calculator/CalcMemory.h"
#include "calculator/CalcNumbers.h"
#include "calculator/CalcOperators.h"
#include "calculator/CalcStatistics.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

// An operator that follows nothing takes this operand.
constexpr std::string_view freshOperand = "0.0";

// The tokens of number entry.
constexpr struct {
    std::string_view Token;
    void (*Run)(CalcMainFrm& form);
} entryKeys[] = {{"C", Key_Cancel},     {"dot", Key_Point}, {"pm", Key_Sign},
                 {"exp", Key_Exponent}, {"ers", Key_Erase}, {"PI", Key_Pi}};

bool Is_Digit_Token(std::string_view token) {
    return token.size() == 1 && Is_Digit(token.front());
}

void Begin_Operator(CalcMainFrm& form, std::string_view token) {
    CalcVariables& vars = form.Vars;
    Finish_Fraction(form);
    vars.Entry.ExponentEntry = vars.Entry.SignPending = vars.Entry.ExponentNegative = false;
    vars.Conversion.SexaCount.reset();
    vars.Entry.KeyToken = std::string{token};
}

// Operators under the names of their keys.
std::string_view Operator_Of(std::string_view token) {
    if (token == "xy")
        return "expt";
    if (token == "root")
        return "invexpt";
    return Is_Binary_Operator(token) && token.size() == 1 ? token : token == "=" ? "=" : "";
}

void Prepare_Entry(CalcMainFrm& form, const FunctionKey& key) {
    CalcVariables& vars = form.Vars;
    if (key.Before == EntryBefore::Keep)
        return;
    if (key.Before == EntryBefore::Finish)
        Finish_Fraction(form);
    else
        Drop_Fraction(vars.Entry);
    vars.Entry.ExponentEntry = vars.Entry.SignPending = false;
    if (key.Token != "sexa")
        vars.Conversion.SexaCount.reset();
}

void Run_Function(CalcMainFrm& form, const FunctionKey& key) {
    Prepare_Entry(form, key);
    if (form.Vars.Display.ErrorLatched) // by the fraction
        return;
    if (!Attempt([&] { key.Run(form); }))
        Fail_Key(form, key.FailureText);
}

void Take_Token(CalcMainFrm& form, std::string_view token) {
    if (Is_Digit_Token(token)) {
        form.Vars.Entry.KeyToken = std::string{token};
        return;
    }
    if (const auto op = Operator_Of(token); !op.empty())
        return Begin_Operator(form, op);
    for (const auto& key : entryKeys)
        if (key.Token == token)
            return key.Run(form);
    if (const FunctionKey* function = Find_Function(token))
        Run_Function(form, *function);
}

// The sign and the point do not count.
int Digits_Keyed(const std::string& entry) {
    return static_cast<int>(entry.size()) - (entry.find('-') != std::string::npos ? 1 : 0) -
           (HasPoint(entry) ? 1 : 0);
}

void Number_Step(CalcMainFrm& form) {
    if (Digits_Keyed(form.Vars.Entry.EntryText) >= maxDigits)
        return;
    form.Vars.Entry.HasInput = true;
    if (!form.Vars.Display.ErrorLatched)
        Digit_Step(form);
}

void Key_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.Entry.KeyToken.empty())
        return;
    if (vars.Entry.FractionEntry)
        return Fraction_Step(form);
    if (vars.Entry.ExponentEntry)
        return Exponent_Step(form);
    if (vars.Entry.KeyToken == "dot" || Is_Numeric(vars.Entry.KeyToken))
        return Number_Step(form);
    if (vars.Entry.KeyToken == "Error")
        return ShowError(form);
    if (!vars.Entry.HasInput)
        vars.Entry.EntryText = freshOperand;
    if (!vars.Display.ErrorLatched)
        Operator_Step(form);
}

void Take_Key(CalcMainFrm& form, std::string_view token) {
    CalcVariables& vars = form.Vars;
    vars.Entry.KeyToken.clear();
    if (!vars.Display.ErrorLatched)
        Take_Token(form, token);
    if (token == "AC")
        Key_All_Clear(form);
    if (!vars.Entry.FractionEntry)
        vars.Entry.FractionText.clear();
    Key_Step(form);
}

} // namespace

void KeyPress(CalcMainFrm& form, std::string_view token) {
    if (form.Vars.Display.ClockRunning)
        return key_Time(form);
    form.Panel.Remark = {};
    form.Panel.ExponentCut = form.Panel.DataTaken = false;
    if (Attempt([&] { Take_Key(form, token); }))
        return;
    form.Vars.Display.ErrorText.clear();
    ShowError(form);
}

void Open(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    form.Panel = {};
    form.SexaSum = 0;
    form.FracCycle = 0;
    vars.Display.ClockRunning = false;
    Open_Modes(form);
    if (vars.Display.DisplayText.empty() || !vars.Display.DisplayValue || vars.Display.ErrorLatched)
        KeyPress(form, "AC");
    else if (vars.Entry.ExponentEntry)
        ShowText(form, vars.Entry.EntryText, std::nullopt);
    else
        Redisplay(form);
    Open_Memory(form);
    Open_Data(form);
}

void Close(CalcMainFrm& form) {
    End_Clock(form);
    Close_Memory(form);
    Close_Data(form);
}

} // namespace Tensarix
