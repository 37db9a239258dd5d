#include "NoDialogs.h"
#include "StandIns.h"
#include "common/NumberText.h"
#include "controls/TypedName.h"
#include "shell/AnySectionFrm.h"
#include "shell/MainFrm.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct DialogsAtWork final : NoDialogs {
    std::function<void(AnySectionFrm&)> InField;
    std::vector<SectionPlace> Weighed;
    std::vector<bool> Compared; // whether the window has got the keyboard
    void Show_AnySectionFrm(AnySectionFrm& form) override { InField(form); }
    void Show_WtCalcsFrm_Of(SectionPlace place) override { Weighed.push_back(place); }
    void Show_Compare(bool withKeyboard) override { Compared.push_back(withKeyboard); }
};

// A program with the read-out on, of which everything that a user could notice is noted.
struct Running {
    TestMachine Desk;
    DialogsAtWork Opened;
    MainFrm Form{Desk.Host, Opened};

    Running() {
        Form.Load();
        Form.mnuReadOut.Click();
        Form.ViewAll.xShapeType.Select(3);
        Form.Find.fPoperty.Select(13);
        Form.Find.fCriterion.Select(4);
        Form.Find.fValue.Set_Text("100");
        Form.Find.RunFind();
        Desk.Store.Written.clear();
        Desk.Speech.Spoken.clear();
    }
    OptionButton& Page(Mode mode) { return Form.OptButton[static_cast<std::size_t>(mode)]; }
    FlexGrid& Found() { return Form.Find.fShapeFlex; }
    std::string Noticed() {
        std::string all = Form.Shared.StatBar.Panel1() + "|" + Form.Shared.StatBar.Count() + "|" +
                          Form.Browse.ShapeLabel.Caption() + "|" + Form.Beam.UniWTLab.Caption();
        for (const auto* notes : {&Desk.Store.Written, &Desk.Speech.Spoken})
            for (const std::string& note : *notes)
                all += "\n" + note;
        return all;
    }
};

} // namespace

// What travel does is what the same clicks would have done, in speech, settings and texts.
TEST(TravelTest, RunsTheChainsOfTheClicksByHand) {
    Running travels, byHand;
    for (Running* both : {&travels, &byHand}) {
        both->Page(Mode::Find).Select();
        both->Found().Press(40, 5);
    }
    const std::string name = Trim(travels.Found().Text(40, 0));
    travels.Found().OnDblClick();
    byHand.Page(Mode::Browse).Select();
    byHand.Form.Browse.ShapeSizeUS.Select(Find_By_Typing(byHand.Form.Browse.ShapeSizeUS, name));
    EXPECT_EQ(travels.Form.Browse.ShapeSizeUS.Text(), name);
    EXPECT_EQ(travels.Noticed(), byHand.Noticed());

    travels.Form.Sections.Back();
    byHand.Page(Mode::Find).Select();
    byHand.Found().Press(40, 5);
    EXPECT_EQ(travels.Noticed(), byHand.Noticed());
    EXPECT_TRUE(travels.Form.Shared.GridClicked);

    travels.Page(Mode::ViewAll).Select(); // another family
    byHand.Page(Mode::ViewAll).Select();
    travels.Form.Sections.mnuShowBeam.OnClick();
    byHand.Page(Mode::BeamLoad).Select();
    byHand.Form.Beam.zShapeType.Select(3);
    byHand.Form.Beam.zShapeSizeUS.Select(0);
    EXPECT_EQ(travels.Noticed(), byHand.Noticed());
}

TEST(TravelTest, TheMenuOffersWhatThereIs) {
    Running program;
    Travel& travel = program.Form.Sections;
    const auto offered = [&] {
        travel.Prepare();
        return std::string{travel.mnuShowBrowse.Enabled() ? "b" : "-"} +
               (travel.mnuShowBeam.Enabled() ? "l" : "-") +
               (travel.mnuShowWeights.Enabled() ? "w" : "-");
    };
    EXPECT_EQ(offered(), "-lw");
    program.Form.Browse.ShapeType.Select(beamFamilies);
    EXPECT_EQ(offered(), "--w");
    program.Page(Mode::BeamLoad).Select();
    EXPECT_EQ(offered(), "b-w");
    program.Page(Mode::Find).Select();
    EXPECT_EQ(offered(), "blw");
    program.Form.Find.fShapeType.Select(1); // blank rows
    EXPECT_EQ(offered(), "---");
    program.Found().OnDblClick();
    EXPECT_EQ(program.Form.SelectionTab.Tab(), static_cast<int>(Mode::Find));
    program.Page(Mode::Connection).Select();
    EXPECT_EQ(offered(), "---");
    program.Page(Mode::ViewAll).Select();
    program.Form.ViewAll.xShapeFlex.Press(4, 2);
    travel.Prepare();
    travel.mnuShowWeights.Click();
    EXPECT_EQ(program.Opened.Weighed, (std::vector<SectionPlace>{{3, 3}}));
}

