// What has been keyed and waits for the rest: told in small print beside the number, and read from
// the state alone.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

// A pending chain "5 + 3 ×", a constant "K × 4", the first operand of a conversion "r = 2, angle?",
// the degrees of an angle "12°30'0", seconds?", or the count of data "n = 8" behind "Data". Empty
// at rest, behind an error and while the clock runs.
std::string Waiting_Text(const CalcMainFrm& form);

// The chain up to its last operator, from so many terms behind; empty if there is none.
std::string Chain_Text(const PriorityChain& chain, std::size_t terms);

// The operator as its key shows it.
std::string_view Operator_Sign(std::string_view op);

} // namespace Tensarix
