// Elementary functions over short arrays, in place. Where the processor has AVX2 the vector forms
// of the C library do the work (a few units in the last place off), elsewhere a plain loop.
#pragma once

#include <cstddef>

namespace Tensarix {

// (1 - e^value)^exponent of values not above 0.
void Saturate_Each(double* values, std::size_t count, double exponent);
// A negative value gives NaN.
void Raise_Each(double* values, std::size_t count, double exponent);
// In radians.
void Arctangent_Each(double* values, std::size_t count);

} // namespace Tensarix
