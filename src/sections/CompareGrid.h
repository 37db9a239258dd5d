// Sections of any families side by side: a column a section, a row for each property that one of
// them has, and their outlines at one scale.
#pragma once

#include "controls/Drawing.h"
#include "controls/FlexGrid.h"
#include "sections/DesignationSearch.h"

#include <string>
#include <vector>

namespace Tensarix {

struct ComparedSection {
    SectionPlace Place;
    std::string Names[2]; // by profile

    const std::string& Name(Profile units) const { return Names[static_cast<std::size_t>(units)]; }
};

// In the head row: the symbols, the units, then the sections.
inline constexpr int comparedSymbolCol = 0, comparedUnitCol = 1, firstComparedCol = 2;

// On a property that the family has and the section doesn't.
inline constexpr std::string_view untabulatedRemark = "Not tabulated for this section";

// Fills the grid. Texts, units and remarks are those that Browse has for the section, and the rows
// stand in one order whatever the sections are; a cell is blank where the family hasn't the
// property. What a property means for a section is told by Compared_Meaning.
void Fill_CompareFlex(FlexGrid& grid, const std::vector<ComparedSection>& sections,
                      const SectionView& view);

// The description that Browse has beside the symbol; empty where the section's family hasn't it.
std::string Compared_Meaning(const ComparedSection& section, std::string_view symbol);

// The outline of each, all with the same room around them: the least that holds any of them on one
// ground line. The parts have the section's US name as theirs.
std::vector<Drawing> Draw_Compared(const std::vector<ComparedSection>& sections,
                                   const SectionView& view);

// The whole grid as a table: tabs between cells, carriage returns between rows.
std::string Table_Text(const FlexGrid& grid);

} // namespace Tensarix
