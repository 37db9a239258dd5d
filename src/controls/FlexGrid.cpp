#include "controls/FlexGrid.h"

#include "common/Failure.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr double standardHeight = 240;
constexpr double standardWidth = 960;

} // namespace

std::size_t FlexGrid::At(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_)
        throw Failure("no such cell");
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
           static_cast<std::size_t>(col);
}

void FlexGrid::Layout_Changed() {
    ++layoutVersion_;
    Shown.Changed();
}

void FlexGrid::Set_Rows(int rows) {
    if (rows < fixedRows_ || rows < 1)
        throw Failure("too few rows");
    if (rows == rows_)
        return;
    rows_ = rows;
    cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols_));
    heights_.resize(static_cast<std::size_t>(rows), -1);
    remarks_.erase(remarks_.lower_bound({rows, 0}), remarks_.end());
    Keep_Position_Inside();
    Layout_Changed();
}

void FlexGrid::Set_Cols(int cols) {
    if (cols < fixedCols_ || cols < 1)
        throw Failure("too few columns");
    if (cols == cols_)
        return;
    const auto kept = static_cast<std::size_t>(std::min(cols, cols_));
    const auto before = static_cast<std::size_t>(cols_), after = static_cast<std::size_t>(cols);
    std::vector<Cell> cells(static_cast<std::size_t>(rows_) * after);
    for (std::size_t row = 0; row < static_cast<std::size_t>(rows_); ++row)
        for (std::size_t col = 0; col < kept; ++col)
            cells[row * after + col] = std::move(cells_[row * before + col]);
    cells_ = std::move(cells);
    cols_ = cols;
    widths_.resize(after, -1);
    std::erase_if(remarks_, [cols](const auto& entry) { return entry.first.second >= cols; });
    Keep_Position_Inside();
    Layout_Changed();
}

void FlexGrid::Set_Fixed(int fixedRows, int fixedCols) {
    if (fixedRows < 0 || fixedRows >= rows_ || fixedCols < 0 || fixedCols >= cols_)
        throw Failure("too many fixed rows or columns");
    fixedRows_ = fixedRows;
    fixedCols_ = fixedCols;
    Keep_Position_Inside();
    Layout_Changed();
}

void FlexGrid::Keep_Position_Inside() {
    row_ = std::clamp(row_, std::min(fixedRows_, rows_ - 1), rows_ - 1);
    col_ = std::clamp(col_, 0, cols_ - 1);
    rowSel_ = std::clamp(rowSel_, 0, rows_ - 1);
    colSel_ = std::clamp(colSel_, 0, cols_ - 1);
    topRow_ = std::clamp(topRow_, std::min(fixedRows_, rows_ - 1), rows_ - 1);
    leftCol_ = std::clamp(leftCol_, std::min(fixedCols_, cols_ - 1), cols_ - 1);
}

void FlexGrid::Clear() {
    markedCol_ = -1;
    std::fill(cells_.begin(), cells_.end(), Cell{});
    remarks_.clear();
    sortCol_ = -1;
    Shown.Changed();
}

const std::string& FlexGrid::Text(int row, int col) const {
    return cells_[At(row, col)].Text;
}

void FlexGrid::Set_Text(int row, int col, std::string text) {
    ++textsVersion_;
    cells_[At(row, col)].Text = std::move(text);
    if (!remarks_.empty())
        remarks_.erase({row, col});
    Shown.Changed();
}

const CellStyle& FlexGrid::Style(int row, int col) const {
    return cells_[At(row, col)].Style;
}

void FlexGrid::Set_Style(int row, int col, const CellStyle& style) {
    cells_[At(row, col)].Style = style;
    Shown.Changed();
}

const Advice& FlexGrid::Remark_Of(int row, int col) const {
    static const Advice none;
    At(row, col);
    const auto found = remarks_.find({row, col});
    return found == remarks_.end() ? none : found->second;
}

const std::string& FlexGrid::Remark(int row, int col) const {
    return Remark_Of(row, col).Text;
}
RemarkWeight FlexGrid::Remark_Weight(int row, int col) const {
    return Remark_Of(row, col).Weight;
}

Advice FlexGrid::Told_Of(int row, int col) const {
    const Advice& own = Remark_Of(row, col);
    if (row < fixedRows_ || fixedRows_ == 0 || Text(row, col).empty())
        return own;
    const Advice& column = Remark_Of(0, col);
    if (column.Weight <= own.Weight)
        return own;
    return {own.Text.empty() ? column.Text : own.Text, column.Weight};
}

void FlexGrid::Set_Remark(int row, int col, std::string remark, RemarkWeight weight) {
    At(row, col);
    if (remark.empty())
        remarks_.erase({row, col});
    else
        remarks_[{row, col}] = {std::move(remark), weight};
    Shown.Changed();
}

