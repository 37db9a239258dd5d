// The search of Find Sections: the loop over a family, which is the f form of the initializers, and
// the comparisons. It works on the numbers of the store, never on the texts of cells.
#pragma once

#include "controls/FlexGrid.h"
#include "sections/PropertyTable.h"

#include <array>
#include <string>
#include <string_view>

namespace Tensarix {

inline constexpr std::array<std::string_view, 6> findCriteria{"At least", "=",  ">",
                                                              "<",        ">=", "<="};

struct FindCondition {
    std::string Property, Criterion;
    double Value = 0;
};

struct FindCount {
    int Found = 0, OfFamily = 0;
    std::string Lightest =
        {}; // of those found, under its name in the active profile; a tie: the first
};

// Without searching, heads alone and blank rows; otherwise the sections that meet the condition,
// in the order of the store. A number that can't be read leaves that of the record before (0 at
// the start), which is then tested like any other.
struct FindInitializer {
    const Layout& Columns;

    FindCount operator()(FlexGrid& grid, std::string_view familyCode, const SectionView& view,
                         bool searching, const FindCondition& condition) const;
};

// Not a lower bound: the field starts with the digits that were typed. 3.25 accepts 3.25 and 3.259
// and refuses 3.24 and 3.26; 10 accepts 10.9. The note beside the search tells it.
bool AtLeastMatches(double search, double field);

// The field against the search value by one of findCriteria, in any case; another text never
// matches. "=" is exact to the last binary digit.
bool Criterion_Matches(std::string_view criterion, double search, double field);

// The number of the current record that a search in this column compares, in the column's unit.
// The depth between the fillets (column T of the layouts that compute it) has no column of its
// own and is taken to ten decimals, so that it is what its text in the list reads as. Fails on a
// column that does not exist and on Null.
double Find_Field(const SectionRecordset& record, const Layout& layout, std::string_view column,
                  Profile profile);
bool Is_Depth_Between_Fillets(std::string_view column);
double Ten_Decimals(double value);

} // namespace Tensarix
