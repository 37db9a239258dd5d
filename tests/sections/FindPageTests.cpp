// Find Sections and View All as pages: the order of events, what is saved when, what is spoken.
#include "PlainStore.h"
#include "StandIns.h"
#include "sections/FindPage.h"
#include "sections/TableSelection.h"
#include "sections/ViewAllPage.h"

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct FindTest : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    FindPage page{desk};

    // As at start-up: options, first family, criteria, then the saved search again.
    void Start() {
        page.fProfileOption1.Select();
        page.fDimOption1.Select();
        FillFamilyList(page.fShapeType);
        page.fShapeType.Select(0);
        page.Fill_Criteria();
        page.Restore_Search();
        machine.Store.Written.clear();
    }
    void Ask(const std::string& property, const std::string& criterion, const std::string& value) {
        Select_Item(page.fPoperty, property);
        Select_Item(page.fCriterion, criterion);
        page.fValue.Set_Text(value);
    }
    void Search(const std::string& property, const std::string& criterion,
                const std::string& value) {
        Ask(property, criterion, value);
        page.FindButton.Click();
    }
    std::string Asked() {
        return page.fPoperty.Text() + "|" + page.fCriterion.Text() + "|" + page.fValue.Text();
    }
    std::string First() { return page.fShapeFlex.Text(1, 0); }
    Strings Written() { return std::exchange(machine.Store.Written, {}); }
};

struct ViewTest : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    ViewAllPage page{desk};

    void SetUp() override {
        page.xProfileOption1.Select();
        page.xDimOption1.Select();
        FillFamilyList(page.xShapeType);
    }
};

} // namespace

TEST_F(FindTest, AFirstStartShowsHeadsAndAnEmptyBox) {
    Start();
    EXPECT_EQ(Asked(), "Wt|At least|");
    EXPECT_EQ(page.UnitLabel.Caption(), "lb/ft");
    EXPECT_EQ(page.fShapeFlex.Rows(), 15);
    EXPECT_EQ(page.Count_Text(), "274 sections");
    EXPECT_EQ(machine.Store.Get("fCriterion0"), "0");
    EXPECT_EQ(machine.Store.Get("fValue0"), "none"); // an empty box that stays empty saves nothing
}

TEST_F(FindTest, EachChangeIsSavedUnderItsFamily) {
    Start();
    page.fPoperty.Select(13);
    page.fCriterion.Select(4);
    page.fValue.Set_Text("12.50 in");
    EXPECT_EQ(Written(), (Strings{"fPoperty0=13", "fCriterion0=4", "fValue0=12.5"}));
    page.fShapeType.Select(9);
    EXPECT_EQ(Asked(), "Wt|At least|");
    Written();
    page.fShapeType.Select(0);
    EXPECT_EQ(Asked(), "Zx|>=|12.5");
    // Criterion first, then the property, whose own change brings the value; then the value.
    EXPECT_EQ(Written(), (Strings{"fCriterion0=4", "fPoperty0=13", "fValue0=12.5"}));
    page.Save_Search();
    EXPECT_EQ(Written(), (Strings{"fCriterion0=4", "fPoperty0=13", "fValue0=12.5"}));
}

TEST_F(FindTest, SavedSearchesThatCanNotBeReadLeaveTheControls) {
    for (const char* key : {"fPoperty0", "fCriterion0", "fValue0"})
        machine.Store.Set(key, "abc");
    machine.Store.Set("fPoperty9", "-3");
    machine.Store.Set("fCriterion9", "77");
    machine.Store.Set("fValue9", "0.00");
    Start();
    EXPECT_EQ(Asked(), "||");
    page.FindButton.Click();
    page.RunFind();
    EXPECT_EQ(First(), ""); // without a criterion nothing matches
    page.fShapeType.Select(9);
    EXPECT_EQ(Asked(), "Wt||"); // a saved zero
}

TEST_F(FindTest, GoSearchesAndEmptyBoxesAreRefused) {
    Start();
    Search("Zx", ">=", " ");
    EXPECT_EQ(machine.Boxes.Shown, Strings{"Warning:|Incomplete search parameter!  \n\n|stop"});
    EXPECT_EQ(First(), "");
    page.fValue.Set_Text("500abc");
    page.FindButton.Click();
    EXPECT_EQ(page.Count_Text(), "109 found of 274 sections, lightest W36x135");
    EXPECT_EQ(page.fShapeFlex.Rows(), 110);
    page.fShapeFlex.Set_Top_Row(50);
    page.FindButton.Click();
    EXPECT_EQ(page.fShapeFlex.Top_Row(), 1);
}

