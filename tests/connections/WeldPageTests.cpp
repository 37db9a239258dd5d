#include "StandIns.h"
#include "connections/DesignPage.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct WeldPageTest : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    std::unique_ptr<DesignPage> design;
    std::function<void(long)> onYield = [](long) {}; // the count of this run's yields
    long yields = 0;

    WeldPage& Start() {
        design = std::make_unique<DesignPage>(desk);
        design->Start();
        machine.Events.OnYield = [this] {
            onYield(++yields);
            return true;
        };
        return design->Welds;
    }
    WeldPage& Page() { return design->Welds; }
    void Type(int row, const std::string& text) {
        Page().WeldFlex.Move_To(row, 1);
        Page().WeldFlex.OnKeyDown(Keys::F2);
        Page().EdiTxtA.Set_Text(text);
        Page().EdiTxtA.OnKeyDown(Keys::Enter);
    }
    void Type_All(const std::vector<std::string>& texts) {
        int row = 0;
        for (const std::string& text : texts)
            Type(row++, text);
    }
    const std::string& Value(int row) { return Page().WeldFlex.Text(row, 1); }
    const std::string& Report() { return Page().IterationDisplayBox.Text(); }
    // "Start|Stop caption|Clear|list and strip": capitals are enabled.
    std::string Buttons() {
        const WeldPage& p = Page();
        EXPECT_EQ(p.WeldView.Enabled(), p.WeldStripBox.Enabled());
        std::string text = p.StartIterationButton.Enabled() ? "START " : "start ";
        text += (p.StopIterationButton.Enabled() ? "+" : "-") + p.StopIterationButton.Caption();
        text += p.ClearDisplayButton.Enabled() ? " CLEAR " : " clear ";
        return text + (p.WeldView.Enabled() ? "FREE" : "locked");
    }
    // Starts a run and does something at its n-th yield.
    void Run_And_At(long n, const std::function<void()>& what) {
        yields = 0;
        onYield = [n, what](long yield) {
            if (yield == n)
                what();
        };
        Page().StartIterationButton.Click();
    }
    void Run_Until(long n) {
        Run_And_At(n, [this] { Page().StopIterationButton.Click(); });
    }
};

const std::string idle = "START -Stop Iteration CLEAR FREE";
const std::string running = "start +Stop Iteration clear locked";
const std::string stopped = "START +Resume Iteration CLEAR FREE";
const std::string stopping = "start +Resume Iteration CLEAR FREE";
const std::vector<std::string> usual{"10", "5", "8", "30"};

const std::string note =
    " Note: Weld stress calculation is\r\n       based on 1/16\" weld size.\r\n";
const std::string located = "\r\r ** Instantaneous Center LOCATED !\r\r"
                            " Reference: AISC Steel Construction\r\n"
                            "            Manual, 13th Edition\r\n" +
                            note;
const std::string aborted = "\r\r ** Iteration ABORTED !\r\r"
                            " Reference: AISC Construction Manual\r\n"
                            "            13th Edition\r\n" +
                            note;

} // namespace

TEST_F(WeldPageTest, FirstStart) {
    WeldPage& p = Start();
    EXPECT_EQ(p.WeldView.Count(), 9);
    EXPECT_EQ(p.WeldView.Selected_Item(), 1);
    EXPECT_EQ(p.WeldView.Item(9).Key + ", " + p.WeldView.Item(9).Text + ", " + p.WeldImage.Name() +
                  ", " + p.WeldStripBox.Text() + ", " + Value(WeldRow::xL),
              "weld9, Weld Configuration 9, wImage1,   1/8\",              N.A.");
    EXPECT_EQ(Buttons() + desk.StatBar.Panel1(), idle + " SELECTION:   None");
}

TEST_F(WeldPageTest, SettingsComeBackAndGarbageIsSurvived) {
    Start();
    Page().WeldView.Click(7);
    Page().WeldStripBox.Select(3);
    design->Save_Settings();
    Start();
    EXPECT_EQ(Page().WeldView.Selected_Item(), 7);
    EXPECT_EQ(Page().WeldImage.Name() + Value(WeldRow::xL), "wImage7");
    EXPECT_EQ(Page().WeldStripBox.ListIndex(), 3);
    for (const char* garbage : {"0", "10", "-1", "abc", "1E9"}) {
        machine.Store.Set("WeldView", garbage);
        machine.Store.Set("WeldStrip", garbage[0] == '0' ? "4" : garbage);
        Start();
        EXPECT_EQ(Page().WeldView.Selected_Item(), 1) << garbage;
        EXPECT_EQ(Page().WeldStripBox.ListIndex(), 1) << garbage;
    }
}

