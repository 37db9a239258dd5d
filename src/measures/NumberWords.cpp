#include "measures/NumberWords.h"

#include "common/NumberText.h"

#include <array>
#include <cmath>

namespace Tensarix {

namespace {

using DigitWords = std::array<std::string_view, 10>;

constexpr DigitWords unitWords = {"",     "One", "Two",   "Three", "Four",
                                  "Five", "Six", "Seven", "Eight", "Nine"};
constexpr DigitWords teenWords = {"Ten",     "Eleven",  "Twelve",    "Thirteen", "Fourteen",
                                  "Fifteen", "Sixteen", "Seventeen", "Eighteen", "Nineteen"};
// The trailing blank belongs to the word.
constexpr DigitWords tensWords = {"",       "",       "Twenty ",  "Thirty ", "Forty ",
                                  "Fifty ", "Sixty ", "Seventy ", "Eighty ", "Ninety "};
constexpr DigitWords ordinalWords = {"",      "",      "Half",    "Third", "Fourth",
                                     "Fifth", "Sixth", "Seventh", "Eight", "Ninth"};
constexpr std::array<std::string_view, 8> scaleWords = {
    "", "", "Thousand", "Million", "Billion", "Trillion", "Quadrillion", "Quintillion"};
constexpr std::string_view beyondScale = "Infinitillion";

struct Replacement {
    std::string_view Piece, By;
};

// From a cardinal with "th" behind it to the ordinal, in this order.
constexpr Replacement ordinalMending[] = {
    {"tyth", "tieth"},       {"iveth", "ifth"},  {"Twoth", "Second"}, {"Threeth", "Third"},
    {"Twelveth", "Twelfth"}, {"Oneth", "First"}, {"tth", "th"},       {"Nineth", "Ninth"},
};

constexpr std::size_t groupDigits = 3;

std::string Word_Of(const DigitWords& words, std::int16_t digit) {
    return digit >= 0 && digit <= 9 ? std::string{words[static_cast<std::size_t>(digit)]}
                                    : std::string{};
}

// 0 for anything that is no digit.
std::int16_t Digit_At(std::string_view digits, std::size_t at) {
    const char c = at < digits.size() ? digits[at] : '0';
    return static_cast<std::int16_t>(Is_Digit(c) ? c - '0' : 0);
}

std::string_view Scale_Word(std::int16_t group) {
    return group >= 1 && static_cast<std::size_t>(group) < scaleWords.size()
               ? scaleWords[static_cast<std::size_t>(group)]
               : beyondScale;
}

std::string Digits_To_Words(std::string_view digits) {
    const std::string padded = Pad_To_Groups(digits);
    const std::size_t groups = padded.size() / groupDigits;
    std::string words;
    for (std::size_t i = 0; i < groups; ++i) {
        const std::string_view group =
            std::string_view{padded}.substr(i * groupDigits, groupDigits);
        words =
            Trim(words) + ' ' + Trim(Group_To_Words(group, static_cast<std::int16_t>(groups - i)));
    }
    return Trim(words);
}

// The texts that the words are made from.
struct Amount {
    std::string Whole, Fraction;
};

Amount Split_Amount(double value, bool hundredthsOnly) {
    const std::string whole = General_Text(std::trunc(hundredthsOnly ? value * 100 : value));
    const std::string fixed = hundredthsOnly ? whole : Format_Number(value, "#0.00");
    return {whole, fixed.substr(fixed.find('.') + 1)}; // without a point: all of it
}

// A blank, the unit's name, and the plural s where the number is above 1.
std::string Unit_Name(std::string_view unit, std::string_view number) {
    return ' ' + std::string{unit} + (Leading_Value(number) > 1 ? "s" : "");
}

} // namespace

std::string Units_To_Words(std::int16_t digit) {
    return Word_Of(unitWords, digit);
}

std::string Teens_To_Words(std::int16_t units) {
    return Word_Of(teenWords, units);
}

std::string Tens_To_Words(std::int16_t tens, std::int16_t units) {
    if (tens == 0)
        return Units_To_Words(units);
    if (tens == 1)
        return Teens_To_Words(units);
    return tens >= 2 && tens <= 9 ? Word_Of(tensWords, tens) + Units_To_Words(units) : "";
}

std::string Hundreds_To_Words(std::int16_t digit) {
    return digit > 0 ? Units_To_Words(digit) + " Hundred" : "";
}

std::string Group_To_Words(std::string_view digits, std::int16_t group) {
    const std::string_view scale = Leading_Value(digits) != 0 ? Scale_Word(group) : "";
    const std::string hundreds = Hundreds_To_Words(Digit_At(digits, 0));
    const std::string tens = Tens_To_Words(Digit_At(digits, 1), Digit_At(digits, 2));
    return Trim(hundreds) + ' ' + Trim(tens) + ' ' + std::string{scale};
}

std::string Pad_To_Groups(std::string_view digits) {
    return std::string(groupDigits - digits.size() % groupDigits, '0').append(digits);
}

std::string Number_To_Words(double value, std::string_view unit1, std::string_view unit2) {
    const std::string whole = Trim(unit1), hundredth = Trim(unit2);
    const Amount amount = Split_Amount(value, whole.empty() && !hundredth.empty());
    std::string words = Digits_To_Words(amount.Whole);
    std::string fraction = Digits_To_Words(amount.Fraction);
    const bool hasWords = !words.empty(), hasFraction = !fraction.empty();
    if (hundredth.empty()) {
        if (hasFraction)
            fraction = "Point " + fraction;
        if (!whole.empty() && (hasFraction || hasWords))
            fraction += Unit_Name(whole, amount.Whole);
    } else if (whole.empty()) {
        fraction.clear();
        if (hasWords)
            words += Unit_Name(hundredth, amount.Fraction);
    } else {
        if (hasFraction)
            fraction = (hasWords ? "And " : "") + fraction + Unit_Name(hundredth, amount.Fraction);
        if (hasWords)
            words += Unit_Name(whole, amount.Whole);
    }
    return Trim(words) + ' ' + Trim(fraction);
}

std::string Ordinal_Words(std::int16_t denominator, std::int16_t numerator) {
    const bool inTable = denominator >= 2 && denominator <= 9;
    std::string word =
        inTable ? Word_Of(ordinalWords, denominator) : Trim(Number_To_Words(denominator)) + "th";
    for (const Replacement& mending : ordinalMending)
        word = Replace_All(word, mending.Piece, mending.By);
    if (numerator > 1)
        word = denominator == 2 ? "Halves" : word + 's';
    return Trim(word);
}

} // namespace Tensarix
