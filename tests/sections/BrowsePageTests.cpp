#include "Grids.h"
#include "PlainStore.h"
#include "StandIns.h"
#include "sections/BrowsePage.h"

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct BrowseTest : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    BrowsePage page{desk};

    void SetUp() override {
        page.ProfileOption1.Select();
        page.DimOption1.Select();
        page.Init_ShapeFlex();
        FillFamilyList(page.ShapeType);
    }
    // A family by its name, and a section by its US designation.
    void Choose(const std::string& family, const std::string& section) {
        Select_Item(page.ShapeType, family);
        Select_Item(page.ShapeSizeUS, section);
    }
    int Row_Of(const std::string& symbol) { return Row_With(page.ShapeFlex, symbol); }
    std::string Value(const std::string& symbol) { return page.ShapeFlex.Text(Row_Of(symbol), 1); }
    std::string Unit(const std::string& symbol) { return page.ShapeFlex.Text(Row_Of(symbol), 2); }
};

} // namespace

TEST_F(BrowseTest, AFamilyBringsBackItsOwnSection) {
    machine.Store.Set("ShapeSize0", "5");
    machine.Store.Set("ShapeSize3", "2");
    page.ShapeType.Select(0);
    EXPECT_EQ(page.ShapeSizeUS.ListIndex(), 5);
    EXPECT_EQ(page.ShapeSizeSI.ListIndex(), 5);
    EXPECT_EQ(page.BaseImage.Name(), "WShapeImage");
    page.ShapeSizeSI.Select(7);
    EXPECT_EQ(page.ShapeSizeUS.ListIndex(), 7);
    EXPECT_EQ(machine.Store.Get("ShapeSize0"), "7");
    page.ShapeType.Select(3);
    EXPECT_EQ(page.ShapeSizeUS.ListIndex(), 2);
    page.ShapeType.Select(0);
    EXPECT_EQ(page.ShapeSizeUS.ListIndex(), 7);
    EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   None");
}

TEST_F(BrowseTest, ProfileAndStyle) {
    Choose("W-Shape", "W18x50");
    EXPECT_EQ(page.ShapeLabel.Caption() + "|" + Value("d"), "W18 x 50|18.00  ");
    page.DimOption2.Select();
    EXPECT_EQ(Value("d"), "1'-6\"  ");
    page.ProfileOption2.Select();
    EXPECT_FALSE(page.DimOption1.Enabled() || page.DimOption2.Enabled());
    EXPECT_EQ(page.ShapeLabel.Caption() + "|" + Value("d"), "W460 x 74|457.00  ");
    page.ProfileOption1.Select();
    EXPECT_TRUE(page.DimOption2.Enabled());
    EXPECT_EQ(Value("d"), "1'-6\"  "); // the style is in force again
}

TEST_F(BrowseTest, ANullLeavesTheTextAndARemarkTellsIt) {
    Choose("W-Shape", "W18x50");
    const std::string k1 = Value("k1");
    const int row = Row_Of("k1");
    EXPECT_EQ(page.ShapeFlex.Remark(row, 1), "");
    Choose("C-Shape", "C15x50");
    ASSERT_EQ(Row_Of("k1"), row);
    EXPECT_EQ(Value("k1"), k1);
    EXPECT_EQ(page.ShapeFlex.Remark(row, 1), staleValueRemark);
    page.ShapeFlex.Move_To(row, 1);
    EXPECT_EQ(desk.StatBar.Remark(), staleValueRemark);
    Choose("W-Shape", "W18x50");
    EXPECT_EQ(page.ShapeFlex.Remark(row, 1), "");
}

TEST_F(BrowseTest, TheKOfAnSShapeTellsThatItIsTheDetailingOne) {
    Choose("S-Shape", "S24x121");
    EXPECT_EQ(page.ShapeFlex.Remark(Row_Of("k"), 1), detailingRemark);
    page.ProfileOption2.Select();
    EXPECT_EQ(page.ShapeFlex.Remark(Row_Of("k"), 1), "");
}

// The unit of xp is left from the family shown before; the text stands, but not silently.
TEST_F(BrowseTest, TheUnitOfXpOfTheChannelsIsNotWritten) {
    Choose("Rectangular HSS", "HSS20x12x5/8");
    const std::string before = page.ShapeFlex.Text(13, 2);
    ASSERT_FALSE(before.empty());
    Choose("C-Shape", "C15x50");
    ASSERT_EQ(Row_Of("xp"), 13);
    EXPECT_EQ(Unit("xp"), before);
    EXPECT_EQ(page.ShapeFlex.Remark(13, 2), staleValueRemark);
    EXPECT_EQ(Value("xp"), "0.49  ");
}

TEST_F(BrowseTest, ThePictureOfUnequalDoubleAnglesFollowsTheSection) {
    Choose("Double Angle (UnEqual Legs)", "2L8x6x1LLBB");
    EXPECT_EQ(page.BaseImage.Name(), "DLUnEqImage2");
    Select_Item(page.ShapeSizeUS, "2L8x6x1SLBB");
    EXPECT_EQ(page.BaseImage.Name(), "DLUnEqImage1");
}

