// From decimal feet to the text that stands in the grids (12'-6 3/8") or that the voice reads
// (Twelve Feet and Six and Three-Eights Inches), and from the one text to the other.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Tensarix {

// Every caller shows lengths to the nearest sixteenth of an inch.
inline constexpr int lengthDenominator = 16;

// value: feet, of either sign. denominator: of the fraction of an inch, to which the length is
// rounded, ties to the even numerator. inchesOnly 1: feet are folded into the inches. inWords other
// than 0: the long form, where a negative length stands in parentheses.
// A fraction that rounds up is carried into the inches and no further, so that 5.9999 feet reads
// 5'-12"; a tiny negative length keeps its dash, -0". Both read back as the same length, and
// docs/validation.md lists them.
// Never fails. The text is empty where a step does: a value that isn't finite, more than 32767
// feet in words, a denominator of 0 or beyond 16 bits.
std::string Format_FeetInch(double value, int denominator, int inchesOnly, int inWords);

// The same as it stands in the grids: 12'-6 3/8".
std::string Length_Text(double feet);
// The same with all whole inches, 3'-0 11/16", where that has 3'-11/16", which is soon read as
// 3'-11".
std::string Full_Length_Text(double feet);

// feet, inches and the numerator are whole numbers; g is the greatest common divisor of numerator
// and denominator, and fails if it is 0. Every text ends in the inch mark.
std::string FeetInch_Digits(std::int16_t inchesOnly, double feet, double inches, double numerator,
                            std::int16_t g, std::int16_t denominator);

// The same in words. Beside a fraction "Inch" is singular whatever the amount, unless both feet and
// inches stand before it, as the voice has always read it.
std::string FeetInch_Words(std::int16_t inchesOnly, std::int16_t feet, std::int16_t inches,
                           std::int16_t numerator, std::int16_t g, std::int16_t denominator);

// A text that carries its marks, as FeetInch_Digits writes it, in words. lengthError where it has
// no reading: no inch or foot mark, a blank without a fraction. Feet and inches are rounded to
// whole numbers, ties to even, and zero has no word: 12'-0" reads "Twelve Feet and  Inch"
// in the read-out. Never fails.
std::string FeetInch_Text_To_Words(std::string_view text);

} // namespace Tensarix
