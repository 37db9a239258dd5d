#include "NoDialogs.h"
#include "StandIns.h"
#include "shell/MainFrm.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct RecordedDialogs final : NoDialogs {
    std::vector<std::string> Shown;
    std::function<void()> Meanwhile;
    void Show_CalcMainFrm() override { Note("CalcMainFrm"); }
    void Show_WtCalcsFrm() override { Note("WtCalcsFrm"); }
    void Show_WtCalcsFrmA() override { Note("WtCalcsFrmA"); }
    void Show_AboutFrm() override { Note("AboutFrm"); }
    void Note(const char* name) {
        Shown.emplace_back(name);
        Run(Meanwhile);
    }
};

struct MainFrmTest : testing::Test {
    TestMachine machine;
    RecordedDialogs dialogs;
    std::unique_ptr<MainFrm> form;

    MainFrm& Start() {
        form = std::make_unique<MainFrm>(machine.Host, dialogs);
        EXPECT_TRUE(form->Load());
        return *form;
    }
};

} // namespace

TEST_F(MainFrmTest, ASecondInstanceRaisesTheFirstAndDoesNothingElse) {
    machine.Guard.Other = true;
    MainFrm second(machine.Host, dialogs);
    EXPECT_FALSE(second.Load());
    EXPECT_EQ(machine.Guard.Raises, 1);
    EXPECT_EQ(second.Browse.ShapeType.Count(), 0);
    EXPECT_TRUE(machine.Store.Written.empty() && machine.Boxes.Shown.empty());
    machine.Guard.Answers = false;
    EXPECT_FALSE(second.Load());
    EXPECT_EQ(machine.Boxes.Shown,
              (Strings{"Warning|Tensarix is running already but does not answer. "
                       "End it, then start it again.|exclamation"}));
}

// What the user has to know of the desktop stands beside the selection, once.
TEST_F(MainFrmTest, RemarksOfTheDesktop) {
    machine.Store.Doubt = "unreadable";
    EXPECT_EQ(Start().Shared.StatBar.Remark(), "unreadable");
    machine.Store.Doubt = "";
    machine.Store.Set("AlwaysOnTop", "1");
    EXPECT_EQ(Start().Shared.StatBar.Remark(), "");
    machine.Window.Obeys = false;
    MainFrm& f = Start();
    StatusBar& bar = f.Shared.StatBar;
    const std::string decides = "This desktop decides itself which windows stay on top";
    EXPECT_EQ(bar.Remark(), decides);
    EXPECT_EQ(bar.Panel1(), " SELECTION:   None");
    bar.Set_Remark("");
    f.mnuOnTop.Click();
    f.mnuOnTop.Click();
    EXPECT_EQ(bar.Remark(), "");
    EXPECT_EQ(machine.Store.Get("AlwaysOnTop"), "1");

    machine.Speech.OnMissing(); // while it is off
    EXPECT_EQ(bar.Remark(), "");
    f.mnuReadOut.Click();
    EXPECT_EQ(machine.Speech.Reaches, 1);
    machine.Speech.OnMissing();
    EXPECT_EQ(bar.Remark(), "No speech service was found: nothing is read out loud");
    EXPECT_EQ(f.mnuReadOut.Remark(), bar.Remark());
    bar.Set_Remark("");
    f.mnuReadOut.Click();
    f.mnuReadOut.Click();
    machine.Speech.OnMissing();
    EXPECT_EQ(bar.Remark(), "");
}

TEST_F(MainFrmTest, ChoicesComeBackAtTheNextStart) {
    MainFrm& first = Start();
    EXPECT_FALSE(first.mnuReadOut.Checked() || first.mnuOnTop.Checked());
    first.Browse.ShapeType.Select(4);
    first.Browse.ShapeSizeSI.Select(3);
    first.Browse.DimOption2.Select();
    first.Browse.ProfileOption2.Select();
    machine.Store.Written.clear();
    first.mnuOnTop.Click();
    for (int i = 0; i < 3; ++i)
        first.mnuReadOut.Click();
    EXPECT_EQ(machine.Store.Written,
              (Strings{"AlwaysOnTop=1", "ReadOutLoud=1", "ReadOutLoud=0", "ReadOutLoud=1"}));
    first.Query_Unload();

    MainFrm& second = Start();
    EXPECT_EQ(second.Browse.ShapeType.ListIndex(), 4);
    EXPECT_EQ(second.Browse.ShapeSizeUS.ListIndex(), 3);
    EXPECT_TRUE(second.Browse.DimOption2.Value() && second.Browse.ProfileOption2.Value());
    EXPECT_FALSE(second.Browse.DimOption1.Enabled());
    EXPECT_TRUE(second.Shared.OnTop && second.mnuOnTop.Checked());
    EXPECT_TRUE(second.Shared.ReadOut && second.mnuReadOut.Checked());
}

