#include "controls/FlexProcedures.h"

#include "common/NumberText.h"
#include "common/Utf8.h"

namespace Tensarix {

namespace {

constexpr double editInset = 55;  // twips; keeps the box clear of the grid lines
constexpr double comboInset = 10; // twips

const std::string& Cell_Text(const FlexGrid& grid) {
    return grid.Text(grid.Row(), grid.Col());
}

bool Is_Printing(int keyAscii) {
    return keyAscii < 0 || keyAscii > Keys::Blank;
}

void Load_Text(const FlexGrid& grid, TextBox& editor, int keyAscii) {
    editor.Set_Text(Is_Printing(keyAscii) ? Utf8(static_cast<unsigned>(keyAscii) & 0xFFFF)
                                          : Trim(Cell_Text(grid)));
    editor.Set_SelStart(editor.Length());
}

// The neighbour in the direction of an arrow, or the current cell at the grid's edge.
void Move_Inside(FlexGrid& grid, int keyCode) {
    const int row = grid.Row(), col = grid.Col();
    switch (keyCode) {
    case Keys::Up:
        if (row > grid.FixedRows())
            grid.Move_To(row - 1, col);
        break;
    case Keys::Down:
        if (row < grid.Rows() - 1)
            grid.Move_To(row + 1, col);
        break;
    case Keys::Left:
        if (col > grid.FixedCols())
            grid.Move_To(row, col - 1);
        break;
    case Keys::Right:
        if (col < grid.Cols() - 1)
            grid.Move_To(row, col + 1);
        break;
    default:
        break;
    }
}

// A commit may compute for long. If the user has gone on to another cell or edit meanwhile, his
// place stands.
void Commit_Then_Move(FlexGrid& grid, int keyCode, const Handler& letEventsRun) {
    const int row = grid.Row(), col = grid.Col();
    grid.Focus.Set();
    Run(letEventsRun);
    if (grid.Row() == row && grid.Col() == col && grid.Focus.Has())
        Move_Inside(grid, keyCode);
}

} // namespace

void Edit_Show(const FlexGrid& grid, TextBox& editor, int keyAscii, bool loadText) {
    if (loadText)
        Load_Text(grid, editor, keyAscii);
    const Placement cell = grid.Cell_Place();
    editor.Set_Place({cell.Left + grid.Place().Left, cell.Top + grid.Place().Top + editInset,
                      cell.Width, cell.Height - editInset});
    editor.Show(true);
    editor.Focus.Set();
}

void Edit_KeyDown(FlexGrid& grid, TextBox& editor, int keyCode, const Handler& letEventsRun) {
    switch (keyCode) {
    case Keys::Enter:
    case Keys::Down:
        Commit_Then_Move(grid, Keys::Down, letEventsRun);
        break;
    case Keys::Up:
    case Keys::Left:
    case Keys::Right:
        Commit_Then_Move(grid, keyCode, letEventsRun);
        break;
    case Keys::Escape:
        editor.Set_Text(Cell_Text(grid));
        editor.Show(false);
        grid.Focus.Set();
        break;
    default:
        break;
    }
}

void Combo_Show(const FlexGrid& grid, ComboBox& combo, bool loadIndex) {
    if (loadIndex)
        combo.Select(Combo_Find_Item(grid, combo));
    const Placement cell = grid.Cell_Place();
    combo.Set_Place({grid.Place().Left + cell.Left + comboInset,
                     grid.Place().Top + cell.Top + comboInset, cell.Width - comboInset,
                     combo.Place().Height});
    combo.Show(true);
    if (loadIndex)
        combo.Focus.Set();
}

void Combo_KeyDown(FlexGrid& grid, ComboBox& combo, int keyCode, const Handler& letEventsRun) {
    switch (keyCode) {
    case Keys::Enter:
        Commit_Then_Move(grid, Keys::Down, letEventsRun);
        break;
    case Keys::Left:
    case Keys::Right:
        Commit_Then_Move(grid, keyCode, letEventsRun);
        break;
    case Keys::Escape:
        combo.Show(false);
        grid.Focus.Set();
        break;
    default:
        break;
    }
}

int Combo_Find_Item(const FlexGrid& grid, const ComboBox& combo) {
    const std::string text = Trim(Cell_Text(grid));
    if (text.empty())
        return -1;
    for (int i = 0; i < combo.Count(); ++i)
        if (Trim(combo.Item(i)) == text)
            return i;
    return -1;
}

} // namespace Tensarix
