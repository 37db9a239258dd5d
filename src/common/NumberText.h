// The only routines that turn numbers into text and back. The decimal separator is always the
// point, whatever the locale. All texts are UTF-8; blanks are the character 32 alone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Tensarix {

// A number taken to 15 significant decimal digits, ties away from zero.
// Value = 0.DIGITS x 10^Point; Digits has no leading or trailing zeros and is empty for zero.
struct DecimalText {
    bool Negative = false;
    std::string Digits;
    int Point = 0;
};

// Fails on a number that is not finite.
DecimalText To_Decimal(double value);

// Rounds half away from zero to so many decimals (negative: tens, hundreds, ...).
void Round_Decimals(DecimalText& number, int decimals);

// A pattern of "0", "#", ",", ".", and "E+0" or "e+#" with literal text (blanks) before and behind.
// "0" is a digit that always stands, "#" one that stands if needed, "," asks for thousands
// separators. With an exponent the count of integer places m decides: the exponent is a multiple
// of m. A value that rounds to zero has no sign. Fails on a number that is not finite.
std::string Format_Number(double value, std::string_view pattern);

// Default number text: up to 15 significant digits, no trailing zeros, "1.5E+15" from 1E+15
// upwards, and "1E-16" where the plain decimal would need more than 15 decimals.
std::string General_Text(double value);

// True if the whole text, after trimming, reads as one decimal number: optional sign, digits with
// an optional point (".5" and "5." pass), optional exponent. Empty, a lone point, and numbers
// beyond the range of a double are not numeric.
bool Is_Numeric(std::string_view text);

// The number at the start of the text. Blanks are skipped, also inside the number; reading stops
// at the first character that can't continue it. No number: 0. Beyond the range: fails.
double Leading_Value(std::string_view text);

// The number that the whole text reads as; fails where Is_Numeric is false.
double Text_Number(std::string_view text);

// Nearest whole number, a tie to the even one.
double Round_Half_Even(double value);

// Rounded half to even; fails outside the range of the type.
std::int16_t Whole_16(double value);
std::int32_t Whole_32(double value);

inline bool Is_Digit(char c) {
    return c >= '0' && c <= '9';
}

// Without the blanks at both ends.
std::string Trim(std::string_view text);

// ASCII letters in capitals; everything else as it stands.
std::string Upper(std::string_view text);

// Every occurrence of a piece replaced, from the left.
std::string Replace_All(std::string_view text, std::string_view piece, std::string_view by);

} // namespace Tensarix
