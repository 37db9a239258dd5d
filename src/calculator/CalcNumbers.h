// The number rules of the calculator: what fits its display, which noise of floating arithmetic
// is hidden, and what a negative base may do. All numbers must be finite; what is not fails.
#pragma once

#include <string>
#include <string_view>

namespace Tensarix {

// The range of the calculator is that of two exponent digits.
constexpr int maxExponent = 99;
constexpr int maxDigits = 15;

// General text with at most 15 significant digits. A small number whose plain decimals the display
// would cut goes over to exponent form: "1E-15".
std::string Number_Text(double value);

// The number as its text keeps it.
double Through_Text(double value);

// The exponent written in the text; 0 if it has no "E".
int Exponent_Of(std::string_view text);

// "0." with so many zeros, that with an exponent, and "0." with so many optional digits.
std::string Fixed_Pattern(int decimals);
std::string Scientific_Pattern(int decimals);
std::string Optional_Pattern(int decimals);

// All digits of the number in exponent form, such as "1.5E+03" or "2.E+00".
std::string Full_Scientific(double value);

// The text with no more decimals than leave 15 digits.
std::string FitFifteen(std::string_view text);
// The text itself, or cut if it has more than 15 digits. A "-" in the exponent counts one digit
// off, so that 1.234567890123456E-07 keeps its sixteenth.
std::string TrimFifteen(std::string_view text);
std::string CutFifteen(std::string_view text);

// A number whose decimals begin with 14 (12) nines becomes the next whole number. There is no
// snapping downward.
double Snap14(double value);
double Snap12(double value);

// A positive number within 13 decimals of a whole one becomes that. For a negative number that has
// decimals nothing snaps and the result loses its sign, by which (-8) ^ (-1/3) is an invalid power.
double SnapWhole(double value);
bool IsWhole(double value);

// Both numbers, written with so many decimals, read as the same one.
bool Equal_To_Decimals(double a, double b, int decimals);

bool IsZero(double value);
bool IsNegative(double value);
bool HasPoint(std::string_view text);

// x ^ y; fails where a negative base has no real power, and out of range.
double Checked_Power(double x, double y);

} // namespace Tensarix
