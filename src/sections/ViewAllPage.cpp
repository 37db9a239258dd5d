#include "sections/ViewAllPage.h"

#include "common/Failure.h"
#include "sections/TableSelection.h"

namespace Tensarix {

ViewAllPage::ViewAllPage(Desk& desk)
    : desk_(desk), sort_(xShapeFlex, [this] {
          const Family& family = Family_At(xShapeType.ListIndex());
          return TableSort::Rows{family.Type,
                                 family.ViewAll.Columns,
                                 TableVariant::ViewAll,
                                 {desk_.Host.Places.Program, profile_, style_}};
      }) {
    OptionButton::Group({&xProfileOption1, &xProfileOption2});
    OptionButton::Group({&xDimOption1, &xDimOption2});
    xProfileOption1.Set_Caption("US Standard Profile");
    xProfileOption2.Set_Caption("SI Equivalent Profile");
    xDimOption1.Set_Caption("Decimal");
    xDimOption2.Set_Caption("Imperial");

    xShapeType.OnChange = [this] { xShapeType_Change(); };
    xProfileOption1.OnClick = [this] { Choose_Profile(Profile::US); };
    xProfileOption2.OnClick = [this] { Choose_Profile(Profile::SI); };
    xDimOption1.OnClick = [this] { Choose_Style(DimensionStyle::Decimal); };
    xDimOption2.OnClick = [this] { Choose_Style(DimensionStyle::Imperial); };
    xShapeFlex.OnSelChange = [this] {
        Show_Table_Selection(desk_, xShapeFlex);
        Draw_Table_Selection(SectionDrawing, xShapeFlex, xShapeType.ListIndex(), View());
    };
    SectionDrawing.Set_Drawing({std::string{noSectionDrawn}});
    xShapeFlex.OnMouseDown = [this] { desk_.GridClicked = true; };
}

SectionView ViewAllPage::View() const {
    return {desk_.Host.Places.Program, profile_, style_};
}

std::string ViewAllPage::Count_Text() const {
    return xShapeType.ListIndex() < 0 ? std::string{} : Sections_In_Words(count_);
}

void ViewAllPage::xShapeType_Change() {
    if (desk_.ReadOut) {
        desk_.Say("");
        desk_.Say(Spoken_Family(xShapeType.Text()));
    }
    desk_.Show_No_Selection();
    const CurrentCell before = Current_Cell(xShapeFlex);
    Attempt([&] {
        const Family& family = Family_At(xShapeType.ListIndex());
        count_ = family.ViewAll(xShapeFlex, family.Type, View());
    });
    SectionDrawing.Set_Drawing({std::string{noSectionDrawn}});
    if (Follow_Current_Cell(desk_, xShapeFlex, before))
        Draw_Table_Selection(SectionDrawing, xShapeFlex, xShapeType.ListIndex(), View());
    xShapeFlex.Set_Top_Row(1);
    Run(OnCount);
}

// The family is not spoken again, as it is with the style.
void ViewAllPage::Choose_Profile(Profile profile) {
    profile_ = profile;
    xDimOption1.Enable(profile == Profile::US);
    xDimOption2.Enable(profile == Profile::US);
    desk_.Quietly([this] { xShapeType_Change(); });
}

void ViewAllPage::Choose_Style(DimensionStyle style) {
    style_ = style;
    xShapeType_Change();
}

} // namespace Tensarix
