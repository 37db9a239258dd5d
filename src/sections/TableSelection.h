// What the current cell of View All and of Find tells, in the status bar and aloud.
#pragma once

#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"
#include "sections/PropertyTable.h"

#include <string>

namespace Tensarix {

// " SELECTION:   W18x50  [W460x74]    -->   Zx = 101.00 in^3", without the unit where the head has
// none; a row without a section reads as no selection. A second line of a head counts as its unit,
// also that of the designations ("Standard US = W18x50 Profile").
std::string Table_Selection_Text(const FlexGrid& grid, int row, int col);

// The same for the voice, without the designations; empty for a row without a section.
std::string Spoken_Table_Selection(const FlexGrid& grid, int row, int col);

// Shows the current cell, with its remark or that of its head, and speaks it.
void Show_Table_Selection(Desk& desk, const FlexGrid& grid);

// A fill that makes the grid smaller moves the current cell, and what is shown of it follows as
// after any move.
struct CurrentCell {
    int Row, Col;

    bool operator==(const CurrentCell&) const = default;
};
CurrentCell Current_Cell(const FlexGrid& grid);
// True if it has moved.
bool Follow_Current_Cell(Desk& desk, const FlexGrid& grid, const CurrentCell& before);

// Draws the section of the current row, small; a row without one says what to do.
void Draw_Table_Selection(DrawingBox& box, const FlexGrid& grid, int familyPosition,
                          const SectionView& view);
inline constexpr std::string_view noSectionDrawn = "Select a section to see it here";

} // namespace Tensarix
