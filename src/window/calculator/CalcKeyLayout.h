// Where each key of the calculator stands on its page or pad, its group and its typeset caption.
#pragma once

#include "calculator/CalcKeys.h"
#include "window/calculator/CalcKeyButton.h"

#include <span>

namespace Tensarix {

inline constexpr int CalcKeyColumns = 6;

struct CalcKeyPlace {
    std::string_view Name; // of the key in the key table
    int Row, Column;
    CalcKeyRole Role;
    std::string_view Rich; // the caption as rich text; empty: as the key table has it
    int Span = 1;          // columns
};

// Page by page and row by row: the order of the tab stops.
std::span<const CalcKeyPlace> Calc_Key_Places();

} // namespace Tensarix
