// The pending operations. There is no expression tree: the running total is always fully
// evaluated, and an operator of higher priority takes back the last step and does it anew, looking
// at most three operands back. Beyond that reach totals are not those of the priority; they stay as
// they are and carry a remark (docs/validation.md):
//   6 / 4 root 2 = 24, 6 * 4 root 2 = 48   the two formulas of a root behind "*" and "/"
//   1 + 3 ^ 2 * 4 = 40                     a factor behind a power multiplies the whole total
// "+" and "-" bind least, then "*" and "/", then "expt" and "invexpt"; equals go from the left.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

bool Is_Binary_Operator(std::string_view token);

// Takes the operator or "=" in KeyToken.
void Operator_Step(CalcMainFrm& form);

} // namespace Tensarix
