// Small arithmetic that more than one room needs.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>

namespace Tensarix {

// The largest and the smallest of a list of at least one number.
inline double Largest_Of(std::initializer_list<double> list) {
    return std::max(list);
}
inline double Smallest_Of(std::initializer_list<double> list) {
    return std::min(list);
}

// -1, 0 or +1.
inline double Sign_Of(double value) {
    return value > 0 ? 1.0 : value < 0 ? -1.0 : 0.0;
}

// Euclid's algorithm; 0 if b is 0, b if a is 0. Fails beyond 32 bits.
std::int32_t Greatest_Common_Divisor(double a, double b);

// a - trunc(a / b) * b, with the sign of a. Fails if b is 0 or the quotient is out of range.
double Float_Remainder(double a, double b);

} // namespace Tensarix
