// The list of values that a property has over a family.
#pragma once

#include "controls/Controls.h"
#include "sections/PropertyTable.h"

#include <filesystem>
#include <string_view>

namespace Tensarix {

// Lists the values of the property over a family, ascending in its column (a T in the order of D),
// each once, as general number texts; the text of the box stays. A value that can't be read leaves
// that of the record before (0 at the start), which is then listed like any other. Fails if the
// store can't be opened, and the list is as it was.
void Find_Populate_Value(std::string_view type, std::string_view property, Profile profile,
                         ComboBox& list, const std::filesystem::path& programFolder);

// True if an entry of the list, read as a number, equals the value.
bool ValueListed(const ComboBox& list, double value);

} // namespace Tensarix
