// The engineering shift: the decimal point moves by three places and the exponent follows. Only the
// text on the display changes; the number in work stays.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

void key_EngL(CalcMainFrm& form); // to the left
void key_EngR(CalcMainFrm& form); // to the right

} // namespace Tensarix