TEST_F(FindTest, EnterSearchesAtOnceAndKeepsTheScroll) {
    Start();
    Ask("Zx", ">=", "");
    EXPECT_EQ(page.fValue.OnKeyPress('a'), 0);
    EXPECT_EQ(page.fValue.OnKeyPress('7'), '7');
    EXPECT_EQ(First(), "");
    page.fValue.OnKeyPress(Keys::Enter); // the empty box is a search for 0
    EXPECT_TRUE(machine.Boxes.Shown.empty());
    EXPECT_EQ(page.Count_Text(), "274 found of 274 sections, lightest W6x8.5");
    page.fShapeFlex.Set_Top_Row(9);
    page.fValue.OnKeyPress(Keys::Enter);
    EXPECT_EQ(page.fShapeFlex.Top_Row(), 9);
}

TEST_F(FindTest, AResultFollowsProfileAndStyleUntilTheConditionChanges) {
    Start();
    Search("d", "At least", "12");
    const std::string found = First();
    EXPECT_EQ(found, "W12x106");
    page.fDimOption2.Select();
    EXPECT_EQ(page.fShapeFlex.Text(1, 4), "1'-7/8\"  ");
    page.fProfileOption2.Select(); // 12 mm: nothing; the values are those of the profile
    EXPECT_EQ(page.fValue.Text() + " " + page.UnitLabel.Caption() + " of " + page.fValue.Item(0) +
                  ": " + page.Count_Text(),
              "12 mm of 106: 0 found of 274 sections");
    EXPECT_FALSE(page.fDimOption1.Enabled());
    EXPECT_EQ(page.fShapeFlex.Rows(), 15);
    page.fProfileOption1.Select();
    EXPECT_TRUE(page.fDimOption2.Enabled());
    EXPECT_EQ(First(), found);

    page.fCriterion.Select(1); // the grid stays, but is no result any more
    EXPECT_EQ(First(), found);
    page.fDimOption1.Select();
    EXPECT_EQ(page.fShapeFlex.Text(1, 4), "1'-7/8\"  ");
    page.fProfileOption2.Select(); // without a result the family is laid out anew
    EXPECT_EQ(First() + page.fShapeFlex.Text(0, 4), "d\n[mm]");
    EXPECT_EQ(Asked() + "|" + page.Count_Text(), "d|=|12|274 sections");
}

// "At least" wants to be understood, and some properties can't be searched.
TEST_F(FindTest, TheNoteFollowsPropertyAndCriterion) {
    Start();
    page.fShapeType.Select(13);
    EXPECT_NE(page.SearchNote.Caption().find("3.259"), std::string::npos);
    page.fCriterion.Select(1);
    EXPECT_EQ(page.SearchNote.Caption(), "");
    Select_Item(page.fPoperty, "Tan Alpha");
    EXPECT_EQ(page.SearchNote.Caption(), "The section data have no column for a search by Tan "
                                         "Alpha: every section counts as 0.");
    EXPECT_EQ(page.fValue.Count(), 0);
    page.fValue.Set_Text("0");
    page.FindButton.Click();
    EXPECT_EQ(page.Count_Text(), "51 found of 51 sections, lightest L2x2x1/8");
}

TEST_F(FindTest, ACellIsSpokenAndShownEachTime) {
    Start();
    page.fShapeType.Select(14);
    page.fProfileOption2.Select();
    desk.ReadOut = true;
    page.fShapeFlex.Press(1, 2);
    EXPECT_TRUE(machine.Speech.Spoken.empty());
    EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   None");
    EXPECT_TRUE(desk.GridClicked);
    Search("Wt", "<", "4");
    page.fShapeFlex.Move_To(1, 2);
    page.fShapeFlex.Move_To(1, 3);
    page.fShapeFlex.Move_To(1, 2);
    EXPECT_EQ(machine.Speech.Spoken.back(), "WEIGHT = 3.68 KILOGRAMS PER METER");
    EXPECT_EQ(desk.StatBar.Panel1(),
              " SELECTION:   L2-1/2x1-1/2x3/16  [L64x38x4.8]    -->   Wt = 3.68 Kg/m");
    page.fDimOption2.Enable(true);
    page.fDimOption2.Select();
    EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   None");
}

