#include "controls/CellSearch.h"

#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

std::string Bare(std::string_view text) {
    return Upper(Replace_All(text, " ", ""));
}

bool Holds(const FlexGrid& grid, int row, int col, const std::string& wanted) {
    return Upper(grid.Text(row, col)).find(wanted) != std::string::npos;
}

} // namespace

int Find_Row_By_Typing(const FlexGrid& grid, const std::string& typed) {
    const std::string wanted = Bare(typed);
    for (int col = 0; col < std::max(grid.FixedCols(), 1); ++col) {
        int best = -1;
        std::size_t shortest = 0;
        for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
            const std::string name = Bare(grid.Text(row, col));
            if (!name.starts_with(wanted) || (best >= 0 && name.size() > shortest))
                continue;
            best = row;
            shortest = name.size();
        }
        if (best >= 0)
            return best;
    }
    return -1;
}

std::optional<std::pair<int, int>> Find_Cell(const FlexGrid& grid, const std::string& text,
                                             bool back, bool here) {
    const std::string wanted = Upper(Trim(text));
    const int cols = grid.Cols(), cells = (grid.Rows() - grid.FixedRows()) * cols;
    if (wanted.empty() || cells <= 0)
        return std::nullopt;
    const int current = (grid.Row() - grid.FixedRows()) * cols + grid.Col();
    for (int step = here ? 0 : 1; step <= cells; ++step) {
        const int at = ((current + (back ? -step : step)) % cells + cells) % cells;
        const int row = grid.FixedRows() + at / cols, col = at % cols;
        if (Holds(grid, row, col, wanted))
            return std::pair{row, col};
    }
    return std::nullopt;
}

int Count_Cells(const FlexGrid& grid, const std::string& text) {
    const std::string wanted = Upper(Trim(text));
    int count = 0;
    for (int row = grid.FixedRows(); !wanted.empty() && row < grid.Rows(); ++row)
        for (int col = 0; col < grid.Cols(); ++col)
            count += Holds(grid, row, col, wanted) ? 1 : 0;
    return count;
}

} // namespace Tensarix
