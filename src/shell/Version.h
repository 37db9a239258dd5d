// The version record of the program.
#pragma once

#include <string>
#include <string_view>

namespace Tensarix {

inline constexpr std::string_view ApplicationTitle = "Tensarix";
inline constexpr int MajorVersion = 1;
inline constexpr int MinorVersion = 0;
inline constexpr std::string_view LegalLine = "Copyright \xC2\xA9 2026 The Tensarix developers";

// The caption of the main window.
std::string Window_Caption();

} // namespace Tensarix
