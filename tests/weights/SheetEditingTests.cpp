// Undo and the menu of the weight calculators' tables.
#include "StandIns.h"
#include "weights/WtCalcsFrm.h"
#include "weights/WtCalcsFrmA.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct SheetEditing : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};

    static void Type(FlexGrid& grid, TextBox& editor, int row, int col, const std::string& text) {
        grid.Focus.Set();
        grid.Move_To(row, col);
        grid.OnKeyDown(Keys::F2);
        editor.Set_Text(text);
        editor.OnKeyDown(Keys::Enter);
    }
    static std::string All(const FlexGrid& grid) {
        return grid.Clip_Of(1, 1, grid.Rows() - 1, grid.Cols() - 1);
    }
};

} // namespace

TEST_F(SheetEditing, LengthsComeBackWithTheirWeights) {
    SavedLengths saved;
    saved[20].Imperial = "7'";
    WtCalcsFrm form(desk, saved);
    form.Load();
    FlexGrid& grid = form.ImperialFlex;
    grid.OnUndo();
    EXPECT_EQ(grid.Text(21, 1), "7'     "); // was loaded, not typed
    Type(grid, form.EdiTxt, 1, 1, "10'");
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
    Type(form.MetricFlex, form.EdiTxtA, 3, 1, "2.5"); // each sheet has its own
    grid.OnUndo();
    EXPECT_EQ(grid.Text(1, 1) + grid.Text(1, 2), "     "); // as an empty row is loaded
    EXPECT_EQ(form.MetricFlex.Text(3, 1), "2.50     ");
}

TEST_F(SheetEditing, SizesComeBackToo) {
    SavedRows saved;
    WtCalcsFrmA form(desk, saved);
    form.Load();
    FlexGrid& grid = form.ImperialFlex;
    grid.Focus.Set();
    grid.Press(1, 1);
    form.ShapeSizeUS.Select(0);
    form.ShapeSizeUS.OnKeyDown(Keys::Enter);
    Type(grid, form.EdiTxt, 1, 2, "10'");
    const std::string row = All(grid);
    EXPECT_EQ(grid.Text(1, 3), "3,350.00     ");
    grid.Move_To(1, 1);
    grid.OnKeyDown(Keys::Delete);
    EXPECT_EQ(grid.Text(1, 3), "");
    grid.OnUndo();
    EXPECT_EQ(All(grid), row);
    grid.OnUndo();
    grid.OnUndo();
    EXPECT_EQ(grid.Text(1, 1), "");
}

TEST_F(SheetEditing, TheMenuOffersWhatThereIs) {
    SavedLengths saved;
    WtCalcsFrm form(desk, saved);
    form.Load();
    FlexGrid& grid = form.ImperialFlex;
    SheetPopup& menu = form.ImperialPopup;
    int opened = 0;
    menu.OnOpen = [&] { ++opened; };
    grid.Move_To(1, 1);
    grid.OnMenu();
    EXPECT_FALSE(menu.mnuUndo.Enabled() || menu.mnuCopy.Enabled() || menu.mnuPaste.Enabled());
    Type(grid, form.EdiTxt, 1, 1, "10'");
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
