// Both weight calculators as records, over the built store; undo and the menu of their tables.
#include "StandIns.h"
#include "common/NumberText.h"
#include "weights/WtCalcsFrm.h"
#include "weights/WtCalcsFrmA.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

constexpr const char* warning = "Warning|Invalid Distance Input! |stop";
constexpr const char* chargedTail = " ft: this calculator uses the whole feet of the length";

// Types into a cell as the view does: the first key at the grid, the rest in the editor.
void Type(FlexGrid& grid, TextBox& editor, int row, int col, const std::string& text) {
    grid.Focus.Set();
    grid.Move_To(row, col);
    grid.OnKeyDown(Keys::F2);
    editor.Set_Text("");
    for (std::size_t i = 1; i <= text.size(); ++i)
        editor.Set_Text(text.substr(0, i));
}

void Enter(FlexGrid& grid, TextBox& editor, int row, int col, const std::string& text) {
    Type(grid, editor, row, col, text);
    editor.OnKeyDown(Keys::Enter);
}

// What stands in a row from column 1 on, without the blanks behind it.
std::string Row_Of(const FlexGrid& grid, int row) {
    return Replace_All(Replace_All(grid.Clip_Of(row, 1, row, grid.Cols() - 1), "     ", ""), "\t",
                       "|");
}

std::string All(const FlexGrid& grid) {
    return grid.Clip_Of(1, 1, grid.Rows() - 1, grid.Cols() - 1);
}

struct WtCalcs : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    SavedLengths lengths;
    SavedRows rows;
};

struct Type1 : WtCalcs {
    WtCalcsFrm form{desk, lengths};

    void SetUp() override {
        form.Load();
        Choose("W8x10");
    }
    void Choose(const std::string& size) { Select_Item(form.ShapeSizeUS, size); }
    void Length(int row, const std::string& text) {
        Enter(form.ImperialFlex, form.EdiTxt, row, 1, text);
    }
    void Metres(int row, const std::string& text) {
        Enter(form.MetricFlex, form.EdiTxtA, row, 1, text);
    }
    std::string Feet(int row) { return Row_Of(form.ImperialFlex, row); }
    std::string Feet(int row, int col) { return form.ImperialFlex.Text(row, col); }
    std::string Metric(int row) { return Row_Of(form.MetricFlex, row); }
};

struct Type2 : WtCalcs {
    WtCalcsFrmA form{desk, rows};

    void SetUp() override { form.Load(); }
    void Pick(int row, const std::string& size) {
        Pick(form.ImperialFlex, form.ShapeSizeUS, row, size);
    }
    static void Pick(FlexGrid& grid, ComboBox& list, int row, const std::string& size) {
        grid.Focus.Set();
        grid.Press(row, 1);
        Select_Item(list, size);
        list.OnKeyDown(Keys::Enter);
    }
    void Length(int row, const std::string& text) {
        Enter(form.ImperialFlex, form.EdiTxt, row, 2, text);
    }
    std::string Feet(int row) { return Row_Of(form.ImperialFlex, row); }
    std::string Feet(int row, int col) { return form.ImperialFlex.Text(row, col); }
    std::string Remark(int row) { return form.ImperialFlex.Remark(row, 3); }
};

} // namespace

