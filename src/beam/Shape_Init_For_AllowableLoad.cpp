#include "beam/Shape_Init_For_AllowableLoad.h"

#include "common/Failure.h"
#include "common/NumberText.h"

namespace Tensarix {

namespace {

// The rows are those of Browse, in US units and without feet and inches; k is the design value, as
// in the tables of View All.
Property Row_Of(const LayoutEntry& entry, bool rxInSI) {
    Property row = entry.Browse->Symbol == "k" ? *entry.ViewAll : *entry.Browse;
    if (row.Kind == PropertyKind::Length)
        row.USUnit = "in";
    if (rxInSI && row.Symbol == "rx")
        row.USColumn = row.SIColumn;
    return row;
}

enum Column { symbolColumn, valueColumn, unitColumn, columnCount };

struct ColumnLook {
    std::string_view Head;
    double Width; // twips
    CellStyle Style;
};
constexpr ColumnLook columns[columnCount] = {
    {"Property", 1100, {.Align = Alignment::Centre, .Tahoma = true, .Fore = Colours::SymbolText}},
    {"Value", 1500, {.Align = Alignment::Right, .Tahoma = true}},
    {"Unit", 1000, {.Align = Alignment::Centre, .Tahoma = true}},
};
constexpr double headHeight = 460;
constexpr double rowHeight = 345;

void Lay_Out(FlexGrid& grid, int rows) {
    grid.Clear();
    grid.Set_Rows(rows + 1);
    grid.Set_Cols(columnCount);
    grid.Set_Fixed(1, 1);
    for (int row = 0; row <= rows; ++row)
        grid.Set_Row_Height(row, row == 0 ? headHeight : rowHeight);
    for (int col = 0; col < columnCount; ++col) {
        grid.Set_Col_Width(col, columns[col].Width);
        grid.Set_Style(0, col, headStyle);
        grid.Set_Text(0, col, std::string{columns[col].Head});
        for (int row = 1; row <= rows; ++row)
            grid.Set_Style(row, col, columns[col].Style);
    }
}

// The SI columns of the store are called like the US ones, behind an x.
std::string Millimetre_Remark(const SectionRecordset& record, const Property& property) {
    std::string remark{siColumnRemark};
    Attempt([&] {
        const double figure = record.Number(property.SIColumn.substr(1));
        remark.append(": use ").append(Format_Number(figure, "0.00##"));
        remark.append(" ").append(property.USUnit);
    });
    return remark;
}

void Write_Row(FlexGrid& grid, int row, const SectionRecordset& record, const Property& property) {
    grid.Set_Text(row, symbolColumn, std::string{property.Symbol});
    Attempt([&] {
        grid.Set_Text(row, valueColumn,
                      Value_Text(record, property, Profile::US, DimensionStyle::Decimal));
        if (property.USColumn == property.SIColumn && property.Kind == PropertyKind::Length)
            grid.Set_Remark(row, valueColumn, Millimetre_Remark(record, property),
                            RemarkWeight::Caution);
    });
    grid.Set_Text(row, unitColumn, std::string{property.USUnit});
}

} // namespace

const BeamRows WShape_For_AllowableLoad{Layouts::W};
const BeamRows SShape_For_AllowableLoad{Layouts::S};
const BeamRows CShape_For_AllowableLoad{Layouts::C, true};

void BeamRows::operator()(FlexGrid& grid, std::string_view size,
                          const std::filesystem::path& programFolder) const {
    SectionRecordset record;
    Attempt([&] {
        record = SectionRead(programFolder, Query_By_US_Label(size)).Records;
        record.MoveFirst();
    });
    Lay_Out(grid, static_cast<int>(Rows.Entries.size()));
    int row = 0;
    for (const LayoutEntry& entry : Rows.Entries)
        Write_Row(grid, ++row, record, Row_Of(entry, RxInSI));
}

} // namespace Tensarix
