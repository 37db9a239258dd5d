// How the calculator's keys look and how wide they are. They stand on their page or pad in the
// order of the key table, row by row.
#pragma once

#include "calculator/CalcKeys.h"
#include "window/calculator/CalcKeyButton.h"

namespace Tensarix {

// Columns of a page or the pad; the mode page has its keys below each other.
int Columns_Of(CalcPage page);

struct CalcKeyLook {
    std::string_view Name; // of the key in the key table
    CalcKeyRole Role = CalcKeyRole::Function;
    std::string_view Rich = {}; // the caption as rich text; empty: as the key table has it
    int Span = 1;               // columns
};

CalcKeyLook Look_Of(const CalcKey& key);

} // namespace Tensarix
