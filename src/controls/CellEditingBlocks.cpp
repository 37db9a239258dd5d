// Delete and paste over a block of cells, and undo.
#include "common/Failure.h"
#include "common/NumberText.h"
#include "controls/CellEditing.h"

#include <algorithm>
#include <tuple>

namespace Tensarix {

namespace {

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        pieces.push_back(Trim(text.substr(at, end - at)));
        at = end + 1;
    }
    return pieces;
}

// Without the blank ones at the end.
std::vector<std::string> Lines_Of(std::string_view block) {
    std::vector<std::string> lines =
        Split(Replace_All(Replace_All(block, "\r\n", "\n"), "\r", "\n"), '\n');
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}

std::tuple<int, int, int, int> Marking(const FlexGrid& grid) {
    return {grid.Row(), grid.Col(), grid.Row_Sel(), grid.Col_Sel()};
}

} // namespace

void CellEditing::Empty_Cells() {
    const auto [firstRow, lastRow] = std::minmax({grid_.Row(), grid_.Row_Sel()});
    const auto [firstCol, lastCol] = std::minmax({grid_.Col(), grid_.Col_Sel()});
    std::vector<NewText> texts;
    for (int row = firstRow; row <= lastRow; ++row)
        for (int col = firstCol; col <= lastCol; ++col)
            if (Can_Edit(row, col))
                texts.push_back({row, col, {}});
    Write(texts);
}

// All cells first, then what follows each.
void CellEditing::Write(const std::vector<NewText>& texts) {
    std::vector<NewText> written = texts;
    for (NewText& cell : written) {
        cell.Before = grid_.Text(cell.Row, cell.Col);
        grid_.Set_Text(cell.Row, cell.Col, cell.Text);
    }
    History.Note();
    Tell_All_Written(written);
}

// The last step comes back, and each of its rows is computed once.
void CellEditing::Undo() {
    Leave();
    std::vector<NewText> written;
    for (const auto& [row, col] : History.Undo())
        if (written.empty() || written.back().Row != row)
            written.push_back({row, col, grid_.Text(row, col)});
    Tell_All_Written(written);
}

// That may take long, and the user may go on meanwhile: his place stands, otherwise the marking
// does.
void CellEditing::Tell_All_Written(const std::vector<NewText>& texts) {
    auto marking = Marking(grid_);
    for (const NewText& text : texts)
        Attempt([&] { // the grid may have become smaller
            const std::tuple cell{text.Row, text.Col, text.Row, text.Col};
            std::apply([this](auto... at) { grid_.Select_Range(at...); }, cell);
            Tell_Written(text.Before);
            if (Marking(grid_) != cell)
                marking = Marking(grid_);
        });
    Attempt([&] { std::apply([this](auto... at) { grid_.Select_Range(at...); }, marking); });
}

void CellEditing::Tell_Written(const std::string& before) {
    const int row = grid_.Row(), col = grid_.Col();
    const bool emptied = grid_.Text(row, col).empty();
    for (const TextCells& cells : texts_)
        if (cells.Editable(row, col)) {
            if (emptied)
                cells.Editor.Set_Text({});
            cells.Committed(before);
        }
    for (const ComboCells& cells : combos_)
        if (cells.Editable(row, col)) {
            if (emptied)
                cells.Editor.Select(-1);
            cells.Compute(false);
        }
}

std::optional<std::string> CellEditing::Accepted(int row, int col, const std::string& text) const {
    if (text.empty())
        return text;
    for (const TextCells& cells : texts_)
        if (cells.Accepts && cells.Editable(row, col))
            return cells.Accepts(text);
    for (const ComboCells& cells : combos_)
        if (cells.Accepts && cells.Editable(row, col))
            return cells.Accepts(text);
    return text;
}

int CellEditing::First_Paste_Col(int row, int col) const {
    if (Can_Edit(row, col))
        return col;
    for (int first = 0; first < grid_.Cols(); ++first)
        if (Can_Edit(row, first))
            return first;
    return col;
}

// False if one of the line's texts is not valid where it would stand.
bool CellEditing::Read_Line(std::vector<NewText>& texts, int row, int col,
                            const std::string& line) const {
    bool valid = true;
    for (const std::string& cell : Split(line, '\t')) {
        if (col < grid_.Cols() && Can_Edit(row, col)) {
            const std::optional<std::string> text = Accepted(row, col, cell);
            valid = valid && text;
            texts.push_back({row, col, text.value_or(std::string{})});
        }
        ++col;
    }
    return valid;
}

std::string CellEditing::Paste(std::string_view block) {
    const std::vector<std::string> lines = Lines_Of(block);
    const int first = std::min(grid_.Row(), grid_.Row_Sel()), room = grid_.Rows() - first;
    if (lines.size() > static_cast<std::size_t>(room))
        return "There are " + std::to_string(lines.size()) + " rows to paste, but only " +
               std::to_string(room) + " from row " + std::to_string(first) + " on.";
    const int col = First_Paste_Col(first, std::min(grid_.Col(), grid_.Col_Sel()));
    std::vector<NewText> texts;
    std::string invalid;
    int row = first;
    for (const std::string& line : lines) {
        if (!Read_Line(texts, row, col, line))
            invalid.append(invalid.empty() ? "" : ", ").append(std::to_string(row));
        ++row;
    }
    if (!invalid.empty())
        return "Invalid input for row " + invalid + ".";
    if (texts.empty())
        return {};
    grid_.Select_Range(first, col, texts.back().Row, texts.back().Col);
    Write(texts);
    Run(grid_.OnSelChange);
    return {};
}

} // namespace Tensarix
