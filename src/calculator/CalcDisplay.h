// What stands on the panel: numbers under NORM, FIX or SCI, keyed texts, fractions, errors.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

// Prepares the text of a result for the key step. Fails if the number is not finite.
void ShowNumber(CalcMainFrm& form, double value);

// ShowNumber as a function key ends: the entry is over.
void Show_Result(CalcMainFrm& form, double value);

// A function key that failed: the key step shows the message, "*Error*" if it is empty.
void Fail_Key(CalcMainFrm& form, std::string_view message);

// Writes the panel and sets DisplayValue and DisplayText; the number or the text may be missing.
void ShowValue(CalcMainFrm& form, std::optional<double> number, std::string_view text);

// Writes a panel text in exponent form as it stands.
void ShowText(CalcMainFrm& form, std::string_view text, std::optional<double> number);

// "1/2/3" stands as "1 2/3."; DisplayValue stays.
void Show_Fraction(CalcMainFrm& form, std::string_view fraction);

void ShowError(CalcMainFrm& form);

// The current number again under the current format, or the fraction being keyed.
void Redisplay(CalcMainFrm& form);

// DisplayValue, 0 before the first display.
double Shown_Value(const CalcVariables& vars);

// Option buttons of display and angle mode, and the list of decimals (-1: none).
void FxnButton(CalcMainFrm& form);
void ScnButton(CalcMainFrm& form);
void StdButton(CalcMainFrm& form);
void PrecBox_Change(CalcMainFrm& form, int index);
void DegButton(CalcMainFrm& form);
void RadButton(CalcMainFrm& form);
void GradButton(CalcMainFrm& form);

// Sets the indicators and PrecBox from CalcVariables when the form opens.
void Open_Modes(CalcMainFrm& form);

} // namespace Tensarix
