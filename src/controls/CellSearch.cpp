#include "controls/CellSearch.h"

#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

std::string Bare(std::string_view text) {
    return Upper(Replace_All(text, " ", ""));
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

} // namespace Tensarix
