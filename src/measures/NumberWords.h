// Numbers in English words, for the voice: capitalised, without hyphens or commas. There is no word
// for zero. Decimals are read as one number of two digits: 1.05 is "One Point Five" and 1.5 "One
// Point Fifty": lengths, all that is spoken of them, have no decimals.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Tensarix {

// The names are for a whole unit and for its hundredth, as dollars and cents; empty: none. With the
// second alone the whole amount counts in hundredths. The whole part is cut off and the two
// decimals are rounded, each for itself. A blank stands between the words of the whole and of the
// fraction even where one of them is empty, so "Seven " for 7 and " " for 0; callers trim. A
// number whose general text has an exponent gives words without meaning; one that isn't finite
// fails.
std::string Number_To_Words(double value, std::string_view unit1 = {}, std::string_view unit2 = {});

// The denominator of a fraction, plural where the numerator is above 1: "Sixteenth", "Halves".
// 8 reads "Eight" without a closing h: said in a plural, "Eights", nobody hears it.
std::string Ordinal_Words(std::int16_t denominator, std::int16_t numerator);

// Three digits and the scale word of their group (1: the rightmost, 2: thousands, ...; beyond 7
// "Infinitillion"). Blanks stand between the pieces even where one is empty.
std::string Group_To_Words(std::string_view digits, std::int16_t group);

// A digit outside 0 to 9 gives the empty text.
std::string Hundreds_To_Words(std::int16_t digit);
std::string Tens_To_Words(std::int16_t tens, std::int16_t units);
std::string Teens_To_Words(std::int16_t units);
std::string Units_To_Words(std::int16_t digit);

// Zeros in front up to the next multiple of three digits; a full multiple gets three more.
std::string Pad_To_Groups(std::string_view digits);

} // namespace Tensarix
