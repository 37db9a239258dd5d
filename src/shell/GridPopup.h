// The popup menu of the large grids, by which their cells go to the clipboard as text: tabs between
// cells, carriage returns between rows. None of its commands fails.
#pragma once

#include "controls/Controls.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"
#include "shell/Modes.h"

#include <array>

namespace Tensarix {

// True if any selected cell holds more than blanks.
bool GridHasSelection(const FlexGrid& grid);

class GridPopup {
  public:
    MenuItem mnuCopySelection1a; // the selection
    MenuItem mnuCopySelection1b; // the cell of the current row in column 0
    MenuItem mnuCopySelection1c; // the one in column 1
    MenuItem mnuCopySelection1d; // the whole grid with its heads
    MenuItem mnuDummyExit;       // closes the popup and does nothing else

    Handler OnPrepare; // what else the menu shows is to be made ready
    Handler OnOpen;    // the view's: shows the menu, whose items are ready

    // The grid of each mode; none for a page that isn't there. All of them outlive the popup.
    using Grids = std::array<FlexGrid*, modeCount>;

    GridPopup(Desk& desk, const TabControl& selectionTab, const Grids& grids);
    GridPopup(const GridPopup&) = delete;

    // The mode of the grid in use.
    Mode Shown_Mode() const { return static_cast<Mode>(selectionTab_.Tab()); }

  private:
    void Open();
    void Prepare();
    void Copy_Selection();
    void Copy_Cell(int col);
    void Copy_All();
    void Copy(const std::string& text);
    FlexGrid& Grid_In_Use() const; // fails where there is none

    Desk& desk_;
    const TabControl& selectionTab_;
    Grids grids_;
};

} // namespace Tensarix
