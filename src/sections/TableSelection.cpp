#include "sections/TableSelection.h"

#include "common/NumberText.h"
#include "sections/SectionDrawing.h"
#include "speech/SpokenSymbols.h"

namespace Tensarix {

namespace {

enum NameColumn { usNameColumn, siNameColumn };

struct Head {
    std::string Name, Unit;
};

Head Head_Of(const FlexGrid& grid, int col) {
    const std::string text = Replace_All(Replace_All(Trim(grid.Text(0, col)), "[", ""), "]", "");
    const std::size_t lineBreak = text.find('\n');
    if (lineBreak == std::string::npos)
        return {text, {}};
    return {Trim(text.substr(0, lineBreak)), Trim(text.substr(lineBreak + 1))};
}

} // namespace

std::string Table_Selection_Text(const FlexGrid& grid, int row, int col) {
    const std::string name = Trim(grid.Text(row, usNameColumn));
    if (name.empty())
        return std::string{Desk::noSelection};
    const Head head = Head_Of(grid, col);
    const std::string text = " SELECTION:   " + name + "  [" + Trim(grid.Text(row, siNameColumn)) +
                             "]    -->   " + head.Name + " = " + Trim(grid.Text(row, col));
    return head.Unit.empty() ? text : text + " " + head.Unit;
}

std::string Spoken_Table_Selection(const FlexGrid& grid, int row, int col) {
    if (Trim(grid.Text(row, usNameColumn)).empty())
        return {};
    const Head head = Head_Of(grid, col);
    const std::string value = Trim(grid.Text(row, col));
    std::string text = Speak_Symbol(head.Name) + " = " + Speak_Value(value);
    if (head.Unit.empty())
        return text;
    text += " ";
    return Is_Numeric(value) ? text + Speak_Unit(head.Unit, value) : text;
}

void Show_Table_Selection(Desk& desk, const FlexGrid& grid) {
    const int row = grid.Row(), col = grid.Col();
    const std::string text = Table_Selection_Text(grid, row, col);
    desk.StatBar.Set_Panel1(text);
    const bool selected = text != Desk::noSelection;
    const Advice own = grid.Told_Of(row, col);
    const Advice told = selected && own.Text.empty() ? grid.Told_Of(0, col) : own; // or the head's
    desk.StatBar.Set_Remark(told.Text, told.Weight);
    if (desk.ReadOut && selected)
        desk.Say(Spoken_Table_Selection(grid, row, col));
}

CurrentCell Current_Cell(const FlexGrid& grid) {
    return {grid.Row(), grid.Col()};
}

bool Follow_Current_Cell(Desk& desk, const FlexGrid& grid, const CurrentCell& before) {
    const bool moved = Current_Cell(grid) != before;
    if (moved)
        Show_Table_Selection(desk, grid);
    else
        desk.StatBar.Set_Remark({}); // of the text that stood there
    return moved;
}

void Draw_Table_Selection(DrawingBox& box, const FlexGrid& grid, int familyPosition,
                          const SectionView& view) {
    const std::string name =
        Trim(grid.Text(grid.Row(), familyPosition == pipeFamily ? siNameColumn : usNameColumn));
    Drawing drawing;
    if (grid.Row() >= grid.FixedRows() && !name.empty())
        drawing = Read_Section_Drawing(familyPosition, name, view, DrawingDetail::Small);
    if (drawing.Empty())
        drawing.Sentence = noSectionDrawn;
    box.Set_Drawing(std::move(drawing));
}

} // namespace Tensarix
