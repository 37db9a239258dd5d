#include "sections/TableGrid.h"

#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/BrowseGrid.h"

#include <optional>

namespace Tensarix {

namespace {

constexpr double rowHeightMin = 350;
constexpr double headHeight = 600;
constexpr double nameWidth = 1500;
constexpr double valueWidth = 1268;
constexpr int nameColumns = 2;
constexpr double leastRows = 15; // with the head row

constexpr CellStyle rightStyle{.Align = Alignment::Right};
constexpr CellStyle nameStyle{.Align = Alignment::Centre, .Fore = Colours::NameText};

const Property& Of_Variant(const LayoutEntry& entry, TableVariant variant) {
    return variant == TableVariant::ViewAll ? *entry.ViewAll : *entry.Find;
}

// The column of an entry: by the layout's own numbering, or in order behind the names.
int Column_Of(std::span<const int> numbering, std::size_t entry) {
    return numbering.empty() ? static_cast<int>(entry) + nameColumns : numbering[entry];
}

void Write_Head(FlexGrid& grid, int col, std::string text) {
    grid.Set_Style(0, col, headStyle);
    grid.Set_Text(0, col, std::move(text));
}

std::string Head_Text(const Property& property, Profile profile) {
    std::string text{property.Symbol};
    const std::string_view unit = Unit_Text(property, profile);
    if (!unit.empty())
        text.append("\n[").append(unit).append("]");
    return text;
}

// The property that stands in a column in the end: the last one written there.
const Property* Last_In(const Layout& layout, TableVariant variant, std::span<const int> numbering,
                        int col) {
    const Property* last = nullptr;
    for (std::size_t i = 0; i < layout.Entries.size(); ++i)
        if (Column_Of(numbering, i) == col)
            last = &Of_Variant(layout.Entries[i], variant);
    return last;
}

// The column of a property; -1 where another one is written over it, or there is none.
int Column_Left_To(const Layout& layout, TableVariant variant, std::span<const int> numbering,
                   std::string_view symbol) {
    for (std::size_t i = 0; i < layout.Entries.size(); ++i)
        if (const Property& property = Of_Variant(layout.Entries[i], variant);
            property.Symbol == symbol) {
            const int col = Column_Of(numbering, i);
            return Last_In(layout, variant, numbering, col) == &property ? col : -1;
        }
    return -1;
}

void Mark_Shifted_Columns(FlexGrid& grid, const Layout& layout, TableVariant variant,
                          Profile profile) {
    if (layout.ValueColumns.empty())
        return;
    for (int col = nameColumns; col < grid.Cols(); ++col) {
        const Property* values = Last_In(layout, variant, layout.ValueColumns, col);
        const Property* named = Last_In(layout, variant, layout.HeadColumns, col);
        if (values != named)
            grid.Set_Remark(0, col,
                            "Column " + std::string{Trim(named->Symbol)} + " holds " +
                                Replace_All(Head_Text(*values, profile), "\n", " ") + "; for " +
                                std::string{Trim(named->Symbol)} + " see Browse Sections",
                            RemarkWeight::Caution);
    }
}

void Write_Name(FlexGrid& grid, int row, int col, const SectionRecordset& record,
                std::string_view column) {
    grid.Set_Style(row, col, nameStyle);
    Attempt([&] { grid.Set_Text(row, col, Trim(record.Text(column))); });
}

} // namespace

int Count_Of(const SectionRecordset& records) {
    int count = 0;
    Attempt([&] { count = static_cast<int>(records.RecordCount()); });
    return count;
}

int Value_Column(const Layout& layout, TableVariant variant, std::string_view symbol) {
    return Column_Left_To(layout, variant, layout.ValueColumns, symbol);
}

int Head_Column(const Layout& layout, TableVariant variant, std::string_view symbol) {
    return Column_Left_To(layout, variant, layout.HeadColumns, symbol);
}

const Property* Head_Over(const Layout& layout, TableVariant variant, int col) {
    return Last_In(layout, variant, layout.HeadColumns, col);
}

const Property* Values_In(const Layout& layout, TableVariant variant, int col) {
    return Last_In(layout, variant, layout.ValueColumns, col);
}

SectionRecordset Family_Records(std::string_view familyCode, const SectionView& view) {
    SectionRecordset records;
    Attempt(
        [&] { records = SectionRead(view.ProgramFolder, Query_By_Family(familyCode)).Records; });
    return records;
}

int Table_Rows(int sections) {
    return static_cast<int>(Largest_Of({static_cast<double>(sections) + 1, leastRows}));
}

void Lay_Out_Table(FlexGrid& grid, const Layout& layout, TableVariant variant, Profile profile,
                   int sections) {
    grid.Clear();
    grid.Set_Rows(Table_Rows(sections));
    grid.Set_Cols(layout.TableColumns);
    grid.Set_Fixed(1, nameColumns);
    grid.Set_Row_Height_Min(rowHeightMin);
    grid.Set_Row_Height(0, headHeight);
    for (int col = 0; col < grid.Cols(); ++col)
        grid.Set_Col_Width(col, col < nameColumns ? nameWidth : valueWidth);
    Write_Head(grid, 0, "Standard US\nProfile");
    Write_Head(grid, 1, "SI Equivalent\nProfile");
    for (std::size_t i = 0; i < layout.Entries.size(); ++i) {
        const Property& property = Of_Variant(layout.Entries[i], variant);
        const int col = Column_Of(layout.HeadColumns, i);
        Write_Head(grid, col, Head_Text(property, profile));
        if (Is_Detailing_K(property, profile))
            grid.Set_Remark(0, col, std::string{detailingRemark});
    }
    Mark_Shifted_Columns(grid, layout, variant, profile);
}

void Write_Table_Row(FlexGrid& grid, int row, const SectionRecordset& record, const Layout& layout,
                     TableVariant variant, const SectionView& view) {
    Write_Name(grid, row, 0, record, "IDE_STD_Nomenclature");
    Write_Name(grid, row, 1, record, "xIDE_STD_Nomenclature");
    for (std::size_t i = 0; i < layout.Entries.size(); ++i) {
        const Property& property = Of_Variant(layout.Entries[i], variant);
        const int col = Column_Of(layout.ValueColumns, i);
        grid.Set_Style(row, col, rightStyle);
        if (!Attempt([&] { Write_Value(grid, row, col, record, property, view); }))
            Mark_Left(grid, row, col, earlierValueRemark);
    }
}

double Table_Number(const SectionRecordset& record, const Layout& layout, TableVariant variant,
                    int col, Profile profile) {
    std::optional<double> number;
    for (std::size_t i = 0; i < layout.Entries.size(); ++i)
        if (Column_Of(layout.ValueColumns, i) == col)
            Attempt([&] {
                number = Value_Number(record, Of_Variant(layout.Entries[i], variant), profile);
            });
    if (!number)
        throw Failure("no number in this column");
    return *number;
}

int TableInitializer::operator()(FlexGrid& grid, std::string_view familyCode,
                                 const SectionView& view) const {
    SectionRecordset record = Family_Records(familyCode, view);
    Lay_Out_Table(grid, Columns, TableVariant::ViewAll, view.Units, Count_Of(record));
    int row = 0;
    Attempt([&] {
        for (record.MoveFirst(); !record.At_End(); record.MoveNext())
            Write_Table_Row(grid, ++row, record, Columns, TableVariant::ViewAll, view);
    });
    grid.Set_Rows(Table_Rows(row));
    return row;
}

} // namespace Tensarix