TEST(TravelTest, ASectionIsComparedOnce) {
    Running program;
    Travel& travel = program.Form.Sections;
    program.Page(Mode::ViewAll).Select();
    program.Form.ViewAll.xShapeFlex.Press(4, 2);
    const std::string before = program.Noticed();
    travel.mnuCompare.OnClick();
    EXPECT_EQ(program.Noticed(), before); // beside the status bar's remark, nothing
    travel.mnuShowBeam.OnClick();
    travel.mnuCompare.OnClick();
    EXPECT_EQ(program.Opened.Compared, (std::vector<bool>{false, true}));
    EXPECT_EQ(program.Form.Compare.Sections().size(), 1U);
    EXPECT_EQ(program.Form.Shared.StatBar.Remark(),
              program.Form.Compare.Sections()[0].Names[0] + " is compared already");
    program.Page(Mode::Connection).Select(); // which is at no section
    travel.mnuCompare.OnClick();
    EXPECT_EQ(program.Opened.Compared.size(), 2U);
}

TEST(TravelTest, BackThroughSeveralPages) {
    Running program;
    Travel& travel = program.Form.Sections;
    travel.Back(); // there is nothing yet
    program.Page(Mode::ViewAll).Select();
    program.Form.ViewAll.xShapeFlex.Press(7, 3);
    travel.mnuShowBrowse.OnClick();
    const std::string seventh = program.Form.Browse.ShapeSizeUS.Text();
    program.Opened.InField = [](AnySectionFrm& field) {
        field.SearchBox.Set_Text("c15x50");
        field.BeamButton.Click();
    };
    program.Form.AnySectionButton.Click();
    EXPECT_EQ(program.Form.SelectionTab.Tab(), static_cast<int>(Mode::BeamLoad));
    EXPECT_EQ(program.Form.Beam.zShapeSizeUS.Text(), "C15x50");
    program.Form.Browse.ShapeSizeUS.Select(0);
    travel.Back();
    EXPECT_EQ(program.Form.Browse.ShapeSizeUS.Text(), seventh);
    travel.Back();
    EXPECT_EQ(program.Form.SelectionTab.Tab(), static_cast<int>(Mode::ViewAll));
    EXPECT_EQ(program.Form.ViewAll.xShapeFlex.Row(), 7);
    EXPECT_TRUE(program.Form.Shared.StatBar.Panel1().starts_with(" SELECTION:   " + seventh));
}

TEST(TravelTest, TheCountLeadsToTheLightest) {
    Running program;
    EXPECT_FALSE(program.Form.Shared.StatBar.Count_Leads_To());
    program.Page(Mode::Find).Select();
    ASSERT_TRUE(program.Form.Shared.StatBar.Count_Leads_To());
    program.Form.Shared.StatBar.Count_Leads_To()();
    EXPECT_EQ(Trim(program.Found().Text(program.Found().Row(), 0)), "W21x48");
    EXPECT_TRUE(program.Form.Shared.StatBar.Panel1().starts_with(" SELECTION:   W21x48"));
    program.Form.Find.fProfileOption2.Select(); // by its other name
    EXPECT_FALSE(program.Form.Find.Lightest().empty());
    program.Form.Sections.Go_To_Lightest();
    EXPECT_EQ(Trim(program.Found().Text(program.Found().Row(), 1)), program.Form.Find.Lightest());
}

TEST(TravelTest, TheFieldChoosesOrLeavesAllAsItWas) {
    Running program;
    const std::string before = program.Noticed();
    program.Opened.InField = [&](AnySectionFrm& field) {
        EXPECT_FALSE(field.BrowseButton.Enabled());
        field.SearchBox.Set_Text("pipe8");
        EXPECT_EQ(field.FoundLabel.Caption(), "6 sections");
        EXPECT_TRUE(field.BrowseButton.Enabled() && !field.BeamButton.Enabled());
        field.SearchBox.Set_Text("w18x5");
        EXPECT_TRUE(field.BeamButton.Enabled());
        EXPECT_EQ(field.FoundFlex.Clip_Of(2, 0, 2, 4),
                  "W18x50\tW460x74\tW-Shape\t50.00 lb/ft\t18.00 in.");
        field.SearchBox.Set_Text("w");
        EXPECT_EQ(field.FoundLabel.Caption(), "The first 50 sections");
        field.CancelButton.Click();
    };
    program.Form.Find_Any_Section();
    program.Desk.Speech.Spoken.pop_back(); // silence, as before any dialog
    EXPECT_EQ(program.Noticed(), before);
    program.Form.Browse.ShapeSizeUS.OnTypedInVain("hss8x8x.5");
    EXPECT_EQ(program.Form.Shared.StatBar.Remark(),
              "HSS8x8x1/2 is in the list of Square HSS: Ctrl+K finds it");
}
