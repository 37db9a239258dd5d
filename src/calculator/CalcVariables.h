// All state of the scientific calculator. The record outlives its screen: closing and reopening
// CalcMainFrm in the same run keeps the entry, the pending operations and the display.
#pragma once

#include "calculator/CalcPriority.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

enum class AngleMode { DegreeMode, RadianMode, GradianMode };
enum class DisplayMode { Norm, Fix, Sci };

// What the panel's indicator shows: "DEGREE", "NORM" and so on.
std::string_view Indicator_Text(AngleMode mode);
std::string_view Indicator_Text(DisplayMode mode);

// What a register is chosen for.
enum class RegisterUse { In, Recall, Swap, Add, Minus, Delete };

struct Register {
    double Value = 0;
    std::string Description;

    bool operator==(const Register&) const = default;
};

constexpr std::size_t registerCount = 100;
using RegisterList = std::array<Register, registerCount>;

// The number being keyed.
struct EntryState {
    std::string KeyToken;       // the token in work; also a formatted result on its way out
    bool HasInput = false;      // a digit or a point has been taken since AC
    std::string EntryText;      // as keyed; empty when nothing is being keyed
    std::string MantissaText;   // the last keyed mantissa
    bool SignPending = false;   // the sign key was pressed on a non-empty entry
    bool ExponentEntry = false; // digits now go to the exponent
    bool ExponentNegative = false;
    std::string ExponentText;   // a sign and two digits
    bool FractionEntry = false; // a fraction is being keyed
    std::string FractionText;   // as keyed, with one or two "/"
};

// Operators that wait for an operand. There is no stack: Running is always fully evaluated, and an
// operator of higher priority undoes the last step and does it again.
struct PendingState {
    std::string Op1, Op2, Op3;    // the newest binary operator, and the two before it
    std::vector<double> Operands; // since the last collapse, oldest first
    double LastOperand = 0, PrevOperand = 0, ThirdOperand = 0; // the newest three
    double PowerScratch = 0;
    std::optional<double> Running; // empty at rest, and after a failure until AC
    std::string ResumeText;        // the unrounded result, taken as operand by the next operator
    // Constant calculation
    std::optional<double> ConstOperand;
    std::string ConstOperator;
    std::vector<std::string> OpHistory; // operators pressed in a row without a new operand
    PriorityChain Chain;                // for the panel's remark alone
};

// Angles, and the conversions that wait for their second operand.
struct ConversionState {
    AngleMode Angle = AngleMode::DegreeMode;
    std::optional<int> SexaCount; // presses of key_Sexa since any other key
    bool PolarActive = false, RectActive = false;
    bool ConversionGuard = false; // a second press of either key does nothing until an operator
    std::optional<double> PolarRadius, RectX; // the first operand, later the first result
    std::optional<double> SecondResult;       // what the swap key brings back
};

struct DisplayState {
    std::optional<double> DisplayValue; // the number on the display, held to 15 digits
    std::string DisplayText;            // the text on the display
    bool ResultPending = false;         // KeyToken holds a formatted result, not a key
    double LastResult = 0;              // the value handed to the display last
    std::string ResultSci;              // LastResult with all its digits
    bool ErrorLatched = false; // an error message is on the display: every key but AC is ignored
    std::string ErrorText;     // the message that waits for the error display
    std::optional<int> FixDigits, SciDigits; // decimals, 0 to 14; FIX goes first, neither is NORM
    std::optional<int> FixMemo, SciMemo;     // the decimals last chosen in each mode
    bool RandomPending = false;              // the next result is a random number
    bool ClockRunning = false;
};

// MEM, the registers, and what the dialogs hand back. A list that could not be written stays newer
// than its file.
struct MemoryState {
    double MemValue = 0;
    RegisterList Registers;
    bool RegistersUnsaved = false;
    RegisterUse MemoryMode = RegisterUse::In;
    int SelectedRegister = -1; // none
    std::string RegisterDescription;
    std::string ConstantPick; // the text of the chosen constant
};

struct StatisticsState {
    std::vector<double> DataList;
    bool DataUnsaved = false;
};

// A result of "=" and how it came about.
struct CalcResult {
    std::string Chain;  // "5 + 3 × 7"
    double Value = 0;   // what the next operator takes
    std::string Remark; // that stood beside it, or empty
};

struct CalcVariables {
    EntryState Entry;
    PendingState Pending;
    ConversionState Conversion;
    DisplayState Display;
    MemoryState Memory;
    StatisticsState Statistics;
    std::vector<CalcResult> Results; // the last hundred, the newest first; beside the engine
};

} // namespace Tensarix
