// Elementary functions over short arrays, in place. Where the processor has AVX2 the vector forms
// of the C library do the work (a few units in the last place off), elsewhere a plain loop.
#pragma once

#include <cstddef>

namespace Tensarix {

void Exp_Each(double* values, std::size_t count);
// A negative value gives NaN.
void Raise_Each(double* values, std::size_t count, double exponent);
// In radians.
void Arctangent_Each(double* values, std::size_t count);

} // namespace Tensarix