TEST_F(WtCalcs, TheSheetsAsTheyAreLaidOut) {
    const char *feet = "PROFILE LENGTH\n(Feet-Inches)", *metres = "PROFILE LENGTH\n(Meter)";
    const char *pounds = "PROFILE WEIGHT\n(Lbs.)", *kilograms = "PROFILE WEIGHT\n(Kg)";
    const char* size = "PROFILE SIZE\n";
    WtCalcsFrm one(desk, lengths);
    WtCalcsFrmA two(desk, rows);
    one.Load();
    two.Load();
    using Columns = std::vector<std::pair<const char*, double>>; // head and width
    const std::pair<const FlexGrid&, Columns> sheets[] = {
        {one.ImperialFlex, {{"No.", 700}, {feet, 2100}, {pounds, 2500}}},
        {one.MetricFlex, {{"No.", 700}, {metres, 2100}, {kilograms, 2500}}},
        {two.ImperialFlex, {{"No.", 700}, {size, 2350}, {feet, 1700}, {pounds, 2000}}},
        {two.MetricFlex, {{"No.", 700}, {size, 2350}, {metres, 1700}, {kilograms, 2000}}}};
    const CellStyle head{Alignment::Centre, true, true, 0x0000FF, 0xFFFFC0};
    for (const auto& [grid, columns] : sheets) {
        EXPECT_EQ(grid.Rows(), 51);
        EXPECT_EQ(grid.FixedRows() + grid.FixedCols(), 2);
        ASSERT_EQ(grid.Cols(), static_cast<int>(columns.size()));
        for (int col = 0; col < grid.Cols(); ++col) {
            EXPECT_EQ(grid.Text(0, col), columns[static_cast<std::size_t>(col)].first);
            EXPECT_EQ(grid.Col_Width(col), columns[static_cast<std::size_t>(col)].second);
            EXPECT_EQ(grid.Style(0, col), head);
        }
        EXPECT_EQ(grid.Row_Height(50), 350);
        EXPECT_EQ(grid.Text(50, 0), "50");
        EXPECT_EQ(grid.Style(50, 0).Fore, 0xFF0000u);
        EXPECT_EQ(grid.Style(50, grid.Cols() - 1).Align, Alignment::Right);
    }
    EXPECT_EQ(one.ShapeType.Count() + two.ShapeType.Count(), 34);
}

TEST_F(Type1, LengthsComeBackInNormalFormWithTheirWeight) {
    const std::array<const char*, 4> cases[] = {
        {"W18x50", "10'-6\"", "10'-6\"     ", "525.00     "},
        {"W18x50", "20000'", "20000'-0\"     ", "1,000,000.00     "},
        {"W8x10", "12'-6\"", "12'-6\"     ", "125.00     "},
        {"W8x10", "5.5'", "5'-6\"     ", "55.00     "},
        {"W8x10", "6", "6\"     ", "5.00     "},
        {"W8x10", "20'-0 3/4\"", "20'-3/4\"     ", "200.63     "},
        {"W8x10", "  12'-6 3/8\" ", "12'-6 3/8\"     ", "125.31     "},
    };
    int row = 1;
    for (const auto& [size, typed, shown, weight] : cases) {
        SCOPED_TRACE(typed);
        Choose(size);
        Length(row, typed);
        EXPECT_EQ(Feet(row, 1), shown);
        EXPECT_EQ(Feet(row, 2), weight);
        EXPECT_EQ(form.ImperialFlex.Row(), ++row);
    }
    EXPECT_EQ(machine.Boxes.Shown.size(), 0u);
    Metres(1, "2.5");
    EXPECT_EQ(Metric(1), "2.50|37.50");
}

TEST_F(Type1, AnInvalidLengthIsReportedOnceAndTheLastValidOneReturns) {
    Type(form.ImperialFlex, form.EdiTxt, 5, 1, "/"); // without any valid one zero returns
    form.EdiTxt.OnKeyDown(Keys::Tab);
    EXPECT_EQ(Feet(5, 1), "0\"     ");
    EXPECT_EQ(std::exchange(machine.Boxes.Shown, {}).size(), 1u);
    Length(1, "5'6\""); // valid up to 5'6
    EXPECT_EQ(machine.Boxes.Shown, Strings{warning});
    EXPECT_EQ(Feet(1), "5'-0\"|50.00");
    EXPECT_EQ(form.LastLength, 5);

    Type(form.ImperialFlex, form.EdiTxt, 2, 1, "7'-6-1");
    form.ImperialFlex.Press(4, 1); // the other way out
    EXPECT_EQ(machine.Boxes.Shown.size(), 2u);
    EXPECT_EQ(Feet(2), "7'-6\"|75.00");
}

TEST_F(Type1, TheKeyFilters) {
    form.ImperialFlex.Move_To(1, 1);
    form.ImperialFlex.OnKeyPress('-'); // no first key
    EXPECT_FALSE(form.EdiTxt.Visible());
    form.ImperialFlex.OnKeyPress('7');
    EXPECT_EQ(form.EdiTxt.OnKeyPress('-'), '-');
    EXPECT_EQ(form.EdiTxt.OnKeyPress('x'), 0);
    form.MetricFlex.Move_To(1, 1);
    form.MetricFlex.OnKeyPress('.');
    EXPECT_EQ(form.EdiTxtA.OnKeyPress('.') + form.EdiTxtA.OnKeyPress('-'), 0);
}

