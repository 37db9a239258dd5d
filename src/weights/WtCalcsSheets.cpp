#include "weights/WtCalcsSheets.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/DesignationSearch.h"
#include "sections/FamilyTable.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr double rowHeightMin = 350; // twips
constexpr std::string_view weightPattern = "##,##0.00     ";

constexpr CellStyle Bold(CellStyle style) {
    style.Bold = true;
    return style;
}
constexpr CellStyle boldHeadStyle = Bold(headStyle);
constexpr CellStyle numberStyle{.Align = Alignment::Centre, .Fore = Colours::SymbolText};

int Weight_Col(const FlexGrid& grid) {
    return grid.Cols() - 1;
}

std::string Weight_Text(double weight) {
    return Trim(Format_Number(weight, weightPattern));
}

} // namespace

WtCalcsSheets::WtCalcsSheets(Desk& desk, int lengthCol, Handler computeImperial,
                             Handler computeMetric)
    : desk_(desk), imperialEditing_(ImperialFlex, [&desk] { desk.Host.Events.Turn(); }),
      metricEditing_(MetricFlex, [&desk] { desk.Host.Events.Turn(); }),
      imperialLengths_({lengthCol, EdiTxt, LengthUnit::FeetInches, LastLength, desk.Host,
                        std::move(computeImperial)}),
      metricLengths_({lengthCol, EdiTxtA, LengthUnit::Metres, LastLength, desk.Host,
                      std::move(computeMetric)}),
      ImperialPopup(ImperialFlex, imperialEditing_, desk.Host.Clip),
      MetricPopup(MetricFlex, metricEditing_, desk.Host.Clip) {
    imperialEditing_.Add(imperialLengths_.Cells());
    metricEditing_.Add(metricLengths_.Cells());
    Wire_Grid(ImperialFlex, imperialEditing_);
    Wire_Grid(MetricFlex, metricEditing_);
    for (ComboBox* sizes : {&ShapeSizeUS, &ShapeSizeSI})
        sizes->OnTypedInVain = [this](const std::string& typed) {
            RemarkLabel.Set_Caption(
                Other_Family_Note(typed, ShapeType.ListIndex(), desk_.Host.Places.Program));
        };
    ClearButton.Set_Caption("Clear Entries");
    ExitButton.Set_Caption("Exit");
    ExitButton.OnClick = [this] { Run(Close); };
}

void WtCalcsSheets::Wire_Grid(FlexGrid& grid, CellEditing& editing) {
    grid.OnSelChange = [this] { Show_Remark(); };
    grid.OnPaste = [this, &editing] {
        if (const std::string refusal = editing.Paste(desk_.Host.Clip.Text()); !refusal.empty())
            desk_.Host.Boxes.Show(refusal + " Nothing was pasted.", "Warning", MessageIcon::Stop);
    };
}

void WtCalcsSheets::Start_Histories() {
    imperialEditing_.History.Start();
    metricEditing_.History.Start();
}

void WtCalcsSheets::Init_Sheet(FlexGrid& grid, std::span<const SheetColumn> columns) {
    grid.Clear();
    grid.Set_Rows(entryRows + 1);
    grid.Set_Cols(static_cast<int>(columns.size()));
    grid.Set_Fixed(1, 1);
    grid.Set_Row_Height_Min(rowHeightMin);
    int col = 0;
    for (const SheetColumn& column : columns) {
        grid.Set_Col_Width(col, column.Width);
        grid.Set_Style(0, col, boldHeadStyle);
        grid.Set_Text(0, col, std::string{column.Head});
        for (int row = 1; row <= entryRows; ++row)
            grid.Set_Style(row, col, col == 0 ? numberStyle : CellStyle{.Align = column.Align});
        ++col;
    }
    for (int row = 1; row <= entryRows; ++row)
        grid.Set_Text(row, 0, std::to_string(row));
}

void WtCalcsSheets::Write_Weight(FlexGrid& grid, int row, double length, double weightPerLength) {
    const bool written = Attempt([&] {
        grid.Set_Text(row, Weight_Col(grid),
                      Format_Number(length * weightPerLength, weightPattern));
    });
    if (!written)
        Mark_Stale(grid, row);
}

void WtCalcsSheets::Mark_Stale(FlexGrid& grid, int row) {
    if (!Trim(grid.Text(row, Weight_Col(grid))).empty())
        grid.Set_Remark(row, Weight_Col(grid), std::string{staleWeightRemark},
                        RemarkWeight::Caution);
}

void WtCalcsSheets::Clear_Entries(FlexGrid& grid) {
    for (int row = 1; row <= entryRows; ++row)
        for (int col = 1; col < grid.Cols(); ++col)
            grid.Set_Text(row, col, {});
}

void WtCalcsSheets::Commit_Open_Editors() {
    imperialEditing_.Leave();
    metricEditing_.Leave();
}

// The sum of what the rows show; where lengths were charged that are not the exact ones, the sum of
// those too. In doubt if one of its rows is.
void WtCalcsSheets::Show_Total() {
    const FlexGrid& grid = Shown_Grid();
    const int col = Weight_Col(grid);
    const char* unit = Shows_Imperial() ? " lb" : " kg";
    int count = 0;
    double sum = 0, exact = 0;
    RemarkWeight weight = RemarkWeight::Note;
    for (int row = 1; row <= entryRows; ++row) {
        const std::string text = Replace_All(Trim(grid.Text(row, col)), ",", "");
        if (text.empty())
            continue;
        ++count;
        weight = std::max(weight, grid.Remark_Weight(row, col));
        Attempt([&] {
            const double shown = Leading_Value(text);
            const auto& other = exactPounds_[static_cast<std::size_t>(row)];
            sum += shown;
            exact += Shows_Imperial() ? other.value_or(shown) : shown;
        });
    }
    Attempt([&] {
        std::string total =
            "Rows: " + std::to_string(count) + "     Total weight: " + Weight_Text(sum) + unit;
        if (Weight_Text(exact) != Weight_Text(sum))
            total += " (exact lengths: " + Weight_Text(exact) + unit + ")";
        TotalLabel.Set_Caption(std::move(total), weight);
    });
    Show_Remark();
}

void WtCalcsSheets::Show_Remark() {
    const FlexGrid& grid = Shown_Grid();
    const int row = grid.Row(), col = Weight_Col(grid);
    if (const std::string& remark = grid.Remark(row, col); !remark.empty())
        RemarkLabel.Set_Caption(remark, grid.Remark_Weight(row, col));
    else
        RemarkLabel.Set_Caption(std::string{missing_(grid, row)});
}

void WtCalcsSheets::Start_Family_List() {
    FillFamilyList(ShapeType);
    Attempt([&] { ShapeType.Select(desk_.Saved.Position(Setting::CalcWtShapeType)); });
}

// With no size chosen the position -1 is saved, and so none is chosen at the next opening.
void WtCalcsSheets::Save_Choice() const {
    desk_.Saved.Save(Setting::CalcWtShapeType, std::to_string(ShapeType.ListIndex()));
    if (ShapeType.ListIndex() >= 0)
        desk_.Saved.Save(Setting::CalcWtShapeSize, std::to_string(ShapeType.ListIndex()),
                         std::to_string(ShapeSizeUS.ListIndex()));
}

} // namespace Tensarix
