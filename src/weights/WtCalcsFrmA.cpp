#include "weights/WtCalcsFrmA.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchParsing.h"
#include "sections/FamilyTable.h"
#include "sections/SectionStore.h"

#include <cmath>

namespace Tensarix {

namespace {

constexpr int sizeCol = 1, lengthCol = 2, weightCol = 3;
constexpr double sameLength = 1e-9; // feet
constexpr std::string_view noSizeRemark =
    "Computed without a size: none was picked in the list. Pick the size of this row again";

// What of a sheet is kept, by column.
struct SavedColumn {
    int Col;
    std::string SavedRow::*Imperial;
    std::string SavedRow::*Metric;
    std::string_view Padding;
};
constexpr SavedColumn savedColumns[] = {
    {sizeCol, &SavedRow::ImperialSize, &SavedRow::MetricSize, ""},
    {lengthCol, &SavedRow::ImperialLength, &SavedRow::MetricLength, CellPadding},
    {weightCol, &SavedRow::ImperialWeight, &SavedRow::MetricWeight, CellPadding},
};

double Find_Weight(const std::filesystem::path& folder, const std::string& query,
                   std::string_view field) {
    double weight = 0;
    Attempt([&] {
        SectionRead read(folder, query);
        read.Records.MoveFirst();
        weight = read.Records.Number(field);
    });
    return weight;
}

// The weight is that of the leading number of the text. Tells so where that isn't the length.
std::string Charged_Remark(const std::string& length) {
    std::string remark;
    Attempt([&] {
        const double charged = Leading_Value(length);
        const std::optional<double> feet = Feet_Of(Trim(length));
        if (feet && std::abs(*feet - charged) > sameLength)
            remark = "Charged for " + General_Text(charged) +
                     " ft: this calculator uses the whole feet of the length";
    });
    return remark;
}

void Add_Sizes(CellEditing& editing, ComboBox& sizes, std::function<void(bool)> compute) {
    editing.Add(CellEditing::ComboCells{sizes, [](int, int col) { return col == sizeCol; },
                                        std::move(compute)});
}

} // namespace

WtCalcsFrmA::WtCalcsFrmA(Desk& desk, SavedRows& saved)
    : WtCalcsSheets(
          desk, lengthCol, [this] { Compute_Row_Imperial(ImperialFlex, false); },
          [this] { Compute_Row_Metric(MetricFlex, false); }),
      Saved_Rows(saved) {
    Add_Sizes(imperialEditing_, ShapeSizeUS,
              [this](bool useCombo) { Compute_Row_Imperial(ImperialFlex, useCombo); });
    Add_Sizes(metricEditing_, ShapeSizeSI,
              [this](bool useCombo) { Compute_Row_Metric(MetricFlex, useCombo); });
    ShapeType.OnChange = [this] { ShapeType_Change(); };
    ShapeType.Focus.OnGotFocus = [this] { Hide_Lists(); };
    SSTab1.OnChange = [this] { SSTab1_Change(); };
    ClearButton.OnClick = [this] { ClearButton_Click(); };
}

void WtCalcsFrmA::Init_Head(FlexGrid& grid, bool imperial) {
    const SheetColumn columns[] = {
        {"No.", 700, Alignment::Centre},
        {"PROFILE SIZE\n", 2350, Alignment::Centre},
        {imperial ? "PROFILE LENGTH\n(Feet-Inches)" : "PROFILE LENGTH\n(Meter)", 1700,
         Alignment::Right},
        {imperial ? "PROFILE WEIGHT\n(Lbs.)" : "PROFILE WEIGHT\n(Kg)", 2000, Alignment::Right},
    };
    Init_Sheet(grid, columns);
}

// The weights come back as texts and are not computed, with what was remarked on them.
void WtCalcsFrmA::Load() {
    Init_Head_Imperial();
    Init_Head_Metric();
    int row = 1;
    for (const SavedRow& saved : Saved_Rows) {
        for (const SavedColumn& column : savedColumns) {
            ImperialFlex.Set_Text(row, column.Col,
                                  Trim(saved.*column.Imperial).append(column.Padding));
            MetricFlex.Set_Text(row, column.Col, Trim(saved.*column.Metric).append(column.Padding));
        }
        ImperialFlex.Set_Remark(row, weightCol, saved.ImperialRemark);
        MetricFlex.Set_Remark(row, weightCol, saved.MetricRemark);
        ++row;
    }
    Start_Family_List();
    Show_Total();
}

void WtCalcsFrmA::Unload() {
    Commit_Open_Editors();
    Save_Choice();
    int row = 1;
    for (SavedRow& saved : Saved_Rows) {
        for (const SavedColumn& column : savedColumns) {
            saved.*column.Imperial = Trim(ImperialFlex.Text(row, column.Col));
            saved.*column.Metric = Trim(MetricFlex.Text(row, column.Col));
        }
        saved.ImperialRemark = ImperialFlex.Remark(row, weightCol);
        saved.MetricRemark = MetricFlex.Remark(row, weightCol);
        ++row;
    }
}

void WtCalcsFrmA::Fill_Size_Lists(std::string_view typeCode) {
    FillSizeLists(ShapeSizeUS, ShapeSizeSI, typeCode, desk_.Host.Places.Program);
}

double WtCalcsFrmA::Find_Weight_US(std::string_view label) const {
    return Find_Weight(desk_.Host.Places.Program, Query_By_US_Label(label), "W");
}

double WtCalcsFrmA::Find_Weight_SI(std::string_view label) const {
    return Find_Weight(desk_.Host.Places.Program, Query_By_SI_Label(label), "xW");
}

bool WtCalcsFrmA::Can_Compute(FlexGrid& grid, bool useCombo) {
    const int row = grid.Row();
    const bool sized = useCombo || !Trim(grid.Text(row, sizeCol)).empty();
    if (sized && !Trim(grid.Text(row, lengthCol)).empty())
        return true;
    grid.Set_Text(row, weightCol, {});
    return false;
}

void WtCalcsFrmA::Remark_Weight(FlexGrid& grid, double weightPerLength, const std::string& label) {
    if (label.empty())
        grid.Set_Remark(grid.Row(), weightCol, std::string{noSizeRemark});
    else if (weightPerLength == 0)
        Mark_Stale(grid, grid.Row());
}

// The leading number of the length's text is charged: its whole feet, and the inches of a length
// without feet as if they were feet. Intended; the remark tells so.
void WtCalcsFrmA::Compute_Row_Imperial(FlexGrid& grid, bool useCombo) {
    if (Can_Compute(grid, useCombo)) {
        const int row = grid.Row();
        const std::string label = Trim(useCombo ? ShapeSizeUS.Text() : grid.Text(row, sizeCol));
        const std::string& length = grid.Text(row, lengthCol);
        WeightPerFoot = Find_Weight_US(label);
        Attempt([&] { Write_Weight(grid, row, Leading_Value(length), WeightPerFoot); });
        if (const std::string remark = Charged_Remark(length); !remark.empty())
            grid.Set_Remark(row, weightCol, remark);
        Remark_Weight(grid, WeightPerFoot, label);
    }
    Show_Total();
}

void WtCalcsFrmA::Compute_Row_Metric(FlexGrid& grid, bool useCombo) {
    if (Can_Compute(grid, useCombo)) {
        const int row = grid.Row();
        const std::string label = Trim(useCombo ? ShapeSizeSI.Text() : grid.Text(row, sizeCol));
        WeightPerMeter = Find_Weight_SI(label);
        Attempt([&] {
            Write_Weight(grid, row, Leading_Value(grid.Text(row, lengthCol)), WeightPerMeter);
        });
        Remark_Weight(grid, WeightPerMeter, label);
    }
    Show_Total();
}

// A row whose list goes without a commit is computed as its cells stand: what was picked is not
// in them, and no weight may stand for it.
void WtCalcsFrmA::Hide_Lists() {
    const bool us = ShapeSizeUS.Visible(), si = ShapeSizeSI.Visible();
    ShapeSizeUS.Show(false);
    ShapeSizeSI.Show(false);
    if (us)
        Compute_Row_Imperial(ImperialFlex, false);
    if (si)
        Compute_Row_Metric(MetricFlex, false);
}

// The rows stay: a sheet may hold sizes of several families.
void WtCalcsFrmA::ShapeType_Change() {
    Attempt([&] { Fill_Size_Lists(Family_At(ShapeType.ListIndex()).Type); });
    Hide_Lists();
}

// What was being typed on the tab that was left stays out of its cell.
void WtCalcsFrmA::SSTab1_Change() {
    Hide_Lists();
    (Shows_Imperial() ? EdiTxtA : EdiTxt).Show(false);
    Show_Total();
}

void WtCalcsFrmA::ClearButton_Click() {
    Shown_Editing().Hide();
    Clear_Entries(Shown_Grid());
    Show_Total();
}

} // namespace Tensarix
