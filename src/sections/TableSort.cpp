#include "sections/TableSort.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "controls/TypedName.h"

#include <algorithm>
#include <numeric>

namespace Tensarix {

namespace {
constexpr int nameColumns = 2; // US, SI
} // namespace

TableSort::TableSort(FlexGrid& grid, std::function<Rows()> rows)
    : grid_(grid), rows_(std::move(rows)) {
    grid_.OnHeadClick = [this](int col) { Attempt([&] { Head_Click(col); }); };
}

void TableSort::Head_Click(int col) {
    if (grid_.Sort_Col() < 0) { // cleared, and filled in the Manual's order
        order_.resize(static_cast<std::size_t>(Section_Rows()));
        std::iota(order_.begin(), order_.end(), 0);
    }
    if (grid_.Sort_Col() != col)
        Sort(col, false);
    else if (!grid_.Sort_Descends())
        Sort(col, true);
    else
        Sort(-1, false);
    grid_.Set_Top_Row(grid_.FixedRows());
}

int TableSort::Section_Rows() const {
    int rows = 0;
    while (grid_.FixedRows() + rows < grid_.Rows() &&
           !Trim(grid_.Text(grid_.FixedRows() + rows, 0)).empty())
        ++rows;
    return rows;
}

void TableSort::Sort(int col, bool descends) {
    std::vector<int> order(order_.size());
    std::iota(order.begin(), order.end(), 0);
    if (col >= 0) {
        const Keys keys = Keys_Of(col);
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            const auto& left = keys[static_cast<std::size_t>(a)];
            const auto& right = keys[static_cast<std::size_t>(b)];
            if (left.empty() || right.empty())
                return !left.empty();
            return descends ? right < left : left < right;
        });
    }
    Take_Order(std::move(order));
    grid_.Set_Sort(col, descends);
}

// The section that is chosen stays so, wherever its row goes.
void TableSort::Take_Order(std::vector<int> order) {
    std::vector<int> rowOf(order_.size()), moves(order.size());
    for (std::size_t row = 0; row < order_.size(); ++row)
        rowOf[static_cast<std::size_t>(order_[row])] = static_cast<int>(row);
    const int current = grid_.Row() - grid_.FixedRows();
    for (std::size_t row = 0; row < order.size(); ++row)
        moves[row] = rowOf[static_cast<std::size_t>(order[row])];
    grid_.Reorder_Rows(moves);
    const auto follows = std::find(moves.begin(), moves.end(), current);
    if (follows != moves.end()) {
        const int row = grid_.FixedRows() + static_cast<int>(follows - moves.begin());
        grid_.Select_Range(row, grid_.Col(), row, grid_.Col());
    }
    order_ = std::move(order);
}

// The names of the rows are found in the order in which the store has them.
TableSort::Keys TableSort::Keys_Of(int col) const {
    const Rows rows = rows_();
    Keys keys(order_.size());
    std::vector<std::string> names(order_.size());
    for (std::size_t row = 0; row < order_.size(); ++row) {
        const int at = grid_.FixedRows() + static_cast<int>(row);
        const auto place = static_cast<std::size_t>(order_[row]);
        names[place] = Trim(grid_.Text(at, 0));
        if (col < nameColumns)
            keys[place] = Numbers_In_Name(grid_.Text(at, col));
    }
    if (col < nameColumns)
        return keys;
    SectionRead read(rows.View.ProgramFolder, Query_By_Family(rows.FamilyCode));
    const SectionRecordset& record = read.Records;
    std::size_t place = 0;
    for (read.Records.MoveFirst(); !record.At_End() && place < names.size();
         read.Records.MoveNext()) {
        std::string name;
        Attempt([&] { name = Trim(record.Text("IDE_STD_Nomenclature")); });
        if (name != names[place])
            continue;
        Attempt([&] {
            keys[place] = {Table_Number(record, rows.Columns, rows.Variant, col, rows.View.Units)};
        });
        ++place;
    }
    return keys;
}

} // namespace Tensarix
