// The pattern of events by which the cells of a grid are edited, once for all editable grids. A
// page hands in which cells an editor is for, what is typed into it, and what follows a commit:
//
//   CellEditing editing{grid, [&] { desk.Host.Events.Turn(); }};
//   editing.Add(CellEditing::TextCells{...});
//
// It takes over the grid's OnKeyPress, OnKeyDown, OnDblClick, OnLeaveCell, OnScroll, OnTab and
// Focus.OnGotFocus, with a list also OnMouseDown, and all handlers of the editors. OnSelChange and
// the rest stay the page's. A printing key, F2 or a double click opens the editor, Delete empties
// the cell, leaving the editor in any way commits, Escape does not. Tab goes to the next cell that
// can be edited, row by row, and Shift+Tab to the one before.
#pragma once

#include "controls/FlexProcedures.h"

#include <functional>
#include <list>
#include <string>

namespace Tensarix {

class CellEditing {
  public:
    using Where = std::function<bool(int row, int col)>;

    struct TextCells {
        TextBox& Editor;
        Where Editable;
        KeyFilter Opens;  // of the key that opens the editor; Escape never gets here
        KeyFilter Types;  // of the keys in the editor
        Handler Changed;  // the editor's text has changed; may be empty
        Handler Validate; // brings the editor's text, which isn't blank, to its valid form
        // The current cell has taken the editor's text or was emptied; before: what stood there.
        std::function<void(const std::string& before)> Committed;
    };

    struct ComboCells {
        ComboBox& Editor;
        Where Editable;
        // The row has to be computed: with the text of the list (useCombo) or of the cell.
        std::function<void(bool useCombo)> Compute;
    };

    CellEditing(FlexGrid& grid, Handler letEventsRun);
    CellEditing(const CellEditing&) = delete;

    // The editor is hidden until it is needed.
    void Add(TextCells cells);
    void Add(ComboCells cells);

    // Commits what is being edited in the current cell, if anything is.
    void Leave();
    // Hides all editors; nothing is committed.
    void Hide();
    bool Is_Open() const;

  private:
    void Key_Press(int keyAscii);
    void Key_Down(int keyCode);
    void Open_List();
    void Scrolled();
    void Open_With_Old_Text();
    void Empty_Cell();
    void Text_KeyDown(TextCells& cells, int keyCode);
    void Combo_Key(ComboCells& cells, int keyCode);
    void Tab_Key(bool back);
    bool Walk(bool back);
    void Validate(const TextCells& cells);
    void Commit(const TextCells& cells);
    void Commit(const ComboCells& cells);
    bool Is_Current(const Where& editable) const;
    bool Can_Edit(int row, int col) const;

    FlexGrid& grid_;
    Handler letEventsRun_;
    std::list<TextCells> texts_;
    std::list<ComboCells> combos_;
    bool validating_ = false;
};

} // namespace Tensarix
