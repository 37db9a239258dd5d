// The version record of the program.
#pragma once

#include <string>
#include <string_view>

namespace Tensarix {

inline constexpr std::string_view applicationTitle = "Tensarix";
inline constexpr int majorVersion = 1;
inline constexpr int minorVersion = 0;
inline constexpr std::string_view legalLine = "Copyright \xC2\xA9 2026 The Tensarix developers";

// The caption of the main window.
std::string Window_Caption();

} // namespace Tensarix
