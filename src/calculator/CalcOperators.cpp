#include "calculator/CalcOperators.h"

#include "calculator/CalcConversions.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcNumbers.h"
#include "calculator/CalcResults.h"
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
    vars.Display.ErrorText = message;
    return std::nullopt;
}

Total Checked(CalcVariables& vars, double total, std::string_view message) {
    return std::isfinite(total) ? Total(total) : Failed(vars, message);
}

bool Constant_Set(const PendingState& pending) {
    return !pending.ConstOperator.empty() && pending.ConstOperand;
}

// The operand that many places behind the newest; fails if there is none.
double Operand(const PendingState& pending, std::size_t back) {
    if (back >= pending.Operands.size())
        throw Failure("no such operand");
    return pending.Operands[pending.Operands.size() - 1 - back];
}

// The two operands before the newest as one, if an operator of their own priority joins them.
void Fold(PendingState& pending) {
    const bool product = pending.Op1 == "*" || pending.Op1 == "/";
    const bool power = pending.Op1 == "expt" || pending.Op1 == "invexpt";
    if (!(product && (pending.Op2 == "*" || pending.Op2 == "/")) &&
        !(power && (pending.Op2 == "expt" || pending.Op2 == "invexpt")))
        return;
    double first = 0, folded = 0, newest = 0; // what fails stays 0
    Attempt([&] {
        const double left = Operand(pending, 2), right = Operand(pending, 1);
        folded = Finite(pending.Op2 == "*"      ? left * right
                        : pending.Op2 == "/"    ? left / right
                        : pending.Op2 == "expt" ? std::pow(left, right)
                                                : std::pow(left, Finite(1 / right)));
    });
    Attempt([&] { newest = Operand(pending, 0); });
    Attempt([&] { first = Operand(pending, 3); });
    pending.Operands = {first, folded, newest};
    pending.Op2 = pending.Op3;
}

void Collapse_Step(PendingState& pending) {
    Fold(pending);
    Attempt([&] { pending.ThirdOperand = Operand(pending, 2); });
    Attempt([&] { pending.PrevOperand = Operand(pending, 1); });
    Attempt([&] { pending.LastOperand = Operand(pending, 0); });
}

// The operator steps: a is the operand before the newest, b the newest, total the running one.

Total Multiply(CalcVariables& vars, double total) {
    const PendingState& pending = vars.Pending;
    const double a = pending.PrevOperand, b = pending.LastOperand;
    const double result = pending.Op2 == "+"   ? a * b + (total - a)
                          : pending.Op2 == "-" ? (total + a) - a * b
                                               : b * total;
    return Checked(vars, result, infinityText);
}

Total Divide(CalcVariables& vars, double total) {
    const PendingState& pending = vars.Pending;
    const double a = pending.PrevOperand, b = pending.LastOperand;
    if (IsZero(b))
        return Failed(vars, zeroText);
    const double result = pending.Op2 == "+"   ? a / b + (total - a)
                          : pending.Op2 == "-" ? (total + a) - a / b
                                               : total / b;
    return Checked(vars, result, {});
}

// Of a power or a root: what stands before it is raised to b, or to 1 / b.
double Exponent(const PendingState& pending) {
    return pending.Op1 == "invexpt" ? Finite(1 / pending.LastOperand) : pending.LastOperand;
}

// u + t * a or u - t * a (or with "/") becomes u + t * a ^ e.
double Power_In_Sum(PendingState& pending, double total, double power) {
    const double a = pending.PrevOperand, t = pending.ThirdOperand;
    const double sign = pending.Op3 == "+" ? 1 : -1;
    const bool times = pending.Op2 == "*";
    pending.PowerScratch = Finite(total - sign * (times ? a * t : Finite(t / a)));
    return pending.PowerScratch + sign * (times ? t * power : Finite(t / power));
}

// x ^ t * a (or root, or "/") becomes x ^ t * a ^ e; x comes back through its logarithm.
double Power_Behind_Power(PendingState& pending, double total, double power) {
    const double a = pending.PrevOperand, t = pending.ThirdOperand;
    const bool times = pending.Op2 == "*";
    const double order = pending.Op3 == "expt" ? t : Finite(1 / t);
    const double logarithm = Finite(std::log(times ? Finite(total / a) : total * a));
    pending.PowerScratch = Finite(std::exp(Finite(logarithm / order)));
    const double head = Checked_Power(pending.PowerScratch, order);
    return times ? head * power : Finite(head / power);
}

