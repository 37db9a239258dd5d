// Finding the row of a name in a table by what is typed.
#pragma once

#include "controls/FlexGrid.h"

#include <string>

namespace Tensarix {

// The row whose name a typed beginning means; -1: none. Names stand in the fixed columns, or in the
// first one; letter case and blanks are free. Of the names that begin so the shortest counts, and
// of equally short ones the last, as in a list; those of the first column come before the others.
int Find_Row_By_Typing(const FlexGrid& grid, const std::string& typed);

} // namespace Tensarix
