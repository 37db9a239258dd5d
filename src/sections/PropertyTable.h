// The properties of the section families: which there are, from which columns of the store they
// come, and how a value becomes the text of a cell. One table of data (PropertyTable.cpp), walked
// by the initializers (Initializers.h).
#pragma once

#include "controls/Remark.h"
#include "sections/SectionStore.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace Tensarix {

enum class Profile { US = 0, SI = 1 };
enum class DimensionStyle { Decimal = 0, Imperial = 1 };

// How a screen shows sections.
struct SectionView {
    std::filesystem::path ProgramFolder;
    Profile Units = Profile::US;
    DimensionStyle Style = DimensionStyle::Decimal; // taken as Decimal under SI
};

// How a value becomes text. Ratio and Pair have no unit.
enum class PropertyKind {
    Number,       // two to four decimals
    Length,       // like Number; US lengths in feet and inches under the Imperial style
    SecondMoment, // like Number; in SI a number of mm^n shortened to a power of ten
    Pair,         // like Number, without a unit
    Ratio         // like Pair, one column for both profiles
};

struct Property {
    std::string_view Symbol;
    std::string_view Meaning;
    std::string_view USColumn, SIColumn;
    PropertyKind Kind = PropertyKind::Number;
    std::string_view USUnit = {}, SIUnit = {};
    // Columns that are taken off twice: the depth between the fillets has no column of its own.
    std::string_view USLessTwice = {}, SILessTwice = {};
    bool WritesUnit = true;
};

// What stands in one place of a layout: a row on Browse, a column on View All and on Find.
struct LayoutEntry {
    const Property* Browse;
    const Property* ViewAll;
    const Property* Find;
};

struct Layout {
    std::span<const LayoutEntry> Entries;
    int BrowseRows;    // of the grid, with its head row
    int SpareRowsFrom; // rows from here on are emptied when the layout is laid out; 0: none
    int TableColumns;  // of the View All and Find grids
    // Where the heads and the values stand on View All and Find, if not in order from column 2.
    std::span<const int> HeadColumns = {}, ValueColumns = {};
    std::size_t Unsearched = 0; // so many entries at the end are not listed on Find
};

namespace Layouts {
// NOLINTNEXTLINE(readability-identifier-naming): as the families are called
extern const Layout W, S, C, WT, ST, HSSRec, HSSSqr, HSSRnd, Pipe, SAngle, EqDAngle, UnEqDAngle;
} // namespace Layouts

// The text of a value, as it stands in the cell. Fails where the column is missing, Null, or holds
// a text where a number is needed. The style has no effect under SI.
std::string Value_Text(const SectionRecordset& record, const Property& property, Profile profile,
                       DimensionStyle style);

// The number behind a value, in the unit of the profile. Fails like Value_Text.
double Value_Number(const SectionRecordset& record, const Property& property, Profile profile);

// What the cell's text no longer tells: "Stored value: 12,900,000,000 mm^4" where a power of ten
// or the fourth decimal of a small figure lost digits of the number in the store, otherwise empty.
// It weighs more where more than 1 % was lost.
Advice Lost_Digits_Remark(const SectionRecordset& record, const Property& property, Profile profile,
                          std::string_view text);

// A meaning in one line, with single blanks.
std::string Flat_Meaning(std::string_view meaning);

// The unit under the profile; empty for Pair and Ratio.
std::string_view Unit_Text(const Property& property, Profile profile);

} // namespace Tensarix
