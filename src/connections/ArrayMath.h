// Elementary functions over short arrays, in place. ArrayMath.cpp alone is compiled with relaxed
// arithmetic, so that the compiler may take several numbers at once: results are a few units in the
// last place off those of the C library.
#pragma once

#include <cstddef>

namespace Tensarix {

// value^exponent. A negative value gives NaN.
void Raise_Each(double* values, std::size_t count, double exponent);
// In radians.
void Arctangent_Each(double* values, std::size_t count);

} // namespace Tensarix
