// The popup menu of the weight calculators' tables.
#pragma once

#include "controls/CellEditing.h"
#include "controls/FlexGrid.h"
#include "platform/Machine.h"

namespace Tensarix {

class SheetPopup {
  public:
    MenuItem mnuUndo, mnuCopy, mnuPaste, mnuSelectAll, mnuCopyAll;
    Handler OnOpen; // the view's: shows the menu, whose items are ready

    // Takes over the grid's OnMenu and OnCopy; paste and undo are the form's.
    SheetPopup(FlexGrid& grid, CellEditing& editing, Clipboard& clipboard);
    SheetPopup(const SheetPopup&) = delete;

  private:
    void Open();
    void Copy(const std::string& text);

    FlexGrid& grid_;
    CellEditing& editing_;
    Clipboard& clipboard_;
};

} // namespace Tensarix
