#include "Grids.h"
#include "LaidOut.h"
#include "StandIns.h"
#include "common/NumberText.h"
#include "sections/BrowsePage.h"
#include "sections/ComparePage.h"

#include <algorithm>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct Compared {
    TestMachine Machine;
    Desk OwnDesk{Machine.Host};
    ComparePage Page{OwnDesk};
    DesignationSearch Search{TENSARIX_PROGRAM_DIR};

    SectionPlace Place(const std::string& name) { return Search.Find(name, 1).at(0).Place; }
    ComparePage::Added Add(const std::string& name) { return Page.Add(Place(name)); }
    std::string Column(int col) const {
        std::string texts;
        for (int row = 1; row < Page.CompareFlex.Rows(); ++row)
            texts += Trim(Page.CompareFlex.Text(row, col)) + "|";
        return texts;
    }
    int Row_Of(const std::string& symbol) const {
        return Row_With(Page.CompareFlex, symbol, comparedSymbolCol);
    }
};

// What Browse shows now against the column: each of its rows, and no more.
void Expect_As_On_Browse(const BrowsePage& browse, const Compared& compared, int col) {
    const FlexGrid &from = browse.ShapeFlex, &to = compared.Page.CompareFlex;
    int filled = 0;
    for (int row = 1; row < from.Rows(); ++row) {
        const std::string& symbol = from.Text(row, 0);
        if (symbol.empty())
            continue;
        const int at = compared.Row_Of(symbol);
        const bool stale = from.Remark(row, 1) == staleValueRemark;
        EXPECT_EQ(to.Text(at, col), stale ? "" : from.Text(row, 1)) << symbol;
        EXPECT_EQ(to.Remark(at, col), stale ? untabulatedRemark : from.Remark(row, 1)) << symbol;
        EXPECT_EQ(to.Remark_Weight(at, col),
                  stale ? RemarkWeight::Note : from.Remark_Weight(row, 1));
        if (from.Remark(row, 2) != staleValueRemark && !from.Text(row, 2).empty()) {
            EXPECT_EQ(to.Text(at, comparedUnitCol), from.Text(row, 2)) << symbol;
        }
        filled += stale ? 0 : 1;
    }
    for (int row = 1; row < to.Rows(); ++row)
        filled -= to.Text(row, col).empty() ? 0 : 1;
    EXPECT_EQ(filled, 0);
}

} // namespace

TEST(ComparePageTest, EveryFamilyReadsAsOnBrowse) {
    for (const bool si : {false, true}) {
        TestMachine machine;
        Desk desk{machine.Host};
        BrowsePage browse{desk};
        browse.Init_ShapeFlex();
        FillFamilyList(browse.ShapeType);
        (si ? browse.ProfileOption2 : browse.ProfileOption1).Select();
        for (int first = 0; first < static_cast<int>(allFamilies.size()); ++first) {
            Compared compared;
            (si ? compared.Page.CompareProfile2 : compared.Page.CompareProfile1).Select();
            for (int i = 0; i < static_cast<int>(mostCompared); ++i) {
                const int family = (first + 3 * i) % static_cast<int>(allFamilies.size());
                browse.ShapeType.Select(family);
                browse.ShapeSizeUS.Select((first * 5 + i) % browse.ShapeSizeUS.Count());
                compared.Page.Add({family, browse.ShapeSizeUS.ListIndex()});
            }
            for (int i = 0; i < static_cast<int>(mostCompared); ++i) {
                const ComparedSection& section =
                    compared.Page.Sections()[static_cast<std::size_t>(i)];
                browse.ShapeType.Select(section.Place.Family);
                browse.ShapeSizeUS.Select(section.Place.Position);
                const ComboBox& names = si ? browse.ShapeSizeSI : browse.ShapeSizeUS;
                SCOPED_TRACE(names.Text());
                EXPECT_EQ(compared.Page.CompareFlex.Text(0, firstComparedCol + i), names.Text());
                Expect_As_On_Browse(browse, compared, firstComparedCol + i);
            }
        }
    }
}

TEST(ComparePageTest, WhatIsAlikeStandsTogether) {
    Compared compared;
    for (const char* name : {"l8x6x1", "pipe8std", "hss8x8x1/2", "c15x50", "wt18x128", "w18x50"})
        compared.Add(name);
    EXPECT_EQ(compared.Column(comparedSymbolCol),
              "W|A|d|Ht|OD|ID|bf|b|t|tw|tf|tnom|tdes|kdes|kdet|k|k1|T|x|y|e0|eo|xp|yp|bf / 2tf|"
              "h / tw|b / t|h / t|D / t|Ix|I|Zx|Z|Sx|S|rx|r|Iy|Zy|Sy|ry|rz|J|C|Cw|Wno|Sw|Qf|Qw|"
              "ro|H|Tan Alpha|Qs|");
}

