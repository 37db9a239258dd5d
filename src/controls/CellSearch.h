// Rows of a table by what any of their cells contain.
#pragma once

#include "controls/FlexGrid.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace Tensarix {

enum class SearchWay : std::uint8_t { Here, Next, Previous }; // Here: from the current row on

struct FoundCell {
    int Row, Col;

    bool operator==(const FoundCell&) const = default;
};

// The first cell that contains the text in the next row that has one, and round the end; letter
// case and blanks are free. None for a blank text. Of a table that is filled in, the columns that
// can be gone to count.
std::optional<FoundCell> Find_Cell(const FlexGrid& grid, std::string_view typed, SearchWay way);

// How many rows contain it.
int Count_Rows_With(const FlexGrid& grid, std::string_view typed);

} // namespace Tensarix