TEST_F(WeldPageTest, AConvergedRun) {
    WeldPage& p = Start();
    p.WeldView.Click(6);
    Type_All(usual);
    std::string during;
    onYield = [&](long) { during = Buttons(); };
    p.StartIterationButton.Click();
    EXPECT_EQ(during + Buttons(), running + idle);
    EXPECT_TRUE(Report().starts_with(" -> Ro    = 0.00000 [Rotated 30°]\r\n    Fy[v] = "));
    EXPECT_TRUE(Report().ends_with(located));
    EXPECT_EQ(p.CBox.Text().size(), std::string("2.73387  ").size());
    EXPECT_EQ(p.CBox.Fore(), 0u);
    EXPECT_EQ(p.ElapsedIndicator.Caption(), "Iteration Time »  00h:00m:00s ");
    EXPECT_TRUE(p.CRemark.Caption().starts_with("Use C = "));
}

TEST_F(WeldPageTest, ConcentricAndByStrip) {
    WeldPage& p = Start();
    p.WeldView.Click(2);
    Type_All({"8", "3", "0", "0"});
    p.StartIterationButton.Click();
    EXPECT_EQ(p.CBox.Text(), "3.71231  ");
    EXPECT_EQ(p.CRemark.Caption(), "");
    Type(WeldRow::aL, "3");
    std::map<int, double> elements; // yields to the pass
    for (int strip = 0; strip < 4; ++strip) {
        p.WeldStripBox.Select(strip);
        yields = 0;
        p.StartIterationButton.Click();
        long passes = 0;
        for (std::size_t at = 0; (at = Report().find("Ro", at)) != std::string::npos; ++at)
            ++passes;
        elements[strip] = static_cast<double>(yields) / static_cast<double>(passes);
    }
    EXPECT_NEAR(elements[3] / elements[0], 8, 0.5); // 4, 8, 16 and 32 by the unit
}

TEST_F(WeldPageTest, IncompleteInputs) {
    WeldPage& p = Start();
    for (int missing = 0; missing < 4; ++missing) {
        Type_All(usual);
        Type(missing, "   ");
        p.StartIterationButton.Click();
        EXPECT_EQ(machine.Boxes.Shown.back(), "Warning:|Incomplete Parameter Input ! |stop");
        EXPECT_EQ(Buttons(), idle);
    }
    EXPECT_EQ(machine.Boxes.Shown.size(), 4u);
    // In the state of a stopped run the chance to resume stays.
    Type_All(usual);
    Run_Until(30);
    ASSERT_EQ(Buttons(), stopped);
    p.WeldFlex.Set_Text(0, 1, ""); // nothing that the user could do
    p.StartIterationButton.Click();
    EXPECT_EQ(Buttons(), stopped);
    p.StopIterationButton.Click();
    EXPECT_EQ(Buttons(), stopped);
}

TEST_F(WeldPageTest, NumbersThatFailLeaveNoButtonsRunning) {
    WeldPage& p = Start();
    for (const char* L : {"0", "abc"}) {
        Type_All({L, "5", "3", "0"});
        p.StartIterationButton.Click();
        EXPECT_EQ(p.CBox.Text(), "");
        EXPECT_EQ(Buttons(), idle);
    }
    for (const char* L : {"1E999", "1E300", "-1E300"}) { // the first is no number: 0
        p.WeldFlex.Set_Text(0, 1, L);
        p.StartIterationButton.Click();
        EXPECT_EQ(Buttons(), idle) << L;
    }
}