TEST(ComparePageTest, UpToSixUntilTheyAreTakenOut) {
    Compared compared;
    ComparePage& page = compared.Page;
    using enum ComparePage::Added;
    EXPECT_FALSE(page.CopyButton.Enabled() || page.RemoveButton.Enabled());
    EXPECT_TRUE(page.Drawings[0].Shows().Empty());
    for (const char* name : {"w18x50", "hss8x8x1/2", "pipe8std", "l8x6x1", "c15x50", "wt18x128"})
        EXPECT_EQ(compared.Add(name), New);
    EXPECT_EQ(page.CompareFlex.Col(), 7);
    page.CompareFlex.Move_To(compared.Row_Of("J"), 7);
    EXPECT_EQ(compared.Add("pipe8std"), WasThere);
    EXPECT_EQ(page.CompareFlex.Col(), 4);
    EXPECT_EQ(page.Drawings[2].Lit(), "Pipe8STD");
    EXPECT_EQ(page.CellLabel.Caption(),
              "Pipe8STD:   J = " + Trim(page.CompareFlex.Text(page.CompareFlex.Row(), 4)) +
                  " in^4     [Torsional Moment of Inertia]");
    EXPECT_EQ(compared.Add("w21x48"), NoRoom);
    EXPECT_EQ(page.CountLabel.Caption(), "Six sections are the most: W21x48 is not compared. "
                                         "Delete takes out the section of the column.");
    EXPECT_EQ(page.Sections().size(), 6U);

    page.CompareFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(page.CompareFlex.Text(0, 4), "L8x6x1");
    EXPECT_EQ(compared.Row_Of("ID"), -1);
    EXPECT_EQ(page.CompareFlex.Text(page.CompareFlex.Row(), 0), "J");
    EXPECT_EQ(page.CountLabel.Caption(), "5 of 6 sections");
    EXPECT_EQ(compared.Add("w21x48"), New);
    page.CompareFlex.Move_To(1, comparedUnitCol);
    EXPECT_FALSE(page.RemoveButton.Enabled());
    page.CompareFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(page.Sections().size(), 6U);
    for (page.CompareFlex.Move_To(1, 4); !page.Sections().empty();)
        page.RemoveButton.Click();
    EXPECT_EQ(page.CompareFlex.Text(0, 2) + page.CompareFlex.Text(1, 0), "");
}

TEST(ComparePageTest, UnitsAreKeptAndTheWholeIsCopied) {
    Compared compared;
    for (const char* name : {"w18x50", "hss8x8x1/2"})
        compared.Add(name);
    compared.Page.CopyButton.Click();
    const std::string us = compared.Machine.Clip.Held;
    EXPECT_TRUE(us.starts_with("Property\tUnit\tW18x50\tHSS8x8x1/2\rW\tlb/ft\t50.00\t48.70\r"
                               "A\tin^2\t14.70\t13.50\rd\tin.\t18.00\t\rHt\tin.\t\t8.00\r"))
        << us.substr(0, 100);
    EXPECT_EQ(std::count(us.begin(), us.end(), '\r'), compared.Page.CompareFlex.Rows() - 1);
    compared.Page.CompareProfile2.Select();
    compared.Page.CompareFlex.Select_Range(2, 0, 2, 2);
    compared.Page.CompareFlex.OnCopy();
    EXPECT_EQ(compared.Machine.Clip.Held, "A\tmm^2\t9480.00  ");
    EXPECT_TRUE(ComparePage(compared.OwnDesk).CompareProfile2.Value());
    compared.OwnDesk.ReadOut = true;
    compared.Page.CompareFlex.Move_To(3, 2);
    EXPECT_EQ(compared.Machine.Speech.Spoken.back(),
              "W460x74 :: d = 457 MM :: Overall Depth of Member");
}

// One scale: each is as wide against the others as the tables say, and all stand on one line.
TEST(ComparePageTest, DrawingsHaveOneScale) {
    Compared compared;
    const std::pair<const char*, double> widths[] = {{"W44x335", 15.9},
                                                     {"Pipe8STD", 8.63},
                                                     {"2L8x6x1LLBB", 12},
                                                     {"HSS8x8x1/2", 8},
                                                     {"C15x50", 3.72}};
    for (const auto& [name, width] : widths)
        compared.Add(name);
    double scale = 0, ground = 0;
    for (std::size_t i = 0; i < std::size(widths); ++i) {
        const auto& [name, width] = widths[i];
        const Drawing& drawing = compared.Page.Drawings[i].Shows();
        EXPECT_TRUE(drawing.Sentence.starts_with(std::string{name} + " to scale: "));
        const Drawn::Layout layout = Laid_Out(drawing, {110, 130});
        Drawn::Box box{1e9, 1e9, -1e9, -1e9};
        for (const Drawn::Stroke& stroke : layout.Strokes)
            for (const Drawn::Point& point : stroke.Points)
                box.Take_In({point.X, point.Y, point.X, point.Y});
        scale = i == 0 ? layout.XScale : scale;
        ground = i == 0 ? box.Bottom : ground;
        EXPECT_DOUBLE_EQ(layout.XScale, scale) << name;
        EXPECT_NEAR(box.Width(), width * scale, 0.011 * scale) << name;
        EXPECT_NEAR(box.Bottom, ground, 1e-6) << name;
        EXPECT_NEAR((box.Left + box.Right) / 2, 55, 1e-6) << name;
    }
}
