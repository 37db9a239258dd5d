// The largest and the smallest of a list of at least one number.
#pragma once

#include <algorithm>
#include <initializer_list>

namespace Tensarix {

inline double Largest_Of(std::initializer_list<double> list) {
    return std::max(list);
}
inline double Smallest_Of(std::initializer_list<double> list) {
    return std::min(list);
}

} // namespace Tensarix
