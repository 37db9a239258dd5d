// What is associated with a property: the column that a search for it goes by, the unit beside the
// search value, and the short text of its SI figure.
#pragma once

#include "sections/PropertyTable.h"

#include <string>
#include <string_view>

namespace Tensarix {

// A large whole number as a power-of-ten text: 416000000 gives 416x10^6. The exponent is a multiple
// of the number of digits before it, and digits that do not fit are rounded away, so 12900000000
// gives 1x10^10; a number without a digit 0, or a negative one, gives "0.00". The remark of the
// cell tells the stored number then (Lost_Digits_Remark).
std::string FormatSiProperty(double value);

// The column that a property is searched by, as its text in the list leads to it: "bf / 2tf" gives
// BF_2TF, in SI xBF_2TF. "Tan Alpha" and "d / tw" lead to columns that do not exist: they stay in
// the lists, find nothing, and the note beside the search tells it.
std::string FindColumnName(std::string_view property, Profile profile);

// The unit beside the value, empty where there is none. In SI it is the scaled one of the Manual's
// metric tables, although the search works on full mm; the note beside the search tells it.
std::string_view FindUnitLabel(std::string_view property, Profile profile);

} // namespace Tensarix
