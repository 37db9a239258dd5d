// The table of constants, and the dialog CalcConstantFrm that puts one on the display.
#pragma once

#include "calculator/CalcMainFrm.h"

#include <span>
#include <vector>

namespace Tensarix {

enum class Exactness {
    Exact,    // by definition
    Cut,      // the same, and the publication prints its first digits
    Rounded,  // to the digits of the publication
    Measured, // with an uncertainty in the last digits
    Nominal   // what a standard tells to reckon with
};

// A row's text is number, unit and name. It reads, from its start, as the constant's value: so no
// unit begins with a digit, because a number is read across blanks.
struct CalcConstant {
    std::string_view Number, Unit, Name;
    std::string_view Source; // publication and year
    Exactness Exact;
};

std::span<const CalcConstant> Constants();
std::string Constant_Text(const CalcConstant& constant);

// Where it is from and whether it is exact: "CODATA 2018: measured".
std::string Constant_Origin(const CalcConstant& constant);

// "cnst"
void Key_Constant(CalcMainFrm& form);

// What the dialog shows, and what its controls do.
struct CalcConstantFrm {
    explicit CalcConstantFrm(MemoryState& memory);

    std::vector<std::string> ConstantBox;
    int Selected = -1;
    std::string ConstLab = "Constant No. ***";
    std::string TextBox1;
    std::string Origin; // of the chosen constant
    bool OKEnabled = false;
    bool Closed = false;

    void Select_Row(int row);
    void OKButton();
    void ExitButton(); // also closing by the frame

  private:
    MemoryState& memory_;
};

} // namespace Tensarix
