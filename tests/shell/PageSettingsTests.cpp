// The pages in the main window: what start, change of mode and exit do to them, the count.
#include "StandIns.h"
#include "shell/MainFrm.h"
#include "shell/NoDialogs.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct PageSettingsTest : testing::Test {
    TestMachine machine;
    NoDialogs dialogs;
    MainFrm form{machine.Host, dialogs};

    // Where in the list of what was written a text stands.
    std::size_t Place(const std::string& written) {
        const auto& all = machine.Store.Written;
        const auto found = std::find(all.begin(), all.end(), written);
        EXPECT_NE(found, all.end()) << written;
        return static_cast<std::size_t>(found - all.begin());
    }
};

} // namespace

TEST_F(PageSettingsTest, TheSavedSearchComesBack) {
    machine.Store.Set("fShapeType", "7");
    machine.Store.Set("fPoperty7", "2");
    machine.Store.Set("fCriterion7", "3");
    machine.Store.Set("fValue7", "5.5");
    machine.Store.Set("fProfileOption", "1");
    machine.Store.Set("xShapeType", "12");
    machine.Store.Set("xDimOption", "1");
    ASSERT_TRUE(form.Load());
    const FindPage& find = form.Find; // the criteria came after the family
    EXPECT_EQ(find.fShapeType.Text() + "|" + find.fPoperty.Text() + "|" + find.fCriterion.Text() +
                  "|" + find.fValue.Text() + "|" + find.UnitLabel.Caption(),
              "MT-Shape|d|<|5.5|mm");
    EXPECT_FALSE(find.fDimOption1.Enabled());
    EXPECT_EQ(find.fShapeFlex.Text(1, 0), "");
    const FlexGrid& all = form.ViewAll.xShapeFlex;
    EXPECT_EQ(all.Text(1, 0) + "|" + all.Text(1, 4), "Pipe12STD|1'-3/4\"  ");
    EXPECT_EQ(form.Shared.StatBar.Panel1(), " SELECTION:   None");
}

TEST_F(PageSettingsTest, AtExitInTheirOrder) {
    ASSERT_TRUE(form.Load());
    form.Find.fShapeType.Select(3);
    form.Find.fPoperty.Select(1);
    form.Find.fValue.Set_Text("10");
    form.Find.fProfileOption2.Select();
    form.ViewAll.xShapeType.Select(16);
    form.ViewAll.xDimOption2.Select();
    form.Beam.zShapeSizeUS.Select(7);
    form.Beam.BeamSpanBox.Set_Text("12'-6\"");
    machine.Store.Written.clear();
    form.Query_Unload();
    const char* order[] = {"ShapeType=0",      "fShapeType=3",  "xShapeType=16",    "ShapeSize0=0",
                           "zShapeSize0=7",    "fCriterion3=0", "fPoperty3=1",      "fValue3=10",
                           "ProfileOption=0",  "DimOption=0",   "xProfileOption=0", "xDimOption=1",
                           "fProfileOption=1", "fDimOption=0",  "BeamSpan=12.5"};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(Place(order[i - 1]), Place(order[i])) << order[i];
    // What is no length is not saved.
    form.Beam.BeamSpanBox.Set_Text("5'6\"");
    form.Query_Unload();
    EXPECT_EQ(machine.Store.Get("BeamSpan"), "12.5");
}

TEST_F(PageSettingsTest, TheCountIsThatOfThePageInView) {
    ASSERT_TRUE(form.Load());
    const StatusBar& bar = form.Shared.StatBar;
    EXPECT_EQ(bar.Count(), "");
    form.OptButton[2].Select();
    EXPECT_EQ(bar.Count(), "274 sections");
    form.ViewAll.xShapeType.Select(2);
    EXPECT_EQ(bar.Count(), "11 sections");
    form.OptButton[1].Select();
    EXPECT_EQ(bar.Count(), "274 sections");
    form.Find.fCriterion.Select(2);
    form.Find.fValue.Set_Text("300");
    form.Find.FindButton.Click();
    EXPECT_EQ(bar.Count(), "47 found of 274 sections, lightest W36x302");
    form.OptButton[0].Select();
    EXPECT_EQ(bar.Count(), "");
    form.Find.RunFind();
    EXPECT_EQ(bar.Count(), "");
}

TEST_F(PageSettingsTest, AHandWrittenFamilyOfTheBeamPageIsHonouredAndNeverWritten) {
    machine.Store.Set("zShapeType", "4");
    ASSERT_TRUE(form.Load());
    EXPECT_EQ(form.Beam.zShapeLab.Caption(), "C-Shape Profile");
    EXPECT_EQ(form.Shared.StatBar.Panel1(), " SELECTION:   None");
    form.Beam.zShapeType.Select(5);
    form.Query_Unload();
    for (const std::string& line : machine.Store.Written)
        EXPECT_FALSE(line.starts_with("zShapeType=")) << line;
}

TEST_F(PageSettingsTest, ShowingTheBeamPageRestoresIt) {
    ASSERT_TRUE(form.Load());
    form.Beam.BeamSpanBox.Set_Text("20'");
    machine.Store.Set("BeamSpan10", "30"); // as if by a second copy of the settings
    form.OptButton[3].Select();
    EXPECT_EQ(form.Beam.BeamSpanBox.Text(), "30'-0\"");
    EXPECT_EQ(form.Shared.StatBar.Panel1(), " SELECTION:   None");
}
