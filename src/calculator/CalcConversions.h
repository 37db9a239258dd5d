// Polar to rectangular and back: first operand, conversion key, second operand, "="; the swap key
// brings the second result, which exists only in a fresh calculation.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

void key_PtoR(CalcMainFrm& form); // radius, key, angle
void key_RtoP(CalcMainFrm& form); // x, key, y

bool Conversion_Pending(const ConversionState& conversion);

// The entry becomes the first result of the pending conversion. Fails if x is zero and the angle is
// wanted; the angle itself has no quadrant, which a remark tells.
void Complete_Conversions(CalcMainFrm& form);

void Clear_Conversions(ConversionState& conversion);

} // namespace Tensarix
