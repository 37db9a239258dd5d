// The grid of Browse: one section, a row a property. The plain form of the initializers.
//
// Each cell is written by one statement; one that fails (a Null, a missing column, a text where a
// number is needed) leaves its cell as it was, and the next one runs. A value that was left
// standing carries a remark until it is written again.
#pragma once

#include "controls/FlexGrid.h"
#include "sections/PropertyTable.h"

#include <string_view>

namespace Tensarix {

inline constexpr std::string_view staleValueRemark =
    "Not tabulated for this section; the text is left from the section shown before";
// On a "k" that isn't read from the design values.
inline constexpr std::string_view detailingRemark =
    "The detailing value, kdet, not the design value";

// labelMode writes the fixed cells of the layout; otherwise the values and units of the section
// that the text of sizeList names. Without such a section the grid keeps its whole content.
struct PlainInitializer {
    const Layout& Rows;
    bool BySIName = false; // the look-up goes by the SI name

    void operator()(FlexGrid& grid, const ComboBox& sizeList, const SectionView& view,
                    bool labelMode) const;
};

// What all grids of properties share: a value with the remark on digits that it lost.
void Write_Value(FlexGrid& grid, int row, int col, const SectionRecordset& record,
                 const Property& property, const SectionView& view);
// A text that was not written now tells something of another section.
void Mark_Left(FlexGrid& grid, int row, int col, std::string_view remark);
bool Is_Detailing_K(const Property& property, Profile profile);

} // namespace Tensarix
