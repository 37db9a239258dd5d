// The three routines that fill the property grid of the beam page: W, M and HP; S; C and MC. Each
// lays the grid out anew, one row a property, and writes the values of one section in US units. A
// value that the section doesn't have leaves its cell blank.
#pragma once

#include "controls/FlexGrid.h"
#include "sections/PropertyTable.h"

#include <filesystem>
#include <string_view>

namespace Tensarix {

struct BeamRows {
    const Layout& Rows;
    bool RxInSI = false; // the row rx reads the SI column, under the unit in.

    // size: the US designation. Never fails.
    void operator()(FlexGrid& grid, std::string_view size,
                    const std::filesystem::path& programFolder) const;
};

extern const BeamRows WShape_For_AllowableLoad, SShape_For_AllowableLoad, CShape_For_AllowableLoad;

// Of the channels' row rx; behind it the figure to use, if there is one.
inline constexpr std::string_view siColumnRemark =
    "This row reads the SI figure of the section, in mm";

} // namespace Tensarix