TEST_F(WeldPageTest, StopAndResumeGoOnFromTheSavedCentre) {
    WeldPage& p = Start();
    p.WeldView.Click(6);
    Type_All(usual);
    p.StartIterationButton.Click();
    const std::string whole = Report(), C = p.CBox.Text();

    std::string atOnce;
    Run_And_At(60, [&] {
        machine.Time.Now += 61.9;
        p.StopIterationButton.Click();
        atOnce = Buttons();
    });
    EXPECT_EQ(atOnce + Buttons(), stopping + stopped);
    EXPECT_TRUE(Report().ends_with(aborted));
    EXPECT_TRUE(p.CBox.Text().starts_with("** "));
    EXPECT_EQ(p.CBox.Fore(), 255u);
    EXPECT_TRUE(p.CRemark.Caption().starts_with("Stopped by hand"));
    EXPECT_NE(p.ElapsedIndicator.Caption().find("00h:01m:01s"), std::string::npos);
    // The last centre stands twice; the second time it is the one that was saved.
    const std::size_t at = Report().rfind(" -> Ro ");
    const std::string saved = Report().substr(at, Report().find('\r', at) - at);

    onYield = [](long) {};
    p.StopIterationButton.Click();
    EXPECT_TRUE(Report().starts_with(saved)) << saved;
    EXPECT_EQ(p.ElapsedIndicator.Caption(), "Iteration Time »  00h:00m:00s ");
    EXPECT_EQ(Buttons() + p.CBox.Text(), idle + C);
    EXPECT_TRUE(whole.ends_with(Report().substr(Report().size() - 200)));
}

TEST_F(WeldPageTest, StopThenStartOrClearBeginsAnew) {
    WeldPage& p = Start();
    Type_All(usual);
    for (const bool clear : {false, true}) {
        Run_Until(30);
        if (clear) {
            p.ClearDisplayButton.Click();
            EXPECT_EQ(Buttons(), idle);
            EXPECT_EQ(Report() + p.ElapsedIndicator.Caption(), "");
            EXPECT_NE(p.CBox.Text(), ""); // which the button leaves alone
        }
        onYield = [](long) {};
        p.StartIterationButton.Click();
        EXPECT_TRUE(Report().starts_with(" -> Ro    = 0.00000"));
    }
}

// Between the click on Stop and the pass that sees it the page is free again.
TEST_F(WeldPageTest, WhatHappensBeforeTheStopIsSeen) {
    WeldPage& p = Start();
    Type_All(usual);
    const auto afterStop = [&](const std::function<void()>& what) {
        Run_And_At(30, [&] {
            p.StopIterationButton.Click();
            what();
        });
    };
    afterStop([&] { p.StopIterationButton.Click(); }); // resumed: one run goes on, to its end
    EXPECT_EQ(Buttons(), idle);
    EXPECT_EQ(p.CBox.Fore(), 0u);
    EXPECT_TRUE(Report().ends_with(located));
    EXPECT_EQ(Report().find("**"), Report().rfind("**"));

    // Resumed from its own centre, not from that of a run before.
    p.WeldView.Click(6);
    Type_All({"10", "5", "3", "0"});
    Run_Until(3000);
    p.WeldView.Click(1);
    afterStop([&] { p.StopIterationButton.Click(); });
    const std::string resumed = p.CBox.Text();
    onYield = [](long) {};
    p.StartIterationButton.Click();
    EXPECT_EQ(resumed, p.CBox.Text());

    afterStop([&] { Type(WeldRow::aL, "9"); }); // its result would be of the old inputs
    EXPECT_EQ(Report() + p.CBox.Text() + Buttons(), idle);

    Type(WeldRow::L, "2000000000"); // hours to the pass
    afterStop([&] { Type(WeldRow::L, "10"); });
    EXPECT_EQ(Report() + p.CBox.Text() + Buttons(), idle);

    afterStop([&] { p.WeldView.Click(4); });
    EXPECT_EQ(Report() + p.CBox.Text() + Buttons(), idle);
}

TEST_F(WeldPageTest, AChangedInputTakesTheOldReportAway) {
    WeldPage& p = Start();
    Type_All({"10", "5", "3.000", "30"});
    p.StartIterationButton.Click();
    const std::string C = p.CBox.Text();
    ASSERT_NE(C, "");
    for (const char* same : {"3", "3.0004", "3.000"}) {
        Type(WeldRow::aL, same);
        EXPECT_EQ(p.CBox.Text(), C) << same;
    }
    Type(WeldRow::aL, "3.0006");
    EXPECT_EQ(Value(WeldRow::aL), "3.001     ");
    EXPECT_EQ(p.CBox.Text() + Report() + p.ElapsedIndicator.Caption() + p.CRemark.Caption(), "");

    p.StartIterationButton.Click();
    p.WeldFlex.Move_To(WeldRow::aL, 1);
    p.WeldFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(Value(WeldRow::aL), "");
    EXPECT_EQ(p.CBox.Text(), "");
}

