#include "connections/WeldPage.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "connections/Numbers.h"
#include "measures/InputFunction.h"

namespace Tensarix {

namespace {

constexpr std::string_view inputPattern = "0.000     ";
constexpr std::string_view notApplicable = "             N.A.";
constexpr const char* stopCaption = "Stop Iteration";
constexpr const char* resumeCaption = "Resume Iteration";
constexpr const char* strips[] = {"  1/4\"", "  1/8\"", "  1/16\"", "  1/32\""};
constexpr int usualStrip = 1;
constexpr int lastWithoutCentroid = 5, lastWithoutHeight = 7; // items

// As the first three decimals tell.
double Compared(const std::string& text) {
    return Typed_Number(Format_Number(Typed_Number(text), "0.000"));
}

} // namespace

void ModifyTextWeld(TextBox& editor) {
    editor.Set_Text(Typed_In_Pattern(editor.Text(), inputPattern));
}

WeldPage::WeldPage(Desk& desk)
    : desk_(desk), editing_(WeldFlex, [this] { desk_.Host.Events.Turn(); }) {
    StartIterationButton.Set_Caption("Start Iteration");
    StopIterationButton.Set_Caption(stopCaption);
    StopIterationButton.Enable(false);
    ClearDisplayButton.Set_Caption("Clear Display");
    StartIterationButton.OnClick = [this] { StartIteration_Click(); };
    StopIterationButton.OnClick = [this] { StopIteration_Click(); };
    ClearDisplayButton.OnClick = [this] { ClearDisplay_Click(); };
    WeldView.OnItemClick = [this] { WeldView_Click(); };
    WeldStripBox.OnChange = [this] { WeldStripBox_Change(); };
    Add_Editing();
}

void WeldPage::Add_Editing() {
    editing_.Add(CellEditing::TextCells{
        EdiTxtA,
        [this](int row, int col) { return Can_Edit(row, col); },
        Filter_Decimal,
        [this](int keyAscii) { return Filter_Single_Point(keyAscii, EdiTxtA.Text()); },
        {},
        [this] { ModifyTextWeld(EdiTxtA); },
        [this](const std::string& before) { Committed(before); }});
}

// While a search runs its display can't be cleared, nor its inputs changed.
bool WeldPage::Can_Edit(int row, int col) const {
    return col == 1 && row <= WeldRow::Angle && ClearDisplayButton.Enabled();
}

void WeldPage::Initialize_WeldRoutines() {
    Initialize_WeldView();
    Initialize_WeldStripBox();
    Initialize_WeldFlex();
    SearchPlot.Set_Drawing(Weld_Search_Plot(passes_));
}

void WeldPage::Initialize_WeldView() {
    WeldView.Clear();
    for (int i = 1; i <= weldConfigurationCount; ++i) {
        const std::string key = "weld" + std::to_string(i);
        WeldView.Add({key, "Weld Configuration " + std::to_string(i), Weld_Icon(i)});
    }
    WeldView.Select(WeldConfigIndex);
    Attempt([this] {
        WeldView.Select(desk_.Saved.Position(Setting::WeldView));
        WeldConfigIndex = WeldView.Selected_Item();
    });
    WeldImage.Set_Name("wImage" + std::to_string(WeldConfigIndex));
}

void WeldPage::Initialize_WeldStripBox() {
    WeldStripBox.Clear();
    for (const char* strip : strips)
        WeldStripBox.Add(strip);
    WeldStripBox.Select(usualStrip);
    Attempt([this] {
        const int saved = desk_.Saved.Position(Setting::WeldStrip);
        WeldStripBox.Item(saved); // an item it must be
        WeldStripBox.Select(saved);
    });
}

void WeldPage::Initialize_WeldFlex() {
    const char* labels[WeldRow::Count] = {"   Base Length, L",        "   Length, kL",
                                          "   Eccentricity, aL",      "   Load Rotation Angle,  Ø",
                                          "   Centroid Distance, xL", "   Centroid Distance, yL"};
    WeldFlex.Clear();
    WeldFlex.Set_Cols(2);
    WeldFlex.Set_Rows(WeldRow::Count);
    WeldFlex.Set_Fixed(0, 1);
    WeldFlex.Set_Row_Height_Min(340);
    WeldFlex.Set_Col_Width(0, 2288);
    WeldFlex.Set_Col_Width(1, 1480);
    for (int row = 0; row < WeldRow::Count; ++row) {
        WeldFlex.Set_Text(row, 0, labels[row]);
        WeldFlex.Set_Style(row, 1, {.Align = Alignment::Right});
    }
    WeldFlex.Select_Range(0, 1, 0, 1);
    UpdateWeldCentroids();
}

void WeldPage::Save_Settings() const {
    desk_.Saved.Save(Setting::WeldStrip, std::to_string(WeldStripIndex));
    desk_.Saved.Save(Setting::WeldView, std::to_string(WeldConfigIndex));
}

std::string WeldPage::Selection_Text() const {
    return " SELECTION:   " + WeldView.Item(WeldView.Selected_Item()).Text;
}

void WeldPage::WeldView_Click() {
    editing_.Leave();
    const int item = WeldView.Selected_Item();
    desk_.StatBar.Set_Panel1(Selection_Text());
    if (desk_.ReadOut) {
        desk_.Say("");
        desk_.Say(Trim(WeldView.Item(item).Text));
    }
    Parameters& left = WeldParameters[static_cast<std::size_t>(WeldConfigIndex) - 1];
    for (int row = 0; row < WeldRow::Count; ++row)
        left[static_cast<std::size_t>(row)] = WeldFlex.Text(row, 1);
    if (item != WeldConfigIndex)
        Invalidate();
    WeldConfigIndex = item;
    const Parameters& entered = WeldParameters[static_cast<std::size_t>(item) - 1];
    for (int row = 0; row < WeldRow::Count; ++row)
        WeldFlex.Set_Text(row, 1, entered[static_cast<std::size_t>(row)]);
    WeldImage.Set_Name("wImage" + std::to_string(item));
    UpdateWeldCentroids();
}

// However the editor was left: a result never stands beside inputs that it isn't of.
void WeldPage::Committed(const std::string& before) {
    const std::string& now = WeldFlex.Text(WeldFlex.Row(), 1);
    if (Trim(before) != Trim(now) && Compared(before) != Compared(now))
        Invalidate();
    UpdateWeldCentroids();
}

void WeldPage::Invalidate() {
    ++newest_; // the last pass of a run that was just stopped is of the old inputs
    Empty_Report();
    ClearDisplay_Click();
}

void WeldPage::Empty_Report() {
    IterationDisplayBox.Set_Text({});
    CBox.Set_Text({});
    CRemark.Set_Caption({});
    BalancedCaption.Set_Caption({});
    BalancedBox.Set_Text({});
    CBox.Set_Remark({});
    passes_.Clear();
    SearchPlot.Set_Drawing(Weld_Search_Plot(passes_));
    ElapsedIndicator.Set_Caption({});
}

void WeldPage::UpdateWeldCentroids() {
    Draw_Group();
    const bool complete =
        !Trim(WeldFlex.Text(WeldRow::L, 1)).empty() && !Trim(WeldFlex.Text(WeldRow::kL, 1)).empty();
    const bool hasX = WeldConfigIndex > lastWithoutCentroid;
    const bool hasY = WeldConfigIndex > lastWithoutHeight;
    const std::string none{notApplicable};
    Show_Centroid(WeldRow::xL, hasX ? std::string{} : none, Alignment::Left);
    Show_Centroid(WeldRow::yL, hasY ? std::string{} : none, Alignment::Left);
    if (!complete)
        return;
    const auto show = [this](int row, std::int16_t mode) {
        Attempt([&] {
            Show_Centroid(row, Format_Number(Centroid(mode), inputPattern), Alignment::Right);
        });
    };
    if (hasX)
        show(WeldRow::xL, weldModeXL);
    if (hasY)
        show(WeldRow::yL, weldModeYL);
}

void WeldPage::Show_Centroid(int row, std::string text, Alignment alignment) {
    WeldFlex.Set_Style(row, 1, {.Align = alignment});
    WeldFlex.Set_Text(row, 1, std::move(text));
}

void WeldPage::WeldStripBox_Change() {
    if (WeldStripBox.ListIndex() >= 0)
        WeldStripIndex = WeldStripBox.ListIndex();
}

void WeldPage::StartIteration_Click() {
    editing_.Leave();
    Begin(false);
}

void WeldPage::StopIteration_Click() {
    if (StopIterationButton.Caption() != stopCaption) {
        editing_.Leave();
        // A changed input has taken the chance to resume.
        if (StopIterationButton.Enabled())
            Begin(true);
        return;
    }
    StopIterationButton.Set_Caption(resumeCaption);
    state_.ResumeRequested = false;
    state_.StopRequested = true;
    ClearDisplayButton.Enable(true);
    WeldStripBox.Enable(true);
    WeldView.Enable(true);
    StopIterationButton.Enable(true);
}

void WeldPage::Stop_If_Running() {
    if (StopIterationButton.Enabled() && StopIterationButton.Caption() == stopCaption)
        StopIteration_Click();
}

void WeldPage::ClearDisplay_Click() {
    state_.ResumeRequested = false;
    StopIterationButton.Set_Caption(stopCaption);
    StopIterationButton.Enable(false);
    IterationDisplayBox.Set_Text({});
    ElapsedIndicator.Set_Caption({});
}

void WeldPage::Show_Running() {
    StartIterationButton.Enable(false);
    StopIterationButton.Set_Caption(stopCaption);
    StopIterationButton.Enable(true);
    ClearDisplayButton.Enable(false);
    WeldStripBox.Enable(false);
    WeldView.Enable(false);
}

void WeldPage::Begin(bool resume) {
    const bool couldResume = StopIterationButton.Enabled();
    const std::string caption = StopIterationButton.Caption();
    const unsigned run = ++newest_;
    started_ = run;
    state_.ResumeRequested = resume;
    // The run to resume may not have seen its stop yet, or too late.
    state_.SavedRo = resume ? state_.PassRo : 0;
    if (resume)
        state_.StopRequested = false;
    WeldFlex.Set_Top_Row(0);
    Show_Running();
    const Outcome outcome = RunWeldIteration(run);
    if (started_ != run)
        return; // resumed before this run had come to its end: the buttons are the newer run's
    if (outcome == Outcome::Incomplete) {
        StopIterationButton.Set_Caption(caption);
        StopIterationButton.Enable(couldResume);
    } else if (outcome == Outcome::Finished || outcome == Outcome::Failed) {
        StopIterationButton.Enable(false);
    }
    ClearDisplayButton.Enable(true);
    WeldStripBox.Enable(true);
    WeldView.Enable(true);
    StartIterationButton.Enable(true);
}

} // namespace Tensarix
