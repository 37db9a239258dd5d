#include "sections/SectionGrids.h"

#include "common/Extremes.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/FindSearch.h"

#include <limits>

namespace Tensarix {

namespace {

enum BrowseColumn { symbolColumn, valueColumn, unitColumn, meaningColumn };

constexpr double browseRowHeight = 345;
constexpr double twoLineRowHeight = 690;
constexpr std::string_view meaningIndent = "    ";

constexpr double tableRowHeightMin = 350;
constexpr double tableHeadHeight = 600;
constexpr double nameWidth = 1500;
constexpr double valueWidth = 1268;
constexpr int nameColumns = 2;

constexpr CellStyle symbolStyle{.Align = Alignment::Centre, .Fore = Colours::SymbolText};
constexpr CellStyle rightStyle{.Align = Alignment::Right};
constexpr CellStyle centreStyle{.Align = Alignment::Centre};
constexpr CellStyle nameStyle{.Align = Alignment::Centre, .Fore = Colours::NameText};

// A text that was not written now tells something of another section.
void Mark_Left(FlexGrid& grid, int row, int col, std::string_view remark) {
    if (!Trim(grid.Text(row, col)).empty())
        grid.Set_Remark(row, col, std::string{remark});
}

void Lay_Out_Rows(FlexGrid& grid, const Layout& layout) {
    if (layout.SpareRowsFrom > 0)
        grid.Set_Rows(layout.SpareRowsFrom);
    grid.Set_Rows(layout.BrowseRows);
    for (int row = 1; row < grid.Rows(); ++row) {
        grid.Set_Row_Height(row, browseRowHeight);
        grid.Set_Style(row, symbolColumn, symbolStyle);
        grid.Set_Style(row, valueColumn, rightStyle);
        grid.Set_Style(row, unitColumn, centreStyle);
        grid.Set_Style(row, meaningColumn, {});
        // What stands here is of the family shown before, until it is written.
        Mark_Left(grid, row, valueColumn, StaleValueRemark);
        Mark_Left(grid, row, unitColumn, StaleValueRemark);
    }
}

void Write_Labels(FlexGrid& grid, const Layout& layout) {
    int row = 0;
    for (const LayoutEntry& entry : layout.Entries) {
        if (!entry.Browse)
            continue;
        const Property& property = *entry.Browse;
        grid.Set_Text(++row, symbolColumn, std::string{property.Symbol});
        grid.Set_Text(row, meaningColumn, std::string{meaningIndent}.append(property.Meaning));
        if (property.Meaning.find('\n') != std::string_view::npos)
            grid.Set_Row_Height(row, twoLineRowHeight);
    }
}

void Write_Value(FlexGrid& grid, int row, int col, const SectionRecordset& record,
                 const Property& property, const SectionView& view) {
    const std::string text = Value_Text(record, property, view.Units, view.Style);
    grid.Set_Text(row, col, text);
    grid.Set_Remark(row, col, Lost_Digits_Remark(record, property, view.Units, text));
}

bool Is_Detailing_K(const Property& property, Profile profile) {
    return property.Symbol == "k" &&
           (profile == Profile::US ? property.USColumn : property.SIColumn).ends_with("KDET");
}

void Write_Values(FlexGrid& grid, const Layout& layout, const SectionRecordset& record,
                  const SectionView& view) {
    int row = 0;
    for (const LayoutEntry& entry : layout.Entries) {
        if (!entry.Browse)
            continue;
        const Property& property = *entry.Browse;
        ++row;
        if (!Attempt([&] { Write_Value(grid, row, valueColumn, record, property, view); }))
            Mark_Left(grid, row, valueColumn, StaleValueRemark);
        else if (Is_Detailing_K(property, view.Units))
            grid.Set_Remark(row, valueColumn, std::string{DetailingRemark});
        if (property.WritesUnit)
            grid.Set_Text(row, unitColumn, std::string{Unit_Text(property, view.Units)});
    }
}

const Property& Of_Variant(const LayoutEntry& entry, TableVariant variant) {
    return variant == TableVariant::ViewAll ? *entry.ViewAll : *entry.Find;
}

// The column of an entry: by the layout's own numbering, or in order behind the names.
int Column_Of(std::span<const int> numbering, std::size_t entry) {
    return numbering.empty() ? static_cast<int>(entry) + nameColumns : numbering[entry];
}

void Write_Head(FlexGrid& grid, int col, std::string text) {
    grid.Set_Style(0, col, HeadStyle);
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

void Mark_Shifted_Columns(FlexGrid& grid, const Layout& layout, TableVariant variant,
                          Profile profile) {
    if (layout.ValueColumns.empty())
        return;
    for (int col = nameColumns; col < grid.Cols(); ++col) {
        const Property* values = Last_In(layout, variant, layout.ValueColumns, col);
        if (values != Last_In(layout, variant, layout.HeadColumns, col))
            grid.Set_Remark(0, col,
                            "The values in this column are those of " +
                                Replace_All(Head_Text(*values, profile), "\n", " "));
    }
}

int Count_Of(const SectionRecordset& records) {
    int count = 0;
    Attempt([&] { count = static_cast<int>(records.RecordCount()); });
    return count;
}

SectionRecordset Family_Records(std::string_view familyCode, const SectionView& view) {
    SectionRecordset records;
    Attempt(
        [&] { records = SectionRead(view.ProgramFolder, Query_By_Family(familyCode)).Records; });
    return records;
}

// With the head row.
int Table_Rows(int sections) {
    return static_cast<int>(Largest_Of({static_cast<double>(sections) + 1, LeastTableRows}));
}

void Write_Name(FlexGrid& grid, int row, int col, const SectionRecordset& record,
                std::string_view column) {
    grid.Set_Style(row, col, nameStyle);
    Attempt([&] { grid.Set_Text(row, col, Trim(record.Text(column))); });
}

} // namespace

void PlainInitializer::operator()(FlexGrid& grid, const ComboBox& sizeList, const SectionView& view,
                                  bool labelMode) const {
    if (labelMode) {
        Lay_Out_Rows(grid, Rows);
        Write_Labels(grid, Rows);
        return;
    }
    SectionRecordset record;
    Attempt([&] {
        const std::string& text = sizeList.Text();
        SectionRead read(view.ProgramFolder,
                         BySIName ? Query_By_SI_Name(text) : Query_By_US_Label(text));
        record = std::move(read.Records);
        record.MoveFirst();
    });
    Write_Values(grid, Rows, record, view);
}

void Lay_Out_Table(FlexGrid& grid, const Layout& layout, TableVariant variant, Profile profile,
                   int rows) {
    grid.Clear();
    grid.Set_Rows(rows);
    grid.Set_Cols(layout.TableColumns);
    grid.Set_Fixed(1, nameColumns);
    grid.Set_Row_Height_Min(tableRowHeightMin);
    grid.Set_Row_Height(0, tableHeadHeight);
    for (int col = 0; col < grid.Cols(); ++col)
        grid.Set_Col_Width(col, col < nameColumns ? nameWidth : valueWidth);
    Write_Head(grid, 0, "Standard US\nProfile");
    Write_Head(grid, 1, "SI Equivalent\nProfile");
    for (std::size_t i = 0; i < layout.Entries.size(); ++i) {
        const Property& property = Of_Variant(layout.Entries[i], variant);
        const int col = Column_Of(layout.HeadColumns, i);
        Write_Head(grid, col, Head_Text(property, profile));
        if (Is_Detailing_K(property, profile))
            grid.Set_Remark(0, col, std::string{DetailingRemark});
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
            Mark_Left(grid, row, col, EarlierValueRemark);
    }
}

int TableInitializer::operator()(FlexGrid& grid, std::string_view familyCode,
                                 const SectionView& view) const {
    SectionRecordset record = Family_Records(familyCode, view);
    Lay_Out_Table(grid, Columns, TableVariant::ViewAll, view.Units, Table_Rows(Count_Of(record)));
    int row = 0;
    Attempt([&] {
        for (record.MoveFirst(); !record.At_End(); record.MoveNext())
            Write_Table_Row(grid, ++row, record, Columns, TableVariant::ViewAll, view);
    });
    grid.Set_Rows(Table_Rows(row));
    return row;
}

FindCount FindInitializer::operator()(FlexGrid& grid, std::string_view familyCode,
                                      const SectionView& view, bool searching,
                                      const FindCondition& condition) const {
    SectionRecordset record = Family_Records(familyCode, view);
    FindCount count{0, Count_Of(record)};
    Lay_Out_Table(grid, Columns, TableVariant::Find, view.Units,
                  Table_Rows(searching ? count.OfFamily : 0));
    if (!searching)
        return count;
    const std::string column = FindColumnName(condition.Property, view.Units);
    double field = 0;
    double lightest = std::numeric_limits<double>::infinity();
    Attempt([&] {
        for (record.MoveFirst(); !record.At_End(); record.MoveNext()) {
            Attempt([&] { field = Find_Field(record, Columns, column, view.Units); });
            bool matches = false;
            Attempt(
                [&] { matches = Criterion_Matches(condition.Criterion, condition.Value, field); });
            if (!matches)
                continue;
            Write_Table_Row(grid, ++count.Found, record, Columns, TableVariant::Find, view);
            Attempt([&] {
                if (const double weight = record.Number("W"); weight < lightest) {
                    count.Lightest =
                        Trim(grid.Text(count.Found, view.Units == Profile::SI ? 1 : 0));
                    lightest = weight;
                }
            });
        }
    });
    grid.Set_Rows(Table_Rows(count.Found));
    return count;
}

} // namespace Tensarix
