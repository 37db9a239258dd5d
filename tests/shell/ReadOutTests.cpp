// What is said at which event: with the read-out off, nothing at all.
#include "StandIns.h"
#include "shell/AboutFrm.h"
#include "shell/MainFrm.h"
#include "shell/NoDialogs.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct SpokenEvent {
    const char* Name;
    void (*Happen)(MainFrm&);
    std::vector<std::string> Said;
};

// clang-format off
const SpokenEvent spokenEvents[] = {
    {"a row of Browse", [](MainFrm& f) { f.Browse.ShapeFlex.Move_To(2, 1); },
     {"AREA = 98.5 SQUARE INCHES :: Cross-Sectional Area"}},
    {"the same row again",
     [](MainFrm& f) { f.Browse.ShapeFlex.Move_To(2, 2); f.Browse.ShapeFlex.Move_To(2, 3); },
     {"AREA = 98.5 SQUARE INCHES :: Cross-Sectional Area",
      "AREA = 98.5 SQUARE INCHES :: Cross-Sectional Area"}},
    {"a length of Browse in feet and inches",
     [](MainFrm& f) { f.Browse.DimOption2.Select(); f.Browse.ShapeFlex.Move_To(3, 1); },
     {"d = Three Feet and Eight Inches INCHES :: Overall Depth of Member"}},
    {"a figure of Browse with a power of ten",
     [](MainFrm& f) {
         f.Browse.ShapeType.Select(13);
         f.Browse.ProfileOption2.Select();
         f.Browse.ShapeFlex.Move_To(13, 1);
     },
     {"", "Angle Equal Legs", "I X = 41 :: TIMES 10 TO THE POWER 6 MM TO THE POWER 4 :: Moment of "
                              "Inertia about the x-axis"}},
    {"a family with parentheses", [](MainFrm& f) { f.Browse.ShapeType.Select(15); },
     {"", "Double Angle Equal Legs"}},
    {"another size", [](MainFrm& f) { f.Browse.ShapeSizeUS.Select(5); }, {}},
    {"another profile", [](MainFrm& f) { f.Browse.ProfileOption2.Select(); }, {}},
    {"a cell of View All with a unit", [](MainFrm& f) { f.ViewAll.xShapeFlex.Move_To(1, 2); },
     {"WEIGHT = 335 POUNDS PER FOOT"}},
    {"a cell of View All without one", [](MainFrm& f) { f.ViewAll.xShapeFlex.Move_To(1, 13); },
     {"H OVER T W = 38"}},
    {"a family of View All", [](MainFrm& f) { f.ViewAll.xShapeType.Select(15); },
     {"", "Double Angle Equal Legs"}},
    {"another style of View All", [](MainFrm& f) { f.ViewAll.xDimOption2.Select(); },
     {"", "W-Shape"}},
    {"another profile of View All", [](MainFrm& f) { f.ViewAll.xProfileOption2.Select(); }, {}},
    {"a cell of Find without a result", [](MainFrm& f) { f.Find.fShapeFlex.Move_To(1, 2); }, {}},
    {"a family of Find", [](MainFrm& f) { f.Find.fShapeType.Select(2); }, {"", "HP-Shape"}},
    {"another profile of Find", [](MainFrm& f) { f.Find.fProfileOption2.Select(); }, {}},
    {"a row of the beam page", [](MainFrm& f) { f.Beam.zShapeFlex.Move_To(3, 1); },
     {"d = 44 INCHES"}},
    {"a ratio of the beam page", [](MainFrm& f) { f.Beam.zShapeFlex.Move_To(11, 1); },
     {"BF OVER 2 TF = 4.5 "}},
    {"a family of the beam page", [](MainFrm& f) { f.Beam.zShapeType.Select(3); }, {"S-Shape"}},
    {"another yield strength, which the code changes back",
     [](MainFrm& f) { f.Beam.FyBox.Select(1); f.Beam.AppliedCode.Select(code13thEdition); },
     {"36K S I"}},
    {"a valid span and Enter",
     [](MainFrm& f) {
         f.Beam.BeamSpanBox.Set_Text("12'-6 3/8");
         f.Beam.BeamSpanBox.OnKeyDown(Keys::Enter);
     },
     {"Twelve Feet and Six and Three-Eights Inches"}},
    {"no span and Tab",
     [](MainFrm& f) {
         f.Beam.BeamSpanBox.Set_Text("x");
         f.Beam.BeamSpanBox.OnKeyDown(Keys::Tab);
     },
     {}},
    {"the beam page comes into view", [](MainFrm& f) { f.OptButton[3].Select(); },
     {"", "Allowable Beam Load"}},
    {"another mode", [](MainFrm& f) { f.OptButton[1].Select(); }, {"", "Find Sections"}},
    {"the same mode", [](MainFrm& f) { f.OptButton[0].Select(); }, {}},
    {"the calculator opens", [](MainFrm& f) { f.mnuCalc.Click(); }, {""}},
    {"a weight calculator opens", [](MainFrm& f) { f.mnuWtCalc.Click(); }, {""}},
    {"the other weight calculator opens", [](MainFrm& f) { f.mnuWtCalcA.Click(); }, {""}},
    {"the about box opens", [](MainFrm& f) { f.mnuAbout.Click(); }, {""}},
    {"the window becomes the active one", [](MainFrm& f) { f.Activated(); }, {""}},
    {"the window gets another size", [](MainFrm& f) { f.Resized(); }, {}},
    {"the window stays above others", [](MainFrm& f) { f.mnuOnTop.Click(); }, {}},
    {"the window closes", [](MainFrm& f) { f.Query_Unload(); }, {""}},
};
// clang-format on