// A result that is shorter moves the current cell; what is shown of it follows.
TEST_F(FindTest, ThePanelFollowsAFillThatMovesTheCurrentCell) {
    Start();
    Search("Zx", ">=", "0");
    page.fShapeFlex.Move_To(270, 15);
    EXPECT_EQ(desk.StatBar.Panel1().substr(0, 20), " SELECTION:   W6x9  ");
    page.fValue.Set_Text("500");
    page.FindButton.Click();
    EXPECT_EQ(page.fShapeFlex.Row(), 109);
    EXPECT_EQ(desk.StatBar.Panel1(),
              Table_Selection_Text(page.fShapeFlex, page.fShapeFlex.Row(), 15));
    page.fValue.Set_Text("1E9");
    page.FindButton.Click();
    EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   None");
}

TEST_F(FindTest, TheSearchedColumnIsMarkedAndTheSectionOfTheRowDrawn) {
    Start();
    const auto drawn = [this] { return page.SectionDrawing.Shows().Sentence; };
    EXPECT_EQ(drawn(), "Choose a property and press Go");
    Search("Zx", ">=", "500");
    EXPECT_EQ(page.fShapeFlex.Marked_Col(), 15);
    page.fShapeFlex.Press(2, 15);
    EXPECT_EQ(drawn(), "W44x290 to scale: d = 43.60 in., bf = 15.80 in.");
    Search("Zx", ">=", "99999");
    EXPECT_EQ(drawn(), "No section meets the condition");
    // Where the values of one property are written over those of another, no column is the first's.
    page.fShapeFlex.Set_Left_Col(9);
    page.fShapeType.Select(4);
    EXPECT_EQ(page.fShapeFlex.Left_Col(), 2) << "columns of another family";
    for (const auto& [property, column] : {std::pair{"x", -1}, {"xp", 12}, {"Ix", 13}}) {
        Search(property, ">=", "0");
        EXPECT_EQ(page.fShapeFlex.Marked_Col(), column) << property;
    }
}

TEST_F(FindTest, WithoutAStoreThereAreHeadsAndNoValues) {
    machine.Host.Places.Program = "/nowhere";
    Start();
    Search("Zx", ">=", "0");
    EXPECT_EQ(page.fValue.Count(), 0);
    EXPECT_EQ(First() + page.fShapeFlex.Text(0, 15), "Zx\n[in^3]");
}

TEST_F(ViewTest, AChoiceFillsTheGridAndScrollsBack) {
    int counts = 0;
    page.OnCount = [&] { ++counts; };
    EXPECT_EQ(page.Count_Text(), "");
    page.xShapeType.Select(16);
    EXPECT_EQ(page.Count_Text(), "444 sections");
    EXPECT_EQ(counts, 1);
    EXPECT_EQ(page.xShapeFlex.Rows(), 445);
    page.xShapeFlex.Set_Top_Row(100);
    page.xShapeFlex.Press(101, 5);
    EXPECT_TRUE(desk.GridClicked);
    EXPECT_NE(desk.StatBar.Panel1(), " SELECTION:   None");
    page.xShapeType.Select(2);
    EXPECT_EQ(page.xShapeFlex.Top_Row(), 1);
    EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   None");
    EXPECT_TRUE(machine.Store.Written.empty()); // saved at exit only
}

TEST_F(ViewTest, TheStyleIsInForceAgainBehindAnotherProfile) {
    page.xShapeType.Select(13);
    const auto depth = [this] { return page.xShapeFlex.Text(1, 4); };
    page.xDimOption2.Select();
    EXPECT_EQ(depth(), "8\"  ");
    page.xProfileOption2.Select();
    EXPECT_EQ(depth(), "203.00  ");
    EXPECT_FALSE(page.xDimOption1.Enabled());
    page.xProfileOption1.Select();
    EXPECT_EQ(depth(), "8\"  ");
}

TEST_F(ViewTest, TheRemarkOfACellStandsBesideItsText) {
    page.xProfileOption2.Select();
    page.xShapeType.Select(0);
    page.xShapeFlex.Move_To(1, 14); // Ix of W44x335
    EXPECT_EQ(desk.StatBar.Panel1(),
              " SELECTION:   W44x335  [W1100x499]    -->   Ix = 1x10^10 mm^4");
    EXPECT_EQ(desk.StatBar.Remark(), "Use the stored value: 12,900,000,000 mm^4");
    page.xShapeFlex.Move_To(1, 2);
    EXPECT_EQ(desk.StatBar.Remark(), "");
    page.xShapeType.Select(5);
    page.xShapeFlex.Move_To(2, 14);
    EXPECT_EQ(desk.StatBar.Remark(), "Column xp holds Zx [mm^3]; for xp see Browse Sections");
}
