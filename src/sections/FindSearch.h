// The search of Find Sections, apart from its page: which column a property is searched by, its
// unit, the lists to choose from, and the comparisons. It works on the numbers of the store, never
// on the texts of cells.
#pragma once

#include "controls/Controls.h"
#include "sections/PropertyTable.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace Tensarix {

inline constexpr std::array<std::string_view, 6> FindCriteria{"At least", "=",  ">",
                                                              "<",        ">=", "<="};

// The column that a property is searched by, as its text in the list leads to it: "bf / 2tf" gives
// BF_2TF, in SI xBF_2TF. "Tan Alpha" and "d / tw" lead to columns that do not exist, and stay in
// the lists as entries that find nothing; that is intended.
std::string FindColumnName(std::string_view property, Profile profile);

// The unit beside the value, empty where there is none. In SI it is the scaled one of the Manual's
// metric tables, although the search works on full mm; that is intended.
std::string_view FindUnitLabel(std::string_view property, Profile profile);

// Not a lower bound: the field starts with the digits that were typed. 3.25 accepts 3.25 and 3.259
// and refuses 3.24 and 3.26; 10 accepts 10.9. That is intended.
bool AtLeastMatches(double search, double field);

// The field against the search value by one of FindCriteria, in any case; another text never
// matches. "=" is exact to the last binary digit.
bool Criterion_Matches(std::string_view criterion, double search, double field);

// True if an entry of the list, read as a number, equals the value.
bool ValueListed(const ComboBox& list, double value);

// Clears the list and adds the properties of the family at a list position; fails where there is
// none, and the list is empty then.
void Find_Fill_Property(ComboBox& list, int family);

// The number of the current record that a search in this column compares, in the column's unit.
// The depth between the fillets (column T of the layouts that compute it) has no column of its
// own. Fails on a column that does not exist and on Null.
double Find_Field(const SectionRecordset& record, const Layout& layout, std::string_view column,
                  Profile profile);

// Lists the values of the property over a family, ascending in its column (a T in the order of D),
// each once, as general number texts; the text of the box stays. A value that can't be read leaves
// that of the record before (0 at the start), which is then listed like any other. Fails if the
// store can't be opened, and the list is as it was.
void Find_Populate_Value(std::string_view type, std::string_view property, Profile profile,
                         ComboBox& list, const std::filesystem::path& programFolder);

// What a user should know of a search by this property, as sentences; empty: nothing.
std::string Find_Property_Note(std::string_view type, std::string_view property, Profile profile,
                               const std::filesystem::path& programFolder);
std::string_view Find_Criterion_Note(std::string_view criterion);

} // namespace Tensarix
