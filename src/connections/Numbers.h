// Numbers that both searches and their pages share.
#pragma once

#include <string>
#include <string_view>

#include "common/Failure.h"
#include "common/NumberText.h"

namespace Tensarix {

inline constexpr double pi = 3.14159265358979; // these 15 digits and no more

// The number at the start of a text that was typed in. One beyond the range is none, and counts as
// 0.
inline double Typed_Number(std::string_view text) {
    double value = 0;
    Attempt([&] { value = Leading_Value(text); });
    return value;
}

// A typed text as its number in a pattern; a blank one as it stands.
inline std::string Typed_In_Pattern(const std::string& text, std::string_view pattern) {
    return Trim(text).empty() ? text : Format_Number(Typed_Number(text), pattern);
}

} // namespace Tensarix
