// One-variable statistics: the data list, its file SdfInput.sdf and its dialog CalcDataFrm.
#pragma once

#include "calculator/CalcMainFrm.h"
#include "calculator/CalcMemoryFrm.h"
#include "common/Bytes.h"

#include <vector>

namespace Tensarix {

constexpr std::string_view dataFileName = "SdfInput.sdf";

// The file: one tagged value. Tag 0 for an empty list; else tag 0x200C, the dimensions (1), the
// count and the lower bound (0), then a tag 5 and the value for each item.
Bytes Data_Image(const std::vector<double>& data);

// Every item that the bytes hold, as far as they can be read; fails if they hold no list at all.
std::vector<double> Data_From(const Bytes& bytes);

// Read on opening, written on closing. A failure is ignored: the list stays as it is.
void Open_Data(CalcMainFrm& form);
void Close_Data(CalcMainFrm& form);

// The keys. Data that sum to exactly 0 have no deviation here: "*Error*" (docs/validation.md).
void Key_Data(CalcMainFrm& form);                 // "data"
void Key_Data_Count(CalcMainFrm& form);           // "dtn"
void Key_Data_Sum(CalcMainFrm& form);             // "dts"
void Key_Data_Mean(CalcMainFrm& form);            // "ave"
void Key_Data_Sum_Squared(CalcMainFrm& form);     // "sqr1"
void Key_Data_Squares(CalcMainFrm& form);         // "sqr2"
void Key_Population_Deviation(CalcMainFrm& form); // "strd0"
void Key_Sample_Deviation(CalcMainFrm& form);     // "strd1"
void key_Del(CalcMainFrm& form);

// What the dialog shows, and what its controls do. Several rows may be selected.
struct CalcDataFrm {
    CalcDataFrm(StatisticsState& statistics, std::function<bool(const CalcQuestion&)> ask);

    std::vector<CalcRow> ItemBox;
    std::vector<bool> Selected;
    bool DeleteEnabled = false;
    bool Closed = false;

    void Toggle_Row(int row, bool selected);
    void AllButton();
    void ClearButton();
    void DeleteButton();
    void ExitButton();

  private:
    void Fill();
    void Select_All_Rows(bool selected);

    StatisticsState& statistics_;
    std::function<bool(const CalcQuestion&)> ask_;
};

} // namespace Tensarix
