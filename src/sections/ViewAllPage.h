// View All: the sections of one family, a row each, with all properties as columns.
#pragma once

#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"
#include "sections/FamilyTable.h"
#include "sections/TableSort.h"

namespace Tensarix {

class ViewAllPage {
  public:
    ComboBox xShapeType;
    OptionButton xProfileOption1, xProfileOption2;
    OptionButton xDimOption1, xDimOption2;
    FlexGrid xShapeFlex;
    DrawingBox SectionDrawing; // of the current row

    Handler OnCount; // Count_Text has changed

    explicit ViewAllPage(Desk& desk);
    ViewAllPage(const ViewAllPage&) = delete;

    // How many sections the grid shows, in words; empty without a family.
    std::string Count_Text() const;

  private:
    void xShapeType_Change();
    void Choose_Profile(Profile profile);
    void Choose_Style(DimensionStyle style);
    SectionView View() const;

    Desk& desk_;
    Profile profile_ = Profile::US;
    DimensionStyle style_ = DimensionStyle::Decimal;
    int count_ = 0;
    TableSort sort_;
};

} // namespace Tensarix
