// The grids of View All and Find, cell by cell against the store.
#include "PlainStore.h"
#include "common/NumberText.h"
#include "sections/FamilyTable.h"
#include "sections/TableSelection.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

const std::filesystem::path program = TENSARIX_PROGRAM_DIR;

const Family& Named(std::string_view type) {
    for (const Family& family : Families)
        if (family.Type == type)
            return family;
    throw std::runtime_error("no such family");
}

void Fill(FlexGrid& grid, const Family& family, TableVariant variant, const SectionView& view) {
    if (variant == TableVariant::ViewAll)
        family.ViewAll(grid, family.Type, view);
    else
        family.Find(grid, family.Type, view, true, {"A", ">", 0});
}

std::string Head(const FlexGrid& grid, int col) {
    const std::string& text = grid.Text(0, col);
    return text.substr(0, text.find('\n'));
}

int Column_Of(const FlexGrid& grid, std::string_view head) {
    for (int col = 2; col < grid.Cols(); ++col)
        if (Head(grid, col) == head)
            return col;
    return -1;
}

constexpr TableVariant bothVariants[] = {TableVariant::ViewAll, TableVariant::Find};

} // namespace

TEST(TableGrid, ChannelsShowTheirShiftedColumns) {
    const std::vector<std::string> heads{"Wt", "A",  "d",  "bf", "tw", "tf", "kdes", "kdet",
                                         "k1", "T",  "x",  "eo", "xp", "Sx", "rx",   "Iy",
                                         "Zy", "Sy", "ry", "J",  "Cw", "ro", "H"};
    const std::vector<std::string> columns{"W",  "A",        "D",  "BF", "TW", "TF", "KDES", "KDET",
                                           "K1", "D-2*KDET", "XP", "IX", "ZX", "SX", "RX",   "IY",
                                           "ZY", "SY",       "RY", "J",  "CW", "RO", "H"};
    PlainStore plain;
    for (const char* type : {"C", "MC"})
        for (const TableVariant variant : bothVariants) {
            FlexGrid grid;
            Fill(grid, Named(type), variant, {program});
            ASSERT_EQ(grid.Cols(), 25);
            const std::string from = " FROM ShapeTable WHERE TYPE='" + std::string{type} + "'";
            for (int col = 2; col < grid.Cols(); ++col) {
                const auto i = static_cast<std::size_t>(col - 2);
                EXPECT_EQ(Head(grid, col), heads[i]);
                EXPECT_EQ(grid.Remark(0, col).empty(), col < 12 || col > 14) << col;
                const auto values = plain.Numbers("SELECT COALESCE(" + columns[i] + ", 0)" + from +
                                                  " ORDER BY SEQ");
                for (std::size_t row = 0; row < values.size(); ++row)
                    EXPECT_EQ(grid.Text(static_cast<int>(row) + 1, col),
                              columns[i] == "K1" ? "" : Format_Number(values[row], "0.00##  "))
                        << type << row << " " << heads[i];
            }
        }
    FlexGrid si;
    Fill(si, Named("C"), TableVariant::ViewAll, {program, Profile::SI});
    EXPECT_EQ(si.Text(0, 13), "eo\n[mm]");
    EXPECT_EQ(si.Text(0, 14), "xp");
    EXPECT_EQ(si.Text(1, 13), "168x10^6  "); // Ix of C15x50
    EXPECT_EQ(si.Remark(0, 13), "The values in this column are those of Ix [mm^4]");
}

// Where a value fails, the one that was written there first stays, and says so.
TEST(TableGrid, AChannelWithoutItsSecondValueKeepsTheFirst) {
    const ChangedStore store("UPDATE ShapeTable SET XP = NULL WHERE AISC_Manual_Label = 'C15x50'");
    FlexGrid grid;
    Fill(grid, Named("C"), TableVariant::ViewAll, {store.Folder});
    EXPECT_EQ(grid.Text(1, 12), "0.799  "); // X
    EXPECT_EQ(grid.Remark(1, 12), EarlierValueRemark);
    EXPECT_EQ(grid.Remark(2, 12), "");
}

TEST(TableGrid, WhatDiffersFromBrowse) {
    const auto all = bothVariants[0];
    const auto find = bothVariants[1];
    const auto us = Profile::US, si = Profile::SI;
    const struct {
        const char* Type;
        TableVariant Variant;
        Profile Units;
        const char *Head, *Column;
    } cases[] = {
        {"S", all, us, "k", "KDES"},        {"S", find, si, "k", "xKDES"},
        {"WT", all, us, "k", "K"},          {"WT", all, si, "k", "xK"},
        {"MT", find, us, "k", "KDET"},      {"WT", find, si, "k", "xKDET"},
        {"ST", all, us, "k", "KDES"},       {"ST", find, us, "bf / 2tf", "BF_2TF"},
        {"ST", all, si, "d / tw", "H_TW"},  {"HSS-Rnd", find, us, "D / t", "xD_T"},
        {"HSS-Sqr", all, us, "b", "HT"},    {"L-Eq", all, si, "Tan Alpha", "TAN_ALPHA"},
        {"L-UnEq", find, si, "Qs", "QS"},   {"2L-Eq", all, si, "Qs", "xQS"},
        {"2L-UnEq", find, si, "H", "xH"},   {"W", find, us, "T", "D-2*KDET"},
        {"HP", all, si, "T", "xD-2*xKDET"}, {"L-Eq", all, us, "eo", "EO"},
    };
    PlainStore plain;
    for (const auto& c : cases) {
        FlexGrid grid;
        Fill(grid, Named(c.Type), c.Variant, {program, c.Units});
        const int col = Column_Of(grid, c.Head);
        ASSERT_GE(col, 2) << c.Type << c.Head;
        const bool detailingK =
            c.Head == std::string{"k"} && std::string{c.Column}.ends_with("KDET");
        EXPECT_EQ(grid.Remark(0, col), detailingK ? DetailingRemark : "") << c.Type << c.Head;
        const std::string column = std::string{"SELECT "} + c.Column + " FROM ShapeTable";
        const auto values = plain.Numbers(column + " WHERE TYPE='" + c.Type + "' ORDER BY SEQ");
        for (std::size_t row = 0; row < values.size(); ++row)
            EXPECT_EQ(grid.Text(static_cast<int>(row) + 1, col),
                      Format_Number(values[row], "0.00##  "))
                << c.Type << c.Head << row;
    }
}

