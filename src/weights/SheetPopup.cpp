#include "weights/SheetPopup.h"

#include "common/NumberText.h"

namespace Tensarix {

SheetPopup::SheetPopup(FlexGrid& grid, CellEditing& editing, Clipboard& clipboard)
    : grid_(grid), editing_(editing), clipboard_(clipboard) {
    mnuUndo.Set_Caption("Undo");
    mnuCopy.Set_Caption("Copy Selection");
    mnuPaste.Set_Caption("Paste Lengths");
    mnuSelectAll.Set_Caption("Select All");
    mnuCopyAll.Set_Caption("Copy All (including Column headers)");
    mnuUndo.OnClick = [this] { Run(grid_.OnUndo); };
    mnuCopy.OnClick = [this] { Copy(grid_.Clip()); };
    mnuPaste.OnClick = [this] { Run(grid_.OnPaste); };
    mnuSelectAll.OnClick = [this] { grid_.Select_All(); };
    mnuCopyAll.OnClick = [this] {
        const int last = grid_.Rows() - 1, end = grid_.Cols() - 1;
        Copy(Replace_All(grid_.Clip_Of(0, 0, 0, end), "\n", " ") + '\r' +
             grid_.Clip_Of(grid_.FixedRows(), 0, last, end));
    };
    grid_.OnMenu = [this] { Open(); };
    grid_.OnCopy = mnuCopy.OnClick;
}

void SheetPopup::Open() {
    editing_.Leave(); // what is being edited is what is meant
    mnuUndo.Enable(editing_.History.Can_Undo());
    mnuCopy.Enable(!Trim(Replace_All(Replace_All(grid_.Clip(), "\t", ""), "\r", "")).empty());
    mnuPaste.Enable(!Trim(clipboard_.Text()).empty());
    Run(OnOpen);
}

void SheetPopup::Copy(const std::string& text) {
    clipboard_.Clear();
    clipboard_.Set_Text(text);
}

} // namespace Tensarix
