// Numbers that both searches and their pages share.
#pragma once

#include <string_view>

#include "common/Failure.h"
#include "common/NumberText.h"

namespace Tensarix {

inline constexpr double pi = 3.14159265358979; // these 15 digits and no more

// -1, 0 or +1.
inline double Sgn(double value) {
    return value > 0 ? 1.0 : value < 0 ? -1.0 : 0.0;
}

// The number at the start of a text that was typed in. One beyond the range is none, and counts as
// 0.
inline double Typed_Number(std::string_view text) {
    double value = 0;
    Attempt([&] { value = Leading_Value(text); });
    return value;
}

} // namespace Tensarix
