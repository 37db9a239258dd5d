#include "calculator/CalcOperators.h"

#include "calculator/CalcConversions.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcText.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Tensarix {

namespace {

constexpr std::string_view zeroText = "Divide by Zero";
constexpr std::string_view powerText = "Invalid Power";
constexpr std::string_view infinityText = "Infinity";
constexpr std::array<std::string_view, 6> binaryOperators{"+", "-", "/", "*", "expt", "invexpt"};

// A new total, or none with the message in ErrorText.
using Total = std::optional<double>;

Total Failed(CalcVariables& vars, std::string_view message) {
    vars.ErrorText = message;
    return std::nullopt;
}

Total Checked(CalcVariables& vars, double total, std::string_view message) {
    return std::isfinite(total) ? Total(total) : Failed(vars, message);
}

bool Constant_Set(const CalcVariables& vars) {
    return !vars.ConstOperator.empty() && vars.ConstOperand;
}

// The operand that many places behind the newest; fails if there is none.
double Operand(const CalcVariables& vars, std::size_t back) {
    if (back >= vars.Operands.size())
        throw Failure("no such operand");
    return vars.Operands[vars.Operands.size() - 1 - back];
}

// The two operands before the newest as one, if an operator of their own priority joins them.
void Fold(CalcVariables& vars) {
    const bool product = vars.Op1 == "*" || vars.Op1 == "/";
    const bool power = vars.Op1 == "expt" || vars.Op1 == "invexpt";
    if (!(product && (vars.Op2 == "*" || vars.Op2 == "/")) &&
        !(power && (vars.Op2 == "expt" || vars.Op2 == "invexpt")))
        return;
    double first = 0, folded = 0, newest = 0; // what fails stays 0
    Attempt([&] {
        const double left = Operand(vars, 2), right = Operand(vars, 1);
        folded = Finite(vars.Op2 == "*"      ? left * right
                        : vars.Op2 == "/"    ? left / right
                        : vars.Op2 == "expt" ? std::pow(left, right)
                                             : std::pow(left, Finite(1 / right)));
    });
    Attempt([&] { newest = Operand(vars, 0); });
    Attempt([&] { first = Operand(vars, 3); });
    vars.Operands = {first, folded, newest};
    vars.Op2 = vars.Op3;
}

void Collapse_Step(CalcVariables& vars) {
    Fold(vars);
    Attempt([&] { vars.ThirdOperand = Operand(vars, 2); });
    Attempt([&] { vars.PrevOperand = Operand(vars, 1); });
    Attempt([&] { vars.LastOperand = Operand(vars, 0); });
}

// The operator steps: a is the operand before the newest, b the newest, total the running one.

Total Multiply(CalcVariables& vars, double total) {
    const double a = vars.PrevOperand, b = vars.LastOperand;
    const double result = vars.Op2 == "+"   ? a * b + (total - a)
                          : vars.Op2 == "-" ? (total + a) - a * b
                                            : b * total;
    return Checked(vars, result, infinityText);
}

Total Divide(CalcVariables& vars, double total) {
    const double a = vars.PrevOperand, b = vars.LastOperand;
    if (IsZero(b))
        return Failed(vars, zeroText);
    const double result = vars.Op2 == "+"   ? a / b + (total - a)
                          : vars.Op2 == "-" ? (total + a) - a / b
                                            : total / b;
    return Checked(vars, result, {});
}

// u + t * a or u - t * a (or with "/") becomes u + t * a ^ e.
double Power_In_Sum(CalcVariables& vars, double total, double power) {
    const double a = vars.PrevOperand, t = vars.ThirdOperand;
    const double sign = vars.Op3 == "+" ? 1 : -1;
    const bool times = vars.Op2 == "*";
    vars.PowerScratch = Finite(total - sign * (times ? a * t : Finite(t / a)));
    return vars.PowerScratch + sign * (times ? t * power : Finite(t / power));
}

// x ^ t * a (or root, or "/") becomes x ^ t * a ^ e; x comes back through its logarithm.
double Power_Behind_Power(CalcVariables& vars, double total, double power) {
    const double a = vars.PrevOperand, t = vars.ThirdOperand;
    const bool times = vars.Op2 == "*";
    const double order = vars.Op3 == "expt" ? t : Finite(1 / t);
    const double logarithm = Finite(std::log(times ? Finite(total / a) : total * a));
    vars.PowerScratch = Finite(std::exp(Finite(logarithm / order)));
    const double head = Checked_Power(vars.PowerScratch, order);
    return times ? head * power : Finite(head / power);
}

// t * a (or "/") becomes t * a ^ e. The formulas of the root are wrong and stay so.
double Power_In_Product(const CalcVariables& vars, double total, double e) {
    const double a = vars.PrevOperand, b = vars.LastOperand;
    const bool times = vars.Op2 == "*";
    const bool root = vars.Op1 == "invexpt";
    const double order = root ? (times ? 1 - e : 1 - (1 - b)) : (times ? b - 1 : 1 - b);
    return Checked_Power(a, order) * total;
}

// A power or a root: b, or 1 / b, is the exponent of what stands before it.
double Raised(CalcVariables& vars, double total) {
    const double a = vars.PrevOperand, b = vars.LastOperand;
    const double e = vars.Op1 == "invexpt" ? Finite(1 / b) : b;
    if (vars.Op2 == "+")
        return Checked_Power(a, e) + (total - a);
    if (vars.Op2 == "-")
        return (total + a) - Checked_Power(a, e);
    if (vars.Op2 != "*" && vars.Op2 != "/")
        return Checked_Power(total, e);
    if (vars.Op3 == "+" || vars.Op3 == "-")
        return Power_In_Sum(vars, total, Checked_Power(a, e));
    if (vars.Op3 == "expt" || vars.Op3 == "invexpt")
        return Power_Behind_Power(vars, total, Checked_Power(a, e));
    return Power_In_Product(vars, total, e);
}

Total Raise(CalcVariables& vars, double total) {
    if (IsZero(vars.LastOperand) && IsZero(total))
        return Failed(vars, zeroText);
    Total result;
    if (!Attempt([&] { result = Finite(Raised(vars, total)); }))
        return Failed(vars, powerText);
    return result;
}

Total Pending_Operation(CalcVariables& vars) {
    Collapse_Step(vars);
    const double total = vars.Running.value_or(0);
    if (vars.Op1 == "+")
        return Checked(vars, total + vars.LastOperand, {});
    if (vars.Op1 == "-")
        return Checked(vars, total - vars.LastOperand, {});
    if (vars.Op1 == "*")
        return Multiply(vars, total);
    return vars.Op1 == "/" ? Divide(vars, total) : Raise(vars, total);
}

// The operand keyed last stands on the left, the constant on the right. Powers are plain ones.
Total Constant_Operation(CalcVariables& vars, double left) {
    const double c = *vars.ConstOperand;
    const std::string& op = vars.ConstOperator;
    if ((op == "expt" && IsZero(left) && IsZero(c)) ||
        ((op == "invexpt" || op == "/") && IsZero(c)))
        return Failed(vars, zeroText);
    const double result = op == "expt"      ? std::pow(left, c)
                          : op == "invexpt" ? std::pow(left, 1 / c)
                          : op == "/"       ? left / c
                          : op == "*"       ? left * c
                          : op == "+"       ? left + c
                                            : left - c;
    return Checked(vars, result, {});
}

Total Plain_Step(CalcVariables& vars) {
    const double value = vars.EntryText.empty() ? Shown_Value(vars) : Leading_Value(vars.EntryText);
    if (Constant_Set(vars) && vars.KeyToken == "=")
        return Constant_Operation(vars, value);
    return value;
}

// None, with its message, above the range; 0 below it.
Total In_Range(CalcVariables& vars, double total) {
    const int exponent = Exponent_Of(Number_Text(total));
    if (exponent > maxExponent)
        return Failed(vars, infinityText);
    return exponent < -maxExponent ? 0 : total;
}

void Remark_On_Priority(CalcMainFrm& form) {
    const CalcVariables& vars = form.Vars;
    if (vars.ErrorLatched || !vars.ConstOperator.empty())
        return;
    if (std::string remark = Priority_Remark(vars.Chain, *vars.Running); !remark.empty())
        form.Panel.Remark = std::move(remark);
}

void Evaluation_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    const bool pending =
        vars.ConstOperator.empty() && !vars.EntryText.empty() && Is_Binary_Operator(vars.Op1);
    vars.Running = pending ? Pending_Operation(vars) : Plain_Step(vars);
    if (vars.Running)
        vars.Running = In_Range(vars, *vars.Running);
    if (!vars.Running)
        ShowError(form);
    // A total is shown only while the operator repeats, and by "="; this is intended.
    else if (vars.KeyToken == "=" || vars.Op1 == vars.KeyToken) {
        ShowValue(form, vars.Running, {});
        Remark_On_Priority(form);
    }
}