TEST_F(Type1, ASectionRecomputesBothSheetsAndBothListsFollow) {
    Length(1, "2'");
    Metres(3, "2");
    Select_Item(form.ShapeSizeSI, "W460x74");
    EXPECT_EQ(form.ShapeSizeUS.Text() + ", " + Feet(1) + ", " + Metric(3),
              "W18x50, 2'-0\"|100.00, 2.00|148.00");
    EXPECT_EQ(form.ImperialFlex.Row() + form.MetricFlex.Row(), 2 * entryRows);
    form.ImperialFlex.Focus.Set();
    EXPECT_EQ(form.ImperialFlex.Row(), 2) << "where the typing had stopped";
    EXPECT_EQ(machine.Store.Get("CalcWtShapeSize0"), std::to_string(form.ShapeSizeUS.ListIndex()));

    form.ShapeType.Select(12);
    EXPECT_EQ(form.ShapeSizeUS.Text() + ", " + Feet(1, 2), "Pipe12STD, 99.20     ");
}

TEST_F(Type1, ClearingEmptiesTheTabThatShowsAndTheTotalFollows) {
    Length(1, "1'");
    Length(2, "100'");
    Metres(1, "2");
    EXPECT_EQ(form.TotalLabel.Caption(), "Rows: 2     Total weight: 1,010.00 lb");
    form.ImperialFlex.Move_To(1, 1);
    form.ImperialFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(Feet(1), "|");
    form.SSTab1.Select(metricTab);
    EXPECT_EQ(form.TotalLabel.Caption(), "Rows: 1     Total weight: 30.00 kg");
    form.ClearButton.Click();
    EXPECT_EQ(Metric(1) + Feet(2, 2), "|1,000.00     ");
    EXPECT_EQ(form.TotalLabel.Caption(), "Rows: 0     Total weight: 0.00 kg");
}

TEST_F(Type1, LengthsComeBackWithTheWeightsOfTheSectionChosenByThen) {
    Length(1, "1'-6\"");
    Length(50, "2'");
    Metres(2, "3");
    form.ShapeType.Select(5);
    Type(form.ImperialFlex, form.EdiTxt, 3, 1, "4'"); // closing takes it
    form.Unload();
    EXPECT_EQ(lengths[0].Imperial + " " + lengths[2].Imperial + " " + lengths[1].Metric,
              "1'-6\" 4'-0\" 3.00");
    EXPECT_EQ(machine.Store.Get("CalcWtShapeType") + machine.Store.Get("CalcWtShapeSize5"), "50");
    machine.Store.Set("CalcWtShapeType", "3"); // S-Shape, first size
    WtCalcsFrm again(desk, lengths);
    again.Load();
    EXPECT_EQ(Row_Of(again.ImperialFlex, 1) + ", " + Row_Of(again.ImperialFlex, 50) + ", " +
                  Row_Of(again.ImperialFlex, 2) + ", " + Row_Of(again.MetricFlex, 2),
              "1'-6\"|181.50, 2'-0\"|242.00, |, 3.00|540.00");
}

TEST_F(Type1, AWeightThatIsNotOfTheSectionShownTellsSo) {
    Length(1, "1'");
    machine.Host.Places.Program = "/nowhere";
    form.ShapeSizeUS.Select(0);
    EXPECT_EQ(Feet(1, 2), "10.00     ") << "the figures of before stay";
    EXPECT_EQ(form.ImperialFlex.Remark(1, 2), staleWeightRemark);
    machine.Host.Places.Program = TENSARIX_PROGRAM_DIR;
    form.ShapeSizeUS.Select(1);
    EXPECT_EQ(form.ImperialFlex.Remark(1, 2), "");
    machine.Store.Set("CalcWtShapeSize1", "9999");
    form.ShapeType.Select(1); // no size chosen
    EXPECT_EQ(form.ImperialFlex.Remark(1, 2), staleWeightRemark);
    EXPECT_EQ(form.TotalLabel.Caption_Weight(), RemarkWeight::Caution);
    form.ImperialFlex.Set_Text(2, 1, "3'"); // a length that was never weighed
    form.ImperialFlex.Move_To(2, 1);
    EXPECT_EQ(form.RemarkLabel.Caption(), "Choose a section first");
}

