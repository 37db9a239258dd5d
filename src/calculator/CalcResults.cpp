#include "calculator/CalcResults.h"

#include "calculator/CalcNumbers.h"
#include "calculator/CalcWaiting.h"
#include "common/NumberText.h"

namespace Tensarix {

namespace {

constexpr std::size_t termsKept = 12;

} // namespace

std::string Chain_To_Compute(const CalcVariables& vars) {
    const PendingState& pending = vars.Pending;
    const PriorityChain& chain = pending.Chain;
    if (!pending.ConstOperator.empty() && pending.ConstOperand)
        return Number_Text(Leading_Value(vars.Entry.EntryText))
            .append(" ")
            .append(Operator_Sign(pending.ConstOperator))
            .append(" ")
            .append(Number_Text(*pending.ConstOperand));
    const std::string left = Chain_Text(chain, termsKept);
    if (left.empty() || chain.Numbers.size() <= chain.Operators.size())
        return {};
    return left + " " + Number_Text(chain.Numbers.back());
}

void Keep_Result(CalcMainFrm& form, const std::string& chain) {
    std::vector<CalcResult>& results = form.Vars.Results;
    if (chain.empty() || form.Vars.Display.ErrorLatched || !form.Vars.Pending.Running)
        return;
    results.insert(results.begin(), {chain, *form.Vars.Pending.Running, form.Panel.Remark.Text});
    if (results.size() > resultsKept)
        results.pop_back();
}

std::string Result_Text(const CalcResult& result) {
    return result.Chain + " = " + Number_Text(result.Value) +
           (result.Remark.empty() ? "" : "  (" + result.Remark + ")");
}

} // namespace Tensarix
