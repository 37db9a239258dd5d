#include "calculator/CalcFraction.h"

#include "calculator/CalcClock.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcNumbers.h"
#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Tensarix {

namespace {

// The parts of a fraction text, without its sign.
struct FractionParts {
    bool Negative = false;
    int Count = 1; // 1: a, 2: a/b, 3: a/b/c
    std::array<double, 3> Part{};
};

FractionParts Read_Fraction(std::string_view text) {
    FractionParts parts;
    parts.Negative = text.starts_with('-');
    if (parts.Negative)
        text.remove_prefix(1);
    std::size_t slash = text.find('/');
    for (parts.Count = 1;; ++parts.Count) {
        parts.Part[static_cast<std::size_t>(parts.Count - 1)] =
            Leading_Value(text.substr(0, slash));
        if (slash == std::string_view::npos || parts.Count == 3)
            return parts;
        text.remove_prefix(slash + 1);
        slash = text.find('/');
    }
}

bool Takes_Fraction(const std::string& entry) {
    const bool isWhole = entry.find_first_of(".E") == std::string::npos;
    return isWhole && !IsZero(Leading_Value(entry));
}

void Toggle_Sign(std::string& text) {
    if (text.starts_with('-'))
        text.erase(0, 1);
    else
        text = std::string(1, '-').append(text);
}

void Append_Slash(std::string& text) {
    const bool isFull = std::count(text.begin(), text.end(), '/') == 2;
    if (!isFull && !text.ends_with('/'))
        text += '/';
}

// Decimal to fraction

constexpr std::size_t maxFractionLength = 15;
constexpr std::size_t searchedDigits = 14;

// 0 if b is 0. Fails beyond 32 bits.
double Greatest_Divisor(double a, double b) {
    const double divisor = Greatest_Common_Divisor(Whole_32(a), Whole_32(b));
    return Whole_32(std::abs(divisor));
}

bool Repeats(std::string_view digits, std::size_t block) {
    const std::size_t blocks = digits.size() / block;
    for (std::size_t i = 1; i < blocks; ++i)
        if (digits.substr(i * block, block) != digits.substr(0, block))
            return false;
    return blocks > 1;
}

// The shortest block of which the decimals are a repetition; empty if there is none. What does not
// fill a whole block at the end is not looked at. Zeros are no period.
std::string Period_Of(double value) {
    const std::string text = Format_Number(value, Fixed_Pattern(maxDigits));
    const std::string digits = text.substr(text.find('.') + 1, searchedDigits);
    for (std::size_t block = 1; block <= digits.size(); ++block)
        if (digits.find_first_not_of('0') < block && Repeats(digits, block))
            return digits.substr(0, block);
    return {};
}

// Numerator and denominator of the decimals of a positive number, not reduced.
std::pair<double, double> Decimals_As_Fraction(double value) {
    const std::string period = Period_Of(value);
    if (!period.empty())
        return {Leading_Value(period), std::pow(10, period.size()) - 1};
    const std::string text = General_Text(value);
    if (text.find('E') != std::string::npos)
        throw Failure("too many decimals for a fraction");
    const std::string decimals = text.substr(text.find('.') + 1);
    return {Leading_Value(decimals), std::pow(10, decimals.size())};
}

// The last two parts divided by their greatest divisor.
void Reduce(FractionParts& parts) {
    double& numerator = parts.Part[static_cast<std::size_t>(parts.Count - 2)];
    double& denominator = parts.Part[static_cast<std::size_t>(parts.Count - 1)];
    const double divisor = Greatest_Divisor(numerator, denominator);
    numerator = Finite(numerator / divisor);
    denominator = Finite(denominator / divisor);
}

FractionParts Number_As_Fraction(double value) {
    FractionParts parts;
    parts.Negative = value < 0;
    const double whole = std::trunc(std::abs(value));
    const auto [numerator, denominator] = Decimals_As_Fraction(std::abs(value));
    parts.Count = whole > 0 ? 3 : 2;
    parts.Part = whole > 0 ? std::array{whole, numerator, denominator}
                           : std::array{numerator, denominator, 0.0};
    Reduce(parts);
    return parts;
}

std::string Fraction_Text_Of(const FractionParts& parts) {
    std::string text(parts.Negative ? 1 : 0, '-');
    for (int i = 0; i < parts.Count; ++i)
        text.append(i > 0 ? "/" : "").append(Number_Text(parts.Part[static_cast<std::size_t>(i)]));
    return text;
}

// a/b/c as (a * c + b)/c, and without a denominator of 1.
FractionParts Improper(const FractionParts& mixed) {
    FractionParts parts = mixed;
    if (mixed.Count == 3) {
        const auto [whole, numerator, denominator] = mixed.Part;
        parts.Count = 2;
        parts.Part = {whole * denominator + numerator, denominator, 0};
        Reduce(parts);
    }
    if (parts.Part[1] == 1)
        parts.Count = 1;
    return parts;
}

// A number whose improper form is beyond the divisor's range still shows as a mixed one in turn.
void Show_Cycled(CalcMainFrm& form, const FractionParts& parts) {
    const std::string mixed = Fraction_Text_Of(parts);
    if (mixed.size() > maxFractionLength)
        return;
    form.FracCycle = form.FracCycle == 1 ? 2 : 1;
    Show_Fraction(form, form.FracCycle == 2 ? Fraction_Text_Of(Improper(parts)) : mixed);
}

void Show_Reduced_Entry(CalcMainFrm& form) {
    FractionParts parts = Read_Fraction(form.Vars.Entry.FractionText);
    const auto last = static_cast<std::size_t>(parts.Count - 1);
    if (!IsZero(parts.Part[last]) && parts.Part[last] == parts.Part[last - 1]) {
        parts.Part[0] = parts.Count == 3 ? parts.Part[0] + 1 : 1;
        parts.Count = 1;
        return Show_Fraction(form, Fraction_Text_Of(parts));
    }
    Reduce(parts);
    Show_Cycled(form, parts);
}

void Show_Number_As_Fraction(CalcMainFrm& form) {
    const double value = Shown_Value(form.Vars);
    form.Vars.Display.DisplayText = Number_Text(value);
    const double snapped = Snap12(value);
    if (snapped == std::trunc(snapped))
        ShowValue(form, value, {});
    else
        Show_Cycled(form, Number_As_Fraction(value));
}

} // namespace

