#include "weights/WtCalcsSheets.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/FamilyTable.h"

namespace Tensarix {

namespace {

constexpr double rowHeightMin = 350; // twips
constexpr std::string_view weightPattern = "##,##0.00     ";

constexpr CellStyle headStyle{.Align = Alignment::Centre,
                              .Tahoma = true,
                              .Bold = true,
                              .Fore = Colours::HeadText,
                              .Back = Colours::HeadBack};
constexpr CellStyle numberStyle{.Align = Alignment::Centre, .Fore = Colours::SymbolText};

int Weight_Col(const FlexGrid& grid) {
    return grid.Cols() - 1;
}

} // namespace

WtCalcsSheets::WtCalcsSheets(Desk& desk, int lengthCol, Handler computeImperial,
                             Handler computeMetric)
    : desk_(desk), imperialEditing_(ImperialFlex, [&desk] { desk.Host.Events.Turn(); }),
      metricEditing_(MetricFlex, [&desk] { desk.Host.Events.Turn(); }),
      imperialLengths_({ImperialFlex, lengthCol, EdiTxt, LengthUnit::FeetInches, LastLength,
                        desk.Host, std::move(computeImperial)}),
      metricLengths_({MetricFlex, lengthCol, EdiTxtA, LengthUnit::Metres, LastLength, desk.Host,
                      std::move(computeMetric)}) {
    imperialEditing_.Add(imperialLengths_.Cells());
    metricEditing_.Add(metricLengths_.Cells());
    Wire_Grid(ImperialFlex, imperialLengths_);
    Wire_Grid(MetricFlex, metricLengths_);
    ClearButton.Set_Caption("Clear Entries");
    ExitButton.Set_Caption("Exit");
    ExitButton.OnClick = [this] { Run(Close); };
}

void WtCalcsSheets::Wire_Grid(FlexGrid& grid, LengthColumn& lengths) {
    grid.OnSelChange = [this] { Show_Remark(); };
    grid.OnPaste = [&lengths] { lengths.Paste(); };
    grid.OnCopy = [this, &grid] {
        desk_.Host.Clip.Clear();
        desk_.Host.Clip.Set_Text(grid.Clip());
    };
}

void WtCalcsSheets::Init_Sheet(FlexGrid& grid, std::span<const SheetColumn> columns) {
    grid.Clear();
    grid.Set_Rows(EntryRows + 1);
    grid.Set_Cols(static_cast<int>(columns.size()));
    grid.Set_Fixed(1, 1);
    grid.Set_Row_Height_Min(rowHeightMin);
    int col = 0;
    for (const SheetColumn& column : columns) {
        grid.Set_Col_Width(col, column.Width);
        grid.Set_Style(0, col, headStyle);
        grid.Set_Text(0, col, std::string{column.Head});
        for (int row = 1; row <= EntryRows; ++row)
            grid.Set_Style(row, col, col == 0 ? numberStyle : CellStyle{.Align = column.Align});
        ++col;
    }
    for (int row = 1; row <= EntryRows; ++row)
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
        grid.Set_Remark(row, Weight_Col(grid), std::string{StaleWeightRemark});
}

void WtCalcsSheets::Clear_Entries(FlexGrid& grid) {
    for (int row = 1; row <= EntryRows; ++row)
        for (int col = 1; col < grid.Cols(); ++col)
            grid.Set_Text(row, col, {});
}

void WtCalcsSheets::Commit_Open_Editors() {
    imperialEditing_.Leave();
    metricEditing_.Leave();
}

void WtCalcsSheets::Show_Total() {
    const FlexGrid& grid = Shown_Grid();
    int count = 0;
    double sum = 0;
    for (int row = 1; row <= EntryRows; ++row) {
        const std::string text = Replace_All(Trim(grid.Text(row, Weight_Col(grid))), ",", "");
        count += text.empty() ? 0 : 1;
        Attempt([&] { sum += Leading_Value(text); });
    }
    Attempt([&] {
        TotalLabel.Set_Caption("Rows: " + std::to_string(count) +
                               "     Total weight: " + Trim(Format_Number(sum, weightPattern)) +
                               (Shows_Imperial() ? " lb" : " kg"));
    });
    Show_Remark();
}

void WtCalcsSheets::Show_Remark() {
    const FlexGrid& grid = Shown_Grid();
    RemarkLabel.Set_Caption(grid.Remark(grid.Row(), Weight_Col(grid)));
}

void WtCalcsSheets::Start_Family_List() {
    FillFamilyList(ShapeType);
    Attempt([&] { ShapeType.Select(desk_.Saved.Position(Setting::CalcWtShapeType)); });
}

// With no size chosen the position -1 is saved, and so none is chosen at the next opening;
// intended.
void WtCalcsSheets::Save_Choice() const {
    desk_.Saved.Save(Setting::CalcWtShapeType, std::to_string(ShapeType.ListIndex()));
    if (ShapeType.ListIndex() >= 0)
        desk_.Saved.Save(Setting::CalcWtShapeSize, std::to_string(ShapeType.ListIndex()),
                         std::to_string(ShapeSizeUS.ListIndex()));
}

} // namespace Tensarix