TEST_F(WeldPageTest, NothingCanBeEditedDuringARun) {
    WeldPage& p = Start();
    Type_All(usual);
    p.WeldFlex.Move_To(0, 1);
    onYield = [&](long) {
        p.WeldFlex.OnKeyPress('7');
        p.WeldFlex.OnKeyDown(Keys::Delete);
        p.WeldFlex.OnDblClick();
        p.WeldView.Click(3);
        p.StartIterationButton.Click();
        p.ClearDisplayButton.Click();
    };
    p.StartIterationButton.Click();
    EXPECT_EQ(Value(0), "10.000     ");
    EXPECT_FALSE(p.EdiTxtA.Visible());
    EXPECT_EQ(p.WeldView.Selected_Item(), 1);
    EXPECT_TRUE(Report().ends_with(located));
    onYield = [](long) {};
    p.WeldFlex.Move_To(WeldRow::xL, 1);
    p.WeldFlex.OnKeyPress('7');
    EXPECT_FALSE(p.EdiTxtA.Visible());
}

TEST_F(WeldPageTest, CentroidsByConfiguration) {
    WeldPage& p = Start();
    const std::string none = "             N.A.";
    using Case = std::tuple<int, std::string, std::string, std::string>; // xL behind yL
    for (const auto& [item, empty, kL, full] :
         {Case{3, none + none, "8", none + none}, Case{6, none, "7.5", "2.446     " + none},
          Case{7, none, "7.5", "2.446     " + none}, Case{8, "", "8", "2.000     2.000     "},
          Case{9, "", "8", "2.000     2.000     "}}) {
        p.WeldView.Click(item);
        EXPECT_EQ(Value(4) + Value(5), empty) << item;
        Type(WeldRow::L, "8");
        Type(WeldRow::kL, kL);
        EXPECT_EQ(Value(4) + Value(5), full) << item; // 7.5^2 / (8 + 2 x 7.5) = 2.446
    }
    Type(WeldRow::L, "0"); // fails: the defaults stand
    EXPECT_EQ(Value(4) + Value(5), "");
}

TEST_F(WeldPageTest, EachConfigurationKeepsItsInputs) {
    WeldPage& p = Start();
    desk.ReadOut = true;
    for (int item = 1; item <= 9; ++item) {
        p.WeldView.Click(item);
        for (int row = 0; row < 4; ++row)
            Type(row, std::to_string(10 * item + row));
    }
    EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   Weld Configuration 9");
    EXPECT_EQ(machine.Speech.Spoken.back(), "Weld Configuration 9");
    for (int item = 1; item <= 9; ++item) {
        p.WeldView.Click(item);
        for (int row = 0; row < 4; ++row)
            EXPECT_EQ(Value(row), std::to_string(10 * item + row) + ".000     ");
    }
    p.StartIterationButton.Click();
    p.WeldView.Click(9); // the current one: the report stays
    EXPECT_NE(p.CBox.Text(), "");
    p.WeldView.Click(1);
    EXPECT_EQ(p.CBox.Text() + Report(), "");
}

TEST_F(WeldPageTest, LeavingThePageStopsTheSearch) {
    Start();
    design->DesignSSTab.Select(weldTab);
    EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   Weld Configuration 1");
    Type_All(usual);
    for (const bool byTab : {true, false}) {
        Run_And_At(30, [&] { byTab ? design->DesignSSTab.Select(boltTab) : design->Leave(); });
        EXPECT_EQ(Buttons(), stopped);
        EXPECT_TRUE(Report().ends_with(aborted));
        design->DesignSSTab.Select(weldTab);
        EXPECT_EQ(Buttons(), stopped);
    }
    design->Leave(); // nothing runs: nothing is stopped, or resumed
    EXPECT_EQ(Buttons(), stopped);
}

TEST_F(WeldPageTest, ClosingEndsARunWithoutAResult) {
    WeldPage& p = Start();
    Type_All(usual);
    machine.Events.OnYield = [&] {
        design->Request_Stop();
        return false;
    };
    p.StartIterationButton.Click();
    EXPECT_EQ(p.CBox.Text(), "");
    EXPECT_EQ(Report().find("**"), std::string::npos);
}

TEST_F(WeldPageTest, TheDisplayIsClearedByTheClock) {
    WeldPage& p = Start();
    Type_All(usual);
    onYield = [&](long) { machine.Time.Now += 0.5; };
    p.StartIterationButton.Click();
    EXPECT_TRUE(Report().starts_with("**Previous Iteration DELETED...["));
    EXPECT_TRUE(Report().ends_with(located));
}
