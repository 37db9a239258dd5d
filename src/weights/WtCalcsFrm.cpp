#include "weights/WtCalcsFrm.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchParsing.h"
#include "sections/FamilyTable.h"
#include "sections/SectionStore.h"

#include <utility>

namespace Tensarix {

namespace {

constexpr int lengthCol = 1, weightCol = 2;

// Computing all rows leaves the current cell in the last one. Who comes to the sheet then finds
// himself in the row where he was before.
void Go_Back_On_Focus(FlexGrid& grid, int& row) {
    grid.Focus.OnGotFocus = [&grid, &row, leave = grid.Focus.OnGotFocus] {
        leave();
        if (const int before = std::exchange(row, 0); before != 0)
            grid.Move_To(before, lengthCol);
    };
}

} // namespace

WtCalcsFrm::WtCalcsFrm(Desk& desk, SavedLengths& saved)
    : WtCalcsSheets(
          desk, lengthCol,
          [this] {
              Compute_Row_Imperial(ImperialFlex);
              Show_Total();
          },
          [this] {
              Compute_Row_Metric(MetricFlex);
              Show_Total();
          }),
      Saved_Lengths(saved) {
    ShapeType.OnChange = [this] { ShapeType_Change(); };
    ShapeSizeUS.OnChange = [this] { ShapeSizeUS_Change(); };
    ShapeSizeSI.OnChange = [this] { ShapeSizeSI_Change(); };
    SSTab1.OnChange = [this] { Show_Total(); };
    ClearButton.OnClick = [this] { ClearButton_Click(); };
    missing_ = [this](const FlexGrid& grid, int row) {
        const bool typed = !Trim(grid.Text(row, lengthCol)).empty();
        return typed && ShapeSizeUS.ListIndex() < 0 ? noSectionRemark : std::string_view{};
    };
    Go_Back_On_Focus(ImperialFlex, imperialRow_);
    Go_Back_On_Focus(MetricFlex, metricRow_);
}

void WtCalcsFrm::Init_Head(FlexGrid& grid, bool imperial) {
    const SheetColumn columns[] = {
        {"No.", 700, Alignment::Centre},
        {imperial ? "PROFILE LENGTH\n(Feet-Inches)" : "PROFILE LENGTH\n(Meter)", 2100,
         Alignment::Right},
        {imperial ? "PROFILE WEIGHT\n(Lbs.)" : "PROFILE WEIGHT\n(Kg)", 2500, Alignment::Right},
    };
    Init_Sheet(grid, columns);
}

void WtCalcsFrm::Load() {
    Init_Head_Imperial();
    Init_Head_Metric();
    int row = 1;
    for (const SavedLength& saved : Saved_Lengths) {
        ImperialFlex.Set_Text(row, lengthCol, Trim(saved.Imperial).append(cellPadding));
        MetricFlex.Set_Text(row, lengthCol, Trim(saved.Metric).append(cellPadding));
        ++row;
    }
    Start_Histories();
    Start_Family_List();
    Show_Total();
}

void WtCalcsFrm::Unload() {
    Commit_Open_Editors();
    Save_Choice();
    int row = 1;
    for (SavedLength& saved : Saved_Lengths) {
        saved.Imperial = Trim(ImperialFlex.Text(row, lengthCol));
        saved.Metric = Trim(MetricFlex.Text(row, lengthCol));
        ++row;
    }
}

void WtCalcsFrm::Fill_Size_Lists(std::string_view typeCode) {
    FillSizeLists(ShapeSizeUS, ShapeSizeSI, typeCode, desk_.Host.Places.Program);
}

void WtCalcsFrm::ShapeType_Change() {
    const int position = ShapeType.ListIndex();
    footIsCurrent_ = meterIsCurrent_ = false;
    Attempt([&] { Fill_Size_Lists(Family_At(position).Type); });
    Attempt([&] {
        ShapeSizeUS.Select(
            desk_.Saved.Position(Setting::CalcWtShapeSize, std::to_string(position)));
    });
    if (footIsCurrent_ && meterIsCurrent_)
        return;
    // No section was chosen: the weights still are those of the one before.
    for (int row = 1; row <= entryRows; ++row) {
        Mark_Stale(ImperialFlex, row);
        Mark_Stale(MetricFlex, row);
    }
    Show_Total();
}

void WtCalcsFrm::ShapeSizeUS_Change() {
    Attempt([&] { ShapeSizeSI.Select(ShapeSizeUS.ListIndex()); });
    if (ShapeType.ListIndex() >= 0)
        desk_.Saved.Save(Setting::CalcWtShapeSize, std::to_string(ShapeType.ListIndex()),
                         std::to_string(ShapeSizeUS.ListIndex()));
    Read_Section();
    Compute_All();
}

void WtCalcsFrm::ShapeSizeSI_Change() {
    Attempt([&] { ShapeSizeUS.Select(ShapeSizeSI.ListIndex()); });
}

// A figure that can't be read leaves the one of the section before; the rows tell so in a remark.
void WtCalcsFrm::Read_Section() {
    footIsCurrent_ = meterIsCurrent_ = false;
    Attempt([&] {
        SectionRead read(desk_.Host.Places.Program, Query_By_US_Label(Trim(ShapeSizeUS.Text())));
        read.Records.MoveFirst();
        meterIsCurrent_ = Attempt([&] { WeightPerMeter = read.Records.Number("xW"); });
        footIsCurrent_ = Attempt([&] { WeightPerFoot = read.Records.Number("W"); });
    });
}

// Both sheets, also the one that doesn't show. Computing a row makes it the current one, so the
// current cells end in the last row.
void WtCalcsFrm::Compute_All() {
    if (imperialRow_ == 0)
        imperialRow_ = ImperialFlex.Row();
    if (metricRow_ == 0)
        metricRow_ = MetricFlex.Row();
    for (int row = 1; row <= entryRows; ++row) {
        ImperialFlex.Move_To(row, lengthCol);
        Compute_Row_Imperial(ImperialFlex);
        MetricFlex.Move_To(row, lengthCol);
        Compute_Row_Metric(MetricFlex);
    }
    Show_Total();
}

void WtCalcsFrm::Compute_Row_Imperial(FlexGrid& grid) {
    const int row = grid.Row();
    const std::string text = Trim(grid.Text(row, grid.Col()));
    if (text.empty()) {
        grid.Set_Text(row, weightCol, {});
        return;
    }
    const std::optional<double> feet = Feet_Of(text); // which takes 20'-1/2" only without padding
    if (feet)
        Write_Weight(grid, row, *feet, WeightPerFoot);
    if (!feet || !footIsCurrent_)
        Mark_Stale(grid, row);
}

void WtCalcsFrm::Compute_Row_Metric(FlexGrid& grid) {
    const int row = grid.Row();
    const std::string text = grid.Text(row, grid.Col());
    if (Trim(text).empty()) {
        grid.Set_Text(row, weightCol, {});
        return;
    }
    const bool read =
        Attempt([&] { Write_Weight(grid, row, Leading_Value(text), WeightPerMeter); });
    if (!read || !meterIsCurrent_)
        Mark_Stale(grid, row);
}

void WtCalcsFrm::ClearButton_Click() {
    Clear_Entries(Shown_Grid());
    Shown_Editing().History.Note();
    Show_Total();
}

} // namespace Tensarix
