// Where something stands in a grid; -1 if it doesn't.
#pragma once

#include "controls/FlexGrid.h"

#include <string_view>

namespace Tensarix::Tests {

inline int Row_With(const FlexGrid& grid, std::string_view text, int col = 0) {
    for (int row = 1; row < grid.Rows(); ++row)
        if (grid.Text(row, col) == text)
            return row;
    return -1;
}

// By the first line of its head.
inline int Col_With(const FlexGrid& grid, std::string_view head) {
    for (int col = 0; col < grid.Cols(); ++col)
        if (grid.Text(0, col).substr(0, grid.Text(0, col).find('\n')) == head)
            return col;
    return -1;
}

} // namespace Tensarix::Tests
