#include "sections/BrowseGrid.h"

#include "common/Failure.h"
#include "common/NumberText.h"

namespace Tensarix {

namespace {

enum BrowseColumn { symbolColumn, valueColumn, unitColumn, meaningColumn };

constexpr double rowHeight = 345;
constexpr double twoLineRowHeight = 690;
constexpr std::string_view meaningIndent = "    ";

constexpr CellStyle symbolStyle{.Align = Alignment::Centre, .Fore = Colours::SymbolText};
constexpr CellStyle rightStyle{.Align = Alignment::Right};
constexpr CellStyle centreStyle{.Align = Alignment::Centre};

void Lay_Out_Rows(FlexGrid& grid, const Layout& layout) {
    if (layout.SpareRowsFrom > 0)
        grid.Set_Rows(layout.SpareRowsFrom);
    grid.Set_Rows(layout.BrowseRows);
    for (int row = 1; row < grid.Rows(); ++row) {
        grid.Set_Row_Height(row, rowHeight);
        grid.Set_Style(row, symbolColumn, symbolStyle);
        grid.Set_Style(row, valueColumn, rightStyle);
        grid.Set_Style(row, unitColumn, centreStyle);
        grid.Set_Style(row, meaningColumn, {});
        // What stands here is of the family shown before, until it is written.
        Mark_Left(grid, row, valueColumn, staleValueRemark);
        Mark_Left(grid, row, unitColumn, staleValueRemark);
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

void Write_Values(FlexGrid& grid, const Layout& layout, const SectionRecordset& record,
                  const SectionView& view) {
    int row = 0;
    for (const LayoutEntry& entry : layout.Entries) {
        if (!entry.Browse)
            continue;
        const Property& property = *entry.Browse;
        ++row;
        if (!Attempt([&] { Write_Value(grid, row, valueColumn, record, property, view); }))
            Mark_Left(grid, row, valueColumn, staleValueRemark);
        else if (Is_Detailing_K(property, view.Units))
            grid.Set_Remark(row, valueColumn, std::string{detailingRemark});
        if (property.WritesUnit)
            grid.Set_Text(row, unitColumn, std::string{Unit_Text(property, view.Units)});
    }
}

} // namespace

void Mark_Left(FlexGrid& grid, int row, int col, std::string_view remark) {
    if (!Trim(grid.Text(row, col)).empty())
        grid.Set_Remark(row, col, std::string{remark});
}

void Write_Value(FlexGrid& grid, int row, int col, const SectionRecordset& record,
                 const Property& property, const SectionView& view) {
    const std::string text = Value_Text(record, property, view.Units, view.Style);
    grid.Set_Text(row, col, text);
    Advice lost = Lost_Digits_Remark(record, property, view.Units, text);
    grid.Set_Remark(row, col, std::move(lost.Text), lost.Weight);
}

bool Is_Detailing_K(const Property& property, Profile profile) {
    return property.Symbol == "k" &&
           (profile == Profile::US ? property.USColumn : property.SIColumn).ends_with("KDET");
}

void PlainInitializer::operator()(FlexGrid& grid, const ComboBox& sizeList, const SectionView& view,
                                  bool labelMode) const {
    if (labelMode) {
        Lay_Out_Rows(grid, Rows);
        Write_Labels(grid, Rows);
        return;
    }
    const std::string& text = sizeList.Text();
    const bool found = Attempt([&] {
        SectionRead read(view.ProgramFolder,
                         BySIName ? Query_By_SI_Name(text) : Query_By_US_Label(text));
        read.Records.MoveFirst();
        Write_Values(grid, Rows, read.Records, view);
    });
    for (int row = 1; !found && row < grid.Rows(); ++row)
        Mark_Left(grid, row, valueColumn, staleValueRemark);
}

} // namespace Tensarix
