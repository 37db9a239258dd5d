#include "controls/CellSearch.h"

#include "common/NumberText.h"

namespace Tensarix {

namespace {

std::string Bare(std::string_view text) {
    return Upper(Replace_All(text, " ", ""));
}

int Column_With(const FlexGrid& grid, int row, const std::string& wanted) {
    for (int col = grid.OnTab ? grid.FixedCols() : 0; col < grid.Cols(); ++col)
        if (!wanted.empty() && Bare(grid.Text(row, col)).find(wanted) != std::string::npos)
            return col;
    return -1;
}

} // namespace

std::optional<FoundCell> Find_Cell(const FlexGrid& grid, std::string_view typed, SearchWay way) {
    const std::string wanted = Bare(typed);
    const int rows = grid.Rows() - grid.FixedRows(), at = grid.Row() - grid.FixedRows();
    for (int i = 0; i < rows; ++i) {
        const int away = way == SearchWay::Here ? i : way == SearchWay::Next ? i + 1 : -i - 1;
        const int row = grid.FixedRows() + (at + away + rows) % rows;
        if (const int col = Column_With(grid, row, wanted); col >= 0)
            return FoundCell{row, col};
    }
    return std::nullopt;
}

int Count_Rows_With(const FlexGrid& grid, std::string_view typed) {
    const std::string wanted = Bare(typed);
    int count = 0;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
        count += Column_With(grid, row, wanted) >= 0 ? 1 : 0;
    return count;
}

} // namespace Tensarix
