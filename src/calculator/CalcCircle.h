// Sine and cosine of an angle in radians (up to a million), with the same digits on every system.
#pragma once

#include <cfloat>
#include <cmath>

namespace Tensarix {

#if defined(_WIN32) && LDBL_MANT_DIG == 64 // MinGW, whose library leaves it to the processor

double Circle_Sine(double radians);
double Circle_Cosine(double radians);

#else

inline double Circle_Sine(double radians) {
    return std::sin(radians);
}

inline double Circle_Cosine(double radians) {
    return std::cos(radians);
}

#endif

} // namespace Tensarix