struct ReadOutTest : testing::Test {
    TestMachine machine;
    NoDialogs dialogs;

    std::vector<std::string> Said_At(const SpokenEvent& event, bool readOut) {
        machine.Store.Kept.clear();
        MainFrm form(machine.Host, dialogs);
        form.Load();
        form.Shared.ReadOut = readOut;
        machine.Speech.Spoken.clear();
        event.Happen(form);
        return machine.Speech.Spoken;
    }
};

} // namespace

TEST_F(ReadOutTest, EveryEventSaysItsTextAndNothingWhenOff) {
    for (const SpokenEvent& event : spokenEvents) {
        EXPECT_EQ(Said_At(event, true), event.Said) << event.Name;
        EXPECT_EQ(Said_At(event, false), Strings{}) << event.Name;
    }
}

// Switching off silences, which is said although the read-out is off by then.
TEST_F(ReadOutTest, TheSwitchItselfSilences) {
    MainFrm form(machine.Host, dialogs);
    form.Load();
    machine.Speech.Spoken.clear();
    form.mnuReadOut.Click();
    EXPECT_EQ(machine.Speech.Spoken, (Strings{""}));
    form.mnuReadOut.Click();
    EXPECT_EQ(machine.Speech.Spoken, (Strings{"", ""}));
}

// With the read-out on, the mode comes first, before the families of the pages.
TEST_F(ReadOutTest, AStart) {
    MainFrm silent(machine.Host, dialogs);
    silent.Load();
    EXPECT_TRUE(machine.Speech.Spoken.empty());

    machine.Store.Set("ReadOutLoud", "1");
    MainFrm form(machine.Host, dialogs);
    form.Load();
    const std::vector<std::string>& spoken = machine.Speech.Spoken;
    ASSERT_GE(spoken.size(), 3u);
    EXPECT_EQ(spoken[0] + "|" + spoken[1] + "|" + spoken.back(), "|Browse Sections|W-Shape");
}

TEST_F(ReadOutTest, TheAboutBoxReadsItsLabels) {
    Desk desk(machine.Host);
    AboutFrm about(desk);
    about.Load();
    about.Unload();
    EXPECT_TRUE(machine.Speech.Spoken.empty());

    desk.ReadOut = true;
    about.Load();
    EXPECT_EQ(machine.Speech.Spoken,
              (Strings{"Tensarix", "Version 1.0", about.lblDescription.Caption(),
                       about.lblDisclaimer.Caption()}));
    about.Unload();
    EXPECT_EQ(machine.Speech.Spoken.back(), "");
}
