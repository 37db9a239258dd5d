// Browse Sections: one section, its drawing, and a row for each of its properties.
#pragma once

#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"
#include "sections/FamilyTable.h"

namespace Tensarix {

class BrowsePage {
  public:
    ComboBox ShapeType;
    ComboBox ShapeSizeUS, ShapeSizeSI;
    OptionButton ProfileOption1, ProfileOption2;
    OptionButton DimOption1, DimOption2;
    Picture BaseImage;         // which kind of profile it is
    DrawingBox SectionDrawing; // the section itself, shown in its place
    Label ShapeLabel;
    FlexGrid ShapeFlex;

    explicit BrowsePage(Desk& desk);
    BrowsePage(const BrowsePage&) = delete;

    // The empty grid, once at start.
    void Init_ShapeFlex();
    // The values of the chosen section, in the profile and style that are set.
    void ShowSectionProperties();
    // The mouse moved over something else than the grid's columns: a grid that was scrolled
    // sideways, to read a long meaning, snaps back.
    void Snap_Back();

  private:
    void ShapeType_Change();
    void ShapeSizeUS_Change();
    void ShapeSizeSI_Change();
    void Choose_Profile(Profile profile);
    void Choose_Style(DimensionStyle style);
    void ShapeFlex_SelChange();
    void ShapeFlex_MouseMove(double xTwips);

    std::string Selection_Text(int row) const;
    std::string Spoken_Text(int row) const;
    SectionView View() const;
    void Draw_Section();
    void Light_Up_Row();
    std::string Told_Of(const std::string& part) const;

    Desk& desk_;
    Profile profile_ = Profile::US;
    DimensionStyle style_ = DimensionStyle::Decimal;
};

} // namespace Tensarix
