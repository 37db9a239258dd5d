// The registers, the data list, the constants: their dialogs, and the files that keep them.
#include "FreshFolder.h"
#include "Largest.h"
#include "calculator/CalcMemory.h"
#include "calculator/CalcTestSupport.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "common/ReplaceFile.h"

#include <cmath>
#include <fstream>
#include <map>

using namespace Tensarix;
namespace fs = std::filesystem;

namespace {

struct CalcFiles : testing::Test {
    CalcHost Host() {
        CalcHost host;
        host.DataFolder = folder;
        host.Read_Setting = [this](std::string_view section, std::string_view key) {
            const auto found = settings.find(std::string{section} + "/" + std::string{key});
            return found == settings.end() ? std::nullopt : std::optional(found->second);
        };
        host.Write_Setting = [this](std::string_view section, std::string_view key,
                                    std::string_view text) {
            settings[std::string{section} + "/" + std::string{key}] = text;
        };
        return host;
    }
    void Write(const std::string& name, const Bytes& bytes) {
        ASSERT_TRUE(Replace_File(folder / name, bytes));
    }
    Tests::FreshFolder fresh;
    const fs::path& folder = fresh.Path;
    std::map<std::string, std::string> settings;
};

Bytes Cut(Bytes bytes, std::size_t length) {
    bytes.resize(length);
    return bytes;
}

const CalcConstant* Row_Of(const std::string& name, const std::string& unit) {
    for (const CalcConstant& each : Constants())
        if (each.Name == name && each.Unit == unit)
            return &each;
    return nullptr;
}

// Half a unit of the last printed digit, as a part of the number.
double Print_Tolerance(const std::string& printed) {
    const std::string mantissa = printed.substr(0, printed.find_first_of("eE"));
    return 0.5 / Text_Number(Replace_All(mantissa, ".", ""));
}

} // namespace

TEST(CalcRegisters, EveryModeDoesItsWork) {
    DialogTest calc;
    calc.Row = 6;
    calc.Description = "  roof load  ";
    calc.Keys("12.5 key_Kin");
    EXPECT_TRUE(calc.Questions.empty());
    EXPECT_EQ(calc.RowSeen + ", " + calc.BoxSeen, "Reg-07=   12.5, No specified description");
    EXPECT_EQ(calc.At(6), (Register{12.5, "roof load"}));
    EXPECT_EQ(calc.Keys("5").Shown(), "12.55"); // the entry goes on

    calc.Description = nullptr;
    calc.Keys("AC 2 + 3 key_Mplus");
    EXPECT_EQ(calc.Questions.back(), "Warning: Do you wish to OVERWRITE Reg-07 ?");
    EXPECT_EQ(calc.RowSeen + ", " + calc.BoxSeen, "Reg-07=   15.5, roof load");
    EXPECT_EQ(calc.At(6).Value, 15.5);
    EXPECT_EQ(calc.Keys("=").Shown(), "5."); // the entry became the operand

    calc.Keys("AC 1 frc 2 key_Mminus");
    EXPECT_EQ(calc.RowSeen, "Reg-07=   15");
    EXPECT_EQ(calc.At(6).Value, 15);

    calc.Keys("AC 2 + 99 ko");
    EXPECT_EQ(calc.RowSeen + ", " + calc.Shown(), "Reg-07=   15, 15.");
    EXPECT_EQ(calc.Keys("=").Shown(), "17.");

    calc.Keys("AC 8 xk");
    EXPECT_EQ(calc.RowSeen + ", " + calc.Shown(), "Reg-07=   8, 15.");
    EXPECT_EQ(calc.At(6), (Register{8, "roof load"}));

    calc.At(99) = {0, "set to zero"};
    calc.Row = 99;
    calc.Questions.clear();
    calc.Keys("AC 7 frc 0 key_Kin");     // what is keyed of the fraction so far, which goes on
    EXPECT_TRUE(calc.Questions.empty()); // a value of 0 counts as empty
    EXPECT_EQ(calc.RowSeen + ", " + calc.Form.Panel.Remark.Text,
              "Reg-100=   7, Stored 7: the fraction is not finished");
    EXPECT_EQ(calc.At(99).Value, 7);
    EXPECT_EQ(calc.Keys("4 =").Shown(), "1.75");
}

