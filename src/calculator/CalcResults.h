// The list of the last results with their chains. It only looks on: nothing is computed from it.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

constexpr std::size_t resultsKept = 100;

// What "=" is about to compute, as keyed; empty for a number alone.
std::string Chain_To_Compute(const CalcVariables& vars);

// The total that the chain has come to, and its remark. Nothing without a chain or a total.
void Keep_Result(CalcMainFrm& form, const std::string& chain);

// "5 + 3 × 7 = 26", with its remark in brackets.
std::string Result_Text(const CalcResult& result);

} // namespace Tensarix
