#include "calculator/CalcWaiting.h"

#include "calculator/CalcAngles.h"
#include "calculator/CalcNumbers.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr std::size_t termsShown = 5;

std::string Conversion_Waiting(const ConversionState& conversion) {
    if (conversion.PolarActive)
        return "r = " + Number_Text(conversion.PolarRadius.value_or(0)) + ", angle?";
    if (conversion.RectActive)
        return "x = " + Number_Text(conversion.RectX.value_or(0)) + ", y?";
    return {};
}

// Behind the degrees the minutes wait, behind them the seconds.
std::string Angle_Waiting(const CalcMainFrm& form) {
    const int pressed = form.Vars.Conversion.SexaCount.value_or(0) % 3;
    if (pressed == 0)
        return {};
    return Angular_Text(form.SexaSum) + (pressed == 1 ? ", minutes?" : ", seconds?");
}

std::string Constant_Waiting(const PendingState& pending) {
    if (pending.ConstOperator.empty() || !pending.ConstOperand)
        return {};
    return std::string{"K "}
        .append(Operator_Sign(pending.ConstOperator))
        .append(" ")
        .append(Number_Text(*pending.ConstOperand));
}

} // namespace

std::string_view Operator_Sign(std::string_view op) {
    return op == "*"         ? "×"
           : op == "/"       ? "÷"
           : op == "-"       ? "−"
           : op == "expt"    ? "^"
           : op == "invexpt" ? "root"
                             : op;
}

std::string Chain_Text(const PriorityChain& chain, std::size_t terms) {
    if (chain.Lost || chain.Operators.empty())
        return {};
    const std::size_t count = chain.Operators.size();
    const std::size_t first = count - std::min(count, terms);
    std::string text = first > 0 ? "… " : "";
    for (std::size_t i = first; i < count; ++i)
        text.append(i > first ? " " : "")
            .append(Number_Text(chain.Numbers[i]))
            .append(" ")
            .append(Operator_Sign(chain.Operators[i]));
    return text;
}

std::string Waiting_Text(const CalcMainFrm& form) {
    const CalcVariables& vars = form.Vars;
    if (vars.Display.ErrorLatched || vars.Display.ClockRunning)
        return {};
    for (const std::string& text :
         {Conversion_Waiting(vars.Conversion), Angle_Waiting(form), Constant_Waiting(vars.Pending)})
        if (!text.empty())
            return text;
    if (form.Panel.DataTaken)
        return "n = " + std::to_string(vars.Statistics.DataList.size());
    return Chain_Text(vars.Pending.Chain, termsShown);
}

} // namespace Tensarix