TEST(CalcRegisters, LeavingTheDialogLeavesEverything) {
    for (const char* key : {"key_Kin", "ko", "xk", "key_Mplus", "key_Mminus", "key_KAC", "cnst"})
        for (const bool refused : {false, true}) {
            DialogTest calc;
            calc.At(0) = {7, "kept"};
            calc.Leave = !refused;
            calc.Yes = false;
            if (refused && (key == std::string_view{"ko"} || key == std::string_view{"cnst"}))
                continue; // these ask nothing
            calc.Keys(std::string{"2 + 1 frc 2 "} + key);
            EXPECT_EQ(calc.At(0), (Register{7, "kept"})) << key;
            EXPECT_EQ(calc.Shown(), "1/2.") << key;
            EXPECT_EQ(calc.Keys("5 =").Shown(), "2.04") << key;
        }
}

TEST(CalcRegisters, TheDialogShowsItsMode) {
    const char* const modes[] = {
        "Memory IN|Choose memory address to SAVE to.|Save|S|Specify Description",
        "Memory RECALL|Choose memory address to RECALL value.|Recall|R|Description",
        "Memory SWAP|Choose memory address to SWAP value.|Swap|s|Specify Description",
        "Memory ADD|Choose memory address to ADD value to.|Apply|a|Specify Description",
        "Memory MINUS|Choose memory address to SUBTRACT value from.|Apply|a|Specify Description",
        "Memory DELETE|Choose memory address to DELETE value.|Delete|D|Description",
    };
    const char* const previews[] = {"=   2", "=   5", "=   2", "=   7", "=   3", "=   5"};
    for (std::size_t i = 0; i < std::size(modes); ++i) {
        MemoryState memory;
        memory.Registers[1] = {5, " pitch "};
        const auto use = static_cast<RegisterUse>(i);
        CalcMemoryFrm dialog(memory, use, 2, {});
        EXPECT_EQ(dialog.Title + "|" + dialog.Prompt + "|" + dialog.OkCaption + "|" +
                      dialog.Accelerator + "|" + dialog.FrameCaption,
                  modes[i]);
        EXPECT_EQ(dialog.DescriptionLocked, dialog.FrameCaption == "Description");
        EXPECT_EQ(dialog.DeleteFrame, use == RegisterUse::Delete);
        EXPECT_FALSE(dialog.OKEnabled);
        dialog.Select_Row(0);
        dialog.Select_Row(1); // the preview goes with the selection; the register stays
        EXPECT_EQ(dialog.ItemBox[0].Value + dialog.ItemBox[1].Value + dialog.DescBox,
                  std::string{"=   0"} + previews[i] + (dialog.DeleteFrame ? "" : "pitch"));
        EXPECT_TRUE(dialog.OKEnabled);
        EXPECT_EQ(memory.Registers[1].Value, 5);
        dialog.Select_Row(100);
        dialog.ExitButton();
        EXPECT_TRUE(dialog.Closed && memory.SelectedRegister == -1);
    }
}

TEST(CalcRegisters, TheDialogDeletesInside) {
    CalcVariables vars;
    int asked = 0;
    bool answer = false;
    const auto ask = [&](const CalcQuestion& question) {
        EXPECT_EQ(question.Text, "Are you sure you want to delete Selected Data?");
        EXPECT_TRUE(question.WarningSign);
        ++asked;
        return answer;
    };
    for (std::size_t i = 0; i < 5; ++i)
        vars.Memory.Registers[i] = {static_cast<double>(i) + 1, "used"};
    CalcMemoryFrm dialog(vars.Memory, RegisterUse::Delete, 0, ask);
    dialog.OKButton();
    dialog.Toggle_Row(1, true);
    dialog.Toggle_Row(3, true);
    dialog.Toggle_Row(1, false);
    EXPECT_TRUE(dialog.OKEnabled);
    dialog.OKButton();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(vars.Memory.Registers[3].Value, 4);
    answer = true;
    dialog.OKButton();
    EXPECT_FALSE(dialog.OKEnabled || dialog.Closed);
    EXPECT_EQ(vars.Memory.Registers[3], Register{});
    EXPECT_EQ(vars.Memory.Registers[1].Value, 2);
    EXPECT_EQ(dialog.ItemBox[3].Value, "=   0");
    dialog.SelectAllButton();
    dialog.CLRButton();
    EXPECT_FALSE(dialog.OKEnabled);
    dialog.SelectAllButton();
    dialog.OKButton();
    for (const Register& each : vars.Memory.Registers)
        EXPECT_EQ(each.Value, 0);
}

