// From US figures to SI figures, exactly: a tie at the third digit is a tie, and goes up.
#pragma once

#include "ReadSectionTables.h"

#include <string>
#include <string_view>

namespace Tensarix {

// The figure converted (1 in. = 25.4 mm, 1 lb = 0.45359237 kg, 1 ft = 0.3048 m) and rounded to
// three significant digits, half up, as the full number in mm^n or kg/m. A ratio stays as it is.
// Takes a decimal text of at most ten digits that is not zero.
std::string Si_Figure(std::string_view usFigure, Measure kind);

// Fills the SI figures that no exception has set. The mass of a family whose SI designation ends in
// it is taken from there, as written.
void Fill_Si_Figures(SectionRow& row);

} // namespace Tensarix