TEST_F(Type1, AColumnOfLengthsIsPasted) {
    form.ImperialFlex.Move_To(2, 2);
    machine.Clip.Held = "1'\tnote\r\n\r\n 2'-6 \r\n\r\n";
    form.ImperialFlex.OnPaste();
    EXPECT_EQ(Feet(2) + ", " + Feet(3, 2) + ", " + Feet(4), "1'-0\"|10.00, , 2'-6\"|25.00");
    form.ImperialFlex.OnCopy();
    EXPECT_EQ(machine.Clip.Held, "1'-0\"     \r\r2'-6\"     ");
    EXPECT_EQ(machine.Boxes.Shown.size(), 0u);
}

TEST_F(Type1, APasteThatIsRefusedWritesNothing) {
    Length(3, "9'");
    machine.Clip.Held = "1'\n2'\n5'6\"\nLength\n3'";
    form.ImperialFlex.Move_To(2, 1);
    form.ImperialFlex.OnPaste();
    EXPECT_EQ(machine.Boxes.Shown,
              Strings{"Warning|Invalid input for row 4, 5. Nothing was pasted.|stop"});
    EXPECT_EQ(Feet(2) + Feet(3), "|9'-0\"|90.00");
    machine.Clip.Held = "1,5\n2";
    form.MetricFlex.Move_To(1, 1);
    form.MetricFlex.OnPaste();
    EXPECT_EQ(Metric(2), "|") << "a comma is no point";
}

TEST_F(Type2, TheLeadingNumberIsChargedAndARemarkTellsSo) {
    const std::array<const char*, 4> cases[] = {
        // the last one empty: no remark
        {"12'-6\"", "12'-6\"     ", "120.00     ", "12"},
        {"6\"", "6\"     ", "60.00     ", "6"},
        {"12'", "12'-0\"     ", "120.00     ", ""},
        {"6 1/2", "6 1/2\"     ", "610.00     ", "61"},
        {"1/2\"", "1/2\"     ", "10.00     ", "1"},
    };
    int row = 1;
    for (const auto& [typed, shown, weight, charged] : cases) {
        SCOPED_TRACE(typed);
        Pick(row, "W8x10");
        Length(row, typed);
        EXPECT_EQ(Feet(row, 2), shown);
        EXPECT_EQ(Feet(row, 3), weight);
        EXPECT_EQ(Remark(row),
                  *charged ? std::string{"Charged for "} + charged + chargedTail : std::string{});
        ++row;
    }
    form.ImperialFlex.Move_To(1, 2);
    EXPECT_EQ(form.RemarkLabel.Caption(), Remark(1));
    EXPECT_EQ(form.RemarkLabel.Caption_Weight(), RemarkWeight::Caution);
    form.ImperialFlex.Move_To(3, 2);
    EXPECT_EQ(form.RemarkLabel.Caption(), "");
    // 12.5, 0.5, 12, 6.5/12 and 0.5/12 ft at 10 lb/ft.
    EXPECT_EQ(form.TotalLabel.Caption(),
              "Rows: 5     Total weight: 920.00 lb (exact lengths: 255.83 lb)");
    EXPECT_EQ(form.TotalLabel.Caption_Weight(), RemarkWeight::Caution);
    form.ImperialFlex.Select_Range(1, 1, 2, 2);
    form.ImperialFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(Feet(1, 1) + Feet(1, 2) + Feet(1, 3) + Feet(2, 3), "");
    EXPECT_EQ(form.TotalLabel.Caption(),
              "Rows: 3     Total weight: 740.00 lb (exact lengths: 125.83 lb)");
}

TEST_F(Type2, AWeightNeedsBothASizeAndALength) {
    const auto shown = [this](int row) {
        form.ImperialFlex.Move_To(row, 2);
        return Feet(row, 3) + form.RemarkLabel.Caption();
    };
    Pick(1, "W8x10");
    EXPECT_EQ(shown(1), "Type a length first");
    Length(2, "3'");
    EXPECT_EQ(shown(2), "Choose a section first");
    Pick(2, "W8x10");
    EXPECT_EQ(Feet(2, 3), "30.00     ");
    form.ImperialFlex.Move_To(2, 1);
    form.ImperialFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(Feet(2), "|3'-0\"|");
    form.ImperialFlex.Move_To(2, 3);
    form.ImperialFlex.OnKeyPress('7');
    EXPECT_FALSE(form.EdiTxt.Visible() || form.ShapeSizeUS.Visible());
}

