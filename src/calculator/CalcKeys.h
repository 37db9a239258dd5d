// Every key of CalcMainFrm in one table, and the three ways in besides a click: the keyboard and
// the two clipboard commands.
#pragma once

#include "calculator/CalcMainFrm.h"

#include <span>

namespace Tensarix {

enum class CalcPage { Pad, First, Second, Third, Mode }; // Pad: always visible

// The captions of the tab pages First to Mode.
std::string_view Page_Caption(CalcPage page);

struct CalcKey {
    std::string_view Name; // of the control
    std::string_view Caption;
    std::string_view ToolTip; // may be empty
    CalcPage Page;
    std::string_view Token;       // what KeyPress takes; empty for a direct key
    void (*Direct)(CalcMainFrm&); // what a direct key does itself
    std::string_view Typed;       // the characters that press it on the keyboard
};

std::span<const CalcKey> Calc_Keys();

// Null if there is none.
const CalcKey* Find_Key(std::string_view name);

// The key for a typed character: printable ones, and Return, Backspace, Escape and Delete under
// their control codes. Null if it has none.
const CalcKey* Key_For_Character(char32_t typed);

// A click.
void Press(CalcMainFrm& form, const CalcKey& key);

// The display as a plain number, such as "-1.5E+03"; where it shows no plain number (a fraction, an
// angle, the clock), the number behind it. Empty while an error is shown.
std::string Display_As_Number(const CalcMainFrm& form);

// Takes one decimal number, with blanks around it allowed, as if keyed in place of the entry.
// False, without a trace, for any other text, beyond two exponent digits, and while an error is
// latched. More than 15 digits are rounded to 15.
bool Key_In_Number(CalcMainFrm& form, std::string_view text);

} // namespace Tensarix
