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
#include <string>

namespace Tensarix {

inline constexpr std::string_view StaleValueRemark =
    "Not tabulated for this section; the text is left from the section shown before";
// On View All and Find, where two values share a column.
inline constexpr std::string_view EarlierValueRemark =
    "Not tabulated for this section; the text is that of the property written here first";

// On a "k" that isn't read from the design values.
inline constexpr std::string_view DetailingRemark =
    "The detailing value, kdet, not the design value";

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

// Gives the number of sections.
struct TableInitializer {
    const Layout& Columns;

    int operator()(FlexGrid& grid, std::string_view familyCode, const SectionView& view) const;
};

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

inline constexpr FindInitializer fWShape_Initializer{Layouts::W};
inline constexpr FindInitializer fSShape_Initializer{Layouts::S};
inline constexpr FindInitializer fCShape_Initializer{Layouts::C};
inline constexpr FindInitializer fWTShape_Initializer{Layouts::WT};
inline constexpr FindInitializer fSTShape_Initializer{Layouts::ST};
inline constexpr FindInitializer fHSSRec_Initializer{Layouts::HSSRec};
inline constexpr FindInitializer fHSSSqr_Initializer{Layouts::HSSSqr};
inline constexpr FindInitializer fHSSRnd_Initializer{Layouts::HSSRnd};
inline constexpr FindInitializer fPipe_Initializer{Layouts::Pipe};
inline constexpr FindInitializer fSAngle_Initializer{Layouts::SAngle};
inline constexpr FindInitializer fEqDAngle_Initializer{Layouts::EqDAngle};
inline constexpr FindInitializer fUnEqDAngle_Initializer{Layouts::UnEqDAngle};

// The pieces that View All and Find share.
enum class TableVariant { ViewAll, Find };

// Sizes the grid for so many rows with the head row, clears it, and writes the heads. A head under
// which another property's values stand, or a k of detailing, says so in its remark.
void Lay_Out_Table(FlexGrid& grid, const Layout& layout, TableVariant variant, Profile profile,
                   int rows);
// Writes the designations and values of the current record into a row.
void Write_Table_Row(FlexGrid& grid, int row, const SectionRecordset& record, const Layout& layout,
                     TableVariant variant, const SectionView& view);
// The least number of rows of these grids, with the head row.
inline constexpr double LeastTableRows = 15;

} // namespace Tensarix
