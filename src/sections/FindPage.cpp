#include "sections/FindPage.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/InputFunction.h"
#include "sections/Assoc_Property.h"
#include "sections/FindNotes.h"
#include "sections/Find_Fill_Property.h"
#include "sections/Find_Populate_Value.h"
#include "sections/TableSelection.h"

#include <algorithm>

namespace Tensarix {

FindPage::FindPage(Desk& desk)
    : desk_(desk), sort_(fShapeFlex, [this] {
          const Family& family = Family_At(fShapeType.ListIndex());
          return TableSort::Rows{family.Type, family.Find.Columns, TableVariant::Find, View()};
      }) {
    OptionButton::Group({&fProfileOption1, &fProfileOption2});
    OptionButton::Group({&fDimOption1, &fDimOption2});
    FindButton.Set_Caption("Go");
    fProfileOption1.Set_Caption("US Standard Profile");
    fProfileOption2.Set_Caption("SI Equivalent Profile");
    fDimOption1.Set_Caption("Decimal");
    fDimOption2.Set_Caption("Imperial");

    fShapeType.OnChange = [this] { fShapeType_Change(); };
    fPoperty.OnChange = [this] { fPoperty_Change(); };
    fCriterion.OnChange = [this] { fCriterion_Change(); };
    fValue.OnChange = [this] { fValue_Change(); };
    fValue.OnKeyPress = [this](int keyAscii) { return fValue_KeyPress(keyAscii); };
    FindButton.OnClick = [this] { FindButton_Click(); };
    fProfileOption1.OnClick = [this] { Choose_Profile(Profile::US); };
    fProfileOption2.OnClick = [this] { Choose_Profile(Profile::SI); };
    fDimOption1.OnClick = [this] { Choose_Style(DimensionStyle::Decimal); };
    fDimOption2.OnClick = [this] { Choose_Style(DimensionStyle::Imperial); };
    fShapeFlex.OnSelChange = [this] {
        Show_Table_Selection(desk_, fShapeFlex);
        Draw_Table_Selection(SectionDrawing, fShapeFlex, fShapeType.ListIndex(), View());
    };
    Show_What_To_Do();
    fShapeFlex.OnMouseDown = [this] { desk_.GridClicked = true; };
}

void FindPage::Fill_Criteria() {
    for (const std::string_view criterion : findCriteria)
        fCriterion.Add(std::string{criterion});
}

std::string FindPage::Count_Text() const {
    if (fShapeType.ListIndex() < 0)
        return {};
    std::string all = Sections_In_Words(count_.OfFamily);
    if (!searched_)
        return all;
    const std::string found = std::to_string(count_.Found) + " found of " + all;
    return count_.Lightest.empty() ? found : found + ", lightest " + count_.Lightest;
}

std::string FindPage::Family_Key() const {
    return std::to_string(fShapeType.ListIndex());
}

void FindPage::fShapeType_Change() {
    ResultsShown = false;
    if (desk_.ReadOut) {
        desk_.Say("");
        desk_.Say(Spoken_Family(fShapeType.Text()));
    }
    Fill_Grid(false);
    Attempt([&] { Find_Fill_Property(fPoperty, fShapeType.ListIndex()); });
    Restore_Search();
}

void FindPage::Restore_Search() {
    const auto restore = [this](ComboBox& list, const SettingKey& key) {
        Attempt([&] { list.Select(std::max(0, desk_.Saved.Position(key, Family_Key()))); });
    };
    restore(fCriterion, Setting::fCriterion);
    restore(fPoperty, Setting::fPoperty);
    Restore_Value();
}

// A saved zero shows as an empty box.
void FindPage::Restore_Value() {
    Attempt([&] {
        const std::string saved = Trim(desk_.Saved.Text(Setting::fValue, Family_Key()));
        const double number = saved.empty() ? 0 : Text_Number(saved);
        fValue.Set_Text(number == 0 ? std::string{} : General_Text(number));
    });
}

void FindPage::Save_Search() const {
    Save_Criterion();
    Save_Property();
    Save_Value();
}

void FindPage::Save_Criterion() const {
    if (fShapeType.ListIndex() >= 0)
        desk_.Saved.Save(Setting::fCriterion, Family_Key(), std::to_string(fCriterion.ListIndex()));
}

void FindPage::Save_Property() const {
    if (fShapeType.ListIndex() >= 0)
        desk_.Saved.Save(Setting::fPoperty, Family_Key(), std::to_string(fPoperty.ListIndex()));
}

void FindPage::Save_Value() const {
    if (fShapeType.ListIndex() >= 0)
        Attempt([&] {
            desk_.Saved.Save(Setting::fValue, Family_Key(),
                             General_Text(Leading_Value(fValue.Text())));
        });
}

void FindPage::fPoperty_Change() {
    ResultsShown = false;
    Save_Property();
    Fill_Values();
    desk_.Show_No_Selection();
    UnitLabel.Set_Caption(std::string{FindUnitLabel(fPoperty.Text(), profile_)});
    Restore_Value();
}

void FindPage::fCriterion_Change() {
    ResultsShown = false;
    Save_Criterion();
    Show_Note();
}

void FindPage::fValue_Change() {
    ResultsShown = false;
    Save_Value();
}

// Enter searches at once, also for an empty box, and does nothing else to the list.
int FindPage::fValue_KeyPress(int keyAscii) {
    if (keyAscii != Keys::Enter)
        return Filter_Decimal(keyAscii);
    RunFind();
    return 0;
}

void FindPage::FindButton_Click() {
    if (Trim(fValue.Text()).empty()) {
        desk_.Host.Boxes.Show("Incomplete search parameter!  \n\n", "Warning:", MessageIcon::Stop);
        return;
    }
    RunFind();
    fShapeFlex.Set_Top_Row(1);
}

void FindPage::RunFind() {
    ResultsShown = true;
    Fill_Grid(true);
}

void FindPage::Fill_Grid(bool searching) {
    FindCondition condition{fPoperty.Text(), fCriterion.Text()};
    Attempt([&] { condition.Value = Leading_Value(fValue.Text()); });
    const CurrentCell before = Current_Cell(fShapeFlex);
    Attempt([&] {
        const Family& family = Family_At(fShapeType.ListIndex());
        count_ = family.Find(fShapeFlex, family.Type, View(), searching, condition);
        searched_ = searching;
        if (searching)
            fShapeFlex.Set_Marked_Col(
                Value_Column(family.Find.Columns, TableVariant::Find, condition.Property));
        else // columns of another family
            fShapeFlex.Set_Left_Col(fShapeFlex.FixedCols());
    });
    Show_What_To_Do();
    if (Follow_Current_Cell(desk_, fShapeFlex, before))
        Draw_Table_Selection(SectionDrawing, fShapeFlex, fShapeType.ListIndex(), View());
    Run(OnCount);
}

SectionView FindPage::View() const {
    return {desk_.Host.Places.Program, profile_, style_};
}

// In the place of the drawing, until a section is selected.
void FindPage::Show_What_To_Do() {
    const std::string_view hint = !searched_          ? "Choose a property and press Go"
                                  : count_.Found == 0 ? "No section meets the condition"
                                                      : noSectionDrawn;
    SectionDrawing.Set_Drawing({std::string{hint}});
}

void FindPage::Fill_Values() {
    propertyNote_ = {};
    Attempt([&] {
        const std::string_view type = Family_At(fShapeType.ListIndex()).Type;
        const std::filesystem::path& folder = desk_.Host.Places.Program;
        Find_Populate_Value(type, fPoperty.Text(), profile_, fValue, folder);
        propertyNote_ = Find_Property_Note(type, fPoperty.Text(), profile_, folder);
    });
    Show_Note();
}

void FindPage::Show_Note() {
    std::string note{Find_Criterion_Note(fCriterion.Text())};
    if (!note.empty() && !propertyNote_.Text.empty())
        note += "  ";
    SearchNote.Set_Caption(note + propertyNote_.Text, propertyNote_.Weight);
}

void FindPage::Choose_Profile(Profile profile) {
    profile_ = profile;
    fDimOption1.Enable(profile == Profile::US);
    fDimOption2.Enable(profile == Profile::US);
    UnitLabel.Set_Caption(std::string{FindUnitLabel(fPoperty.Text(), profile)});
    Fill_Values();
    if (ResultsShown)
        RunFind();
    else
        desk_.Quietly([this] { fShapeType_Change(); });
}

void FindPage::Choose_Style(DimensionStyle style) {
    style_ = style;
    if (ResultsShown)
        RunFind();
    desk_.Show_No_Selection();
}

} // namespace Tensarix
