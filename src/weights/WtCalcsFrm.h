// Weight calculator, type 1: one section, and up to 50 lengths of it on each of two independent
// sheets. Pounds come from the tabulated lb/ft and kilograms from the tabulated kg/m (AISC Steel
// Construction Manual, 13th Edition); nothing is converted between the sheets.
#pragma once

#include "weights/WtCalcsSheets.h"

#include <array>

namespace Tensarix {

// The lengths as they stood when the form was closed; kept by whoever opens it, while the program
// runs.
struct SavedLength {
    std::string Imperial, Metric;
};
using SavedLengths = std::array<SavedLength, entryRows>;

class WtCalcsFrm final : public WtCalcsSheets {
  public:
    static constexpr std::string_view imperialCaption = "  Imperial Input  ";
    static constexpr std::string_view metricCaption = "  Metric Input  ";

    WtCalcsFrm(Desk& desk, SavedLengths& saved);

    // The form opens and closes. Before it closes, what is being edited is committed.
    void Load();
    void Unload();

    void Init_Head_Imperial() { Init_Head(ImperialFlex, true); }
    void Init_Head_Metric() { Init_Head(MetricFlex, false); }
    // Fills both size lists; without sections they stay empty. Fails if the store can't be opened.
    void Fill_Size_Lists(std::string_view typeCode);
    // The current row, by the text of its current cell.
    void Compute_Row_Imperial(FlexGrid& grid);
    void Compute_Row_Metric(FlexGrid& grid);

  private:
    static void Init_Head(FlexGrid& grid, bool imperial);
    void ShapeType_Change();
    void ShapeSizeUS_Change();
    void ShapeSizeSI_Change();
    void Read_Section();
    void Compute_All();
    void ClearButton_Click();

    SavedLengths& Saved_Lengths;
    int imperialRow_ = 0, metricRow_ = 0;                 // to go back to; 0: none
    bool footIsCurrent_ = false, meterIsCurrent_ = false; // read for the section that shows
};

} // namespace Tensarix
