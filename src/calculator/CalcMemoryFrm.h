// The dialog in which a register is chosen, and in the delete mode emptied.
#pragma once

#include "calculator/CalcMainFrm.h"

#include <vector>

namespace Tensarix {

// A row of the dialogs' lists.
struct CalcRow {
    std::string Name, Value;
};

// The name of a row, counted from 1 under "00", and the value as the lists show it.
std::string Row_Name(std::string_view prefix, std::size_t index);
std::string Row_Value(double value);

// What the dialog shows, and what its controls do. Title, Prompt and captions come from the mode.
struct CalcMemoryFrm {
    CalcMemoryFrm(MemoryState& memory, RegisterUse mode, double shownValue,
                  std::function<bool(const CalcQuestion&)> ask);

    std::string Title, Prompt, OkCaption, FrameCaption;
    char Accelerator = 0;
    bool DescriptionLocked = false;
    bool DeleteFrame = false; // with SelectAllButton and CLRButton; ItemBox takes several rows
    std::vector<CalcRow> ItemBox;
    std::vector<bool> Selected;
    std::string DescBox;
    bool OKEnabled = false;
    bool Closed = false;

    // The user's selection. One row, and in the delete mode each row on its own.
    void Select_Row(int row);
    void Toggle_Row(int row, bool selected);
    void SelectAllButton();
    void CLRButton();
    void OKButton();
    void ExitButton(); // also closing by the frame

  private:
    void Fill();
    void Show_Choice(int row);
    void Select_All_Rows(bool selected);
    void Delete_Selected();
    bool May_Overwrite(int row) const;
    int Current_Row() const;

    MemoryState& memory_;
    RegisterUse mode_;
    double shownValue_;
    std::function<bool(const CalcQuestion&)> ask_;
};

} // namespace Tensarix