double Fraction_Value(std::string_view fraction) {
    const FractionParts parts = Read_Fraction(fraction);
    const auto [a, b, c] = parts.Part;
    const double value = parts.Count == 1   ? a
                         : parts.Count == 2 ? Finite(a / b)
                                            : (a + Finite(b / c)) * Sign_Of(a);
    return parts.Negative ? -value : value;
}

void Key_Fraction(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.Conversion.SexaCount.reset();
    if (!vars.Entry.FractionEntry && !Takes_Fraction(vars.Entry.EntryText))
        return;
    vars.Entry.FractionEntry = true;
    vars.Entry.ExponentEntry = vars.Entry.SignPending = false;
    vars.Entry.KeyToken = '/';
    Fraction_Step(form);
    vars.Entry.KeyToken.clear();
}

void Fraction_Step(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (vars.Entry.FractionText.empty())
        vars.Entry.FractionText = vars.Entry.EntryText;
    if (vars.Display.ResultPending) // its digits, whatever the display mode
        vars.Entry.FractionText += Number_Text(vars.Display.LastResult);
    else if (vars.Entry.KeyToken == "/")
        Append_Slash(vars.Entry.FractionText);
    else if (vars.Entry.KeyToken == "-")
        Toggle_Sign(vars.Entry.FractionText);
    else
        vars.Entry.FractionText += vars.Entry.KeyToken;
    vars.Display.ResultPending = false;
    Show_Fraction(form, vars.Entry.FractionText);
}

void Finish_Fraction(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    if (!vars.Entry.FractionEntry)
        return;
    const bool good = Attempt([&] {
        const double value = Fraction_Value(vars.Entry.FractionText);
        vars.Entry.EntryText = Number_Text(value);
        vars.Display.DisplayText = vars.Entry.EntryText;
        vars.Display.DisplayValue = value;
    });
    Drop_Fraction(vars.Entry);
    if (good)
        return;
    vars.Display.ErrorText = "Divide by Zero";
    ShowError(form);
}

void Finish_Fraction_As_Operand(CalcMainFrm& form) {
    if (!form.Vars.Entry.FractionEntry)
        return;
    Finish_Fraction(form);
    Entry_To_Operand(form.Vars);
}

void Drop_Fraction(EntryState& entry) {
    entry.FractionText.clear();
    entry.FractionEntry = false;
}

void Erase_Fraction(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    std::string& text = vars.Entry.FractionText;
    text.pop_back();
    if (text.size() <= (text.starts_with('-') ? 2u : 1u)) { // "1/" too
        ShowValue(form, std::nullopt, "0");
        vars.Pending.ResumeText = "0.0";
        vars.Entry.EntryText.clear();
        return Drop_Fraction(vars.Entry);
    }
    if (text.find('/') != std::string::npos)
        return Show_Fraction(form, text);
    vars.Entry.EntryText = vars.Entry.MantissaText = text;
    ShowValue(form, std::nullopt, text);
    Drop_Fraction(vars.Entry);
}

void key_Dc(CalcMainFrm& form) {
    if (!Direct_Key_Begins(form))
        return;
    // A number that makes no fraction leaves the display as it is.
    Attempt([&] {
        if (form.Vars.Entry.FractionEntry)
            Show_Reduced_Entry(form);
        else
            Show_Number_As_Fraction(form);
    });
}

} // namespace Tensarix
