// What a user should know of a search, as sentences beside it.
#pragma once

#include "sections/PropertyTable.h"

#include <filesystem>
#include <string_view>

namespace Tensarix {

// Of a search by this property, over the figures of the family; empty: nothing.
Advice Find_Property_Note(std::string_view type, std::string_view property, Profile profile,
                          const std::filesystem::path& programFolder);
std::string_view Find_Criterion_Note(std::string_view criterion);

} // namespace Tensarix
