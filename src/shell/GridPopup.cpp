#include "shell/GridPopup.h"

#include "common/Failure.h"
#include "common/NumberText.h"

namespace Tensarix {

namespace {

constexpr std::string_view copyCell = "Copy -\xC2\xBB    ";

bool Is_Table_Of_Sections(Mode mode) {
    return mode == Mode::Find || mode == Mode::ViewAll;
}

// On these grids the head row is part of what is copied; on the others it becomes one line.
bool Has_Plain_Heads(Mode mode) {
    return mode == Mode::Browse || mode == Mode::BeamLoad;
}

void Offer_Cell(MenuItem& item, const FlexGrid& grid, int col, bool offered) {
    item.Enable(offered);
    std::string caption{copyCell};
    if (offered)
        Attempt([&] { caption += grid.Text(grid.Row(), col); });
    item.Set_Caption(std::move(caption));
}

std::string Head_Line(const FlexGrid& grid) {
    std::string line;
    for (int col = 0; col < grid.Cols(); ++col)
        line.append(col > 0 ? "\t" : "").append(Replace_All(Trim(grid.Text(0, col)), "\n", " "));
    return line;
}

// The texts of a part of the grid from a row and column 0 to the end. The current cell stays, as
// the selection.
std::string Clip_From(FlexGrid& grid, int firstRow) {
    const int row = grid.Row(), col = grid.Col();
    grid.Select_Range(firstRow, 0, grid.Rows() - 1, grid.Cols() - 1);
    std::string clip = grid.Clip();
    grid.Select_Range(row, col, row, col);
    return clip;
}

} // namespace

bool GridHasSelection(const FlexGrid& grid) {
    const std::string clip = Replace_All(Replace_All(grid.Clip(), "\t", ""), "\r", "");
    return !Trim(clip).empty();
}

GridPopup::GridPopup(Desk& desk, const TabControl& selectionTab, const Grids& grids)
    : desk_(desk), selectionTab_(selectionTab), grids_(grids) {
    mnuCopySelection1a.Set_Caption("Copy Selection       ");
    mnuCopySelection1b.Set_Caption(std::string{copyCell});
    mnuCopySelection1c.Set_Caption(std::string{copyCell});
    mnuCopySelection1d.Set_Caption("Copy All  (including Row && Column headers)");
    mnuDummyExit.Set_Caption("Exit");
    mnuCopySelection1a.OnClick = [this] { Copy_Selection(); };
    mnuCopySelection1b.OnClick = [this] { Copy_Cell(0); };
    mnuCopySelection1c.OnClick = [this] { Copy_Cell(1); };
    mnuCopySelection1d.OnClick = [this] { Copy_All(); };
    for (FlexGrid* grid : grids_) {
        if (!grid)
            continue;
        grid->OnPopup = [this] { Open(); };
        grid->OnCopy = [this] {
            Prepare();
            mnuCopySelection1a.Click();
        };
        // Who selects by the keys has chosen a cell as much as who clicks it.
        grid->OnKeyMove = [this] { desk_.GridClicked = true; };
    }
}

FlexGrid& GridPopup::Grid_In_Use() const {
    FlexGrid* grid = grids_[static_cast<std::size_t>(selectionTab_.Tab())];
    if (!grid)
        throw Failure("no grid on this page");
    return *grid;
}

void GridPopup::Open() {
    Prepare();
    Run(OnPrepare);
    Run(OnOpen);
}

void GridPopup::Prepare() {
    Attempt([&] {
        const FlexGrid& grid = Grid_In_Use();
        const Mode mode = Shown_Mode();
        const bool ok = desk_.GridClicked && GridHasSelection(grid);
        mnuCopySelection1a.Enable(ok);
        Offer_Cell(mnuCopySelection1b, grid, 0, ok && mode != Mode::Connection);
        Offer_Cell(mnuCopySelection1c, grid, 1, ok && Is_Table_Of_Sections(mode));
    });
}

void GridPopup::Copy(const std::string& text) {
    desk_.Host.Clip.Clear();
    desk_.Host.Clip.Set_Text(text);
}

void GridPopup::Copy_Selection() {
    Attempt([&] { Copy(Grid_In_Use().Clip()); });
}

void GridPopup::Copy_Cell(int col) {
    Attempt([&] {
        const FlexGrid& grid = Grid_In_Use();
        Copy(grid.Text(grid.Row(), col));
    });
}

void GridPopup::Copy_All() {
    Attempt([&] {
        FlexGrid& grid = Grid_In_Use();
        if (Has_Plain_Heads(Shown_Mode()))
            Copy(Clip_From(grid, 0));
        else
            Copy(Head_Line(grid) + '\r' + Clip_From(grid, 1));
    });
}

} // namespace Tensarix
