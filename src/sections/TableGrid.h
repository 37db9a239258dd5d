// The grids of View All and Find: sections of a family, a row each, with the properties as columns.
// The x form of the initializers; the f form, which searches, is in FindSearch.h.
//
// Each cell is written by one statement, which leaves the cell as it was if it fails.
#pragma once

#include "controls/FlexGrid.h"
#include "sections/PropertyTable.h"

#include <string_view>

namespace Tensarix {

// Where two values share a column and the second one is not tabulated.
inline constexpr std::string_view earlierValueRemark =
    "Not tabulated for this section; the text is that of the property written here first";

// Fills the grid with a family. Gives the number of sections.
struct TableInitializer {
    const Layout& Columns;

    int operator()(FlexGrid& grid, std::string_view familyCode, const SectionView& view) const;
};

enum class TableVariant { ViewAll, Find };

// Sizes the grid for so many sections, at least 14, clears it, and writes the heads. A head under
// which another property's values stand, or a k of detailing, says so in its remark.
void Lay_Out_Table(FlexGrid& grid, const Layout& layout, TableVariant variant, Profile profile,
                   int sections);
// The rows of the grid, with the head row, for so many sections.
int Table_Rows(int sections);
// Writes the designations and values of the current record into a row.
void Write_Table_Row(FlexGrid& grid, int row, const SectionRecordset& record, const Layout& layout,
                     TableVariant variant, const SectionView& view);

// The column where the values of a property stand; -1: none, as where others are written over them.
int Value_Column(const Layout& layout, TableVariant variant, std::string_view symbol);
// The column over which its head stands; -1: none, likewise.
int Head_Column(const Layout& layout, TableVariant variant, std::string_view symbol);
// The property whose head stands over a column, and the one whose values stand in it, or none.
const Property* Head_Over(const Layout& layout, TableVariant variant, int col);
const Property* Values_In(const Layout& layout, TableVariant variant, int col);
// The number in the store behind the value that Write_Table_Row writes into a column; of several
// that share it, the last that there is. Fails where there is none.
double Table_Number(const SectionRecordset& record, const Layout& layout, TableVariant variant,
                    int col, Profile profile);

// All sections of a family, closed if they can't be read, and how many there are.
SectionRecordset Family_Records(std::string_view familyCode, const SectionView& view);
int Count_Of(const SectionRecordset& records);

} // namespace Tensarix