TEST(TableGrid, LengthsInFeetAndInches) {
    FlexGrid grid;
    Fill(grid, Named("W"), TableVariant::Find, {program, Profile::US, DimensionStyle::Imperial});
    EXPECT_EQ(grid.Text(1, 4), "3'-8\"  ");
    EXPECT_EQ(grid.Text(1, 2), "335.00  ");
    Fill(grid, Named("S"), TableVariant::ViewAll, {program, Profile::US, DimensionStyle::Imperial});
    EXPECT_EQ(grid.Text(1, 4), "24.50  "); // d of the S-shapes stays a decimal
    EXPECT_EQ(grid.Text(1, 5), "8 1/16\"  ");
    Fill(grid, Named("W"), TableVariant::ViewAll, {program, Profile::SI, DimensionStyle::Imperial});
    EXPECT_EQ(grid.Text(1, 4), "1120.00  ");
}

TEST(TableGrid, SizesHeadsAndBlankRows) {
    const int columns[] = {28, 28, 28, 26, 25, 25, 23, 23, 23, 21, 16, 14, 14, 28, 28, 16, 17};
    FlexGrid grid;
    for (std::size_t i = 0; i < Families.size(); ++i) {
        const Family& family = Families[i];
        const int count = family.ViewAll(grid, family.Type, {program});
        EXPECT_EQ(grid.Cols(), columns[i]) << family.Type;
        EXPECT_EQ(grid.Rows(), std::max(count + 1, 15)) << family.Type;
        EXPECT_EQ(grid.Text(0, 0), "Standard US\nProfile");
        EXPECT_EQ(grid.Text(0, 2), "Wt\n[lb/ft]");
        const FindCount none = family.Find(grid, family.Type, {program}, false, {});
        EXPECT_EQ(none.OfFamily, count);
        EXPECT_EQ(none.Found, 0);
        EXPECT_EQ(grid.Cols(), columns[i]) << family.Type;
        EXPECT_EQ(grid.Rows(), 15);
        EXPECT_EQ(grid.Text(1, 0), "");
    }
    // 11 sections leave three blank rows, a family without a store 14.
    EXPECT_EQ(Named("HP").ViewAll(grid, "HP", {program}), 11);
    EXPECT_EQ(Table_Selection_Text(grid, 11, 2),
              " SELECTION:   HP8x36  [HP200x53]    -->   Wt = 36.00 lb/ft");
    EXPECT_EQ(Table_Selection_Text(grid, 12, 2), " SELECTION:   None");
    EXPECT_EQ(Named("HP").ViewAll(grid, "HP", {"/nowhere"}), 0);
    EXPECT_EQ(grid.Rows(), 15);
    EXPECT_EQ(grid.Text(1, 0), "");
}

TEST(TableGrid, WhatACellTellsAndSpeaks) {
    FlexGrid w, angles;
    Fill(w, Named("W"), TableVariant::ViewAll, {program, Profile::US, DimensionStyle::Imperial});
    Fill(angles, Named("L-Eq"), TableVariant::ViewAll, {program, Profile::SI});
    const struct {
        const FlexGrid& Grid;
        const char* Head; // empty: the first column
        const char *Shown, *Spoken;
    } cases[] = {
        {w, "", "Standard US = W44x335 Profile", "Standard US = W44x335 "},
        {w, "Wt", "Wt = 335.00 lb/ft", "WEIGHT = 335 POUNDS PER FOOT"},
        {w, "d", "d = 3'-8\" in.", "d = Three Feet and Eight Inches "},
        {w, "h / tw", "h / tw = 38.00", "H OVER T W = 38"},
        {angles, "Ix", "Ix = 41x10^6 mm^4", "I X = 41 :: TIMES 10 TO THE POWER 6 "},
        {angles, "rz", "rz = 39.60 mm", "rz = 39.6 MM"},
        {angles, "Tan Alpha", "Tan Alpha = 1.00", "TANGENT ALPHA = 1"},
    };
    for (const auto& c : cases) {
        const int col = std::max(Column_Of(c.Grid, c.Head), 0);
        const std::string text = Table_Selection_Text(c.Grid, 1, col);
        EXPECT_EQ(text.substr(text.find("-->") + 6), c.Shown);
        EXPECT_EQ(Spoken_Table_Selection(c.Grid, 1, col), c.Spoken);
    }
}
