// The grids of View All and Find, cell by cell against the store.
#include "Grids.h"
#include "PlainStore.h"
#include "sections/FamilyTable.h"
#include "sections/TableSelection.h"

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

const std::filesystem::path program = TENSARIX_PROGRAM_DIR;

} // namespace

// Where a value fails, the one that was written there first stays, and says so.
TEST(TableGrid, AChannelWithoutItsSecondValueKeepsTheFirst) {
    const ChangedStore store("UPDATE ShapeTable SET XP = NULL WHERE AISC_Manual_Label = 'C15x50'");
    FlexGrid grid;
    Family_Of_Type("C").ViewAll(grid, "C", {store.Folder});
    EXPECT_EQ(grid.Text(1, 12), "0.799  "); // X
    EXPECT_EQ(grid.Remark(1, 12), earlierValueRemark);
    EXPECT_EQ(grid.Remark(2, 12), "");
}

TEST(TableGrid, SizesAndBlankRows) {
    FlexGrid grid;
    for (const Family& family : allFamilies) {
        const int count = family.ViewAll(grid, family.Type, {program});
        EXPECT_EQ(grid.Rows(), std::max(count + 1, 15)) << family.Type;
        const FindCount none = family.Find(grid, family.Type, {program}, false, {});
        EXPECT_EQ(none.OfFamily, count);
        EXPECT_EQ(none.Found, 0);
        EXPECT_EQ(grid.Rows(), 15);
        EXPECT_EQ(grid.Text(1, 0), "");
    }
    // 11 sections leave three blank rows, a family without a store 14.
    EXPECT_EQ(Family_Of_Type("HP").ViewAll(grid, "HP", {program}), 11);
    EXPECT_EQ(Table_Selection_Text(grid, 11, 2),
              " SELECTION:   HP8x36  [HP200x53]    -->   Wt = 36.00 lb/ft");
    EXPECT_EQ(Table_Selection_Text(grid, 12, 2), " SELECTION:   None");
    EXPECT_EQ(Family_Of_Type("HP").ViewAll(grid, "HP", {"/nowhere"}), 0);
    EXPECT_EQ(grid.Rows(), 15);
    EXPECT_EQ(grid.Text(1, 0), "");
}

TEST(TableGrid, WhatACellTellsAndSpeaks) {
    FlexGrid w, angles;
    Family_Of_Type("W").ViewAll(w, "W", {program, Profile::US, DimensionStyle::Imperial});
    Family_Of_Type("L-Eq").ViewAll(angles, "L-Eq", {program, Profile::SI});
    // Without a head: the first column.
    const std::tuple<const FlexGrid&, const char*, const char*, const char*> cases[] = {
        {w, "", "Standard US = W44x335 Profile", "Standard US = W44x335 "},
        {w, "Wt", "Wt = 335.00 lb/ft", "WEIGHT = 335 POUNDS PER FOOT"},
        {w, "d", "d = 3'-8\" in.", "d = Three Feet and Eight Inches "},
        {w, "h / tw", "h / tw = 38.00", "H OVER T W = 38"},
        {angles, "Ix", "Ix = 41x10^6 mm^4", "I X = 41 :: TIMES 10 TO THE POWER 6 "},
        {angles, "rz", "rz = 39.60 mm", "rz = 39.6 MM"},
        {angles, "Tan Alpha", "Tan Alpha = 1.00", "TANGENT ALPHA = 1"},
    };
    for (const auto& [grid, head, shown, spoken] : cases) {
        const int col = std::max(Col_With(grid, head), 0);
        const std::string text = Table_Selection_Text(grid, 1, col);
        EXPECT_EQ(text.substr(text.find("-->") + 6), shown);
        EXPECT_EQ(Spoken_Table_Selection(grid, 1, col), spoken);
    }
}
