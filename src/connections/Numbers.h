// Numbers that both searches share.
#pragma once

namespace Tensarix {

inline constexpr double pi = 3.14159265358979; // these 15 digits and no more

// -1, 0 or +1.
inline double Sgn(double value) {
    return value > 0 ? 1.0 : value < 0 ? -1.0 : 0.0;
}

} // namespace Tensarix
