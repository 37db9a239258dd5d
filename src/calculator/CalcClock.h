// The clock on the display. Any key ends it, and does nothing else.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

// Toggles the clock. While it runs, the routine stays in its loop and yields.
void key_Time(CalcMainFrm& form);

// Takes the clock off without showing the number again.
void End_Clock(CalcMainFrm& form);

// The start of a direct key: false if the key only ends the clock, or an error is latched.
bool Direct_Key_Begins(CalcMainFrm& form);

} // namespace Tensarix
