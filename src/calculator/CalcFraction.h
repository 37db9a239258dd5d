// Fractions as keyed ("1/2/3" is one and two thirds), and the decimal-to-fraction key.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

// "frc": begins a fraction on a whole entry that is not zero, or takes the next "/".
void Key_Fraction(CalcMainFrm& form);

// Takes KeyToken, or the result that waits, into the fraction.
void Fraction_Step(CalcMainFrm& form);

// The fraction's value becomes the entry; a zero denominator latches "*Divide by Zero*". Does
// nothing if no fraction is being keyed.
void Finish_Fraction(CalcMainFrm& form);

// The same for a direct key: the value waits as operand, and the next digit begins a new number.
void Finish_Fraction_As_Operand(CalcMainFrm& form);

void Drop_Fraction(EntryState& entry);
void Erase_Fraction(CalcMainFrm& form);

// The value of "a", "a/b" or "a/b/c"; fails on a zero denominator. A missing last number reads 0.
double Fraction_Value(std::string_view fraction);

// Shows the number as a fraction beside its value, mixed and improper in turns.
void key_Dc(CalcMainFrm& form);

} // namespace Tensarix
