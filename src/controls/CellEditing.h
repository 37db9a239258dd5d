// The pattern of events by which the cells of a grid are edited, once for all editable grids. A
// page hands in which cells an editor is for, what is typed into it, and what follows a commit:
//
//   CellEditing editing{grid, [&] { desk.Host.Events.Turn(); }};
//   editing.Add(CellEditing::TextCells{...});
//
// It takes over the grid's OnKeyPress, OnKeyDown, OnDblClick, OnLeaveCell, OnScroll, OnTab and
// Focus.OnGotFocus, with a list also OnMouseDown, and all handlers of the editors. OnSelChange and
// the rest stay the page's. A printing key, F2 or a double click opens the editor, Delete empties
// the marked cells, leaving a text editor in any way commits, Escape does not; a list commits when
// the keyboard or the current cell goes on in the grid. Tab goes to the next cell that can be
// edited, row by row, and Shift+Tab to the one before.
#pragma once

#include "controls/EditHistory.h"
#include "controls/FlexProcedures.h"

#include <functional>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

class CellEditing {
  public:
    using Where = std::function<bool(int row, int col)>;
    // The form in which a cell takes a pasted text, which isn't blank; none: it is not valid there.
    using Pasted = std::function<std::optional<std::string>(const std::string& text)>;

    struct TextCells {
        TextBox& Editor;
        Where Editable;
        KeyFilter Opens;  // of the key that opens the editor; Escape never gets here
        KeyFilter Types;  // of the keys in the editor
        Handler Changed;  // the editor's text has changed; may be empty
        Handler Validate; // brings the editor's text, which isn't blank, to its valid form
        // The current cell has taken the editor's text or was emptied; before: what stood there.
        std::function<void(const std::string& before)> Committed;
        Pasted Accepts = {}; // empty: any text, as it stands
    };

    struct ComboCells {
        ComboBox& Editor;
        Where Editable;
        // The row has to be computed: with the text of the list (useCombo) or of the cell.
        std::function<void(bool useCombo)> Compute;
        // The list was hidden, and what was picked in it is not in the cell; may be empty.
        Handler Dropped = {};
        Pasted Accepts = {};
    };

    EditHistory History; // of the cells that can be edited; Note it where they change otherwise

    CellEditing(FlexGrid& grid, Handler letEventsRun);
    CellEditing(const CellEditing&) = delete;

    // The editor is hidden until it is needed.
    void Add(TextCells cells);
    void Add(ComboCells cells);

    // Commits what is being edited in the current cell, if anything is.
    void Leave();
    // Hides all editors, or the lists alone; nothing is committed, nothing computed.
    void Hide();
    void Hide_Lists();

    // Writes a block of cells, a tab between cells and a line for each row, from the first marked
    // cell on, or from the first one of its row that can be edited. Of the block counts what falls
    // on cells that can be. If a text is not valid in its cell, or there are more lines than rows,
    // nothing is written. Gives the reason then, as a sentence; otherwise an empty text.
    std::string Paste(std::string_view block);

  private:
    void Key_Press(int keyAscii);
    void Key_Down(int keyCode);
    void Open_List();
    void Scrolled();
    void Open_With_Old_Text();
    void Empty_Cells();
    void Text_KeyDown(TextCells& cells, int keyCode);
    void Combo_Key(ComboCells& cells, int keyCode);
    void Tab_Key(bool back);
    bool Walk(bool back);
    void Validate(const TextCells& cells);
    void Commit(const TextCells& cells);
    void Commit(const ComboCells& cells);
    bool Is_Current(const Where& editable) const;
    bool Can_Edit(int row, int col) const;

    struct NewText {
        int Row, Col;
        std::string Text, Before = {};
    };
    void Write(const std::vector<NewText>& texts);
    void Undo();
    void Tell_All_Written(const std::vector<NewText>& texts);
    void Tell_Written(const std::string& before);
    std::optional<std::string> Accepted(int row, int col, const std::string& text) const;
    int First_Paste_Col(int row, int col) const;
    bool Read_Line(std::vector<NewText>& texts, int row, int col, const std::string& line) const;

    FlexGrid& grid_;
    Handler letEventsRun_;
    std::list<TextCells> texts_;
    std::list<ComboCells> combos_;
    bool validating_ = false;
};

} // namespace Tensarix
