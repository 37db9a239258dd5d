#include "common/Arithmetic.h"

#include "common/Failure.h"
#include "common/NumberText.h"

#include <cmath>

namespace Tensarix {

double Float_Remainder(double a, double b) {
    return Finite(a - std::trunc(Finite(a / b)) * b);
}

std::int32_t Greatest_Common_Divisor(double a, double b) {
    if (b == 0)
        return 0;
    for (double rest = Float_Remainder(a, b); rest != 0; rest = Float_Remainder(a, b)) {
        a = b;
        b = rest;
    }
    return Whole_32(b);
}

} // namespace Tensarix
