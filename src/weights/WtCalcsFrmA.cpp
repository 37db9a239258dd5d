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
constexpr std::string_view noLengthRemark = "Type a length first";
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
    {lengthCol, &SavedRow::ImperialLength, &SavedRow::MetricLength, cellPadding},
    {weightCol, &SavedRow::ImperialWeight, &SavedRow::MetricWeight, cellPadding},
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

// The exact length, if another one is charged: the leading number of the text counts.
std::optional<double> Uncharged_Feet(const std::string& length, double charged) {
    const std::optional<double> feet = Feet_Of(Trim(length));
    return feet && std::abs(*feet - charged) > sameLength ? feet : std::nullopt;
}

Advice Weight_Remark(const FlexGrid& grid, int row) {
    return {grid.Remark(row, weightCol), grid.Remark_Weight(row, weightCol)};
}

} // namespace

WtCalcsFrmA::WtCalcsFrmA(Desk& desk, SavedRows& saved)
    : WtCalcsSheets(
          desk, lengthCol, [this] { Compute_Row_Imperial(ImperialFlex, false); },
          [this] { Compute_Row_Metric(MetricFlex, false); }),
      Saved_Rows(saved) {
    Add_Sizes(imperialEditing_, ImperialFlex, ShapeSizeUS, true);
    Add_Sizes(metricEditing_, MetricFlex, ShapeSizeSI, false);
    missing_ = [](const FlexGrid& grid, int row) -> std::string_view {
        const bool sized = !Trim(grid.Text(row, sizeCol)).empty();
        const bool typed = !Trim(grid.Text(row, lengthCol)).empty();
        if (sized == typed)
            return {};
        return typed ? noSectionRemark : noLengthRemark;
    };
    ShapeType.OnChange = [this] { ShapeType_Change(); };
    ShapeType.Focus.OnGotFocus = [this] { Hide_Lists(); };
    SSTab1.OnChange = [this] { SSTab1_Change(); };
    ClearButton.OnClick = [this] { ClearButton_Click(); };
}

void WtCalcsFrmA::Add_Sizes(CellEditing& editing, FlexGrid& grid, ComboBox& sizes, bool imperial) {
    editing.Add(CellEditing::ComboCells{
        .Editor = sizes,
        .Editable = [](int, int col) { return col == sizeCol; },
        .Compute =
            [this, &grid, imperial](bool useCombo) {
                if (imperial)
                    Compute_Row_Imperial(grid, useCombo);
                else
                    Compute_Row_Metric(grid, useCombo);
            },
        .Dropped =
            [this, &grid, &sizes] {
                if (!grid.Text(grid.Row(), weightCol).empty())
                    grid.Set_Remark(grid.Row(), weightCol,
                                    "The weight is that of " + Trim(sizes.Text()) +
                                        ", which was not taken into the row",
                                    RemarkWeight::Caution);
                Show_Total();
            },
        .Accepts = [this, imperial](const std::string& label) -> std::optional<std::string> {
            const double weight = imperial ? Find_Weight_US(label) : Find_Weight_SI(label);
            return weight != 0 ? std::optional{label} : std::nullopt;
        }});
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
        ImperialFlex.Set_Remark(row, weightCol, saved.ImperialRemark.Text,
                                saved.ImperialRemark.Weight);
        MetricFlex.Set_Remark(row, weightCol, saved.MetricRemark.Text, saved.MetricRemark.Weight);
        exactPounds_[static_cast<std::size_t>(row)] = saved.ExactPounds;
        ++row;
    }
    Start_Histories();
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
        saved.ImperialRemark = Weight_Remark(ImperialFlex, row);
        saved.MetricRemark = Weight_Remark(MetricFlex, row);
        saved.ExactPounds = exactPounds_[static_cast<std::size_t>(row)];
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
        grid.Set_Remark(grid.Row(), weightCol, std::string{noSizeRemark}, RemarkWeight::Caution);
    else if (weightPerLength == 0)
        Mark_Stale(grid, grid.Row());
}

// The leading number of the length's text is charged: its whole feet, and the inches of a length
// without feet as if they were feet. The remark and the total tell what the exact length weighs.
void WtCalcsFrmA::Compute_Row_Imperial(FlexGrid& grid, bool useCombo) {
    const int row = grid.Row();
    std::optional<double>& exact = exactPounds_[static_cast<std::size_t>(row)];
    exact.reset();
    if (Can_Compute(grid, useCombo)) {
        const std::string label = Trim(useCombo ? ShapeSizeUS.Text() : grid.Text(row, sizeCol));
        const std::string length = grid.Text(row, lengthCol);
        WeightPerFoot = Find_Weight_US(label);
        Attempt([&] {
            const double charged = Leading_Value(length);
            Write_Weight(grid, row, charged, WeightPerFoot);
            if (const std::optional<double> feet = Uncharged_Feet(length, charged)) {
                exact = *feet * WeightPerFoot;
                grid.Set_Remark(row, weightCol,
                                "Charged for " + General_Text(charged) +
                                    " ft: this calculator uses the whole feet of the length",
                                RemarkWeight::Caution);
            }
        });
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

void WtCalcsFrmA::Hide_Lists() {
    imperialEditing_.Hide_Lists();
    metricEditing_.Hide_Lists();
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
    Shown_Editing().History.Note();
    Show_Total();
}

} // namespace Tensarix
