#include "measures/FeetInchFormatting.h"

#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchParsing.h"
#include "measures/NumberWords.h"

#include <cmath>

namespace Tensarix {

namespace {

constexpr std::int16_t fold = 1; // the value of inchesOnly that folds feet into inches

struct Length {
    double Sign = 0, Feet = 0; // -1, 0, 1; whole ones
    std::int16_t Inches = 0, Numerator = 0, Divisor = 0;
};

std::int16_t Common_Divisor(std::int16_t numerator, std::int16_t denominator) {
    return Whole_16(Greatest_Common_Divisor(numerator, denominator));
}

// The fraction is the only thing that is rounded; feet and inches are cut off.
Length Split_Length(double value, std::int16_t denominator) {
    Length length;
    const double size = std::abs(Finite(value));
    length.Sign = Sign_Of(value);
    length.Feet = std::trunc(size);
    const double rest = (size - length.Feet) * inchesPerFoot;
    length.Inches = Whole_16(std::trunc(rest));
    length.Numerator = Whole_16((rest - length.Inches) * denominator);
    if (length.Numerator == denominator) {
        ++length.Inches;
        length.Numerator = 0;
    }
    length.Divisor = Common_Divisor(length.Numerator, denominator);
    return length;
}

std::string Digit_Form(const Length& length, std::int16_t inchesOnly, std::int16_t denominator) {
    const std::string text = FeetInch_Digits(inchesOnly, length.Feet, length.Inches,
                                             length.Numerator, length.Divisor, denominator);
    return length.Sign < 0 ? dashMark + text : text;
}

std::string Word_Form(const Length& length, std::int16_t inchesOnly, std::int16_t denominator) {
    const std::string text = FeetInch_Words(inchesOnly, Whole_16(length.Feet), length.Inches,
                                            length.Numerator, length.Divisor, denominator);
    return length.Sign < 0 ? '(' + text + ')' : text;
}

std::string Whole_Text(double number) {
    return Format_Number(number, "0");
}

std::string Words(double number) {
    return Trim(Number_To_Words(number));
}

std::string Feet_Words(double feet) {
    return Words(feet) + (feet > 1 ? " Feet" : " Foot");
}

std::string_view Inch_Name(double inches) {
    return inches > 1 ? " Inches" : " Inch";
}

std::string Inch_Words(double inches) {
    return Words(inches).append(Inch_Name(inches));
}

std::string Fraction_Words(std::int16_t numerator, std::int16_t denominator) {
    return Words(numerator) + '-' + Ordinal_Words(denominator, numerator);
}

void Join(std::string& words, const std::string& piece) {
    if (!words.empty())
        words += " and ";
    words += piece;
}

// The whole number that a piece of a text stands for.
std::int16_t Piece_Number(std::string_view piece) {
    return Whole_16(Leading_Value(piece));
}

// The number from one position (from 1) up to, without, another one.
std::int16_t Number_Between(std::string_view text, int from, int to) {
    if (to < from)
        throw Failure("the piece ends before it starts");
    return Piece_Number(
        text.substr(static_cast<std::size_t>(from - 1), static_cast<std::size_t>(to - from)));
}

std::int16_t Number_From(std::string_view text, int from) {
    return Piece_Number(text.substr(static_cast<std::size_t>(from - 1)));
}

// All but the last character, which should be the mark, as a number: 5'x has no reading.
std::int16_t Number_Ahead_Of_Mark(std::string_view text) {
    return Whole_16(Text_Number(text.substr(0, text.size() - 1)));
}

std::string Marked_Inches_To_Words(std::string_view text) {
    const int blank = Position_Of(text, blankMark);
    const int slash = Position_Of(text, slashMark);
    if (blank == 0 && slash == 0)
        return Inch_Words(Number_Ahead_Of_Mark(text));
    if (blank == 0)
        return Fraction_Words(Number_Between(text, 1, slash), Number_From(text, slash + 1)) +
               " Inch";
    const std::int16_t inches = Number_Between(text, 1, blank);
    const std::int16_t numerator = Number_Between(text, blank + 1, slash);
    return Words(inches) + " and " + Fraction_Words(numerator, Number_From(text, slash + 1)) +
           std::string{Inch_Name(inches)};
}

// The inch part starts two characters behind the foot mark, right behind the dash.
std::string Full_Form_To_Words(std::string_view text) {
    const int foot = Position_Of(text, footMark);
    const int blank = Position_Of(text, blankMark);
    const int slash = Position_Of(text, slashMark);
    const int start = foot + 2;
    const std::string feet = Feet_Words(Number_Between(text, 1, foot + 1)) + " and ";
    if (blank == 0 && slash == 0)
        return feet + Inch_Words(Number_From(text, start));
    if (blank == 0)
        return feet + Fraction_Words(Number_From(text, start), Number_From(text, slash + 1)) +
               " Inch";
    const std::int16_t inches = Number_Between(text, start, blank);
    const std::int16_t numerator = Number_Between(text, blank + 1, slash);
    return feet + Words(inches) + " and " +
           Fraction_Words(numerator, Number_From(text, slash + 1)) + std::string{Inch_Name(inches)};
}

// Empty where the form has no reading.
std::string Form_To_Words(std::string_view text) {
    switch (Classify_FeetInch(text)) {
    case formFeet:
        return Feet_Words(Number_Ahead_Of_Mark(text));
    case formMarkedInches:
        return Marked_Inches_To_Words(text);
    case formFull:
        return Full_Form_To_Words(text);
    default:
        return {};
    }
}

} // namespace

std::string FeetInch_Digits(std::int16_t inchesOnly, double feet, double inches, double numerator,
                            std::int16_t g, std::int16_t denominator) {
    const double divisor = g;
    const double n = Finite(numerator / divisor), d = Finite(denominator / divisor);
    const bool folded = inchesOnly == fold || feet == 0;
    const double whole = folded ? feet * inchesPerFoot + inches : inches;
    std::string text;
    if (!folded)
        text = Whole_Text(feet) + footMark + dashMark;
    if (whole != 0 || numerator == 0)
        text += Whole_Text(whole);
    if (whole != 0 && numerator != 0)
        text += blankMark;
    if (numerator != 0)
        text += Whole_Text(n) + slashMark + Whole_Text(d);
    return text + inchMark;
}

std::string FeetInch_Words(std::int16_t inchesOnly, std::int16_t feet, std::int16_t inches,
                           std::int16_t numerator, std::int16_t g, std::int16_t denominator) {
    const double divisor = g;
    const std::int16_t n = Whole_16(numerator / divisor), d = Whole_16(denominator / divisor);
    const bool folded = inchesOnly == fold || feet == 0;
    const int whole = folded ? feet * inchesPerFoot + inches : inches;
    std::string words = folded ? "" : Feet_Words(feet);
    if (whole != 0)
        Join(words, Words(whole));
    if (numerator != 0) {
        Join(words, Fraction_Words(n, d));
        return words + (feet != 0 && inches != 0 ? " Inches" : " Inch");
    }
    if (words.empty())
        return "0 Inch";
    return whole != 0 ? words.append(Inch_Name(whole)) : words;
}

std::string Format_FeetInch(double value, int denominator, int inchesOnly, int inWords) {
    std::string text;
    Attempt([&] {
        const std::int16_t parts = Whole_16(denominator);
        const std::int16_t folding = inchesOnly == fold ? fold : std::int16_t{0};
        const Length length = Split_Length(value, parts);
        text =
            inWords == 0 ? Digit_Form(length, folding, parts) : Word_Form(length, folding, parts);
    });
    return text;
}

std::string Length_Text(double feet) {
    return Format_FeetInch(feet, lengthDenominator, 0, 0);
}

std::string Full_Length_Text(double feet) {
    std::string text = Length_Text(feet);
    const std::size_t inches = text.find('\'');
    if (inches != std::string::npos && text.find('/') != std::string::npos &&
        text.find(' ', inches) == std::string::npos)
        text.insert(inches + 2, "0 ");
    return text;
}

std::string FeetInch_Text_To_Words(std::string_view text) {
    const bool negative = text.starts_with(dashMark);
    std::string words;
    Attempt([&] { words = Form_To_Words(negative ? text.substr(1) : text); });
    if (Trim(words).empty())
        return std::string{lengthError};
    return negative ? '(' + words + ')' : words;
}

} // namespace Tensarix
