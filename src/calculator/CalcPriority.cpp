#include "calculator/CalcPriority.h"

#include "calculator/CalcNumbers.h"
#include "common/Failure.h"

#include <algorithm>
#include <cmath>

namespace Tensarix {

namespace {

constexpr double sameTotal = 1e-9;   // of the totals
constexpr double lostDigits = 1e-12; // of the largest operand, where sums cancel

int Binding(std::string_view op) {
    return op == "+" || op == "-" ? 0 : op == "*" || op == "/" ? 1 : 2;
}

double Joined(double left, std::string_view op, double right) {
    return Finite(op == "+"      ? left + right
                  : op == "-"    ? left - right
                  : op == "*"    ? left * right
                  : op == "/"    ? left / right
                  : op == "expt" ? Checked_Power(left, right)
                                 : Checked_Power(left, Finite(1 / right)));
}

} // namespace

void PriorityChain::Start(std::optional<double> first) {
    *this = {};
    if (first)
        Numbers.push_back(*first);
}

void PriorityChain::Take_Number(double number) {
    if (Numbers.size() > Operators.size())
        Start(number);
    else
        Numbers.push_back(number);
}

void PriorityChain::Take_Operator(std::string_view op) {
    if (Numbers.size() > Operators.size())
        Operators.emplace_back(op);
    else if (!Operators.empty())
        Operators.back() = op;
}

std::optional<double> PriorityChain::Result() const {
    std::optional<double> result;
    if (Lost || Numbers.empty())
        return result;
    Attempt([&] {
        // What waits for an operand on its right, binding more and more.
        std::vector<double> left;
        std::vector<std::string_view> waiting;
        double number = Numbers[0];
        const auto join = [&](int binding) {
            while (!waiting.empty() && Binding(waiting.back()) >= binding) {
                number = Joined(left.back(), waiting.back(), number);
                left.pop_back();
                waiting.pop_back();
            }
        };
        for (std::size_t i = 1; i < Numbers.size(); ++i) {
            join(Binding(Operators[i - 1]));
            left.push_back(number);
            waiting.push_back(Operators[i - 1]);
            number = Numbers[i];
        }
        join(0);
        result = number;
    });
    return result;
}

std::string Priority_Remark(const PriorityChain& chain, double total) {
    const std::optional<double> result = chain.Result();
    if (!result)
        return {};
    double largest = 0;
    for (const double number : chain.Numbers)
        largest = std::max(largest, std::abs(number));
    const double same =
        sameTotal * std::max(std::abs(total), std::abs(*result)) + lostDigits * largest;
    if (std::abs(total - *result) <= same)
        return {};
    return "By operator priority: " + Number_Text(*result);
}

} // namespace Tensarix
