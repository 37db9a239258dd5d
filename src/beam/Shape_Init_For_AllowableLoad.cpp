#include "beam/Shape_Init_For_AllowableLoad.h"

#include "common/Failure.h"

namespace Tensarix {

namespace {

using enum PropertyKind;

constexpr Property In_US(std::string_view symbol, std::string_view column,
                         std::string_view unit = {}) {
    return {symbol, "", column, "", unit.empty() ? Ratio : Number, unit};
}

constexpr Property T{"T", "", "D", "", Length, "in", "", "KDET"};
// The channels read the SI column under a US unit. That is intended.
constexpr std::string_view siColumn = "xRX";

constexpr Property rowsW[] = {In_US("W", "W", "lb/ft"),    In_US("A", "A", "in^2"),
                              In_US("d", "D", "in"),       In_US("bf", "BF", "in"),
                              In_US("tw", "TW", "in"),     In_US("tf", "TF", "in"),
                              In_US("kdes", "KDES", "in"), In_US("kdet", "KDET", "in"),
                              In_US("k1", "K1", "in"),     T,
                              In_US("bf / 2tf", "BF_2TF"), In_US("h / tw", "H_TW"),
                              In_US("Ix", "IX", "in^4"),   In_US("Zx", "ZX", "in^3"),
                              In_US("Sx", "SX", "in^3"),   In_US("rx", "RX", "in"),
                              In_US("Iy", "IY", "in^4"),   In_US("Zy", "ZY", "in^3"),
                              In_US("Sy", "SY", "in^3"),   In_US("ry", "RY", "in"),
                              In_US("J", "J", "in^4"),     In_US("Cw", "CW", "in^6"),
                              In_US("Wno", "WNO", "in^2"), In_US("Sw", "SW", "in^4"),
                              In_US("Qf", "QF", "in^3"),   In_US("Qw", "QW", "in^3")};

constexpr Property rowsS[] = {In_US("W", "W", "lb/ft"),    In_US("A", "A", "in^2"),
                              In_US("d", "D", "in"),       In_US("bf", "BF", "in"),
                              In_US("tw", "TW", "in"),     In_US("tf", "TF", "in"),
                              In_US("k", "KDES", "in"),    T,
                              In_US("bf / 2tf", "BF_2TF"), In_US("h / tw", "H_TW"),
                              In_US("Ix", "IX", "in^4"),   In_US("Zx", "ZX", "in^3"),
                              In_US("Sx", "SX", "in^3"),   In_US("rx", "RX", "in"),
                              In_US("Iy", "IY", "in^4"),   In_US("Zy", "ZY", "in^3"),
                              In_US("Sy", "SY", "in^3"),   In_US("ry", "RY", "in"),
                              In_US("J", "J", "in^4"),     In_US("Cw", "CW", "in^6"),
                              In_US("Wno", "WNO", "in^2"), In_US("Sw", "SW", "in^4"),
                              In_US("Qf", "QF", "in^3"),   In_US("Qw", "QW", "in^3")};

constexpr Property rowsC[] = {In_US("W", "W", "lb/ft"),
                              In_US("A", "A", "in^2"),
                              In_US("d", "D", "in"),
                              In_US("bf", "BF", "in"),
                              In_US("tw", "TW", "in"),
                              In_US("tf", "TF", "in"),
                              In_US("kdes", "KDES", "in"),
                              In_US("kdet", "KDET", "in"),
                              In_US("k1", "K1", "in"),
                              T,
                              In_US("x", "X", "in"),
                              In_US("e0", "EO", "in"),
                              In_US("xp", "XP", "in"),
                              In_US("Ix", "IX", "in^4"),
                              In_US("Zx", "ZX", "in^3"),
                              In_US("Sx", "SX", "in^3"),
                              In_US("rx", siColumn, "in"),
                              In_US("Iy", "IY", "in^4"),
                              In_US("Zy", "ZY", "in^3"),
                              In_US("Sy", "SY", "in^3"),
                              In_US("ry", "RY", "in"),
                              In_US("J", "J", "in^4"),
                              In_US("Cw", "CW", "in^6"),
                              In_US("ro", "RO", "in"),
                              In_US("H", "H")};

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
        grid.Set_Style(0, col, HeadStyle);
        grid.Set_Text(0, col, std::string{columns[col].Head});
        for (int row = 1; row <= rows; ++row)
            grid.Set_Style(row, col, columns[col].Style);
    }
}

void Write_Row(FlexGrid& grid, int row, const SectionRecordset& record, const Property& property) {
    grid.Set_Text(row, symbolColumn, std::string{property.Symbol});
    Attempt([&] {
        grid.Set_Text(row, valueColumn,
                      Value_Text(record, property, Profile::US, DimensionStyle::Decimal));
        if (property.USColumn == siColumn)
            grid.Set_Remark(row, valueColumn, std::string{SIColumnRemark});
    });
    grid.Set_Text(row, unitColumn, std::string{property.USUnit});
}

} // namespace

const BeamRows WShape_For_AllowableLoad{rowsW};
const BeamRows SShape_For_AllowableLoad{rowsS};
const BeamRows CShape_For_AllowableLoad{rowsC};

void BeamRows::operator()(FlexGrid& grid, std::string_view size,
                          const std::filesystem::path& programFolder) const {
    SectionRecordset record;
    Attempt([&] {
        record = SectionRead(programFolder, Query_By_US_Label(size)).Records;
        record.MoveFirst();
    });
    Lay_Out(grid, static_cast<int>(Rows.size()));
    int row = 0;
    for (const Property& property : Rows)
        Write_Row(grid, ++row, record, property);
}

} // namespace Tensarix