TEST(CalcRegisters, RowsShowFifteenDigits) {
    EXPECT_EQ(Row_Value(0.1 + 0.2), "0.3");
    EXPECT_EQ(Row_Value(-12345678.5), "-12345678.5");
    EXPECT_EQ(Row_Value(1.5e20), "1.5E+20");
    EXPECT_EQ(Row_Value(1e-30), "1E-30");
}

TEST(CalcData, TheDialogPrunesTheList) {
    CalcVariables vars;
    vars.Statistics.DataList = {1.5, 2, 3};
    bool answer = false;
    CalcDataFrm dialog(vars.Statistics, [&](const CalcQuestion&) { return answer; });
    EXPECT_EQ(dialog.ItemBox[0].Name + dialog.ItemBox[0].Value, "Data-01=    1.5");
    dialog.Toggle_Row(1, true);
    dialog.Toggle_Row(7, true);
    dialog.DeleteButton();
    EXPECT_EQ(vars.Statistics.DataList.size(), 3u);
    answer = true;
    dialog.DeleteButton();
    EXPECT_EQ(vars.Statistics.DataList, (std::vector<double>{1.5, 3}));
    EXPECT_EQ(dialog.ItemBox[1].Name + dialog.ItemBox[1].Value, "Data-02=    3");
    EXPECT_FALSE(dialog.DeleteEnabled);
    dialog.AllButton();
    dialog.ClearButton();
    dialog.DeleteButton();
    dialog.AllButton();
    dialog.DeleteButton();
    EXPECT_TRUE(vars.Statistics.DataList.empty() && dialog.ItemBox.empty());
    dialog.AllButton();
    EXPECT_FALSE(dialog.DeleteEnabled);
}

TEST(CalcConstantsTable, EveryRowReadsAsItsNumber) {
    CalcVariables vars;
    CalcConstantFrm dialog(vars.Memory);
    dialog.OKButton();
    EXPECT_FALSE(dialog.Closed || dialog.OKEnabled);
    EXPECT_EQ(dialog.ConstLab, "Constant No. ***");
    ASSERT_EQ(dialog.ConstantBox.size(), Constants().size());
    for (std::size_t i = 0; i < Constants().size(); ++i) {
        const CalcConstant& each = Constants()[i];
        EXPECT_EQ(Leading_Value(dialog.ConstantBox[i]), Text_Number(each.Number)) << each.Name;
        EXPECT_NE(each.Name, "");
    }
    dialog.Select_Row(2);
    EXPECT_EQ(dialog.ConstLab, "Constant No. 003");
    EXPECT_EQ(dialog.TextBox1, "490 lb/ft3 : weight of steel");
    EXPECT_EQ(dialog.Origin, "AISC Manual (2005): nominal");
}