TEST_F(MainFrmTest, GarbageInTheSettingsNeverStopsTheStart) {
    for (const char* garbage : {"", "abc", "-1", "99", "1E999", "2.5", "\xFF\xFE", "0x10"}) {
        for (const SettingKey* key :
             {&Setting::ReadOutLoud, &Setting::AlwaysOnTop, &Setting::ProfileOption,
              &Setting::DimOption, &Setting::ShapeType, &Setting::fShapeType, &Setting::xShapeType,
              &Setting::zShapeType, &Setting::BeamSpan, &Setting::AppliedCode, &Setting::CodeOpt,
              &Setting::cFlexRows, &Setting::WeldStrip, &Setting::WeldView})
            machine.Store.Set(std::string{key->Name}, garbage);
        machine.Store.Set("ShapeSize0", garbage);
        MainFrm& f = Start();
        EXPECT_EQ(f.Browse.ShapeType.Count(), 17) << garbage;
        const bool second = f.Browse.ProfileOption2.Value(); // or neither
        f.Query_Unload();
        EXPECT_EQ(machine.Store.Get("ProfileOption"), second ? "1" : "0") << garbage;
    }
}

TEST_F(MainFrmTest, ADialogStandsAboveATopMostWindow) {
    machine.Store.Set("AlwaysOnTop", "1");
    MainFrm& f = Start();
    machine.Window.OnTop.clear();
    std::vector<bool> during;
    dialogs.Meanwhile = [&] { during = machine.Window.OnTop; };
    f.mnuWtCalcA.Click();
    EXPECT_EQ(during, (std::vector<bool>{false}));
    EXPECT_EQ(machine.Window.OnTop, (std::vector<bool>{false, true}));
    f.mnuCalc.Click();
    f.mnuWtCalc.Click();
    f.mnuAbout.Click();
    EXPECT_EQ(dialogs.Shown, (Strings{"WtCalcsFrmA", "CalcMainFrm", "WtCalcsFrm", "AboutFrm"}));
    f.mnuTerminate.Click();
    EXPECT_EQ(machine.Window.Closes, 1);
}

TEST_F(MainFrmTest, ConnectionDesignAndTheModes) {
    MainFrm& f = Start();
    OptionButton& connection = f.OptButton[static_cast<std::size_t>(Mode::Connection)];
    f.Shared.GridClicked = true;
    f.Shared.StatBar.Set_Panel1("x");
    connection.Select();
    EXPECT_FALSE(f.Shared.GridClicked);
    EXPECT_EQ(f.SelectionTab.Tab(), static_cast<int>(Mode::Connection));
    EXPECT_EQ(f.Shared.StatBar.Panel1(), " SELECTION:   None");
    f.Design.DesignSSTab.Select(weldTab);
    f.Design.Welds.WeldView.Click(3);
    f.OptButton[0].Select();
    connection.Select();
    EXPECT_EQ(f.Shared.StatBar.Panel1(), " SELECTION:   Weld Configuration 3");

    WeldPage& welds = f.Design.Welds;
    for (int row = 0; row < 4; ++row)
        welds.WeldFlex.Set_Text(row, 1, "5");
    long yields = 0;
    machine.Events.OnYield = [&] {
        if (++yields == 5)
            f.OptButton[1].Select(); // leaves the page
        return true;
    };
    welds.StartIterationButton.Click();
    EXPECT_EQ(welds.StopIterationButton.Caption(), "Resume Iteration");
    EXPECT_TRUE(welds.CBox.Text().starts_with("** "));
}

TEST_F(MainFrmTest, ConnectionDesignIsSavedLastAtExit) {
    MainFrm& f = Start();
    f.Design.Bolts.AddRowButton.Click();
    f.Design.Welds.WeldView.Click(9);
    machine.Store.Written.clear();
    f.Query_Unload();
    const std::vector<std::string>& written = machine.Store.Written;
    ASSERT_GE(written.size(), 4u);
    EXPECT_TRUE(written[written.size() - 4].starts_with("BeamSpan="));
    EXPECT_EQ(Strings(written.end() - 3, written.end()),
              (Strings{"cFlexRows=17", "WeldStrip=1", "WeldView=9"}));
    MainFrm& next = Start();
    EXPECT_EQ(next.Design.Bolts.cFlex.Rows(), 17);
    EXPECT_EQ(next.Design.Welds.WeldView.Selected_Item(), 9);
    EXPECT_EQ(next.Shared.StatBar.Panel1(), " SELECTION:   None");
}

TEST_F(MainFrmTest, CopyAllOfTheBoltTable) {
    MainFrm& f = Start();
    f.OptButton[static_cast<std::size_t>(Mode::Connection)].Select();
    f.mnuEdit1.mnuCopySelection1d.Click();
    EXPECT_TRUE(machine.Clip.Held.starts_with("No.\tNumber of Bolt Rows on the Vertical\t"));
    EXPECT_NE(machine.Clip.Held.find("Bolt Group Coefficient [C']\r1\t"), std::string::npos);
}
