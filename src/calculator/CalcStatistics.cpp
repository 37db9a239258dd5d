#include "calculator/CalcStatistics.h"

#include "calculator/CalcClock.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcEntry.h"
#include "calculator/CalcNumbers.h"
#include "common/Failure.h"
#include "common/ReplaceFile.h"

#include <algorithm>
#include <cmath>

namespace Tensarix {

namespace {

constexpr std::int16_t emptyTag = 0, listTag = 0x200C, numberTag = 5;

struct Sums {
    double Count = 0, Sum = 0, Squares = 0;
};

// The items count with the digits of their texts.
Sums Sums_Of(const std::vector<double>& data) {
    Sums sums;
    for (const double item : data) {
        const double value = Through_Text(item);
        sums.Count += 1;
        sums.Sum += value;
        sums.Squares += value * value;
    }
    return sums;
}

// Fails where the list has no deviation.
double Deviation(const Sums& sums, double divisor) {
    if (IsZero(sums.Sum) || IsZero(divisor))
        throw Failure("no deviation");
    const double mean = sums.Sum * sums.Sum / sums.Count;
    return std::pow((sums.Squares - mean) / divisor, 0.5);
}

template <double (*result)(const Sums&)>
void Result_Key(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.Entry.ExponentText.clear();
    if (vars.Statistics.DataList.empty())
        Fail_Key(form, "Empty Data");
    else
        Show_Result(form, Finite(result(Sums_Of(vars.Statistics.DataList))));
}

double Count_Of(const Sums& sums) {
    return sums.Count;
}
double Sum_Of(const Sums& sums) {
    return sums.Sum;
}
double Mean_Of(const Sums& sums) {
    return sums.Sum / sums.Count;
}
double Sum_Squared(const Sums& sums) {
    return sums.Sum * sums.Sum;
}
double Squares_Of(const Sums& sums) {
    return sums.Squares;
}
double Population_Deviation(const Sums& sums) {
    return Deviation(sums, sums.Count);
}
double Sample_Deviation(const Sums& sums) {
    return Deviation(sums, sums.Count - 1);
}

} // namespace

Bytes Data_Image(const std::vector<double>& data) {
    ByteWriter writer;
    writer.Int16(data.empty() ? emptyTag : listTag);
    if (data.empty())
        return writer.Written();
    writer.Int16(1);
    writer.Int32(static_cast<std::int32_t>(data.size()));
    writer.Int32(0);
    for (const double item : data) {
        writer.Int16(numberTag);
        writer.Double(item);
    }
    return writer.Written();
}

std::vector<double> Data_From(const Bytes& bytes) {
    ByteReader reader(bytes);
    const std::int16_t tag = reader.Int16();
    if (tag != emptyTag && tag != listTag)
        throw Failure("no data list");
    std::vector<double> data;
    if (tag == emptyTag)
        return data;
    reader.Int16(); // dimensions
    const std::int32_t count = reader.Int32();
    reader.Int32(); // lower bound
    Attempt([&] {
        for (std::int32_t i = 0; i < count && reader.Int16() == numberTag; ++i)
            if (const double item = reader.Double(); std::isfinite(item))
                data.push_back(item);
    });
    return data;
}

void Open_Data(CalcMainFrm& form) {
    StatisticsState& statistics = form.Vars.Statistics;
    if (!form.Host.DataFolder || statistics.DataUnsaved)
        return;
    if (const auto bytes = Read_Whole_File(*form.Host.DataFolder / dataFileName))
        Attempt([&] { statistics.DataList = Data_From(*bytes); });
}

void Close_Data(CalcMainFrm& form) {
    StatisticsState& statistics = form.Vars.Statistics;
    statistics.DataUnsaved =
        !form.Host.DataFolder ||
        !Replace_File(*form.Host.DataFolder / dataFileName, Data_Image(statistics.DataList));
}

void Key_Data(CalcMainFrm& form) {
    CalcVariables& vars = form.Vars;
    vars.Statistics.DataList.push_back(Shown_Value(vars));
    form.Panel.DataTaken = true;
    Entry_To_Operand(vars);
    vars.Entry.ExponentText.clear();
}

void Key_Data_Count(CalcMainFrm& form) {
    Result_Key<Count_Of>(form);
}
void Key_Data_Sum(CalcMainFrm& form) {
    Result_Key<Sum_Of>(form);
}
void Key_Data_Mean(CalcMainFrm& form) {
    Result_Key<Mean_Of>(form);
}
void Key_Data_Sum_Squared(CalcMainFrm& form) {
    Result_Key<Sum_Squared>(form);
}
void Key_Data_Squares(CalcMainFrm& form) {
    Result_Key<Squares_Of>(form);
}
void Key_Population_Deviation(CalcMainFrm& form) {
    Result_Key<Population_Deviation>(form);
}
void Key_Sample_Deviation(CalcMainFrm& form) {
    Result_Key<Sample_Deviation>(form);
}

void key_Del(CalcMainFrm& form) {
    if (!Direct_Key_Begins(form))
        return;
    CalcDataFrm dialog(form.Vars.Statistics, form.Host.Ask);
    if (form.Host.Show_Data)
        form.Host.Show_Data(dialog);
}

// The dialog

CalcDataFrm::CalcDataFrm(StatisticsState& statistics, std::function<bool(const CalcQuestion&)> ask)
    : statistics_(statistics), ask_(std::move(ask)) {
    Fill();
}

void CalcDataFrm::Fill() {
    ItemBox.clear();
    for (std::size_t i = 0; i < statistics_.DataList.size(); ++i)
        ItemBox.push_back({Row_Name("Data-", i), "=    " + Row_Value(statistics_.DataList[i])});
    Select_All_Rows(false);
}

void CalcDataFrm::Select_All_Rows(bool selected) {
    Selected.assign(ItemBox.size(), selected);
    DeleteEnabled = selected && !ItemBox.empty();
}

void CalcDataFrm::Toggle_Row(int row, bool selected) {
    if (row < 0 || row >= static_cast<int>(Selected.size()))
        return;
    Selected[static_cast<std::size_t>(row)] = selected;
    DeleteEnabled = std::find(Selected.begin(), Selected.end(), true) != Selected.end();
}

void CalcDataFrm::AllButton() {
    Select_All_Rows(true);
}

void CalcDataFrm::ClearButton() {
    Select_All_Rows(false);
}

void CalcDataFrm::DeleteButton() {
    if (!DeleteEnabled || !ask_ ||
        !ask_({"Are you sure you want to delete Selected Data?", "Warning", false}))
        return;
    std::vector<double> kept;
    for (std::size_t i = 0; i < statistics_.DataList.size(); ++i)
        if (!Selected[i])
            kept.push_back(statistics_.DataList[i]);
    statistics_.DataList = std::move(kept);
    Fill();
}

void CalcDataFrm::ExitButton() {
    Closed = true;
}

} // namespace Tensarix
