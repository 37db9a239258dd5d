// How a number is keyed: digits, sign, exponent, erasing. These are the steps behind KeyPress; each
// leaves in KeyToken what the key step has still to show.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

void Digit_Step(CalcMainFrm& form);
void Exponent_Step(CalcMainFrm& form);

void Key_Cancel(CalcMainFrm& form);    // "C"
void Key_Point(CalcMainFrm& form);     // "dot"
void Key_Sign(CalcMainFrm& form);      // "pm"
void Key_Exponent(CalcMainFrm& form);  // "exp"
void Key_Erase(CalcMainFrm& form);     // "ers"
void Key_Pi(CalcMainFrm& form);        // "PI"
void Key_All_Clear(CalcMainFrm& form); // "AC"

// The number being keyed ends: the next digit begins a new one.
void End_Entry(EntryState& entry);

// The entry, or the shown number if there is none, becomes the operand that the next operator
// takes; the entry ends.
void Entry_To_Operand(CalcVariables& vars);

// The constant pi of all keys: 3.14159265358979.
extern const double calcPi;

} // namespace Tensarix
