#include "shell/AnySectionFrm.h"

#include "sections/FamilyTable.h"

#include <algorithm>
#include <iterator>

namespace Tensarix {

namespace {

constexpr int mostFound = 50; // who wants more types more
constexpr int headRows = 1;

struct FoundColumn {
    const char* Head;
    double Width; // twips
    Alignment Align;
};
// Wide enough for all sections, and together no wider than a screen of 800 pixels.
constexpr FoundColumn columns[] = {
    {"Section", 2200, Alignment::Left},        {"Also", 2200, Alignment::Left},
    {"Shape Category", 2600, Alignment::Left}, {"Weight", 1250, Alignment::Right},
    {"Depth", 1100, Alignment::Right},
};

} // namespace

AnySectionFrm::AnySectionFrm(const Desk& desk) : search_(desk.Host.Places.Program) {
    BrowseButton.Set_Caption("Show on &Browse");
    BeamButton.Set_Caption("Show on Beam &Load");
    CancelButton.Set_Caption("Cancel");
    Init_FoundFlex();
    SearchBox_Change();
    SearchBox.OnChange = [this] { SearchBox_Change(); };
    FoundFlex.OnSelChange = [this] { FoundFlex_SelChange(); };
    FoundFlex.OnDblClick = [this] { BrowseButton.Click(); };
    BrowseButton.OnClick = [this] { Choose(Mode::Browse); };
    BeamButton.OnClick = [this] { Choose(Mode::BeamLoad); };
    CancelButton.OnClick = [this] { Run(Close); };
}

void AnySectionFrm::Init_FoundFlex() {
    FoundFlex.Set_Cols(static_cast<int>(std::size(columns)));
    FoundFlex.Set_Fixed(headRows, 0);
    FoundFlex.Set_Left_Col(0);
    FoundFlex.Set_Row_Height_Min(350);
    int col = 0;
    for (const FoundColumn& column : columns) {
        FoundFlex.Set_Col_Width(col, column.Width);
        FoundFlex.Set_Style(0, col, headStyle);
        FoundFlex.Set_Text(0, col++, column.Head);
    }
}

void AnySectionFrm::SearchBox_Change() {
    found_ = search_.Find(SearchBox.Text(), mostFound + 1);
    const bool more = found_.size() > mostFound;
    found_.resize(more ? mostFound : found_.size());
    const int count = static_cast<int>(found_.size());
    FoundFlex.Set_Rows(headRows + std::max(count, 1));
    for (int row = 0; row < std::max(count, 1); ++row) {
        const FoundSection& section =
            count > 0 ? found_[static_cast<std::size_t>(row)] : FoundSection{};
        const std::string family =
            count > 0 ? std::string{Family_At(section.Place.Family).Name} : std::string{};
        int col = 0;
        for (const std::string& text :
             {section.Name, section.OtherName, family, section.WeightText, section.DepthText}) {
            FoundFlex.Set_Style(headRows + row, col,
                                {.Align = columns[col].Align,
                                 .Fore = col == 0 ? Colours::NameText : Colours::Standard});
            FoundFlex.Set_Text(headRows + row, col++, text);
        }
    }
    FoundFlex.Select_Range(headRows, 0, headRows, FoundFlex.Cols() - 1);
    FoundFlex.Set_Top_Row(headRows);
    FoundLabel.Set_Caption(more ? "The first " + Sections_In_Words(count)
                                : Sections_In_Words(count));
    FoundFlex_SelChange();
}

const FoundSection* AnySectionFrm::Current() const {
    const auto at = static_cast<std::size_t>(FoundFlex.Row() - headRows);
    return at < found_.size() ? &found_[at] : nullptr;
}

void AnySectionFrm::FoundFlex_SelChange() {
    const FoundSection* section = Current();
    BrowseButton.Enable(section != nullptr);
    BeamButton.Enable(section && section->Place.Family < beamFamilies);
    Run(OnCurrent);
}

std::string AnySectionFrm::Current_Text() const {
    const FoundSection* section = Current();
    if (!section)
        return {};
    return section->Name + ", " + std::string{Family_At(section->Place.Family).Name} + ", " +
           section->WeightText;
}

void AnySectionFrm::Choose(Mode page) {
    if (const FoundSection* section = Current()) {
        Chosen = section->Place;
        Page = page;
    }
    Run(Close);
}

} // namespace Tensarix
