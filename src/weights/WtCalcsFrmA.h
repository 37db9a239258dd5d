// Weight calculator, type 2: a bill of material, in which each row names its own section and
// length. The weights per length are tabulated (AISC Steel Construction Manual, 13th Edition) and
// read anew for each computation of a row.
#pragma once

#include "weights/WtCalcsSheets.h"

#include <array>
#include <optional>
#include <string>

namespace Tensarix {

// The rows as they stood when the form was closed; kept by whoever opens it, while the program
// runs.
struct SavedRow {
    std::string ImperialSize, MetricSize, ImperialLength, MetricLength, ImperialWeight,
        MetricWeight;
    Advice ImperialRemark, MetricRemark;
    std::optional<double> ExactPounds;
};
using SavedRows = std::array<SavedRow, entryRows>;

class WtCalcsFrmA final : public WtCalcsSheets {
  public:
    static constexpr std::string_view imperialCaption = "  Standard U.S. Profile  ";
    static constexpr std::string_view metricCaption = "  SI Equivalent Profile  ";

    WtCalcsFrmA(Desk& desk, SavedRows& saved);

    // The form opens and closes. Before it closes, what is being edited is committed.
    void Load();
    void Unload();

    void Init_Head_Imperial() { Init_Head(ImperialFlex, true); }
    void Init_Head_Metric() { Init_Head(MetricFlex, false); }
    // Fills both size lists and selects nothing. Fails if the store can't be opened.
    void Fill_Size_Lists(std::string_view typeCode);
    // The current row. useCombo: its size has just been picked and is that of the list.
    void Compute_Row_Imperial(FlexGrid& grid, bool useCombo);
    void Compute_Row_Metric(FlexGrid& grid, bool useCombo);
    // lb/ft by the US designation, kg/m by the SI one; 0 where there is no such section.
    double Find_Weight_US(std::string_view label) const;
    double Find_Weight_SI(std::string_view label) const;

  private:
    static void Init_Head(FlexGrid& grid, bool imperial);
    // False: the row has no weight, and the cell is empty now.
    static bool Can_Compute(FlexGrid& grid, bool useCombo);
    static void Remark_Weight(FlexGrid& grid, double weightPerLength, const std::string& label);
    void Add_Sizes(CellEditing& editing, FlexGrid& grid, ComboBox& sizes, bool imperial);
    void Hide_Lists();
    void ShapeType_Change();
    void SSTab1_Change();
    void ClearButton_Click();

    SavedRows& Saved_Rows;
};

} // namespace Tensarix
