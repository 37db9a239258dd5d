#include "calculator/CalcMemory.h"

#include "calculator/CalcClock.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcMemoryFrm.h"
#include "calculator/CalcNumbers.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "common/ReplaceFile.h"
#include "common/Utf8.h"
#include "platform/Settings.h"

#include <algorithm>
#include <cmath>
#include <system_error>

namespace Tensarix {

namespace {

constexpr std::string_view memorySection = Setting::MemoryIn.Section;
constexpr std::string_view memoryKey = Setting::MemoryIn.Name;
constexpr std::size_t maxDescription = 65535; // bytes, what two bytes of length can count

std::string Cut_Description(const std::string& text) {
    std::size_t length = std::min(text.size(), maxDescription);
    while (length > 0 && length < text.size() && Continues_Utf8(text[length]))
        --length;
    return text.substr(0, length);
}

std::string To_Utf8(const std::string& text) {
    if (Is_Utf8(text))
        return text;
    std::string result;
    for (const char c : text)
        result += Utf8(static_cast<unsigned char>(c));
    return result;
}

// The description that a file cut short still holds. Fails where it holds none.
std::string Rest_Of_Description(ByteReader& reader) {
    reader.Int16();
    std::string text = reader.Text(reader.Left());
    std::string whole = text;
    while (!whole.empty() && Continues_Utf8(whole.back()))
        whole.pop_back();
    if (!whole.empty() && !Is_Utf8(text))
        whole.pop_back(); // the first byte of a broken character
    return Is_Utf8(text) ? text : To_Utf8(Is_Utf8(whole) ? whole : text);
}

void Show_Memory_Indicator(CalcMainFrm& form) {
    form.Panel.Mem_Indicator = IsZero(form.Vars.Memory.MemValue) ? "" : "MEM";
}

double Stored_Memory(const CalcHost& host) {
    const auto text =
        host.Read_Setting ? host.Read_Setting(memorySection, memoryKey) : std::nullopt;
    return Leading_Value(text.value_or("0"));
}

// What the choice will take: of a fraction its value, although it is finished only on a choice;
// "Kin" doesn't finish it.
double Value_In_Sight(const CalcVariables& vars, RegisterUse use) {
    double value = Shown_Value(vars);
    if (vars.Entry.FractionEntry && use != RegisterUse::In)
        Attempt([&] { value = Fraction_Value(vars.Entry.FractionText); });
    return value;
}

// Runs the dialog; the chosen register, or none if it was left.
Register* Choose_Register(CalcMainFrm& form, RegisterUse mode) {
    CalcVariables& vars = form.Vars;
    CalcMemoryFrm dialog(vars.Memory, mode, Value_In_Sight(vars, mode), form.Host.Ask);
    if (form.Host.Show_Memory)
        form.Host.Show_Memory(dialog);
    const int chosen = vars.Memory.SelectedRegister;
    if (chosen < 0 || chosen >= static_cast<int>(registerCount))
        return nullptr;
    return &vars.Memory.Registers[static_cast<std::size_t>(chosen)];
}

void Add_To_Register(CalcMainFrm& form, RegisterUse mode, double sign) {
    if (!Direct_Key_Begins(form))
        return;
    Register* const chosen = Choose_Register(form, mode);
    if (!chosen)
        return;
    Finish_Fraction(form);
    if (form.Vars.Display.ErrorLatched)
        return;
    Keep(chosen->Value, chosen->Value + sign * Shown_Value(form.Vars));
    Entry_To_Operand(form.Vars);
}

} // namespace

// The file and the setting

Bytes Registers_Image(const RegisterList& registers) {
    ByteWriter writer;
    for (const Register& each : registers) {
        writer.Double(each.Value);
        writer.Text_With_Length(Cut_Description(each.Description));
    }
    return writer.Written();
}

RegisterList Registers_From(const Bytes& bytes) {
    RegisterList registers{};
    ByteReader reader(bytes);
    Attempt([&] {
        for (Register& each : registers) {
            Keep(each.Value, reader.Double());
            if (!Attempt([&] { each.Description = To_Utf8(reader.Text_With_Length()); }))
                each.Description = Rest_Of_Description(reader);
        }
    });
    return registers;
}

void Open_Memory(CalcMainFrm& form) {
    MemoryState& memory = form.Vars.Memory;
    Attempt([&] { memory.MemValue = Stored_Memory(form.Host); });
    Show_Memory_Indicator(form);
    if (!form.Host.DataFolder || memory.RegistersUnsaved)
        return;
    const auto path = *form.Host.DataFolder / registerFileName;
    std::error_code error;
    if (std::filesystem::symlink_status(path, error).type() ==
        std::filesystem::file_type::not_found)
        Replace_File(path, {});
    if (const auto bytes = Read_Whole_File(path))
        memory.Registers = Registers_From(*bytes);
}

void Close_Memory(CalcMainFrm& form) {
    MemoryState& memory = form.Vars.Memory;
    if (form.Host.Write_Setting)
        form.Host.Write_Setting(memorySection, memoryKey, Number_Text(memory.MemValue));
    memory.RegistersUnsaved =
        !form.Host.DataFolder ||
        !Replace_File(*form.Host.DataFolder / registerFileName, Registers_Image(memory.Registers));
}

// The keys

void key_Min(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.Display.ClockRunning)
        key_Time(form);
    vars.Conversion.SexaCount.reset();
    Finish_Fraction_As_Operand(form);
    vars.Memory.MemValue = Shown_Value(vars);
    vars.Pending.ResumeText = Number_Text(vars.Memory.MemValue);
    Show_Memory_Indicator(form);
}

void key_Kin(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.Display.ClockRunning)
        key_Time(form);
    Register* const chosen =
        vars.Display.ErrorLatched ? nullptr : Choose_Register(form, RegisterUse::In);
    if (!chosen)
        return;
    vars.Conversion.SexaCount.reset();
    chosen->Value = Shown_Value(vars);
    chosen->Description = vars.Memory.RegisterDescription;
    if (vars.Entry.FractionEntry)
        form.Panel.Remark = {"Stored " + Number_Text(chosen->Value) +
                                 ": the fraction is not finished",
                             RemarkWeight::Caution};
}

void key_Mplus(CalcMainFrm& form) {
    Add_To_Register(form, RegisterUse::Add, 1);
}

void key_Mminus(CalcMainFrm& form) {
    Add_To_Register(form, RegisterUse::Minus, -1);
}

void key_KAC(CalcMainFrm& form) {
    if (Direct_Key_Begins(form))
        Choose_Register(form, RegisterUse::Delete);
}

void Key_Memory_Recall(CalcMainFrm& form) {
    Show_Result(form, form.Vars.Memory.MemValue);
}

void Key_Register_Recall(CalcMainFrm& form) {
    const Register* const chosen = Choose_Register(form, RegisterUse::Recall);
    if (!chosen)
        return;
    Drop_Fraction(form.Vars.Entry);
    form.Vars.Conversion.SexaCount.reset();
    End_Entry(form.Vars.Entry);
    Show_Result(form, chosen->Value);
}

void Key_Register_Swap(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    Register* const chosen = Choose_Register(form, RegisterUse::Swap);
    if (!chosen)
        return;
    Finish_Fraction(form);
    if (vars.Display.ErrorLatched)
        return;
    vars.Conversion.SexaCount.reset();
    End_Entry(vars.Entry);
    const double shown = Shown_Value(vars);
    Show_Result(form, chosen->Value);
    chosen->Value = shown;
}

} // namespace Tensarix
