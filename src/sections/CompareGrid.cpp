#include "sections/CompareGrid.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "controls/DrawingLayout.h"
#include "sections/FamilyTable.h"
#include "sections/SectionDrawing.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace Tensarix {

namespace {

enum BrowseColumn { symbolColumn, valueColumn, unitColumn, browseColumns = 4 };

// What is alike in different families stands together.
constexpr std::string_view rowOrder[] = {
    "W",     "A",     "d",     "Ht",   "OD",   "ID",   "bf",       "b",         "t",
    "tw",    "tf",    "tnom",  "tdes", "kdes", "kdet", "k",        "k1",        "T",
    "x",     "y",     "e0",    "eo",   "xp",   "yp",   "bf / 2tf", "h / tw",    "d / tw",
    "b / t", "h / t", "D / t", "Ix",   "I",    "Zx",   "Z",        "Sx",        "S",
    "rx",    "r",     "Iy",    "Zy",   "Sy",   "ry",   "rz",       "J",         "C",
    "Cw",    "Wno",   "Sw",    "Qf",   "Qw",   "ro",   "H",        "Tan Alpha", "Qs"};

constexpr double none = std::numeric_limits<double>::max();

std::ptrdiff_t Place_In_Order(const std::string& symbol) {
    return std::find(std::begin(rowOrder), std::end(rowOrder), symbol) - std::begin(rowOrder);
}

struct BrowseRow {
    std::string Symbol, Value, Unit;
    Advice Remark;
};

// The section as Browse shows it when it is the first one there.
std::vector<BrowseRow> Browse_Rows(const ComparedSection& section, const SectionView& view) {
    FlexGrid grid;
    grid.Set_Cols(browseColumns);
    ComboBox size;
    size.Set_Text(section.Name(section.Place.Family == pipeFamily ? Profile::SI : Profile::US));
    for (const bool labels : {true, false})
        Family_At(section.Place.Family).Browse(grid, size, view, labels);
    std::vector<BrowseRow> rows;
    for (int row = 1; row < grid.Rows(); ++row)
        if (const std::string& symbol = grid.Text(row, symbolColumn); !symbol.empty())
            rows.push_back({symbol,
                            grid.Text(row, valueColumn),
                            grid.Text(row, unitColumn),
                            {grid.Remark(row, valueColumn), grid.Remark_Weight(row, valueColumn)}});
    return rows;
}

template <typename Rows>
auto* Row_Of(Rows& rows, const std::string& symbol) {
    const auto at = std::find_if(rows.begin(), rows.end(),
                                 [&](const BrowseRow& row) { return row.Symbol == symbol; });
    return at == rows.end() ? nullptr : &*at; // null: it hasn't the property
}

// The rows of all sections, in their order; the unit is the one of the first that has it.
std::vector<BrowseRow> All_Rows(const std::vector<std::vector<BrowseRow>>& sections) {
    std::vector<BrowseRow> all;
    for (const std::vector<BrowseRow>& rows : sections)
        for (const BrowseRow& row : rows) {
            if (BrowseRow* known = Row_Of(all, row.Symbol); !known)
                all.push_back(row);
            else if (known->Unit.empty())
                known->Unit = row.Unit;
        }
    std::stable_sort(all.begin(), all.end(), [](const BrowseRow& a, const BrowseRow& b) {
        return Place_In_Order(a.Symbol) < Place_In_Order(b.Symbol);
    });
    return all;
}

void Write_Heads(FlexGrid& grid, const std::vector<ComparedSection>& sections, Profile units) {
    const auto head = [&grid](int col, std::string text) {
        grid.Set_Style(0, col, headStyle);
        grid.Set_Text(0, col, std::move(text));
    };
    head(comparedSymbolCol, "Property");
    head(comparedUnitCol, "Unit");
    for (int col = firstComparedCol; col < grid.Cols(); ++col) {
        const auto at = static_cast<std::size_t>(col - firstComparedCol);
        head(col, at < sections.size() ? sections[at].Name(units) : std::string{});
    }
}

void Write_Cell(FlexGrid& grid, int row, int col, const BrowseRow* from) {
    grid.Set_Style(row, col, {.Align = Alignment::Right});
    if (!from)
        return;
    grid.Set_Text(row, col, from->Value);
    if (Trim(from->Value).empty())
        grid.Set_Remark(row, col, std::string{untabulatedRemark});
    else
        grid.Set_Remark(row, col, from->Remark.Text, from->Remark.Weight);
}

// The outlines alone, standing on the zero and centred above it.
Drawing Outlines_Of(const Drawing& drawing, const std::string& name, Drawn::Point& half) {
    Drawn::Box box{none, none, -none, -none};
    Drawing outlines{drawing.Sentence};
    for (const Drawn::Part& part : drawing.Parts)
        if (const auto* outline = std::get_if<Drawn::Outline>(&part.What)) {
            outlines.Add(*outline, Drawn::Ink::Body, name);
            for (const Drawn::Ring& ring : outline->Rings)
                for (const Drawn::Corner& corner : ring)
                    box.Take_In({corner.At.X, corner.At.Y, corner.At.X, corner.At.Y});
        }
    for (Drawn::Part& part : outlines.Parts)
        for (Drawn::Ring& ring : std::get<Drawn::Outline>(part.What).Rings)
            for (Drawn::Corner& corner : ring)
                corner.At = {corner.At.X - (box.Left + box.Right) / 2, corner.At.Y - box.Top};
    if (!outlines.Parts.empty())
        half = {std::max(half.X, box.Width() / 2), std::max(half.Y, box.Height())};
    return outlines;
}

} // namespace

