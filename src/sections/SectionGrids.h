// The named initializers: twelve layouts, each in the plain form for Browse (one section, a row a
// property), the x form for View All (a family, a row a section) and the f form for Find. Each is
// an entry point into the property table.
//
// Each cell is written by one statement; one that fails (a Null, a missing column, a text where a
// number is needed, no record) leaves its cell as it was, and the next one runs. A value that was
// left standing carries a remark until it is written again.
#pragma once

#include "controls/FlexGrid.h"
#include "sections/PropertyTable.h"

#include <filesystem>

namespace Tensarix {

inline constexpr std::string_view StaleValueRemark =
    "Not tabulated for this section; the text is left from the section shown before";

// What all three forms share.
struct SectionView {
    std::filesystem::path ProgramFolder;
    Profile Units = Profile::US;
    DimensionStyle Style = DimensionStyle::Decimal; // taken as Decimal under SI
};

// labelMode writes the fixed cells of the layout; otherwise the values and units of the section
// that the text of sizeList names.
struct PlainInitializer {
    const Layout& Rows;
    bool BySIName = false; // the look-up goes by the SI name

    void operator()(FlexGrid& grid, const ComboBox& sizeList, const SectionView& view,
                    bool labelMode) const;
};

struct TableInitializer {
    const Layout& Columns;

    void operator()(FlexGrid& grid, std::string_view familyCode, const SectionView& view) const;
};

inline constexpr PlainInitializer WShape_Initializer{Layouts::W};
inline constexpr PlainInitializer SShape_Initializer{Layouts::S};
inline constexpr PlainInitializer CShape_Initializer{Layouts::C};
inline constexpr PlainInitializer WTShape_Initializer{Layouts::WT};
inline constexpr PlainInitializer STShape_Initializer{Layouts::ST};
inline constexpr PlainInitializer HSSRec_Initializer{Layouts::HSSRec};
inline constexpr PlainInitializer HSSSqr_Initializer{Layouts::HSSSqr};
inline constexpr PlainInitializer HSSRnd_Initializer{Layouts::HSSRnd};
inline constexpr PlainInitializer Pipe_Initializer{Layouts::Pipe, true};
inline constexpr PlainInitializer EqSAngle_Initializer{Layouts::SAngle};
inline constexpr PlainInitializer EqDAngle_Initializer{Layouts::EqDAngle};
inline constexpr PlainInitializer UnEqDAngle_Initializer{Layouts::UnEqDAngle};

inline constexpr TableInitializer xWShape_Initializer{Layouts::W};
inline constexpr TableInitializer xSShape_Initializer{Layouts::S};
inline constexpr TableInitializer xCShape_Initializer{Layouts::C};
inline constexpr TableInitializer xWTShape_Initializer{Layouts::WT};
inline constexpr TableInitializer xSTShape_Initializer{Layouts::ST};
inline constexpr TableInitializer xHSSRec_Initializer{Layouts::HSSRec};
inline constexpr TableInitializer xHSSSqr_Initializer{Layouts::HSSSqr};
inline constexpr TableInitializer xHSSRnd_Initializer{Layouts::HSSRnd};
inline constexpr TableInitializer xPipe_Initializer{Layouts::Pipe};
inline constexpr TableInitializer xSAngle_Initializer{Layouts::SAngle};
inline constexpr TableInitializer xEqDAngle_Initializer{Layouts::EqDAngle};
inline constexpr TableInitializer xUnEqDAngle_Initializer{Layouts::UnEqDAngle};

// The pieces that View All and Find share.
enum class TableVariant { ViewAll, Find };

// Sizes the grid for so many rows with the head row, clears it, and writes the heads.
void Lay_Out_Table(FlexGrid& grid, const Layout& layout, TableVariant variant, Profile profile,
                   int rows);
// Writes the designations and values of the current record into a row.
void Write_Table_Row(FlexGrid& grid, int row, const SectionRecordset& record, const Layout& layout,
                     TableVariant variant, const SectionView& view);
// The least number of rows of these grids, with the head row.
inline constexpr double LeastTableRows = 15;

} // namespace Tensarix
