#include "calculator/CalcMemoryFrm.h"

#include "calculator/CalcNumbers.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <cmath>
#include <utility>

namespace Tensarix {

namespace {

constexpr std::string_view unknownDescription = "No specified description";
constexpr std::string_view warningTitle = "Warning";
constexpr std::string_view registerPrefix = "Reg-";

struct ModeTexts {
    std::string_view Title, Prompt, OkCaption;
    char Accelerator;
    bool DescriptionLocked;
};

constexpr ModeTexts modeTexts[] = {
    {"Memory IN", "Choose memory address to SAVE to.", "Save", 'S', false},
    {"Memory RECALL", "Choose memory address to RECALL value.", "Recall", 'R', true},
    {"Memory SWAP", "Choose memory address to SWAP value.", "Swap", 's', false},
    {"Memory ADD", "Choose memory address to ADD value to.", "Apply", 'a', false},
    {"Memory MINUS", "Choose memory address to SUBTRACT value from.", "Apply", 'a', false},
    {"Memory DELETE", "Choose memory address to DELETE value.", "Delete", 'D', true},
};

} // namespace

std::string Row_Name(std::string_view prefix, std::size_t index) {
    return std::string{prefix} + Format_Number(static_cast<double>(index + 1), "00");
}

std::string Row_Value(double value) {
    constexpr std::size_t longWhole = 16;
    const bool isLong = Format_Number(std::trunc(value), "0").size() >= longWhole;
    const std::string pattern =
        isLong ? "0.0" + std::string(15, '#') + "E+00" : "0.0" + std::string(100, '#');
    return Number_Text(Leading_Value(Format_Number(value, pattern)));
}

CalcMemoryFrm::CalcMemoryFrm(MemoryState& memory, RegisterUse mode, double shownValue,
                             std::function<bool(const CalcQuestion&)> ask)
    : DeleteFrame(mode == RegisterUse::Delete), memory_(memory), mode_(mode),
      shownValue_(shownValue), ask_(std::move(ask)) {
    const ModeTexts& texts = modeTexts[static_cast<std::size_t>(mode)];
    Title = texts.Title;
    Prompt = texts.Prompt;
    OkCaption = texts.OkCaption;
    Accelerator = texts.Accelerator;
    DescriptionLocked = texts.DescriptionLocked;
    FrameCaption = DescriptionLocked ? "Description" : "Specify Description";
    memory_.MemoryMode = mode;
    memory_.RegisterDescription.clear();
    memory_.SelectedRegister = -1;
    Selected.assign(registerCount, false);
    Fill();
}

void CalcMemoryFrm::Fill() {
    ItemBox.clear();
    for (std::size_t i = 0; i < registerCount; ++i)
        ItemBox.push_back(
            {Row_Name(registerPrefix, i), "=   " + Row_Value(memory_.Registers[i].Value)});
}

int CalcMemoryFrm::Current_Row() const {
    for (std::size_t i = 0; i < Selected.size(); ++i)
        if (Selected[i])
            return static_cast<int>(i);
    return -1;
}

void CalcMemoryFrm::Select_Row(int row) {
    if (mode_ == RegisterUse::Delete)
        return Toggle_Row(row, true);
    if (row < 0 || row >= static_cast<int>(registerCount))
        return;
    Selected.assign(registerCount, false);
    Selected[static_cast<std::size_t>(row)] = true;
    OKEnabled = true;
    Show_Choice(row);
}

// The row as it would stand after "OK", and its description. Only the list changes.
void CalcMemoryFrm::Show_Choice(int row) {
    const Register& each = memory_.Registers[static_cast<std::size_t>(row)];
    double value = shownValue_;
    if (mode_ == RegisterUse::Recall)
        value = each.Value;
    else if (mode_ == RegisterUse::Add)
        value = each.Value + shownValue_;
    else if (mode_ == RegisterUse::Minus)
        value = each.Value - shownValue_;
    Fill();
    Attempt([&] { ItemBox[static_cast<std::size_t>(row)].Value = "=   " + Row_Value(value); });
    DescBox = Trim(each.Description);
    if (DescBox.empty())
        DescBox = unknownDescription;
}

void CalcMemoryFrm::Toggle_Row(int row, bool selected) {
    if (mode_ != RegisterUse::Delete || row < 0 || row >= static_cast<int>(registerCount))
        return;
    Selected[static_cast<std::size_t>(row)] = selected;
    OKEnabled = Current_Row() >= 0;
}

void CalcMemoryFrm::Select_All_Rows(bool selected) {
    if (mode_ != RegisterUse::Delete)
        return;
    Selected.assign(registerCount, selected);
    OKEnabled = selected;
}

void CalcMemoryFrm::SelectAllButton() {
    Select_All_Rows(true);
}

void CalcMemoryFrm::CLRButton() {
    Select_All_Rows(false);
}

bool CalcMemoryFrm::May_Overwrite(int row) const {
    const auto index = static_cast<std::size_t>(row);
    if (mode_ == RegisterUse::Recall || IsZero(memory_.Registers[index].Value))
        return true;
    return ask_ && ask_({"Do you wish to OVERWRITE " + Row_Name(registerPrefix, index) + " ?",
                         std::string{warningTitle}, false});
}

void CalcMemoryFrm::OKButton() {
    if (!OKEnabled)
        return;
    memory_.RegisterDescription.clear();
    if (mode_ == RegisterUse::Delete)
        return Delete_Selected();
    const int row = Current_Row();
    if (!May_Overwrite(row)) {
        memory_.SelectedRegister = -1;
        return;
    }
    if (mode_ != RegisterUse::Recall)
        memory_.RegisterDescription = Trim(DescBox);
    memory_.SelectedRegister = row;
    Closed = true;
}

void CalcMemoryFrm::Delete_Selected() {
    if (!ask_ ||
        !ask_({"Are you sure you want to delete Selected Data?", std::string{warningTitle}, true}))
        return;
    for (std::size_t i = 0; i < registerCount; ++i)
        if (Selected[i])
            memory_.Registers[i] = {};
    Select_All_Rows(false);
    Fill();
}

void CalcMemoryFrm::ExitButton() {
    memory_.RegisterDescription.clear();
    memory_.SelectedRegister = -1;
    Closed = true;
}

} // namespace Tensarix
