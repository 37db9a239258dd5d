// All state of the scientific calculator. The record outlives its screen: closing and reopening
// CalcMainFrm in the same run keeps the entry, the pending operations and the display.
#pragma once

#include "calculator/CalcPriority.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Tensarix {

struct Register {
    double Value = 0;
    std::string Description;
};

constexpr std::size_t registerCount = 100;
using RegisterList = std::array<Register, registerCount>;

struct CalcVariables {
    // The entry
    std::string KeyToken;       // the token in work; also a formatted result on its way out
    bool ErrorLatched = false;  // an error message is on the display: every key but AC is ignored
    bool HasInput = false;      // a digit or a point has been taken since AC
    bool FractionEntry = false; // a fraction is being keyed
    std::string FractionText;   // the fraction as keyed, with one or two "/"
    std::string EntryText;      // the number being keyed
    bool ExponentEntry = false; // digits now go to the exponent
    bool SignPending = false;   // the sign key was pressed on a non-empty entry
    bool ExponentNegative = false;
    std::string ExponentText; // a sign and two digits
    std::string MantissaText; // the last keyed mantissa

    // Results
    bool ResultPending = false; // KeyToken holds a formatted result, not a key
    double LastResult = 0;      // the value handed to the display last
    std::string ResultSci;      // LastResult with all its digits
    std::string ResumeText;     // the unrounded result, taken as operand by the next operator
    std::optional<double> DisplayValue; // the number on the display, held to 15 digits
    std::string DisplayText;            // the text on the display
    std::string ErrorText;              // the message that waits for the error display
    std::optional<double> SecondResult; // what the swap key brings back

    // Pending operations. There is no stack: Running is always fully evaluated, and an operator
    // of higher priority undoes the last step and does it again.
    std::string Op1, Op2, Op3;    // the newest binary operator, and the two before it
    std::vector<double> Operands; // since the last collapse, oldest first
    double LastOperand = 0, PrevOperand = 0, ThirdOperand = 0; // the newest three
    double PowerScratch = 0;
    std::optional<double> Running; // empty at rest, and after a failure until AC
    PriorityChain Chain;           // for the panel's remark alone

    // Constant calculation
    std::optional<double> ConstOperand;
    std::string ConstOperator;
    std::vector<std::string> OpHistory; // operators pressed in a row without a new operand

    // Functions; no angle flag set means degree
    bool DegreeMode = false, RadianMode = false, GradianMode = false;
    std::optional<int> SexaCount;                 // presses of key_Sexa since any other key
    bool PolarActive = false, RectActive = false; // a conversion waits for its second operand
    bool ConversionGuard = false;
    std::optional<double> PolarRadius, RectX;

    // Display; FIX is tested first, neither set means NORM
    std::optional<int> FixDigits, SciDigits; // decimals, 0 to 14
    std::optional<int> FixMemo, SciMemo;     // the decimals last chosen in each mode
    bool RandomPending = false;              // the next result is a random number
    bool ClockRunning = false;

    // Memories and data. A list that could not be written stays newer than its file.
    double MemValue = 0;
    RegisterList Registers;
    bool RegistersUnsaved = false;
    int MemoryMode = 0;
    int SelectedRegister = -1;
    std::string RegisterDescription;
    std::vector<double> DataList;
    bool DataUnsaved = false;
    std::string ConstantPick; // the text of the chosen constant
};

} // namespace Tensarix
