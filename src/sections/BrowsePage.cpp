#include "sections/BrowsePage.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/SectionDrawing.h"
#include "speech/SpokenSymbols.h"

namespace Tensarix {

namespace {

constexpr double snapBackEdge = 885; // twips from the grid's left edge

// The part of the drawing that a row is about: its dimension, or the axis of a property.
std::string Part_Of(const std::string& symbol, const std::string& meaning) {
    for (const char* axis : {"x-axis", "y-axis"})
        if (meaning.ends_with(axis))
            return axis;
    return symbol == "rz" ? "Tan Alpha" : symbol;
}

} // namespace

BrowsePage::BrowsePage(Desk& desk) : desk_(desk) {
    OptionButton::Group({&ProfileOption1, &ProfileOption2});
    OptionButton::Group({&DimOption1, &DimOption2});
    ProfileOption1.Set_Caption("US Standard Profile");
    ProfileOption2.Set_Caption("SI Equivalent Profile");
    DimOption1.Set_Caption("Decimal");
    DimOption2.Set_Caption("Imperial");

    ShapeType.OnChange = [this] { ShapeType_Change(); };
    ShapeSizeUS.OnChange = [this] { ShapeSizeUS_Change(); };
    ShapeSizeSI.OnChange = [this] { ShapeSizeSI_Change(); };
    ProfileOption1.OnClick = [this] { Choose_Profile(Profile::US); };
    ProfileOption2.OnClick = [this] { Choose_Profile(Profile::SI); };
    DimOption1.OnClick = [this] { Choose_Style(DimensionStyle::Decimal); };
    DimOption2.OnClick = [this] { Choose_Style(DimensionStyle::Imperial); };
    ShapeFlex.OnSelChange = [this] { ShapeFlex_SelChange(); };
    ShapeFlex.OnMouseDown = [this] { desk_.GridClicked = true; };
    ShapeFlex.OnMouseMove = [this](double xTwips) { ShapeFlex_MouseMove(xTwips); };
    BaseImage.OnMouseMove = [this] { Snap_Back(); };
    SectionDrawing.Tell = [this](const std::string& part, Drawn::Point) { return Told_Of(part); };
}

void BrowsePage::Init_ShapeFlex() {
    ShapeFlex.Clear();
    ShapeFlex.Set_Rows(26);
    ShapeFlex.Set_Cols(4);
    ShapeFlex.Set_Fixed(1, 1);
    ShapeFlex.Set_Row_Height_Min(350);
    const double widths[] = {900, 1300, 1300, 5345};
    const char* heads[] = {"Property", "Value", "Unit", "    Meaning"};
    ShapeFlex.Set_Row_Height(0, 460);
    for (int col = 0; col < ShapeFlex.Cols(); ++col) {
        ShapeFlex.Set_Col_Width(col, widths[col]);
        CellStyle style = headStyle;
        style.Align = col == 3 ? Alignment::Left : Alignment::Centre;
        ShapeFlex.Set_Style(0, col, style);
        ShapeFlex.Set_Text(0, col, heads[col]);
    }
    ShapeFlex.Select_Range(1, 3, 1, 3);
}

void BrowsePage::ShapeType_Change() {
    if (desk_.ReadOut) {
        desk_.Say("");
        desk_.Say(Spoken_Family(ShapeType.Text()));
    }
    BaseImage.Set_Name({});
    SectionDrawing.Set_Drawing({"Choose a shape profile"});
    const int position = ShapeType.ListIndex();
    Attempt([&] { BaseImage.Set_Name(std::string{Family_At(position).Picture}); });
    Attempt([&] {
        FillSizeLists(ShapeSizeUS, ShapeSizeSI, Family_At(position).Type,
                      desk_.Host.Places.Program);
    });
    Attempt([&] { Family_At(position).Browse(ShapeFlex, ShapeSizeUS, View(), true); });
    Attempt([&] {
        ShapeSizeUS.Select(desk_.Saved.Position(Setting::ShapeSize, std::to_string(position)));
    });
    if (ShapeSizeUS.ListIndex() < 0)
        ShapeLabel.Set_Caption({});
    ShapeFlex.Set_Top_Row(1);
}

void BrowsePage::ShapeSizeUS_Change() {
    Attempt([&] { ShapeSizeSI.Select(ShapeSizeUS.ListIndex()); });
    const ComboBox& active = profile_ == Profile::US ? ShapeSizeUS : ShapeSizeSI;
    ShapeLabel.Set_Caption(SpaceDesignation(Trim(active.Text())));
    if (ShapeType.ListIndex() >= 0)
        desk_.Saved.Save(Setting::ShapeSize, std::to_string(ShapeType.ListIndex()),
                         std::to_string(ShapeSizeUS.ListIndex()));
    ShowSectionProperties();
}

// All work hangs on the US list.
void BrowsePage::ShapeSizeSI_Change() {
    Attempt([&] { ShapeSizeUS.Select(ShapeSizeSI.ListIndex()); });
}

void BrowsePage::ShowSectionProperties() {
    const int position = ShapeType.ListIndex();
    Attempt([&] {
        const Family& family = Family_At(position);
        if (position == unEqualDoubleAngleFamily)
            BaseImage.Set_Name(std::string{Double_Angle_Picture(ShapeSizeUS.Text())});
        family.Browse(ShapeFlex, position == pipeFamily ? ShapeSizeSI : ShapeSizeUS, View(), false);
    });
    Draw_Section();
    desk_.Show_No_Selection();
}

void BrowsePage::Draw_Section() {
    const int position = ShapeType.ListIndex();
    const ComboBox& sizes = position == pipeFamily ? ShapeSizeSI : ShapeSizeUS;
    if (position < 0 || sizes.ListIndex() < 0)
        return;
    Drawing drawing = Read_Section_Drawing(position, sizes.Text(), View(), DrawingDetail::Full);
    if (drawing.Empty())
        drawing.Sentence = "No drawing: the figures of this section can't be read";
    SectionDrawing.Set_Drawing(std::move(drawing));
    Light_Up_Row();
}

void BrowsePage::Light_Up_Row() {
    const int row = ShapeFlex.Row();
    SectionDrawing.Light_Up(
        Part_Of(Trim(ShapeFlex.Text(row, 0)), Flat_Meaning(ShapeFlex.Text(row, 3))));
}

// "bf = 15.90 in.   Flange Width": the row of the dimension that is pointed at.
std::string BrowsePage::Told_Of(const std::string& part) const {
    for (int row = 1; !part.empty() && row < ShapeFlex.Rows(); ++row)
        if (Trim(ShapeFlex.Text(row, 0)) == part)
            return part + " = " +
                   Trim(Trim(ShapeFlex.Text(row, 1)) + " " + Trim(ShapeFlex.Text(row, 2))) + "   " +
                   Flat_Meaning(ShapeFlex.Text(row, 3));
    return part;
}

void BrowsePage::Choose_Profile(Profile profile) {
    profile_ = profile;
    DimOption1.Enable(profile == Profile::US);
    DimOption2.Enable(profile == Profile::US);
    const ComboBox& active = profile == Profile::US ? ShapeSizeUS : ShapeSizeSI;
    ShapeLabel.Set_Caption(SpaceDesignation(Trim(active.Text())));
    ShowSectionProperties();
}

void BrowsePage::Choose_Style(DimensionStyle style) {
    style_ = style;
    ShowSectionProperties();
}

SectionView BrowsePage::View() const {
    return {desk_.Host.Places.Program, profile_, style_};
}

std::string BrowsePage::Selection_Text(int row) const {
    const std::string symbol = Trim(ShapeFlex.Text(row, 0));
    if (symbol.empty())
        return " SELECTION:";
    const std::string value = Trim(ShapeFlex.Text(row, 1));
    std::string text = " SELECTION:   " + symbol + " = " + value + " ";
    if (Is_Numeric(value))
        text += Trim(ShapeFlex.Text(row, 2));
    return text + "     [" + Flat_Meaning(ShapeFlex.Text(row, 3)) + "]";
}

std::string BrowsePage::Spoken_Text(int row) const {
    const std::string value = Trim(ShapeFlex.Text(row, 1));
    return Speak_Symbol(Trim(ShapeFlex.Text(row, 0))) + " = " + Speak_Value(value) + " " +
           Speak_Unit(Trim(ShapeFlex.Text(row, 2)), value) +
           " :: " + Speak_Phrase(Flat_Meaning(ShapeFlex.Text(row, 3)));
}

void BrowsePage::ShapeFlex_SelChange() {
    const int row = ShapeFlex.Row();
    Light_Up_Row();
    desk_.StatBar.Set_Panel1(Selection_Text(row));
    const int told = ShapeFlex.Remark(row, ShapeFlex.Col()).empty() ? 1 : ShapeFlex.Col();
    desk_.StatBar.Set_Remark(ShapeFlex.Remark(row, told), ShapeFlex.Remark_Weight(row, told));
    if (desk_.ReadOut && !Trim(ShapeFlex.Text(row, 0)).empty())
        desk_.Say(Spoken_Text(row));
}

void BrowsePage::ShapeFlex_MouseMove(double xTwips) {
    if (xTwips < snapBackEdge)
        Snap_Back();
}

void BrowsePage::Snap_Back() {
    if (ShapeFlex.Left_Col() != 1)
        ShapeFlex.Set_Left_Col(1);
}

} // namespace Tensarix