// The result that waits becomes the operand, unless a number was keyed. Then it goes on waiting:
// what "Min" left of a keyed number, or a function as the angle of a conversion, comes back behind
// the next "=". That is intended.
void Resume_Result(CalcVariables& vars) {
    if (vars.EntryText.empty())
        vars.EntryText.swap(vars.ResumeText);
}

void Note_Operator(CalcVariables& vars) {
    if (!vars.EntryText.empty()) {
        vars.Operands.push_back(Leading_Value(vars.EntryText));
        vars.OpHistory.clear();
    }
    if (vars.KeyToken != vars.Op1)
        vars.OpHistory.clear();
    vars.OpHistory.push_back(vars.KeyToken);
}

// The same operator pressed again with nothing keyed between turns constant calculation on, then
// off, then on.
void Toggle_Constant(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    const bool constant = vars.OpHistory.size() % 2 == 0;
    vars.ConstOperand = constant ? std::optional(Shown_Value(vars)) : std::nullopt;
    vars.ConstOperator = constant ? vars.OpHistory.front() : "";
    form.Panel.CCalc_Indicator.assign(constant ? 1 : 0, 'K');
}

void Shift_Operators(CalcVariables& vars) {
    if (!vars.Op2.empty())
        vars.Op3 = vars.Op2;
    if (!vars.Op1.empty() && !vars.EntryText.empty())
        vars.Op2 = vars.Op1;
    vars.Op1 = vars.KeyToken;
    vars.EntryText.clear();
}

