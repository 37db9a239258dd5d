// What both weight calculators have: the family list, two sheets of 50 rows (feet and pounds,
// metres and kilograms) on a tab each, their editors, and how they are laid out, copied and pasted
// into.
#pragma once

#include "controls/CellEditing.h"
#include "desk/Desk.h"
#include "weights/LengthColumn.h"
#include "weights/SheetPopup.h"

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Tensarix {

inline constexpr int entryRows = 50; // of each sheet, behind the head row
inline constexpr std::string_view weightCaption = "Weight Calculator";
inline constexpr int imperialTab = 0;
inline constexpr int metricTab = 1;

// Of a weight that stands though it could not be computed anew.
inline constexpr std::string_view staleWeightRemark =
    "Not the weight of this row: its section or its length could not be read";
// Of a row that has no weight, or none of a section.
inline constexpr std::string_view noSectionRemark = "Choose a section first";

struct SheetColumn {
    std::string_view Head;
    double Width; // twips
    Alignment Align;
};

class WtCalcsSheets {
  public:
    ComboBox ShapeType;
    ComboBox ShapeSizeUS, ShapeSizeSI;
    TabControl SSTab1;
    FlexGrid ImperialFlex, MetricFlex;
    TextBox EdiTxt, EdiTxtA;
    Button ClearButton, ExitButton;
    Label TotalLabel;  // count and sum of the rows with a weight on the tab that shows
    Label RemarkLabel; // the remark of the current row there, or why it has no weight
    Handler Close;     // the dialog's

    double WeightPerFoot = 0;  // lb/ft
    double WeightPerMeter = 0; // kg/m
    double LastLength = 0;     // feet or metres, by the editor that was used last

    WtCalcsSheets(const WtCalcsSheets&) = delete;

  protected:
    // computeImperial, computeMetric: compute the current row of the sheet.
    WtCalcsSheets(Desk& desk, int lengthCol, Handler computeImperial, Handler computeMetric);
    ~WtCalcsSheets() = default;

    static void Init_Sheet(FlexGrid& grid, std::span<const SheetColumn> columns);
    // The weight of a row, in the last column. One that can't be formed leaves the cell as it is,
    // with a remark.
    static void Write_Weight(FlexGrid& grid, int row, double length, double weightPerLength);
    static void Mark_Stale(FlexGrid& grid, int row);
    static void Clear_Entries(FlexGrid& grid);

    bool Shows_Imperial() const { return SSTab1.Tab() == imperialTab; }
    FlexGrid& Shown_Grid() { return Shows_Imperial() ? ImperialFlex : MetricFlex; }
    CellEditing& Shown_Editing() { return Shows_Imperial() ? imperialEditing_ : metricEditing_; }

    void Commit_Open_Editors();
    void Start_Histories(); // what has been loaded can't be taken back
    void Show_Total();
    void Start_Family_List();
    void Save_Choice() const;

    // lb by the exact length, where another length was charged; by row.
    std::array<std::optional<double>, entryRows + 1> exactPounds_;
    // Why a row of a sheet has no weight; empty: nothing is missing.
    std::function<std::string_view(const FlexGrid& grid, int row)> missing_;

    Desk& desk_;
    CellEditing imperialEditing_, metricEditing_;

  private:
    void Wire_Grid(FlexGrid& grid, CellEditing& editing);
    void Show_Remark();

    LengthColumn imperialLengths_, metricLengths_;

  public:
    SheetPopup ImperialPopup, MetricPopup;
};

} // namespace Tensarix
