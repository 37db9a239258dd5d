#include "calculator/CalcKeys.h"

#include "calculator/CalcClock.h"
#include "calculator/CalcConversions.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEngineering.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcFraction.h"
#include "calculator/CalcMemory.h"
#include "calculator/CalcNumbers.h"
#include "calculator/CalcStatistics.h"
#include "common/NumberText.h"

#include <algorithm>
#include <cstdlib>

namespace Tensarix {

namespace {

void HelpButton(CalcMainFrm& form) {
    if (form.Vars.Display.ClockRunning)
        key_Time(form);
    if (form.Host.Show_Help)
        form.Host.Show_Help();
}

void ExitButton(CalcMainFrm& form) {
    End_Clock(form);
    if (form.Host.Close_Form)
        form.Host.Close_Form();
}

constexpr auto pad = CalcPage::Pad, first = CalcPage::First, second = CalcPage::Second,
               third = CalcPage::Third, mode = CalcPage::Mode;

constexpr std::string_view pageCaptions[] = {"", " 1st Func  ", " 2nd Func  ", " 3rd Func  ",
                                             "  Mode     "};

// In the order in which they stand on their page, row by row.
constexpr CalcKey keys[] = {
    {"key_7", "7", "Numeral 7", pad, "7", nullptr, "7"},
    {"key_8", "8", "Numeral 8", pad, "8", nullptr, "8"},
    {"key_9", "9", "Numeral 9", pad, "9", nullptr, "9"},
    {"key_Ers", "Back", "Erase Input", pad, "ers", nullptr, "\b"},
    {"key_C", "C", "Cancel Input", pad, "C", nullptr, "\x1B"},
    {"key_AC", "AC", "Clear Calculation", pad, "AC", nullptr, "\x7F"},
    {"key_4", "4", "Numeral 4", pad, "4", nullptr, "4"},
    {"key_5", "5", "Numeral 5", pad, "5", nullptr, "5"},
    {"key_6", "6", "Numeral 6", pad, "6", nullptr, "6"},
    {"key_multiply", "×", "Multiply", pad, "*", nullptr, "*x"},
    {"key_divide", "÷", "Divide", pad, "/", nullptr, "/"},
    {"key_PI", "PI", "Constant PI", pad, "PI", nullptr, "pP"},
    {"key_1", "1", "Numeral One", pad, "1", nullptr, "1"},
    {"key_2", "2", "Numeral Two", pad, "2", nullptr, "2"},
    {"key_3", "3", "Numeral Three", pad, "3", nullptr, "3"},
    {"key_plus", "+", "Plus", pad, "+", nullptr, "+"},
    {"key_minus", "−", "Minus", pad, "-", nullptr, "-"},
    {"key_Frc", "ab/c", "Fraction Input", pad, "frc", nullptr, "f"},
    {"key_0", "0", "Numeral Zero", pad, "0", nullptr, "0"},
    {"key_dot", ".", "Decimal Point", pad, "dot", nullptr, ".,"},
    {"key_PM", "±", "Toogle Number Sign", pad, "pm", nullptr, "n_"},
    {"key_exp", "EXP", "Exponent", pad, "exp", nullptr, "eE"},
    {"key_equal", "=", "Equals", pad, "=", nullptr, "=\r\n"},
    {"HelpButton", "Help", "", pad, "", HelpButton, "?"},
    {"ExitButton", "Exit", "", pad, "", ExitButton, ""},

    {"key_Sqr", "x²", "Square", first, "sqr", nullptr, ""},
    {"key_Sqrt", "√x", "Square Root", first, "sqrt", nullptr, "r"},
    {"key_Cube", "x³", "Cube", first, "cube", nullptr, ""},
    {"key_Cubt", "³√x", "Cube Root", first, "cubt", nullptr, ""},
    {"key_Xy", "xʸ", "Raise to the Power", first, "xy", nullptr, "^"},
    {"key_Root", "Root", "Root Extractor", first, "root", nullptr, ""},
    {"key_Log", "Log", "Logarithm", first, "log", nullptr, ""},
    {"key_aLog", "aLog", "Anti-Logarithm", first, "alog", nullptr, ""},
    {"key_Ln", "Ln", "Natural Logarithm", first, "ln", nullptr, ""},
    {"key_aLn", "aLn", "Anti-Natural Logarithm", first, "aln", nullptr, ""},
    {"key_Rcp", "1/x", "Reciprocal", first, "rcp", nullptr, "i"},
    {"key_Fact", "n!", "Factorial", first, "fact", nullptr, "!"},
    {"key_Dc", "d/c", "Fraction Converter", first, "", key_Dc, ""},
    {"key_XtoY", "x↔y", "Input Swap", first, "x-y", nullptr, ""},
    {"com_Random", "Rnd#", "Random number generator", first, "rand", nullptr, ""},
    {"key_Cnst", "Cnst", "Scientific Constant", first, "cnst", nullptr, ""},

    {"key_Sin", "Sin", "Sine", second, "sin", nullptr, "s"},
    {"key_Cos", "Cos", "Cosine", second, "cos", nullptr, "c"},
    {"key_Tan", "Tan", "Tangent", second, "tan", nullptr, "t"},
    {"key_iSin", "iSin", "Inverse Sine", second, "iSin", nullptr, "S"},
    {"key_iCos", "iCos", "Inverse Cosine", second, "iCos", nullptr, "C"},
    {"key_iTan", "iTan", "Inverse Tangent", second, "iTan", nullptr, "T"},
    {"key_Sinh", "Sinh", "Hyperbolic Sine", second, "sinh", nullptr, ""},
    {"key_Cosh", "Cosh", "Hyperbolic Cosine", second, "cosh", nullptr, ""},
    {"key_Tanh", "Tanh", "Hyperbolic Tangent", second, "tanh", nullptr, ""},
    {"key_ArcSinh", "iSinh", "Inverse Hyperbolic Sine", second, "isinh", nullptr, ""},
    {"key_ArcCosh", "iCosh", "Inverse Hyperbolic Cosine", second, "icosh", nullptr, ""},
    {"key_ArcTanh", "iTanh", "Inverse Hyperbolic Tangent", second, "itanh", nullptr, ""},
    {"key_Sexa", "Sexa", "Angle Input", second, "sexa", nullptr, "'"},
    {"key_Asex", "Asex", "Angular Display", second, "asex", nullptr, "\""},
    {"key_PtoR", "P→R", "Polar to Rectangular", second, "", key_PtoR, ""},
    {"key_RtoP", "R→P", "Rectangular to Polar", second, "", key_RtoP, ""},

    {"key_Min", "Min", "Memory Inut", third, "", key_Min, ""},
    {"key_Mr", "MR", "Memory Recall", third, "mo", nullptr, "m"},
    {"key_Kin", "Kin", "Memory In", third, "", key_Kin, ""},
    {"key_Kout", "Kout", "Memory Recall", third, "ko", nullptr, ""},
    {"key_Mplus", "M+", "Memory Plus", third, "", key_Mplus, ""},
    {"key_Mminus", "M−", "Memory Minus", third, "", key_Mminus, ""},
    {"key_Data", "Data", "Add data", third, "data", nullptr, ""},
    {"key_Del", "Del", "Delete data", third, "", key_Del, ""},
    {"key_Dtn", "Cnt", "Data count", third, "dtn", nullptr, ""},
    {"key_Ave", "Mean", "Data mean", third, "ave", nullptr, ""},
    {"key_XtoK", "x↔K", "Memory Swap", third, "xk", nullptr, ""},
    {"key_KAC", "KAC", "Memory Delete", third, "", key_KAC, ""},
    {"key_Dts", "Sx", "Sum of data", third, "dts", nullptr, ""},
    {"key_Sqr1", "Sx1", "Sum of data raise to the power 2", third, "sqr1", nullptr, ""},
    {"key_Sqr2", "Sx2", "Sum of square of data", third, "sqr2", nullptr, ""},
    {"key_Strd0", "Sdx", "Population standard deviaton", third, "strd0", nullptr, ""},
    {"key_Strd1", "Sdxn", "Sample standard deviation", third, "strd1", nullptr, ""},

    {"StdButton", "Normal Mode", "", mode, "", StdButton, ""},
    {"FxnButton", "Fixed Mode", "", mode, "", FxnButton, ""},
    {"ScnButton", "Scientific Mode", "", mode, "", ScnButton, ""},
    {"DegButton", "Degree Mode", "", mode, "", DegButton, ""},
    {"RadButton", "Radian Mode", "", mode, "", RadButton, ""},
    {"GradButton", "Gradian Mode", "", mode, "", GradButton, ""},
    {"key_EngL", "Eng-", "", mode, "", key_EngL, ""},
    {"key_EngR", "-Eng", "", mode, "", key_EngR, ""},
    {"key_Time", "Time", "Display CLock", mode, "", key_Time, ""},
};

// Keying a number

void Press_Tokens(CalcMainFrm& form, std::string_view mantissa) {
    for (const char c : mantissa)
        KeyPress(form, c == '.' ? "dot" : std::string_view(&c, 1));
}

// The sign goes in before the last digit or the point, so that the exponent keeps it.
void Press_Signed_Mantissa(CalcMainFrm& form, std::string_view mantissa) {
    Press_Tokens(form, mantissa.substr(0, 1));
    KeyPress(form, "pm");
    Press_Tokens(form, mantissa.size() > 1 ? mantissa.substr(1) : ".");
}

void Press_Exponent(CalcMainFrm& form, int exponent) {
    KeyPress(form, "exp");
    for (const char digit : std::to_string(std::abs(exponent)))
        KeyPress(form, std::string_view(&digit, 1));
    if (exponent < 0)
        KeyPress(form, "pm");
}

// What is keyed for a number text.
struct KeyedNumber {
    bool Negative = false;
    std::string Mantissa; // without its sign
    std::optional<int> Exponent;
};

KeyedNumber Split_Number(std::string text) {
    KeyedNumber number;
    number.Negative = text.starts_with('-');
    text.erase(0, text.starts_with('-') || text.starts_with('+') ? 1 : 0);
    const std::size_t e = text.find('E');
    number.Mantissa = text.substr(0, e);
    if (e != std::string::npos)
        number.Exponent = Exponent_Of(text);
    return number;
}

bool Is_Long(const std::string& mantissa) {
    return static_cast<int>(mantissa.size()) - (HasPoint(mantissa) ? 1 : 0) > maxDigits;
}

// A long mantissa, and a negative one before an exponent, in the calculator's own form.
KeyedNumber Number_To_Key(std::string_view text) {
    const std::string plain = Upper(Trim(text));
    const double value = Text_Number(plain);
    KeyedNumber number = Split_Number(plain);
    if (Is_Long(number.Mantissa))
        number = Split_Number(Number_Text(value));
    if (Is_Long(number.Mantissa) || (number.Negative && number.Exponent))
        number = Split_Number(IsZero(value) ? "0" : Replace_All(Full_Scientific(value), ".E", "E"));
    return number;
}

void Discard_Entry(CalcMainFrm& form) {
    if (form.Vars.Display.ClockRunning)
        key_Time(form);
    form.Vars.Conversion.SexaCount.reset();
    Drop_Fraction(form.Vars.Entry);
    End_Entry(form.Vars.Entry);
}

} // namespace

std::string_view Page_Caption(CalcPage page) {
    return pageCaptions[static_cast<std::size_t>(page)];
}

std::span<const CalcKey> Calc_Keys() {
    return keys;
}

const CalcKey* Find_Key(std::string_view name) {
    const auto found = std::find_if(std::begin(keys), std::end(keys),
                                    [name](const CalcKey& key) { return key.Name == name; });
    return found == std::end(keys) ? nullptr : found;
}

const CalcKey* Key_For_Character(char32_t typed) {
    if (typed == 0 || typed > 0x7F)
        return nullptr;
    for (const CalcKey& key : keys)
        if (key.Typed.find(static_cast<char>(typed)) != std::string_view::npos)
            return &key;
    return nullptr;
}

void Press(CalcMainFrm& form, const CalcKey& key) {
    if (key.Direct)
        key.Direct(form);
    else
        KeyPress(form, key.Token);
}

std::string Display_As_Number(const CalcMainFrm& form) {
    if (form.Vars.Display.ErrorLatched)
        return {};
    std::string text = form.Panel.DisplayBox;
    if (text.ends_with('.'))
        text.pop_back();
    if (form.Vars.Display.ClockRunning || form.Panel.ExponentCut || !Is_Numeric(text))
        return Number_Text(Shown_Value(form.Vars));
    if (form.Panel.ExpoBox.size() == 3)
        text += (form.Panel.ExpoBox.front() == '-' ? "E-" : "E+") + form.Panel.ExpoBox.substr(1);
    return text;
}

bool Key_In_Number(CalcMainFrm& form, std::string_view text) {
    if (form.Vars.Display.ErrorLatched || !Is_Numeric(text))
        return false;
    const KeyedNumber number = Number_To_Key(text);
    if (std::abs(number.Exponent.value_or(0)) > maxExponent)
        return false;
    Discard_Entry(form);
    if (number.Negative && number.Exponent) {
        Press_Signed_Mantissa(form, number.Mantissa);
    } else {
        Press_Tokens(form, number.Mantissa);
        if (number.Negative)
            KeyPress(form, "pm");
    }
    if (number.Exponent)
        Press_Exponent(form, *number.Exponent);
    return true;
}

} // namespace Tensarix