// What waited behind "=" is not the number that was shown, which the chain goes on with.
void Follow_Operator(CalcVariables& vars, bool resumes) {
    if (!vars.EntryText.empty()) {
        const double number = Leading_Value(vars.EntryText);
        const bool waited = resumes && vars.EntryText == vars.Chain.Waiting;
        if (!waited || number == Shown_Value(vars))
            vars.Chain.Take_Number(number);
    }
    vars.Chain.Take_Operator(vars.KeyToken);
}

void Binary_Step(CalcMainFrm& form) {
    const bool resumes = form.Vars.EntryText.empty();
    Resume_Result(form.Vars);
    Follow_Operator(form.Vars, resumes);
    Note_Operator(form.Vars);
    Toggle_Constant(form);
    Evaluation_Step(form);
    Shift_Operators(form.Vars);
}

void Equals_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    Resume_Result(vars);
    if (vars.EntryText.empty() && Constant_Set(vars) && vars.Running)
        vars.EntryText = Number_Text(*vars.Running);
    if (!vars.EntryText.empty()) {
        vars.Operands.push_back(Leading_Value(vars.EntryText));
        vars.Chain.Take_Number(vars.Operands.back());
    }
    Evaluation_Step(form);
    vars.Chain.Start(vars.Running);
    vars.Chain.Waiting = vars.ResumeText;
    for (std::string* op : {&vars.Op1, &vars.Op2, &vars.Op3})
        op->clear();
    vars.Operands.clear();
    if (vars.Running)
        vars.Operands.push_back(*vars.Running);
    vars.EntryText.clear();
}

} // namespace

bool Is_Binary_Operator(std::string_view token) {
    return std::find(binaryOperators.begin(), binaryOperators.end(), token) !=
           binaryOperators.end();
}

void Operator_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    const bool equals = vars.KeyToken == "=";
    if (!equals && !Is_Binary_Operator(vars.KeyToken))
        return;
    const bool converts = Conversion_Pending(vars);
    if (equals || !vars.EntryText.empty())
        Complete_Conversions(form);
    if (equals)
        Equals_Step(form);
    else
        Binary_Step(form);
    if (!converts)
        vars.SecondResult = vars.Running;
    Clear_Conversions(vars);
}

} // namespace Tensarix