TEST_F(Type2, RowsKeepSizesOfOtherFamilies) {
    Pick(1, "W8x10");
    Length(1, "10'");
    form.ShapeType.Focus.Set();
    form.ShapeType.Select(12);
    EXPECT_EQ(form.ShapeSizeUS.ListIndex(), -1);
    EXPECT_EQ(Feet(1, 3), "100.00     ");
    Length(1, "20'"); // the size of the cell counts, not the list
    EXPECT_EQ(Feet(1, 3), "200.00     ");

    // Leaving the list without a choice computes by the list's empty text.
    form.ImperialFlex.Press(1, 1);
    form.ImperialFlex.Focus.Set();
    EXPECT_EQ(Feet(1), "W8x10|20'-0\"|0.00");
    EXPECT_NE(Remark(1), "");
}

TEST_F(Type2, NothingIsCommittedByAChangeOfTheTab) {
    Length(1, "10'");
    Type(form.ImperialFlex, form.EdiTxt, 1, 2, "12'");
    form.SSTab1.Select(metricTab);
    EXPECT_FALSE(form.EdiTxt.Visible());
    EXPECT_EQ(Feet(1, 2), "10'-0\"     ");
    Pick(form.MetricFlex, form.ShapeSizeSI, 1, "W200x15");
    Enter(form.MetricFlex, form.EdiTxtA, 1, 2, "2.5");
    EXPECT_EQ(Row_Of(form.MetricFlex, 1), "W200x15|2.50|37.50");
    EXPECT_EQ(form.MetricFlex.Remark(1, 3), "");
    form.MetricFlex.OnKeyPress('7');
    form.ClearButton.Click();
    EXPECT_EQ(Row_Of(form.MetricFlex, 1), "||");
    EXPECT_FALSE(form.EdiTxtA.Visible());

    form.SSTab1.Select(imperialTab);
    form.ImperialFlex.Press(1, 1);
    form.ShapeSizeUS.Select(3);
    form.SSTab1.Select(metricTab);
    EXPECT_FALSE(form.ShapeSizeUS.Visible());
    EXPECT_EQ(Feet(1, 1), "");
    EXPECT_EQ(Remark(1), "The weight is that of " + form.ShapeSizeUS.Text() +
                             ", which was not taken into the row");
    EXPECT_EQ(form.ImperialFlex.Remark_Weight(1, 3), RemarkWeight::Caution);
    Length(1, "11'");
    EXPECT_EQ(Feet(1, 3), "");

    form.ImperialFlex.Press(1, 1); // the family hides the list the same way
    form.ShapeSizeUS.Select(3);
    const std::string weight = Feet(1, 3);
    form.ShapeType.Focus.Set();
    EXPECT_FALSE(form.ShapeSizeUS.Visible());
    EXPECT_EQ(Feet(1, 1) + Feet(1, 3), weight);
}

TEST_F(Type2, RowsArePastedWithTheirSizes) {
    form.ShapeType.Select(3); // the sizes may be those of any family
    machine.Clip.Held = "W8x10\t10'\t1.00\r\nPipe12STD\t6 1/2\r\n";
    form.ImperialFlex.Move_To(3, 1);
    form.ImperialFlex.OnPaste();
    EXPECT_EQ(Feet(3) + ", " + Feet(4, 2), "W8x10|10'-0\"|100.00, 6 1/2\"     ");
    EXPECT_NE(Remark(4), "");
    machine.Clip.Held = "W8x10a\t10'";
    form.ImperialFlex.OnPaste();
    EXPECT_EQ(machine.Boxes.Shown,
              (Strings{"Warning|Invalid input for row 3. Nothing was pasted.|stop"}));
}

