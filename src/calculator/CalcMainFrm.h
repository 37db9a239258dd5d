// The scientific calculator without its screen: what stands on its panel, what it needs from the
// machine, and the one entry point of its keys. Nothing here fails; every failure of a calculation
// is a message on the display that latches until AC.
#pragma once

#include "calculator/CalcVariables.h"
#include "controls/Remark.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Tensarix {

struct CalcMemoryFrm;
struct CalcDataFrm;
struct CalcConstantFrm;

// The panel; the window shows its texts as they stand, and the modes by Indicator_Text.
struct CalcPanel {
    std::string DisplayBox; // mantissa with a point, an error message, or the time
    std::string ExpoBox;    // a blank or "-" and two digits; or empty
    DisplayMode DispMode_Indicator = DisplayMode::Norm;
    AngleMode Mode_Indicator = AngleMode::DegreeMode;
    std::string Mem_Indicator;   // "MEM" or empty
    std::string CCalc_Indicator; // "K" or empty
    std::string DateBox;         // the date while the clock runs
    Advice Remark;               // where the number shown is not what one would expect
    bool DataTaken = false;      // by the last key
    bool ExponentCut = false;    // ExpoBox holds the last two of three digits
    int PrecIndex = -1;          // the row of PrecBox, 0 to 14, or none
    bool PrecEnabled = false;    // PrecBox and PrecLab
};

struct CalcQuestion {
    std::string Text, Title;
    bool WarningSign = false;
};

// Local time, to whatever fraction of a second the machine has.
using CalcTime = std::chrono::time_point<std::chrono::local_t, std::chrono::microseconds>;

// What the calculator needs from its surroundings. Each member may be left empty: then nothing is
// shown, chosen, answered (No), read or kept.
struct CalcHost {
    std::function<CalcTime()> Now;
    // Called again and again while the clock runs: repaints the panel and turns the event loop; it
    // may wait for events as long as the seconds still go on evenly. False: the program is closing.
    std::function<bool()> Yield;
    // Settings of the application that is named by the program's folder.
    std::function<std::optional<std::string>(std::string_view section, std::string_view key)>
        Read_Setting;
    std::function<void(std::string_view section, std::string_view key, std::string_view text)>
        Write_Setting;
    std::optional<std::filesystem::path> DataFolder; // of the two data files
    // Modal dialogs: each returns when the dialog has closed.
    std::function<void(CalcMemoryFrm&)> Show_Memory;
    std::function<void(CalcDataFrm&)> Show_Data;
    std::function<void(CalcConstantFrm&)> Show_Constants;
    std::function<void()> Show_Help;
    std::function<void()> Close_Form; // what ExitButton asks for; the form then calls Close
    std::function<bool(const CalcQuestion&)> Ask; // true: Yes
};

struct CalcMainFrm {
    CalcVariables& Vars;
    CalcHost Host;
    CalcPanel Panel;
    double SexaSum = 0; // the angle being built, degrees
    int FracCycle = 0;  // which form key_Dc shows: 1 mixed, 2 improper
};

// When the form opens and closes. Open reads the settings and the two data files, Close writes
// them and ends the clock.
void Open(CalcMainFrm& form);
void Close(CalcMainFrm& form);

// Takes one token of the key table (CalcKeys.h); unknown tokens do nothing.
void KeyPress(CalcMainFrm& form, std::string_view token);

} // namespace Tensarix