TEST_F(BrowseTest, PipesAreLookedUpByTheirSIName) {
    Choose("Pipe", "Pipe10STD");
    EXPECT_EQ(Value("OD"), "10.75  ");
    page.ProfileOption2.Select();
    EXPECT_EQ(page.ShapeLabel.Caption() + "|" + Value("OD"), "Pipe250STD|273.00  ");
}

TEST_F(BrowseTest, SelectionTexts) {
    Choose("W-Shape", "W18x50");
    const auto text = [this](int row, int col) {
        page.ShapeFlex.Move_To(row, col);
        return desk.StatBar.Panel1();
    };
    EXPECT_EQ(text(3, 1), " SELECTION:   d = 18.00 in.     [Overall Depth of Member]");
    page.ShapeFlex.Press(3, 1); // unlocks the copy commands
    EXPECT_TRUE(desk.GridClicked);
    EXPECT_EQ(text(11, 0), " SELECTION:   bf / 2tf = 6.57      [Slenderness Ratio]");
    page.DimOption2.Select();
    EXPECT_EQ(text(3, 1), " SELECTION:   d = 1'-6\"      [Overall Depth of Member]");
    page.ProfileOption2.Select();
    page.ShapeFlex.Move_To(1, 1);
    EXPECT_EQ(text(Row_Of("Ix"), 1),
              " SELECTION:   Ix = 333x10^6      [Moment of Inertia about the x-axis]");
    EXPECT_EQ(text(0, 0), " SELECTION:   Property = Value      [Meaning]");

    Choose("Angle (Equal Legs)", "L8x8x1");
    EXPECT_EQ(text(Row_Of("Tan Alpha"), 1),
              " SELECTION:   Tan Alpha = 1.00      [Tangent of the angle between the y-y and z-z "
              "axes for single angle]");
    Choose("Pipe", "Pipe10STD");
    EXPECT_EQ(text(13, 1), " SELECTION:");
}

TEST_F(BrowseTest, TheGridSnapsBack) {
    Choose("W-Shape", "W18x50");
    page.ShapeFlex.Set_Left_Col(3);
    page.ShapeFlex.OnMouseMove(885);
    EXPECT_EQ(page.ShapeFlex.Left_Col(), 3);
    page.ShapeFlex.OnMouseMove(884);
    EXPECT_EQ(page.ShapeFlex.Left_Col(), 1);
    page.ShapeFlex.Set_Left_Col(2);
    page.BaseImage.OnMouseMove();
    EXPECT_EQ(page.ShapeFlex.Left_Col(), 1);
}

// A text in a figure's place is shown as it stands, and is no lost digit; in SI it is no number.
TEST_F(BrowseTest, ATextInstead) {
    const ChangedStore store("UPDATE ShapeTable SET IX = 'n/a', xIX = 'n/a' "
                             "WHERE AISC_Manual_Label = 'W18x50'");
    machine.Host.Places.Program = store.Folder;
    Choose("W-Shape", "W18x50");
    EXPECT_EQ(Value("Ix"), "n/a");
    EXPECT_EQ(page.ShapeFlex.Remark(Row_Of("Ix"), 1), "");
    page.ProfileOption2.Select();
    EXPECT_EQ(page.ShapeFlex.Remark(Row_Of("Ix"), 1), staleValueRemark);
}

// The store goes away while the program runs: the screen keeps what it shows, and tells that it is
// of another section.
TEST_F(BrowseTest, WithoutTheStore) {
    Choose("W-Shape", "W18x50");
    machine.Host.Places.Program = "/nowhere";
    page.ShapeSizeUS.Select(0);
    EXPECT_EQ(page.ShapeLabel.Caption() + "|" + Value("d"), "W44 x 335|18.00  ");
    EXPECT_EQ(page.ShapeFlex.Remark(Row_Of("d"), 1), staleValueRemark);
    page.ProfileOption2.Select();
    EXPECT_EQ(Unit("d"), "in.") << "the unit is that of the value";
    page.ShapeType.Select(1);
    EXPECT_EQ(page.ShapeSizeUS.Count(), 274); // the lists keep what they held
}

TEST_F(BrowseTest, AFirstStartWithoutTheStoreShowsLabelsOnly) {
    machine.Host.Places.Program = "/nowhere";
    page.ShapeType.Select(0);
    EXPECT_EQ(page.ShapeSizeUS.Count(), 0);
    EXPECT_EQ(page.ShapeLabel.Caption() + page.BaseImage.Name(), "WShapeImage");
    EXPECT_EQ(page.ShapeFlex.Clip_Of(1, 0, 1, 1) + page.ShapeFlex.Remark(1, 1), "W\t");
}

TEST_F(BrowseTest, ASavedPositionThatIsNoneSelectsNothing) {
    for (const char* garbage : {"99999", "abc", "1E999", "-5", ""}) {
        machine.Store.Set("ShapeSize2", garbage);
        page.ShapeType.Select(0);
        page.ShapeType.Select(2);
        EXPECT_EQ(page.ShapeSizeUS.ListIndex(), -1) << garbage;
        EXPECT_EQ(page.ShapeLabel.Caption(), "");
        EXPECT_EQ(page.ShapeFlex.Remark(1, 1), staleValueRemark);
    }
}