TEST_F(Type2, TheFormComesBackAsItWasWithoutComputing) {
    Pick(1, "W8x10");
    Length(1, "12'-6\"");
    Pick(2, "W8x10");
    Length(2, "10'");
    form.ShapeType.Select(4);
    form.ImperialFlex.Press(2, 1); // the list is left without a choice
    form.ImperialFlex.Focus.Set();
    const std::string noSize = Remark(2);
    EXPECT_NE(noSize, "");
    form.Unload();
    EXPECT_EQ(machine.Store.Get("CalcWtShapeType") + machine.Store.Get("CalcWtShapeSize4"), "4-1");
    machine.Host.Places.Program = "/nowhere"; // nothing can be computed
    WtCalcsFrmA again(desk, rows);
    again.Load();
    EXPECT_EQ(Row_Of(again.ImperialFlex, 1), "W8x10|12'-6\"|120.00");
    EXPECT_EQ(again.ImperialFlex.Remark(1, 3), std::string{"Charged for 12"} + chargedTail);
    EXPECT_EQ(again.ImperialFlex.Text(2, 3) + again.ImperialFlex.Text(3, 3), "0.00          ");
    EXPECT_EQ(again.ImperialFlex.Remark(2, 3), noSize);
    EXPECT_EQ(again.TotalLabel.Caption(),
              "Rows: 2     Total weight: 120.00 lb (exact lengths: 125.00 lb)");
    EXPECT_EQ(again.TotalLabel.Caption_Weight(), RemarkWeight::Caution);
}

TEST_F(WtCalcs, UndoBringsLengthsBackWithTheirWeights) {
    lengths[20].Imperial = "7'";
    WtCalcsFrm form(desk, lengths);
    form.Load();
    FlexGrid& grid = form.ImperialFlex;
    grid.OnUndo();
    EXPECT_EQ(grid.Text(21, 1), "7'     "); // was loaded, not typed
    Enter(grid, form.EdiTxt, 1, 1, "10'");
    const std::string one = All(grid), total = form.TotalLabel.Caption();
    machine.Clip.Held = "1'\n2'\n3'";
    grid.Move_To(1, 1);
    grid.OnPaste();
    const std::string pasted = All(grid);
    EXPECT_NE(pasted, one);
    form.ClearButton.Click();
    grid.OnUndo();
    EXPECT_EQ(All(grid), pasted);
    grid.OnUndo();
    EXPECT_EQ(All(grid), one);
    EXPECT_EQ(form.TotalLabel.Caption(), total);
    EXPECT_EQ(grid.Row(), 1);
    Enter(form.MetricFlex, form.EdiTxtA, 3, 1, "2.5"); // each sheet has its own
    grid.OnUndo();
    EXPECT_EQ(grid.Text(1, 1) + grid.Text(1, 2), "     "); // as an empty row is loaded
    EXPECT_EQ(form.MetricFlex.Text(3, 1), "2.50     ");
}

TEST_F(Type2, UndoBringsSizesBackToo) {
    FlexGrid& grid = form.ImperialFlex;
    Pick(1, "W44x335");
    Length(1, "10'");
    const std::string row = All(grid);
    EXPECT_EQ(Feet(1, 3), "3,350.00     ");
    grid.Move_To(1, 1);
    grid.OnKeyDown(Keys::Delete);
    EXPECT_EQ(Feet(1, 3), "");
    grid.OnUndo();
    EXPECT_EQ(All(grid), row);
    grid.OnUndo();
    grid.OnUndo();
    EXPECT_EQ(grid.Text(1, 1), "");
}

TEST_F(Type1, TheMenuOffersWhatThereIs) {
    FlexGrid& grid = form.ImperialFlex;
    SheetPopup& menu = form.ImperialPopup;
    int opened = 0;
    menu.OnOpen = [&] { ++opened; };
    grid.Move_To(1, 1);
    grid.OnMenu();
    EXPECT_FALSE(menu.mnuUndo.Enabled() || menu.mnuCopy.Enabled() || menu.mnuPaste.Enabled());
    Length(1, "10'");
    machine.Clip.Held = "5'";
    grid.Move_To(1, 1);
    grid.OnMenu();
    EXPECT_TRUE(menu.mnuUndo.Enabled() && menu.mnuCopy.Enabled() && menu.mnuPaste.Enabled());
    EXPECT_EQ(opened, 2);
    menu.mnuPaste.Click();
    EXPECT_EQ(grid.Text(1, 1), "5'-0\"     ");
    menu.mnuUndo.Click();
    menu.mnuCopyAll.Click();
    EXPECT_TRUE(machine.Clip.Held.starts_with(
        "No.\tPROFILE LENGTH (Feet-Inches)\tPROFILE WEIGHT (Lbs.)\r1\t10'-0\"     \t"))
        << machine.Clip.Held.substr(0, 90);
    EXPECT_EQ(grid.Row_Sel(), 1); // what was selected stays so
    menu.mnuSelectAll.Click();
    EXPECT_EQ(grid.Clip(), grid.Clip_Of(1, 1, 50, 2));
}
