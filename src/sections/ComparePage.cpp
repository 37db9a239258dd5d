#include "sections/ComparePage.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/FamilyTable.h"
#include "speech/SpokenSymbols.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr double headHeight = 460, rowHeight = 330, headWidth = 1000, sectionWidth = 1500; // twips
constexpr std::string_view howToAdd =
    "No section yet: Ctrl+Shift+C on Browse, Find, View All or Beam Load puts one here";

std::string Of_Six(std::size_t count) {
    return std::to_string(count) + " of " + Sections_In_Words(static_cast<int>(mostCompared));
}

ComparedSection Section_At(SectionPlace place, const std::filesystem::path& programFolder) {
    ComboBox us, si;
    FillSizeLists(us, si, Family_At(place.Family).Type, programFolder);
    return {place, {us.Item(place.Position), si.Item(place.Position)}};
}

} // namespace

ComparePage::ComparePage(Desk& desk) : desk_(desk) {
    CompareProfile1.Set_Caption("US Standard Profile");
    CompareProfile2.Set_Caption("SI Equivalent Profile");
    RemoveButton.Set_Caption("&Take Out");
    CopyButton.Set_Caption("&Copy Table");
    OptionButton::Group({&CompareProfile1, &CompareProfile2});
    CompareProfile1.Select();
    Attempt([&] {
        if (desk_.Saved.Flag(Setting::CompareProfile)) {
            CompareProfile2.Select();
            profile_ = Profile::SI;
        }
    });
    CompareProfile1.OnClick = [this] { Choose_Profile(Profile::US); };
    CompareProfile2.OnClick = [this] { Choose_Profile(Profile::SI); };
    CompareFlex.Set_Row_Height_Min(rowHeight);
    CompareFlex.OnSelChange = [this] { CompareFlex_SelChange(); };
    CompareFlex.OnKeyDown = [this](int keyCode) {
        if (keyCode == Keys::Delete)
            RemoveButton.Click();
    };
    CompareFlex.OnCopy = [this] { Copy(CompareFlex.Clip()); };
    RemoveButton.OnClick = [this] { RemoveButton_Click(); };
    CopyButton.OnClick = [this] { Copy(Table_Text(CompareFlex)); };
    Fill();
}

SectionView ComparePage::View() const {
    return {desk_.Host.Places.Program, profile_};
}

int ComparePage::Current() const {
    const int at = CompareFlex.Col() - firstComparedCol;
    return at < static_cast<int>(sections_.size()) ? std::max(at, -1) : -1;
}

ComparePage::Added ComparePage::Add(SectionPlace place) {
    ComparedSection section = Section_At(place, desk_.Host.Places.Program);
    const std::string& name = section.Name(profile_);
    const auto at = std::find_if(sections_.begin(), sections_.end(),
                                 [&](const ComparedSection& of) { return of.Place == place; });
    const auto col = firstComparedCol + static_cast<int>(at - sections_.begin());
    if (at != sections_.end()) {
        told_ = name + " is compared already";
        Show_Count();
        Go_To_Column(col);
        return Added::WasThere;
    }
    if (sections_.size() == mostCompared) {
        told_ = "Six sections are the most: " + name +
                " is not compared. Delete takes out the section of the column.";
        CountLabel.Set_Caption(told_);
        return Added::NoRoom;
    }
    sections_.push_back(std::move(section));
    told_ = sections_.back().Name(profile_) + " is compared: " + Of_Six(sections_.size()) +
            ". Ctrl+Shift+C again goes there.";
    Fill();
    Go_To_Column(col);
    return Added::New;
}

void ComparePage::Go_To_Column(int col) {
    CompareFlex.Select_Range(CompareFlex.Row(), col, CompareFlex.Row(), col);
    Show_Current();
    Run(CompareFlex.BringIntoView);
}

void ComparePage::Fill() {
    const std::string symbol = CompareFlex.Text(CompareFlex.Row(), comparedSymbolCol);
    Fill_CompareFlex(CompareFlex, sections_, View());
    CompareFlex.Set_Row_Height(0, headHeight);
    for (int col = 0; col < CompareFlex.Cols(); ++col)
        CompareFlex.Set_Col_Width(col, col < firstComparedCol ? headWidth : sectionWidth);
    for (int row = CompareFlex.Rows() - 1; row > 0; --row) // the property that was looked at
        if (row == 1 || CompareFlex.Text(row, comparedSymbolCol) == symbol) {
            CompareFlex.Select_Range(row, CompareFlex.Col(), row, CompareFlex.Col());
            break;
        }
    std::vector<Drawing> drawings = Draw_Compared(sections_, View());
    drawings.resize(mostCompared);
    for (std::size_t i = 0; i < mostCompared; ++i)
        Drawings[i].Set_Drawing(std::move(drawings[i]));
    CopyButton.Enable(!sections_.empty());
    Show_Count();
    Show_Current();
}

void ComparePage::Show_Count() {
    CountLabel.Set_Caption(sections_.empty() ? std::string{howToAdd} : Of_Six(sections_.size()));
}

void ComparePage::Show_Current() {
    const int row = CompareFlex.Row(), col = CompareFlex.Col();
    RemoveButton.Enable(Current() >= 0);
    RemarkLabel.Set_Caption(CompareFlex.Remark(row, col), CompareFlex.Remark_Weight(row, col));
    for (DrawingBox& drawing : Drawings)
        drawing.Light_Up(Current() < 0 ? std::string{} : Current_Section().Names[0]);
    const CellTexts cell = Current_Cell();
    CellLabel.Set_Caption(
        cell.Name.empty() ? std::string{}
        : cell.Value.empty()
            ? cell.Name + (cell.Meaning.empty() ? ":   has no " : ":   without ") + cell.Symbol
            : cell.Name + ":   " + Trim(cell.Symbol + " = " + cell.Value + " " + cell.Unit) +
                  "     [" + cell.Meaning + "]");
}

ComparePage::CellTexts ComparePage::Current_Cell() const {
    if (Current() < 0)
        return {};
    const auto text = [this](int col) { return Trim(CompareFlex.Text(CompareFlex.Row(), col)); };
    const std::string symbol = text(comparedSymbolCol);
    return {Current_Section().Name(profile_), symbol, text(CompareFlex.Col()),
            text(comparedUnitCol), Compared_Meaning(Current_Section(), symbol)};
}

void ComparePage::CompareFlex_SelChange() {
    Show_Current();
    const CellTexts cell = Current_Cell();
    if (desk_.ReadOut && !cell.Value.empty())
        desk_.Say(cell.Name + " :: " + Speak_Symbol(cell.Symbol) + " = " + Speak_Value(cell.Value) +
                  " " + Speak_Unit(cell.Unit, cell.Value) + " :: " + Speak_Phrase(cell.Meaning));
}

void ComparePage::Copy(const std::string& text) {
    Attempt([&] {
        desk_.Host.Clip.Clear();
        desk_.Host.Clip.Set_Text(text);
    });
}

void ComparePage::RemoveButton_Click() {
    if (Current() < 0)
        return;
    sections_.erase(sections_.begin() + Current());
    Fill();
}

void ComparePage::Choose_Profile(Profile profile) {
    profile_ = profile;
    desk_.Saved.Save(Setting::CompareProfile, profile == Profile::SI ? "1" : "0");
    Fill();
}

} // namespace Tensarix
