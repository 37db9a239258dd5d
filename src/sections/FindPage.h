// Find Sections: the sections of one family that meet one condition on one property.
#pragma once

#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"
#include "sections/FamilyTable.h"
#include "sections/TableSort.h"

namespace Tensarix {

class FindPage {
  public:
    ComboBox fShapeType;
    ComboBox fPoperty; // the setting of its position is named like this too
    ComboBox fCriterion;
    ComboBox fValue; // can be typed in
    Label UnitLabel;
    Label SearchNote; // what is worth knowing of the chosen property and criterion
    Button FindButton;
    OptionButton fProfileOption1, fProfileOption2;
    OptionButton fDimOption1, fDimOption2;
    FlexGrid fShapeFlex;
    DrawingBox SectionDrawing; // of the current row

    Handler OnCount; // Count_Text has changed

    explicit FindPage(Desk& desk);
    FindPage(const FindPage&) = delete;

    // Start-up: the criteria come after the first family has been chosen.
    void Fill_Criteria();
    // Criterion, property and value of the chosen family as they were saved.
    void Restore_Search();
    // The same three into the settings, if a family is chosen.
    void Save_Search() const;
    // Shows the sections that meet the condition, also with an empty value, which is 0.
    void RunFind();

    // How many sections there are and how many of them were found, in words.
    std::string Count_Text() const;
    // Of the sections that the grid shows; empty if nothing was searched or found.
    const std::string& Lightest() const { return count_.Lightest; }

  private:
    void fShapeType_Change();
    void fPoperty_Change();
    void fCriterion_Change();
    void fValue_Change();
    int fValue_KeyPress(int keyAscii);
    void FindButton_Click();
    void Choose_Profile(Profile profile);
    void Choose_Style(DimensionStyle style);

    std::string Family_Key() const;
    void Restore_Value();
    void Save_Property() const;
    void Save_Criterion() const;
    void Save_Value() const;
    void Fill_Values();
    void Show_Note();
    void Fill_Grid(bool searching);
    SectionView View() const;
    void Show_What_To_Do();

    Desk& desk_;
    Profile profile_ = Profile::US;
    DimensionStyle style_ = DimensionStyle::Decimal;
    bool ResultsShown = false; // the grid shows what the condition finds
    bool searched_ = false;    // the grid shows a result, maybe of a condition since changed
    FindCount count_;
    Advice propertyNote_;
    TableSort sort_;
};

} // namespace Tensarix
