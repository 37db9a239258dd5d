// Finding in a table by what is typed: the row of a name, and cells that hold a text.
#pragma once

#include "controls/FlexGrid.h"

#include <optional>
#include <string>
#include <utility>

namespace Tensarix {

// The row whose name a typed beginning means; -1: none. Names stand in the fixed columns, or in the
// first one; letter case and blanks are free. Of the names that begin so the shortest counts, and
// of equally short ones the last, as in a list; those of the first column come before the others.
int Find_Row_By_Typing(const FlexGrid& grid, const std::string& typed);

// The next cell below the head that holds the text, row by row from the current one on and round
// the end, or backwards; letter case is free. here: the current one counts as well. None for no
// text.
std::optional<std::pair<int, int>> Find_Cell(const FlexGrid& grid, const std::string& text,
                                             bool back, bool here);
// How many cells hold it.
int Count_Cells(const FlexGrid& grid, const std::string& text);

} // namespace Tensarix