// 28 of physics to every printed digit, and 9 for steel to half a unit of the last.
TEST(CalcConstantsTable, AgreesWithPrint) {
    std::ifstream file(TENSARIX_SOURCE_DIR "/tests/calculator/published/constants.csv");
    std::string line, row, unit, quantity, printed, shift, uncertainty, source;
    std::getline(file, line);
    int count = 0;
    Tests::Largest deviation;
    Tests::FromPrint prints;
    while (std::getline(file, line)) {
        std::istringstream cells(line);
        for (std::string* cell : {&row, &unit, &quantity, &printed, &shift, &uncertainty, &source})
            std::getline(cells, *cell, ';');
        const CalcConstant* const constant = Row_Of(row, unit);
        ASSERT_TRUE(constant) << line;
        printed = Replace_All(Replace_All(printed, " ", ""), ",", "");
        const double number = Text_Number(printed) / std::pow(10, std::stoi(shift));
        const double off = std::abs(Text_Number(constant->Number) / number - 1);
        const bool physics = source == "CODATA 2018"; // of the others each may have more digits
        EXPECT_LE(off, physics ? 1e-15 : Print_Tolerance(printed)) << line;
        deviation.Take(off, row);
        prints.Take(physics ? "Physical constants" : "Conversion factors, E of steel",
                    Text_Number(constant->Number), number, 2 * number * Print_Tolerance(printed));
        if (physics) {
            const bool isExact =
                constant->Exact == Exactness::Exact || constant->Exact == Exactness::Cut;
            EXPECT_EQ(isExact, uncertainty == "exact") << line;
            EXPECT_EQ(constant->Source, source) << line;
        }
        ++count;
    }
    EXPECT_EQ(count, 37);
    prints.Record();
    deviation.Record("constant");
}

// The factors without a print of their own, from the inch, the pound and standard gravity.
TEST(CalcConstantsTable, FactorsFollowFromTheirUnits) {
    const double inch = 0.0254, foot = 12 * inch, pound = 0.45359237, force = pound * 9.80665;
    const struct {
        const char* Unit;
        double Computed;
    } factors[] = {{"mm2/in2", inch * inch * 1e6},
                   {"m2/ft2", foot * foot},
                   {"mm3/in3", std::pow(25.4, 3)},
                   {"mm4/in4", std::pow(25.4, 4)},
                   {"(kg/m)/(lb/ft)", pound / foot},
                   {"(kg/m2)/(lb/ft2)", pound / (foot * foot)},
                   {"(kg/m3)/(lb/ft3)", pound / std::pow(foot, 3)},
                   {"(kN/m)/(kip/ft)", force / foot},
                   {"(kN m)/(kip ft)", force * foot},
                   {"(kN m)/(kip in)", force * inch}};
    for (const auto& factor : factors) {
        const auto row = std::find_if(Constants().begin(), Constants().end(),
                                      [&](const auto& each) { return each.Unit == factor.Unit; });
        ASSERT_NE(row, Constants().end()) << factor.Unit;
        const double tolerance = row->Exact == Exactness::Exact ? 1e-15 : 3e-7; // of seven digits
        EXPECT_NEAR(Text_Number(row->Number) / factor.Computed, 1, tolerance) << factor.Unit;
    }
}

TEST_F(CalcFiles, WhatIsClosedIsThereWhenOpened) {
    CalcTest calc;
    calc.Form.Host = Host();
    calc.Vars.Memory.Registers[0] = {-2.5, "\xC3\x98 of bolt"};
    calc.Vars.Memory.Registers[99].Value = 1e-99;
    calc.Keys("0.1 key_Min AC 3 data 4 data");
    Close(calc.Form);
    EXPECT_EQ(settings.at("Setting/MemoryIn"), "0.1");

    CalcVariables vars;
    CalcMainFrm form{vars, Host(), {}};
    Open(form);
    EXPECT_EQ(vars.Memory.MemValue, 0.1);
    EXPECT_EQ(form.Panel.Mem_Indicator, "MEM");
    EXPECT_EQ(vars.Memory.Registers[0], (Register{-2.5, "\xC3\x98 of bolt"}));
    EXPECT_EQ(vars.Memory.Registers[99].Value, 1e-99);
    EXPECT_EQ(vars.Statistics.DataList, (std::vector<double>{3, 4}));
}

