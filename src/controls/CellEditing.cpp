#include "controls/CellEditing.h"

#include "common/NumberText.h"

namespace Tensarix {

namespace {

int Trimmed_Length(const TextBox& editor) {
    const std::string& text = editor.Text();
    return editor.Length() - static_cast<int>(text.size() - Trim(text).size());
}

// Holds a flag while it lives.
class Held {
  public:
    explicit Held(bool& flag) : flag_(flag) { flag = true; }
    ~Held() { flag_ = false; }
    Held(const Held&) = delete;

  private:
    bool& flag_;
};

} // namespace

CellEditing::CellEditing(FlexGrid& grid, Handler letEventsRun)
    : History(grid, [this](int row, int col) { return Can_Edit(row, col); }), grid_(grid),
      letEventsRun_(std::move(letEventsRun)) {
    grid_.OnKeyPress = [this](int keyAscii) { Key_Press(keyAscii); };
    grid_.OnKeyDown = [this](int keyCode) { Key_Down(keyCode); };
    grid_.OnUndo = [this] { Undo(); };
    grid_.OnDblClick = [this] { Open_With_Old_Text(); };
    grid_.OnLeaveCell = [this] { Leave(); };
    grid_.OnScroll = [this] { Scrolled(); };
    grid_.OnTab = [this](bool back) { return Walk(back); };
    grid_.Focus.OnGotFocus = [this] { Leave(); };
}

void CellEditing::Add(TextCells cells) {
    TextCells& kept = texts_.emplace_back(std::move(cells));
    TextBox& editor = kept.Editor;
    editor.Show(false);
    editor.OnChange = kept.Changed;
    editor.OnKeyPress = [this, &kept](int keyAscii) {
        Run(grid_.BringIntoView);
        return kept.Types(keyAscii);
    };
    editor.OnKeyDown = [this, &kept](int keyCode) { Text_KeyDown(kept, keyCode); };
    editor.Focus.OnGotFocus = [&editor] { editor.Set_SelStart(Trimmed_Length(editor)); };
    editor.Focus.OnLostFocus = [this, &editor] {
        if (editor.Visible())
            Leave();
    };
}

void CellEditing::Add(ComboCells cells) {
    ComboCells& kept = combos_.emplace_back(std::move(cells));
    kept.Editor.Show(false);
    kept.Editor.OnChange = [&kept] {
        if (kept.Editor.Visible() && !Trim(kept.Editor.Text()).empty())
            kept.Compute(true);
    };
    kept.Editor.OnKeyDown = [this, &kept](int keyCode) { Combo_Key(kept, keyCode); };
    grid_.OnMouseDown = [this] { Open_List(); };
}

bool CellEditing::Is_Current(const Where& editable) const {
    return editable(grid_.Row(), grid_.Col());
}

bool CellEditing::Can_Edit(int row, int col) const {
    for (const TextCells& cells : texts_)
        if (cells.Editable(row, col))
            return true;
    for (const ComboCells& cells : combos_)
        if (cells.Editable(row, col))
            return true;
    return false;
}

void CellEditing::Hide() {
    for (const TextCells& cells : texts_)
        cells.Editor.Show(false);
    Hide_Lists();
}

void CellEditing::Hide_Lists() {
    for (const ComboCells& cells : combos_) {
        if (!cells.Editor.Visible())
            continue;
        cells.Editor.Show(false);
        const std::string picked = Trim(cells.Editor.Text());
        if (!picked.empty() && picked != Trim(grid_.Text(grid_.Row(), grid_.Col())))
            Run(cells.Dropped);
    }
}

void CellEditing::Key_Press(int keyAscii) {
    if (keyAscii == Keys::Escape)
        return;
    for (const TextCells& cells : texts_)
        if (Is_Current(cells.Editable))
            if (const int kept = cells.Opens(keyAscii); kept != 0) {
                Run(grid_.BringIntoView);
                Edit_Show(grid_, cells.Editor, kept, true);
            }
    Open_List();
}

void CellEditing::Key_Down(int keyCode) {
    if (keyCode == Keys::F2)
        Open_With_Old_Text();
    else if (keyCode == Keys::Delete)
        Empty_Cells();
}

// A click opens a list at once, a text box only on the second one.
void CellEditing::Open_List() {
    for (const ComboCells& cells : combos_)
        if (Is_Current(cells.Editable)) {
            Run(grid_.BringIntoView);
            Combo_Show(grid_, cells.Editor, true);
        }
}

void CellEditing::Open_With_Old_Text() {
    for (const TextCells& cells : texts_)
        if (Is_Current(cells.Editable)) {
            Run(grid_.BringIntoView);
            Edit_Show(grid_, cells.Editor, Keys::Blank, true);
        }
    Open_List();
}

// A text box follows its cell. A list does not and closes.
void CellEditing::Scrolled() {
    for (const TextCells& cells : texts_)
        if (Is_Current(cells.Editable) && cells.Editor.Visible())
            Edit_Show(grid_, cells.Editor, Keys::Blank, false);
    for (const ComboCells& cells : combos_)
        if (cells.Editor.Visible())
            Combo_Show(grid_, cells.Editor, false);
    Hide_Lists();
}

void CellEditing::Leave() {
    if (validating_)
        return; // a message is open, and its commit goes on
    for (const TextCells& cells : texts_)
        if (cells.Editor.Visible() && Is_Current(cells.Editable))
            Commit(cells);
    for (const ComboCells& cells : combos_)
        if (cells.Editor.Visible() && Is_Current(cells.Editable))
            Commit(cells);
}

void CellEditing::Validate(const TextCells& cells) {
    if (Trim(cells.Editor.Text()).empty())
        return;
    const Held open(validating_);
    Run(cells.Validate);
}

void CellEditing::Commit(const TextCells& cells) {
    Validate(cells);
    const int row = grid_.Row(), col = grid_.Col();
    const std::string before = grid_.Text(row, col);
    grid_.Set_Text(row, col, cells.Editor.Text());
    cells.Editor.Show(false);
    History.Note(); // what is computed now may take long, and other cells be edited meanwhile
    cells.Committed(before);
}

void CellEditing::Commit(const ComboCells& cells) {
    if (!Trim(cells.Editor.Text()).empty())
        grid_.Set_Text(grid_.Row(), grid_.Col(), cells.Editor.Text());
    cells.Editor.Show(false);
    History.Note();
    cells.Compute(true);
}

// Left and Right walk inside the typed text first.
void CellEditing::Text_KeyDown(TextCells& cells, int keyCode) {
    const TextBox& editor = cells.Editor;
    if ((keyCode == Keys::Left && editor.SelStart() > 0) ||
        (keyCode == Keys::Right && editor.SelStart() < editor.Length()))
        return;
    const bool tab = keyCode == Keys::Tab || keyCode == Keys::BackTab;
    if (tab || keyCode == Keys::Enter)
        Validate(cells);
    if (tab)
        Tab_Key(keyCode == Keys::BackTab);
    else
        Edit_KeyDown(grid_, cells.Editor, keyCode, letEventsRun_);
    // The move has committed by giving the focus to the grid; an editor that shows by now is
    // another edit, which goes on.
    if (!editor.Visible())
        Run(grid_.BringIntoView);
}

void CellEditing::Combo_Key(ComboCells& cells, int keyCode) {
    if (keyCode == Keys::Tab || keyCode == Keys::BackTab)
        Tab_Key(keyCode == Keys::BackTab);
    else
        Combo_KeyDown(grid_, cells.Editor, keyCode, letEventsRun_);
    if (keyCode == Keys::Escape)
        cells.Compute(false);
    if (!cells.Editor.Visible())
        Run(grid_.BringIntoView);
}

void CellEditing::Tab_Key(bool back) {
    const int row = grid_.Row(), col = grid_.Col();
    grid_.Focus.Set();
    Run(letEventsRun_);
    Leave();
    if (grid_.Row() == row && grid_.Col() == col && grid_.Focus.Has())
        Walk(back);
}

bool CellEditing::Walk(bool back) {
    const int cells = grid_.Rows() * grid_.Cols(), step = back ? -1 : 1;
    for (int at = grid_.Row() * grid_.Cols() + grid_.Col() + step; at >= 0 && at < cells;
         at += step)
        if (Can_Edit(at / grid_.Cols(), at % grid_.Cols())) {
            grid_.Move_To(at / grid_.Cols(), at % grid_.Cols());
            Run(grid_.BringIntoView);
            return true;
        }
    return false;
}

} // namespace Tensarix