// t * a (or "/") becomes t * a ^ e. The formulas of the root are wrong and stay so; that of a
// divisor does without its exponent.
double Power_In_Product(const PendingState& pending, double total) {
    const double a = pending.PrevOperand, b = pending.LastOperand;
    const bool times = pending.Op2 == "*";
    const bool root = pending.Op1 == "invexpt";
    const double order = root    ? (times ? 1 - Exponent(pending) : 1 - (1 - b))
                         : times ? b - 1
                                 : 1 - b;
    return Checked_Power(a, order) * total;
}

double Raised(PendingState& pending, double total) {
    const bool inProduct = pending.Op2 == "*" || pending.Op2 == "/";
    const bool behindSum = pending.Op3 == "+" || pending.Op3 == "-";
    const bool behindPower = pending.Op3 == "expt" || pending.Op3 == "invexpt";
    if (inProduct && !behindSum && !behindPower)
        return Power_In_Product(pending, total);
    const double a = pending.PrevOperand, e = Exponent(pending);
    if (pending.Op2 == "+")
        return Checked_Power(a, e) + (total - a);
    if (pending.Op2 == "-")
        return (total + a) - Checked_Power(a, e);
    if (!inProduct)
        return Checked_Power(total, e);
    return behindSum ? Power_In_Sum(pending, total, Checked_Power(a, e))
                     : Power_Behind_Power(pending, total, Checked_Power(a, e));
}

Total Raise(CalcVariables& vars, double total) {
    if (IsZero(vars.Pending.LastOperand) && IsZero(total))
        return Failed(vars, zeroText);
    Total result;
    if (!Attempt([&] { result = Finite(Raised(vars.Pending, total)); }))
        return Failed(vars, powerText);
    return result;
}

Total Pending_Operation(CalcVariables& vars) {
    PendingState& pending = vars.Pending;
    Collapse_Step(pending);
    const double total = pending.Running.value_or(0);
    if (pending.Op1 == "+")
        return Checked(vars, total + pending.LastOperand, {});
    if (pending.Op1 == "-")
        return Checked(vars, total - pending.LastOperand, {});
    if (pending.Op1 == "*")
        return Multiply(vars, total);
    return pending.Op1 == "/" ? Divide(vars, total) : Raise(vars, total);
}

// The operand keyed last stands on the left, the constant on the right. Powers are plain ones.
Total Constant_Operation(CalcVariables& vars, double left) {
    const PendingState& pending = vars.Pending;
    const double c = *pending.ConstOperand;
    const std::string& op = pending.ConstOperator;
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
    const double value =
        vars.Entry.EntryText.empty() ? Shown_Value(vars) : Leading_Value(vars.Entry.EntryText);
    if (Constant_Set(vars.Pending) && vars.Entry.KeyToken == "=")
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
    if (vars.Display.ErrorLatched || !vars.Pending.ConstOperator.empty())
        return;
    if (std::string remark = Priority_Remark(vars.Pending.Chain, *vars.Pending.Running);
        !remark.empty())
        form.Panel.Remark = {std::move(remark), RemarkWeight::Caution};
}

void Evaluation_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    const bool pending = vars.Pending.ConstOperator.empty() && !vars.Entry.EntryText.empty() &&
                         Is_Binary_Operator(vars.Pending.Op1);
    vars.Pending.Running = pending ? Pending_Operation(vars) : Plain_Step(vars);
    if (vars.Pending.Running)
        vars.Pending.Running = In_Range(vars, *vars.Pending.Running);
    if (!vars.Pending.Running)
        ShowError(form);
    // Behind another operator the total may still be taken back, so it is not shown.
    else if (vars.Entry.KeyToken == "=" || vars.Pending.Op1 == vars.Entry.KeyToken) {
        ShowValue(form, vars.Pending.Running, {});
        Remark_On_Priority(form);
    }
}

