// What start, change of mode and exit do to the beam page.
#include "StandIns.h"
#include "shell/MainFrm.h"
#include "shell/NoDialogs.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

class BeamModeTest : public testing::Test {
  protected:
    TestMachine machine;
    NoDialogs dialogs;
    std::unique_ptr<MainFrm> form;

    MainFrm& Start() {
        form = std::make_unique<MainFrm>(machine.Host, dialogs);
        form->StartUp();
        return *form;
    }
    void Show_Mode(Mode mode) { form->OptButton[static_cast<std::size_t>(mode)].Select(); }
    // The place of the last such text among the settings written; -1: none.
    long Written_At(const std::string& text) const {
        const auto& written = machine.Store.Written;
        const auto found = std::find(written.rbegin(), written.rend(), text);
        return found == written.rend() ? -1 : written.rend() - found;
    }
};

} // namespace

TEST_F(BeamModeTest, AHandWrittenFamilyIsHonouredAndNeverWritten) {
    machine.Store.Set("zShapeType", "4");
    MainFrm& f = Start();
    EXPECT_EQ(f.Beam.zShapeLab.Caption(), "C-Shape Profile");
    EXPECT_EQ(f.Shared.StatBar.Panel1(), " SELECTION:   None");
    f.Beam.zShapeType.Select(5);
    f.Query_Unload();
    for (const std::string& line : machine.Store.Written)
        EXPECT_FALSE(line.starts_with("zShapeType=")) << line;
}

TEST_F(BeamModeTest, ShowingThePageRestoresItAndKeepsTheSelectionPanelEmpty) {
    MainFrm& f = Start();
    f.Beam.BeamSpanBox.Set_Text("20'");
    machine.Store.Set("BeamSpan10", "30"); // as if by a second copy of the settings
    f.Shared.ReadOut = true;
    machine.Speech.Spoken.clear();
    Show_Mode(Mode::BeamLoad);
    EXPECT_EQ(f.Beam.BeamSpanBox.Text(), "30'-0\"");
    EXPECT_EQ(f.Shared.StatBar.Panel1(), " SELECTION:   None");
    EXPECT_EQ(machine.Speech.Spoken, (std::vector<std::string>{"", "Allowable Beam Load"}));
}

TEST_F(BeamModeTest, ExitSavesSizeAndSpanInOrder) {
    MainFrm& f = Start();
    f.Beam.zShapeSizeUS.Select(7);
    f.Beam.BeamSpanBox.Set_Text("12'-6\"");
    machine.Store.Written.clear();
    f.Query_Unload();
    EXPECT_GT(Written_At("zShapeSize0=7"), Written_At("ShapeSize0=0"));
    EXPECT_GT(Written_At("BeamSpan=12.5"), Written_At("DimOption=0"));
    EXPECT_GT(Written_At("DimOption=0"), Written_At("zShapeSize0=7"));

    // What is no length is not saved.
    f.Beam.BeamSpanBox.Set_Text("5'6\"");
    f.Query_Unload();
    EXPECT_EQ(machine.Store.Get("BeamSpan"), "12.5");
}