void FlexGrid::Reorder_Rows(const std::vector<int>& order) {
    const auto cells = cells_;
    const auto remarks = std::exchange(remarks_, {});
    std::map<int, int> places; // by the row that it was
    for (std::size_t i = 0; i < order.size(); ++i) {
        const int from = fixedRows_ + order[i], to = fixedRows_ + static_cast<int>(i);
        std::copy_n(cells.begin() + static_cast<std::ptrdiff_t>(At(from, 0)), cols_,
                    cells_.begin() + static_cast<std::ptrdiff_t>(At(to, 0)));
        places[from] = to;
    }
    for (const auto& [cell, remark] : remarks) {
        const auto place = places.find(cell.first);
        remarks_[{place == places.end() ? cell.first : place->second, cell.second}] = remark;
    }
    Shown.Changed();
}

void FlexGrid::Set_Sort(int col, bool descends) {
    sortCol_ = col;
    sortDescends_ = descends;
    Shown.Changed();
}

double FlexGrid::Row_Height(int row) const {
    const double height = heights_[At(row, 0) / static_cast<std::size_t>(cols_)];
    return std::max(height < 0 ? standardHeight : height, heightMin_);
}

void FlexGrid::Set_Row_Height(int row, double twips) {
    double& height = heights_[At(row, 0) / static_cast<std::size_t>(cols_)];
    if (height == twips)
        return;
    height = twips;
    Layout_Changed();
}

void FlexGrid::Set_Row_Height_Min(double twips) {
    heightMin_ = twips;
    Layout_Changed();
}

void FlexGrid::Set_Word_Wrap(bool wordWrap) {
    wordWrap_ = wordWrap;
    Layout_Changed();
}

double FlexGrid::Col_Width(int col) const {
    const double width = widths_[At(0, col)];
    return width < 0 ? standardWidth : width;
}

void FlexGrid::Set_Col_Width(int col, double twips) {
    widths_[At(0, col)] = twips;
    Layout_Changed();
}

bool FlexGrid::Move_To(int row, int col) {
    At(row, col);
    const bool moves = row != row_ || col != col_;
    if (moves)
        Run(OnLeaveCell);
    if (row >= rows_ || col >= cols_)
        return false; // the handler has made the grid smaller
    row_ = rowSel_ = row;
    col_ = colSel_ = col;
    Shown.Changed();
    if (moves)
        Run(OnSelChange);
    return moves;
}

void FlexGrid::Extend_To(int row, int col) {
    At(row, col);
    rowSel_ = row;
    colSel_ = col;
    Shown.Changed();
}

void FlexGrid::Select_Range(int row, int col, int rowSel, int colSel) {
    At(row, col);
    At(rowSel, colSel);
    row_ = row;
    col_ = col;
    rowSel_ = rowSel;
    colSel_ = colSel;
    Shown.Changed();
}

void FlexGrid::Set_Top_Row(int row) {
    const int before = topRow_;
    topRow_ = row;
    Keep_Position_Inside();
    if (topRow_ == before)
        return;
    Shown.Changed();
    Run(OnScroll);
}

void FlexGrid::Set_Marked_Col(int col) {
    markedCol_ = col < cols_ ? col : -1;
    Shown.Changed();
}

void FlexGrid::Set_Left_Col(int col) {
    const int before = leftCol_;
    leftCol_ = col;
    Keep_Position_Inside();
    if (leftCol_ == before)
        return;
    Shown.Changed();
    Run(OnScroll);
}

Placement FlexGrid::Cell_Place() const {
    Placement place{0, 0, Col_Width(col_), Row_Height(row_)};
    for (int col = 0; col < col_; ++col)
        if (col < fixedCols_ || (col_ >= fixedCols_ && col >= leftCol_))
            place.Left += Col_Width(col);
    for (int row = 0; row < row_; ++row)
        if (row < fixedRows_ || (row_ >= fixedRows_ && row >= topRow_))
            place.Top += Row_Height(row);
    return place;
}

std::string FlexGrid::Clip_Of(int row1, int col1, int row2, int col2) const {
    const auto [firstRow, lastRow] = std::minmax({row1, row2});
    const auto [firstCol, lastCol] = std::minmax({col1, col2});
    std::string clip;
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int col = firstCol; col <= lastCol; ++col)
            clip.append(col > firstCol ? "\t" : "").append(Text(row, col));
        if (row < lastRow)
            clip += '\r';
    }
    return clip;
}

void FlexGrid::Press(int row, int col) {
    // A click on the current cell selects it again.
    if (!Move_To(row, col))
        Run(OnSelChange);
    Run(OnMouseDown);
}

void FlexGrid::Press_Beside() {
    if (!OnPopup)
        return;
    Run(OnSelChange);
    Run(OnMouseDown);
}

void FlexGrid::Select_All() {
    Go_To(fixedRows_, OnKeyPress ? fixedCols_ : 0, false);
    Go_To(rows_ - 1, cols_ - 1, true);
}

void FlexGrid::Go_To(int row, int col, bool extend) {
    if (extend)
        Extend_To(row, col);
    else
        Move_To(row, col);
    Run(OnKeyMove);
}

} // namespace Tensarix