// The result that waits becomes the operand, unless a number was keyed. Then it goes on waiting:
// what "Min" left of a keyed number, or a function as the angle of a conversion, comes back behind
// the next "=". Where that changes a total, a remark tells it.
void Resume_Result(CalcVariables& vars) {
    if (vars.Entry.EntryText.empty())
        vars.Entry.EntryText.swap(vars.Pending.ResumeText);
}

void Note_Operator(CalcVariables& vars) {
    if (!vars.Entry.EntryText.empty()) {
        vars.Pending.Operands.push_back(Leading_Value(vars.Entry.EntryText));
        vars.Pending.OpHistory.clear();
    }
    if (vars.Entry.KeyToken != vars.Pending.Op1)
        vars.Pending.OpHistory.clear();
    vars.Pending.OpHistory.push_back(vars.Entry.KeyToken);
}

// The same operator pressed again with nothing keyed between turns constant calculation on, then
// off, then on.
void Toggle_Constant(CalcMainFrm& form) {
    PendingState& pending = form.Vars.Pending;
    const bool constant = pending.OpHistory.size() % 2 == 0;
    pending.ConstOperand = constant ? std::optional(Shown_Value(form.Vars)) : std::nullopt;
    pending.ConstOperator = constant ? pending.OpHistory.front() : "";
    form.Panel.CCalc_Indicator.assign(constant ? 1 : 0, 'K');
}

void Shift_Operators(PendingState& pending, EntryState& entry) {
    if (!pending.Op2.empty())
        pending.Op3 = pending.Op2;
    if (!pending.Op1.empty() && !entry.EntryText.empty())
        pending.Op2 = pending.Op1;
    pending.Op1 = entry.KeyToken;
    entry.EntryText.clear();
}

// What waited behind "=" is not the number that was shown, which the chain goes on with.
void Follow_Operator(CalcVariables& vars, bool resumes) {
    if (!vars.Entry.EntryText.empty()) {
        const double number = Leading_Value(vars.Entry.EntryText);
        const bool waited = resumes && vars.Entry.EntryText == vars.Pending.Chain.Waiting;
        if (!waited || number == Shown_Value(vars))
            vars.Pending.Chain.Take_Number(number);
    }
    vars.Pending.Chain.Take_Operator(vars.Entry.KeyToken);
}

void Binary_Step(CalcMainFrm& form) {
    const bool resumes = form.Vars.Entry.EntryText.empty();
    Resume_Result(form.Vars);
    Follow_Operator(form.Vars, resumes);
    Note_Operator(form.Vars);
    Toggle_Constant(form);
    Evaluation_Step(form);
    Shift_Operators(form.Vars.Pending, form.Vars.Entry);
}

void Equals_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    PendingState& pending = vars.Pending;
    Resume_Result(vars);
    if (vars.Entry.EntryText.empty() && Constant_Set(pending) && pending.Running)
        vars.Entry.EntryText = Number_Text(*pending.Running);
    if (!vars.Entry.EntryText.empty()) {
        pending.Operands.push_back(Leading_Value(vars.Entry.EntryText));
        pending.Chain.Take_Number(pending.Operands.back());
    }
    const std::string chain = Chain_To_Compute(vars);
    Evaluation_Step(form);
    Keep_Result(form, chain);
    pending.Chain.Start(pending.Running);
    pending.Chain.Waiting = pending.ResumeText;
    for (std::string* op : {&pending.Op1, &pending.Op2, &pending.Op3})
        op->clear();
    pending.Operands.clear();
    if (pending.Running)
        pending.Operands.push_back(*pending.Running);
    vars.Entry.EntryText.clear();
}

} // namespace

bool Is_Binary_Operator(std::string_view token) {
    return std::find(binaryOperators.begin(), binaryOperators.end(), token) !=
           binaryOperators.end();
}

void Operator_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    const bool equals = vars.Entry.KeyToken == "=";
    if (!equals && !Is_Binary_Operator(vars.Entry.KeyToken))
        return;
    const bool converts = Conversion_Pending(vars.Conversion);
    if (equals || !vars.Entry.EntryText.empty())
        Complete_Conversions(form);
    if (equals)
        Equals_Step(form);
    else
        Binary_Step(form);
    if (!converts)
        vars.Conversion.SecondResult = vars.Pending.Running;
    Clear_Conversions(vars.Conversion);
}

} // namespace Tensarix