void Fill_CompareFlex(FlexGrid& grid, const std::vector<ComparedSection>& sections,
                      const SectionView& view) {
    std::vector<std::vector<BrowseRow>> columns;
    columns.reserve(sections.size());
    for (const ComparedSection& section : sections)
        columns.push_back(Browse_Rows(section, view));
    const std::vector<BrowseRow> rows = All_Rows(columns);
    grid.Clear();
    grid.Set_Rows(1 + std::max(static_cast<int>(rows.size()), 1));
    grid.Set_Cols(firstComparedCol + std::max(static_cast<int>(sections.size()), 1));
    grid.Set_Fixed(1, firstComparedCol);
    Write_Heads(grid, sections, view.Units);
    int row = 0;
    for (const BrowseRow& of : rows) {
        grid.Set_Style(++row, comparedSymbolCol,
                       {.Align = Alignment::Centre, .Fore = Colours::SymbolText});
        grid.Set_Text(row, comparedSymbolCol, of.Symbol);
        grid.Set_Style(row, comparedUnitCol, {.Align = Alignment::Centre});
        grid.Set_Text(row, comparedUnitCol, of.Unit);
        int col = firstComparedCol;
        for (const std::vector<BrowseRow>& column : columns)
            Write_Cell(grid, row, col++, Row_Of(column, of.Symbol));
    }
}

std::string Compared_Meaning(const ComparedSection& section, std::string_view symbol) {
    for (const LayoutEntry& entry : Family_At(section.Place.Family).Browse.Rows.Entries)
        if (entry.Browse && entry.Browse->Symbol == symbol)
            return Flat_Meaning(entry.Browse->Meaning);
    return {};
}

std::vector<Drawing> Draw_Compared(const std::vector<ComparedSection>& sections,
                                   const SectionView& view) {
    std::vector<Drawing> drawings;
    Drawn::Point room; // half the width, and the height
    for (const ComparedSection& section : sections) {
        const bool pipe = section.Place.Family == pipeFamily;
        const Drawing whole = Read_Section_Drawing(section.Place.Family,
                                                   section.Name(pipe ? Profile::SI : Profile::US),
                                                   view, DrawingDetail::Small);
        drawings.push_back(Outlines_Of(whole, section.Names[0], room));
    }
    for (Drawing& drawing : drawings)
        drawing.Room = {{-room.X, 0}, room};
    return drawings;
}

std::string Table_Text(const FlexGrid& grid) {
    std::string text;
    for (int row = 0; row < grid.Rows(); ++row) {
        text += row > 0 ? "\r" : "";
        for (int col = 0; col < grid.Cols(); ++col)
            text.append(col > 0 ? "\t" : "").append(Trim(grid.Text(row, col)));
    }
    return text;
}

} // namespace Tensarix
