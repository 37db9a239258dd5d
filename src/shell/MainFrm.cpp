#include "shell/MainFrm.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "shell/AnySectionFrm.h"
#include "shell/Version.h"

#include <utility>

namespace Tensarix {

namespace {

constexpr std::array<std::string_view, modeCount> modeCaptions{
    "Browse Sections", "Find Sections", "View All", "Allowable Beam Load", "Connection Design"};

constexpr std::string_view noAnswer =
    "Tensarix is running already but does not answer. End it, then start it again.";
constexpr std::string_view desktopDecides = "This desktop decides itself which windows stay on top";
constexpr std::string_view noVoice = "No speech service was found: nothing is read out loud";

// Zero is the first choice, anything else the second; a text that is no number leaves both alone.
void Choose(const Settings& saved, const SettingKey& key, OptionButton& first,
            OptionButton& second) {
    Attempt([&] { (saved.Flag(key) ? second : first).Select(); });
}

} // namespace

std::string Window_Caption() {
    return std::string{applicationTitle} + " v" + std::to_string(majorVersion) + "." +
           std::to_string(minorVersion) + "  [Beta]  -  " + std::string{legalLine};
}

MainFrm::MainFrm(Machine& machine, Dialogs& dialogs)
    : Shared(machine), Browse(Shared), Find(Shared), ViewAll(Shared), Beam(Shared), Design(Shared),
      Compare(Shared), mnuEdit1(Shared, SelectionTab,
                                {
                                    &Browse.ShapeFlex,
                                    &Find.fShapeFlex,
                                    &ViewAll.xShapeFlex,
                                    &Beam.zShapeFlex,
                                    &Design.Bolts.cFlex,
                                }),
      Sections(*this), dialogs_(dialogs) {
    std::vector<OptionButton*> modes;
    for (int i = 0; i < modeCount; ++i) {
        OptionButton& button = OptButton[static_cast<std::size_t>(i)];
        button.Set_Caption(std::string{modeCaptions[static_cast<std::size_t>(i)]});
        button.OnClick = [this, i] { OptButton_Click(i); };
        modes.push_back(&button);
    }
    OptionButton::Group(modes);
    Wire_Menu();
    Find.OnCount = ViewAll.OnCount = [this] { Show_Count(); };
    Shared.StatBar.OnMouseMove = [this] { Browse.Snap_Back(); };
    Shared.Host.Speech.OnMissing = [this] { Tell_No_Voice(); };
}

void MainFrm::Wire_Menu() {
    mnuCalc.Set_Caption("Scientific Calculator        ");
    mnuWtCalc.Set_Caption("Type 1          ");
    mnuWtCalcA.Set_Caption("Type 2");
    mnuTerminate.Set_Caption("Exit");
    mnuOnTop.Set_Caption("Always On Top             ");
    mnuReadOut.Set_Caption("Read Out Loud          ");
    mnuAbout.Set_Caption("About        ");

    mnuCalc.OnClick = [this] { Open_Dialog([this] { dialogs_.Show_CalcMainFrm(); }); };
    mnuWtCalc.OnClick = [this] { Open_Dialog([this] { dialogs_.Show_WtCalcsFrm(); }); };
    mnuWtCalcA.OnClick = [this] { Open_Dialog([this] { dialogs_.Show_WtCalcsFrmA(); }); };
    mnuTerminate.OnClick = [this] { Shared.Host.Window.Close(); };
    mnuOnTop.OnClick = [this] { mnuOnTop_Click(); };
    mnuReadOut.OnClick = [this] { mnuReadOut_Click(); };
    mnuGuide.Set_Caption("User Guide");
    mnuGuide.OnClick = [this] { dialogs_.Show_Guide(Guide_Chapter()); };
    mnuCompared.Set_Caption("Sections Compared");
    mnuCompared.OnClick = [this] { dialogs_.Show_Compare(true); };
    AnySectionButton.Set_Caption("Find Any Section  (Ctrl+K)");
    AnySectionButton.OnClick = [this] { Find_Any_Section(); };
    mnuEdit1.OnPrepare = [this] { Sections.Prepare(); };
    mnuAbout.OnClick = [this] { Open_Dialog([this] { dialogs_.Show_AboutFrm(); }); };
}

bool MainFrm::Load() {
    if (Shared.Host.Guard.Other_Runs()) {
        Launcher();
        return false;
    }
    StartUp();
    return true;
}

void MainFrm::Launcher() {
    if (!Shared.Host.Guard.Raise_Other())
        Shared.Host.Boxes.Show(noAnswer, "Warning", MessageIcon::Exclamation);
}

void MainFrm::StartUp() {
    Caption = Window_Caption();
    Start_Flags();
    OptButton[0].Select();
    Start_Options();
    Start_Families();
    Beam.Start_Families();
    Beam.Start_Inputs();
    Find.Restore_Search(); // again, now that the criteria exist
    Design.Start();
    Tell_Who_Decides();
    if (const std::string remark = Shared.Host.Store.Remark(); !remark.empty())
        Shared.StatBar.Set_Remark(remark, RemarkWeight::Caution);
}

void MainFrm::Start_Flags() {
    Attempt([&] { Shared.ReadOut = Shared.Saved.Flag(Setting::ReadOutLoud); });
    Attempt([&] { Shared.OnTop = Shared.Saved.Flag(Setting::AlwaysOnTop); });
    SetWindowOnTop(Shared.OnTop);
    mnuReadOut.Check(Shared.ReadOut);
    mnuOnTop.Check(Shared.OnTop);
}

void MainFrm::Start_Options() {
    const Settings& saved = Shared.Saved;
    Choose(saved, Setting::ProfileOption, Browse.ProfileOption1, Browse.ProfileOption2);
    Choose(saved, Setting::DimOption, Browse.DimOption1, Browse.DimOption2);
    Browse.Init_ShapeFlex();
    Choose(saved, Setting::xProfileOption, ViewAll.xProfileOption1, ViewAll.xProfileOption2);
    Choose(saved, Setting::xDimOption, ViewAll.xDimOption1, ViewAll.xDimOption2);
    Choose(saved, Setting::fProfileOption, Find.fProfileOption1, Find.fProfileOption2);
    Choose(saved, Setting::fDimOption, Find.fDimOption1, Find.fDimOption2);
}

void MainFrm::Start_Families() {
    const auto start = [this](ComboBox& list, const SettingKey& key) {
        FillFamilyList(list);
        Attempt([&] { list.Select(Shared.Saved.Position(key)); });
    };
    start(Browse.ShapeType, Setting::ShapeType);
    start(Find.fShapeType, Setting::fShapeType);
    Find.Fill_Criteria();
    start(ViewAll.xShapeType, Setting::xShapeType);
}

void MainFrm::OptButton_Click(int index) {
    if (Shared.ReadOut) {
        Shared.Say("");
        Shared.Say(OptButton[static_cast<std::size_t>(index)].Caption());
    }
    Shared.GridClicked = false;
    Shared.Show_No_Selection();
    if (static_cast<Mode>(index) == Mode::Connection)
        Design.Show_Selection();
    else
        Design.Leave();
    SelectionTab.Select(index);
    if (static_cast<Mode>(index) == Mode::BeamLoad)
        Beam.AppliedCode_Click();
    Show_Count();
}

// The status bar counts the sections of the page in view.
void MainFrm::Show_Count() {
    const auto mode = static_cast<Mode>(SelectionTab.Tab());
    Shared.StatBar.Set_Count(mode == Mode::Find      ? Find.Count_Text()
                             : mode == Mode::ViewAll ? ViewAll.Count_Text()
                                                     : std::string{},
                             mode == Mode::Find && !Find.Lightest().empty()
                                 ? Handler{[this] { Sections.Go_To_Lightest(); }}
                                 : Handler{});
}

void MainFrm::Open_Dialog(const std::function<void()>& show) {
    Shared.Say("");
    // Out of the top-most state, so that the dialog can come above the window.
    SetWindowOnTop(false);
    show();
    SetWindowOnTop(Shared.OnTop);
}

void MainFrm::SetWindowOnTop(bool onTop) {
    onTopRefused_ = !Shared.Host.Window.SetWindowOnTop(onTop) && onTop;
}

// Once is enough.
void MainFrm::Tell_Who_Decides() {
    if (onTopRefused_ && !std::exchange(toldWhoDecides_, true))
        Shared.StatBar.Set_Remark(std::string{desktopDecides});
}

void MainFrm::Tell_No_Voice() {
    mnuReadOut.Set_Remark(std::string{noVoice});
    if (Shared.ReadOut && !std::exchange(toldNoVoice_, true))
        Shared.StatBar.Set_Remark(std::string{noVoice});
}

void MainFrm::Find_Any_Section() {
    AnySectionFrm field(Shared);
    Open_Dialog([&] { dialogs_.Show_AnySectionFrm(field); });
    if (field.Chosen)
        Sections.Show(field.Page, *field.Chosen);
}

void MainFrm::Show_Weights_Of(SectionPlace place) {
    Open_Dialog([&] { dialogs_.Show_WtCalcsFrm_Of(place); });
}

void MainFrm::Compare_Section(SectionPlace place) {
    Attempt([&] {
        const ComparePage::Added added = Compare.Add(place);
        dialogs_.Show_Compare(added != ComparePage::Added::New);
        Shared.StatBar.Set_Remark(Compare.Told());
    });
}

std::string_view MainFrm::Guide_Chapter() const {
    switch (static_cast<Mode>(SelectionTab.Tab())) {
    case Mode::Browse:
        return "Browse: one section";
    case Mode::Find:
        return "Find: sections by a property";
    case Mode::ViewAll:
        return "View All: a whole family";
    case Mode::BeamLoad:
        return "Beam load";
    default:
        return Design.DesignSSTab.Tab() == boltTab ? "Bolt groups" : "Weld groups";
    }
}

void MainFrm::mnuOnTop_Click() {
    Shared.OnTop = !Shared.OnTop;
    mnuOnTop.Check(Shared.OnTop);
    Shared.Saved.Save(Setting::AlwaysOnTop, Shared.OnTop ? "1" : "0");
    SetWindowOnTop(Shared.OnTop);
    Tell_Who_Decides();
}

void MainFrm::mnuReadOut_Click() {
    Shared.ReadOut = !Shared.ReadOut;
    mnuReadOut.Check(Shared.ReadOut);
    Shared.Saved.Save(Setting::ReadOutLoud, Shared.ReadOut ? "1" : "0");
    Shared.Host.Speech.Speak(""); // silence, also when it has just been switched off
    mnuReadOut.Set_Remark({});
    if (Shared.ReadOut)
        Shared.Host.Speech.Reach();
}

void MainFrm::Resized() {
    SetWindowOnTop(Shared.OnTop);
}

void MainFrm::Activated() {
    SetWindowOnTop(Shared.OnTop);
    Shared.Say("");
}

void MainFrm::Query_Unload() {
    Design.Request_Stop();
    Save_Families();
    Save_Sizes();
    Find.Save_Search();
    Save_Options();
    Save_Span();
    Design.Save_Settings();
    Shared.Say("");
}

void MainFrm::Save_Families() const {
    const Settings& saved = Shared.Saved;
    saved.Save(Setting::ShapeType, std::to_string(Browse.ShapeType.ListIndex()));
    saved.Save(Setting::fShapeType, std::to_string(Find.fShapeType.ListIndex()));
    saved.Save(Setting::xShapeType, std::to_string(ViewAll.xShapeType.ListIndex()));
}

void MainFrm::Save_Sizes() const {
    const Settings& saved = Shared.Saved;
    if (Browse.ShapeType.ListIndex() >= 0)
        saved.Save(Setting::ShapeSize, std::to_string(Browse.ShapeType.ListIndex()),
                   std::to_string(Browse.ShapeSizeUS.ListIndex()));
    if (Beam.zShapeType.ListIndex() >= 0)
        saved.Save(Setting::zShapeSize, std::to_string(Beam.zShapeType.ListIndex()),
                   std::to_string(Beam.zShapeSizeUS.ListIndex()));
}

void MainFrm::Save_Options() const {
    const auto save = [this](const SettingKey& key, const OptionButton& second) {
        Shared.Saved.Save(key, second.Value() ? "1" : "0"); // neither may be chosen
    };
    save(Setting::ProfileOption, Browse.ProfileOption2);
    save(Setting::DimOption, Browse.DimOption2);
    save(Setting::xProfileOption, ViewAll.xProfileOption2);
    save(Setting::xDimOption, ViewAll.xDimOption2);
    save(Setting::fProfileOption, Find.fProfileOption2);
    save(Setting::fDimOption, Find.fDimOption2);
}

void MainFrm::Save_Span() const {
    if (const std::optional<double> feet = Beam.Typed_Span())
        Shared.Saved.Save(Setting::BeamSpan, General_Text(*feet));
}

} // namespace Tensarix
