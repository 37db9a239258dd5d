#include "SaveInTurn.h"

#include "StandIns.h"
#include "calculator/CalcMainFrm.h"
#include "shell/MainFrm.h"
#include "shell/NoDialogs.h"
#include "window/desktop/IniSettings.h"

#include <iostream>

namespace Tensarix::Tests {

namespace {

constexpr std::size_t longText = 500, manyNumbers = 3000;

// The whole program short of its windows: with the real settings and in a real folder.
class SavingProgram {
  public:
    explicit SavingProgram(std::string_view folder)
        : machine_{settings_,     parts_.Clip,  parts_.Speech,
                   parts_.Boxes,  parts_.Time,  parts_.Events,
                   parts_.Window, parts_.Guard, {TENSARIX_PROGRAM_DIR, folder}},
          form_(machine_, dialogs_), calculator_{memories_, {}, {}} {
        form_.Load();
        calculator_.Host.DataFolder = folder;
        calculator_.Host.Write_Setting = [this](auto section, auto key, auto text) {
            settings_.Write(section, key, text);
        };
        Open(calculator_);
    }

    // Every file differs between any two states, in all its length.
    void Save(char state) {
        for (int row = 1; row < form_.Design.Bolts.cFlex.Rows(); ++row)
            for (int col = 1; col < BoltColumn::Count; ++col)
                form_.Design.Bolts.cFlex.Set_Text(row, col, std::string(longText, state));
        form_.Design.Bolts.SaveButton.Click();

        for (Register& each : memories_.Memory.Registers)
            each = {static_cast<double>(state), std::string(longText, state)};
        memories_.Statistics.DataList.assign(manyNumbers, state);
        memories_.Memory.MemValue = state;
        Close(calculator_);

        (state == 'A' ? form_.Browse.DimOption1 : form_.Browse.DimOption2).Select();
        form_.Query_Unload();
        settings_.Save();
    }

    void Tell_Messages() {
        for (const std::string& each : parts_.Boxes.Shown)
            std::cout << each << '\n';
        parts_.Boxes.Shown.clear();
        std::cout.flush();
    }

  private:
    TestMachine parts_;
    NoDialogs dialogs_;
    IniSettings settings_;
    Machine machine_;
    MainFrm form_;
    CalcVariables memories_;
    CalcMainFrm calculator_;
};

} // namespace

int Save_In_Turn(std::string_view states, std::string_view folder) {
    SavingProgram program(folder);
    program.Tell_Messages(); // of the start
    std::cout << "ready" << std::endl;
    for (std::size_t i = 0; i < states.size(); ++i)
        if (states[i] == '*')
            i = static_cast<std::size_t>(-1);
        else
            program.Save(states[i]);
    program.Tell_Messages();
    return 0;
}

} // namespace Tensarix::Tests
