#include "calculator/CalcFunctions.h"

#include "calculator/CalcAngles.h"
#include "calculator/CalcConstants.h"
#include "calculator/CalcConversions.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcMemory.h"
#include "calculator/CalcNumbers.h"
#include "calculator/CalcStatistics.h"
#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "common/Utf8.h"

#include <cmath>

namespace Tensarix {

namespace {

using std::exp;
using std::log;
using std::pow;

double Signed_Power(double x, double y) {
    return Sign_Of(x) * pow(std::abs(x), y);
}

double Hyperbolic_Sine(double x) {
    return (exp(x) - exp(-x)) / 2;
}

double Hyperbolic_Cosine(double x) {
    return (exp(x) + exp(-x)) / 2;
}

double Hyperbolic_Tangent(double x) {
    const double up = exp(x), down = exp(-x);
    const double result = (up - down) / (up + down);
    return std::isfinite(up) && std::isfinite(down) ? result : Sign_Of(x);
}

double Inverse_Hyperbolic_Tangent(double x) {
    return log(Finite((x + 1) / (1 - x))) / 2;
}

// A key that computes from the shown number alone, and one that needs the angle mode.
template <double (*function)(double)>
void Plain_Key(CalcMainFrm& form) {
    Show_Result(form, Finite(function(Shown_Value(form.Vars))));
}

template <double (*function)(const CalcVariables&, double)>
void Angle_Key(CalcMainFrm& form) {
    Show_Result(form, Finite(function(form.Vars, Shown_Value(form.Vars))));
}

template <double (*function)(const CalcVariables&, double)>
void Turned_Key(CalcMainFrm& form) {
    const Advice remark = Turns_Remark(form.Vars, Shown_Value(form.Vars));
    Angle_Key<function>(form);
    form.Panel.Remark = remark;
}

double Squared(double x) {
    return pow(x, 2);
}
double Square_Root(double x) {
    return pow(x, 0.5);
}
double Cubed(double x) {
    return Signed_Power(x, 3);
}
double Cube_Root(double x) {
    return Signed_Power(x, 1.0 / 3);
}
double Reciprocal(double x) {
    return Snap14(Finite(1 / x));
}
double Common_Logarithm(double x) {
    return Snap14(Finite(log(x) / log(10.0)));
}
double Natural_Logarithm(double x) {
    return Snap14(Finite(log(x)));
}
double Power_Of_Ten(double x) {
    return pow(10, x);
}
double Power_Of_E(double x) {
    return exp(x);
}
double Inverse_Hyperbolic_Sine(double x) {
    return log(x + std::sqrt(x * x + 1));
}
double Inverse_Hyperbolic_Cosine(double x) {
    return log(x + std::sqrt(x * x - 1));
}

void Key_Factorial(CalcMainFrm& form) {
    const double x = Shown_Value(form.Vars);
    if (x != std::trunc(x))
        Fail_Key(form, {});
    else if (IsNegative(x))
        Fail_Key(form, "Out of Range");
    else if (const double product = Factorial(x); std::isfinite(product))
        Show_Result(form, product);
    else
        Fail_Key(form, "Infinity");
}

// Degrees, minutes, seconds in turns; SexaCount is empty before the first.
void Key_Sexa(CalcMainFrm& form) {
    const double x = Shown_Value(form.Vars);
    const int count = form.Vars.Conversion.SexaCount.value_or(3);
    if (count % 3 == 0)
        form.SexaSum = x;
    else
        form.SexaSum += count % 3 == 1 ? x / 60 : x / 3600;
    form.Vars.Conversion.SexaCount = count + 1;
    Show_Result(form, form.SexaSum);
}

// The angle is shown in place of the number; a longer text than the display takes is not.
void Key_Asex(CalcMainFrm& form) {
    constexpr int displayCharacters = 14;
    CalcVariables& vars = form.Vars;
    const double x = Shown_Value(vars);
    const std::string text = Angular_Text(x);
    if (!vars.Entry.EntryText.empty())
        Entry_To_Operand(vars);
    if (Utf8_Length(text) > displayCharacters)
        return;
    ShowValue(form, x, text);
    if (IsNegative(x) && !text.starts_with('-'))
        form.Panel.Remark = {"The angle is negative"};
}

// Days since 1899-12-30, the day part with the time of the day.
double Serial_Date(CalcTime time) {
    using namespace std::chrono;
    const auto since = time - CalcTime{local_days{year{1899} / December / 30}};
    return duration<double, days::period>(since).count();
}

// The last digits of the clock.
void Key_Random(CalcMainFrm& form) {
    const CalcTime now = form.Host.Now ? form.Host.Now() : CalcTime{};
    const std::string text = Format_Number(Serial_Date(now), "0.0" + std::string(100, '#'));
    form.Vars.Display.RandomPending = true;
    Show_Result(form, Leading_Value(text.substr(text.size() - 3)) / 1000);
}

// The operands of a lone operator change places; of a longer chain nobody could say what it is.
void Swap_In_Chain(PriorityChain& chain, double shown, bool converts) {
    if (!converts && chain.Operators.size() == 1 && chain.Numbers.size() == 1)
        chain.Numbers[0] = shown;
    else if (converts || !chain.Operators.empty())
        chain.Lost = true;
}

void Key_Swap(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    const double shown = Shown_Value(vars);
    const bool converts = Conversion_Pending(vars.Conversion);
    if (!converts)
        vars.Pending.Running = shown;
    Swap_In_Chain(vars.Pending.Chain, shown, converts);
    Show_Result(form, vars.Conversion.SecondResult.value_or(0));
    vars.Conversion.SecondResult = shown;
}

constexpr auto finish = EntryBefore::Finish, drop = EntryBefore::Drop, keep = EntryBefore::Keep;
constexpr std::string_view outOfRange = "Out of Range", undefined = "Undefined";

constexpr FunctionKey functions[] = {
    {"sqr", finish, Plain_Key<Squared>, {}},
    {"sqrt", finish, Plain_Key<Square_Root>, {}},
    {"cube", finish, Plain_Key<Cubed>, {}},
    {"cubt", finish, Plain_Key<Cube_Root>, {}},
    {"rcp", finish, Plain_Key<Reciprocal>, {}},
    {"fact", finish, Key_Factorial, {}},
    {"log", finish, Plain_Key<Common_Logarithm>, outOfRange},
    {"alog", finish, Plain_Key<Power_Of_Ten>, {}},
    {"ln", finish, Plain_Key<Natural_Logarithm>, outOfRange},
    {"aln", finish, Plain_Key<Power_Of_E>, undefined},
    {"sin", finish, Turned_Key<Sine>, {}},
    {"cos", finish, Turned_Key<Cosine>, {}},
    {"tan", finish, Turned_Key<Tangent>, outOfRange},
    {"iSin", finish, Angle_Key<Inverse_Sine>, undefined},
    {"iCos", finish, Angle_Key<Inverse_Cosine>, undefined},
    {"iTan", finish, Angle_Key<Inverse_Tangent>, {}},
    {"sinh", finish, Plain_Key<Hyperbolic_Sine>, undefined},
    {"cosh", finish, Plain_Key<Hyperbolic_Cosine>, undefined},
    {"tanh", finish, Plain_Key<Hyperbolic_Tangent>, {}},
    {"isinh", finish, Plain_Key<Inverse_Hyperbolic_Sine>, {}},
    {"icosh", finish, Plain_Key<Inverse_Hyperbolic_Cosine>, {}},
    {"itanh", finish, Plain_Key<Inverse_Hyperbolic_Tangent>, undefined},
    {"sexa", finish, Key_Sexa, {}},
    {"asex", finish, Key_Asex, {}},
    {"frc", keep, Key_Fraction, {}},
    {"x-y", finish, Key_Swap, {}},
    {"rand", drop, Key_Random, {}},
    {"cnst", keep, Key_Constant, {}},
    {"mo", drop, Key_Memory_Recall, {}},
    {"ko", keep, Key_Register_Recall, {}},
    {"xk", keep, Key_Register_Swap, {}},
    {"data", finish, Key_Data, {}},
    {"dtn", drop, Key_Data_Count, {}},
    {"dts", drop, Key_Data_Sum, {}},
    {"ave", drop, Key_Data_Mean, {}},
    {"sqr1", drop, Key_Data_Sum_Squared, {}},
    {"sqr2", drop, Key_Data_Squares, {}},
    {"strd0", drop, Key_Population_Deviation, {}},
    {"strd1", drop, Key_Sample_Deviation, {}},
};

} // namespace

const FunctionKey* Find_Function(std::string_view token) {
    for (const FunctionKey& key : functions)
        if (key.Token == token)
            return &key;
    return nullptr;
}

double Factorial(double whole) {
    double product = 1;
    for (double n = 2; n <= whole && std::isfinite(product); ++n)
        product *= n;
    return product;
}

} // namespace Tensarix