TEST_F(CalcFiles, TheBytesOfTheFiles) {
    RegisterList registers{};
    registers[1] = {1, "ab"};
    const Bytes image = Registers_Image(registers);
    EXPECT_EQ(image.size(), 100u * 10 + 2);
    const Bytes second(image.begin() + 10, image.begin() + 22);
    EXPECT_EQ(second, (Bytes{0, 0, 0, 0, 0, 0, 0xF0, 0x3F, 2, 0, 'a', 'b'}));
    EXPECT_EQ(Data_Image({}), (Bytes{0, 0}));
    EXPECT_EQ(Data_Image({1}), (Bytes{0x0C, 0x20, 1, 0, 1, 0, 0, 0, 0,    0,   0, 0, //
                                      5,    0,    0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));
    // A description that the length cannot count is cut, at a whole character.
    registers[1].Description = "x";
    for (int i = 0; i < 40000; ++i)
        registers[1].Description += "\xC3\x98";
    registers[2].Description = "next";
    const RegisterList read = Registers_From(Registers_Image(registers));
    EXPECT_EQ(read[1].Description.size(), 65535u);
    EXPECT_EQ(read[2].Description, "next");
    registers[1].Description.insert(0, 1, 'x');
    EXPECT_EQ(Registers_From(Registers_Image(registers))[1].Description.size(), 65534u);
}

TEST_F(CalcFiles, DamagedFilesGiveWhatTheyHold) {
    RegisterList registers{};
    registers[0] = {1, "first"};
    registers[1] = {2, "second"};
    registers[2] = {std::nan(""), "no number"};
    registers[3] = {4, "\xD8 old"}; // 8-bit text
    const Bytes image = Registers_Image(registers);
    for (std::size_t length = 0; length <= image.size(); ++length) {
        const RegisterList read = Registers_From(Cut(image, length));
        EXPECT_EQ(read[0].Value, length >= 8 ? 1 : 0);
        EXPECT_EQ(read[1].Value, length >= 23 ? 2 : 0);
        EXPECT_EQ(read[0].Description,
                  std::string{"first"}.substr(0, length > 10 ? length - 10 : 0));
        EXPECT_EQ(read[2].Value, 0);
    }
    EXPECT_EQ(Registers_From(image)[2].Description, "no number");
    EXPECT_EQ(Registers_From(image)[3].Description, "\xC3\x98 old");

    const Bytes data = Data_Image({1, 2, 3});
    for (std::size_t length = 12; length <= data.size(); ++length)
        EXPECT_EQ(Data_From(Cut(data, length)).size(), (length - 12) / 10);
    Bytes damaged = data;
    damaged[4] = damaged[5] = damaged[6] = 0xFF; // a count of millions
    EXPECT_EQ(Data_From(damaged), (std::vector<double>{1, 2, 3}));
    damaged = data;
    damaged[22] = 8; // another tag
    EXPECT_EQ(Data_From(damaged), (std::vector<double>{1}));
    EXPECT_EQ(Data_From(Data_Image({1, INFINITY, 3})), (std::vector<double>{1, 3}));
    EXPECT_THROW(Data_From({1, 2, 3, 4}), Failure);
}

TEST_F(CalcFiles, MissingAndUnwritableFiles) {
    settings["Setting/MemoryIn"] = "no number";
    Write("SdfInput.sdf", {9, 9, 9});
    CalcVariables vars;
    CalcMainFrm form{vars, Host(), {}};
    Open(form);
    EXPECT_EQ(vars.Memory.MemValue, 0);
    EXPECT_TRUE(fs::exists(folder / "CalcMem.mem"));
    EXPECT_TRUE(vars.Statistics.DataList.empty());

    // A folder that takes no file: what was stored stays for the run.
    form.Host.DataFolder = folder / "none";
    vars.Memory.Registers[0].Value = 5;
    vars.Statistics.DataList = {6};
    Close(form);
    form.Host.DataFolder = folder;
    Open(form);
    EXPECT_EQ(vars.Memory.Registers[0].Value, 5);
    EXPECT_EQ(vars.Statistics.DataList, (std::vector<double>{6}));
    Close(form);
    fs::remove(folder / "CalcMem.mem");
    Open(form);
    EXPECT_EQ(vars.Memory.Registers[0].Value, 0);
}
