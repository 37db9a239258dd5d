// What the tool that writes the section store and the routines that read it agree on.
#pragma once

#include <cstdint>
#include <string_view>

namespace Tensarix {

// An SQLite file. It keeps the name it has always had, whatever its format is now.
inline constexpr std::string_view sectionStoreFile = "ShapeDataBase.mdb";

// Kept in the store as a property and asked for by whoever opens it; it protects nothing.
inline constexpr std::string_view sectionStorePassword = "KVQ04417263951";

// "TnsX", in the place that SQLite has for the number of the program that owns a file.
inline constexpr std::int32_t sectionStoreApplicationId = 0x546E7358;
inline constexpr std::int32_t sectionStoreVersion = 1;

// StoreProperty(Name, Value): the row of this name holds the password.
inline constexpr std::string_view passwordProperty = "Password";

} // namespace Tensarix
