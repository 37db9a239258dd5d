// The keys and the mouse of a grid: they tell the record where to go, and what to do there.
#include "controls/TypedName.h"
#include "window/FocusFrame.h"
#include "window/KeyCodes.h"
#include "window/KeysToControl.h"
#include "window/Link.h"
#include "window/grid/GridView.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int afterEditorMs = 100; // by then a move has followed on it, if one does

} // namespace

bool GridView::Go_To(int row, int col, bool extend) {
    const int first = grid_->OnTab ? grid_->FixedCols() : 0; // to fill in, a head is of no use
    row = std::clamp(row, grid_->FixedRows(), grid_->Rows() - 1);
    col = std::clamp(col, first, grid_->Cols() - 1);
    grid_->Go_To(row, col, extend);
    Reveal_Current();
    return true;
}

bool GridView::Move_Key(QKeyEvent* event) {
    const bool extend = (event->modifiers() & Qt::ShiftModifier) != 0;
    const bool far = (event->modifiers() & Qt::ControlModifier) != 0;
    const int row = extend ? grid_->Row_Sel() : grid_->Row();
    const int col = extend ? grid_->Col_Sel() : grid_->Col();
    const int last = grid_->Rows() - 1, end = grid_->Cols() - 1;
    const int page = std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1);
    switch (event->key()) {
    case Qt::Key_Up:
        return Go_To(far ? 0 : row - 1, col, extend);
    case Qt::Key_Down:
        return Go_To(far ? last : row + 1, col, extend);
    case Qt::Key_Left:
        return Go_To(row, far ? 0 : col - 1, extend);
    case Qt::Key_Right:
        return Go_To(row, far ? end : col + 1, extend);
    case Qt::Key_PageUp:
        return Go_To(row - page, col, extend);
    case Qt::Key_PageDown:
        return Go_To(row + page, col, extend);
    case Qt::Key_Home:
        return Go_To(far ? 0 : row, 0, extend);
    case Qt::Key_End:
        return Go_To(far ? last : row, end, extend);
    default:
        return false;
    }
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Run(grid_->OnCopy);
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        Run(grid_->OnPaste);
        return;
    }
    if (event->matches(QKeySequence::Undo)) {
        Run(grid_->OnUndo);
        return;
    }
    if (event->matches(QKeySequence::SelectAll)) {
        grid_->Select_All();
        return;
    }
    // The menu key comes as a context menu event; not every desktop sends one for this.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        Popup_By_Key();
        return;
    }
    if (event->key() == Qt::Key_S && grid_->OnHeadClick &&
        event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
        grid_->Press_Beside();
        grid_->OnHeadClick(grid_->Col());
        return;
    }
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
        Tab_Key(event);
        return;
    }
    if (!Move_Key(event))
        Edit_Key(event);
}

// From cell to cell while there is one to fill in; with Control out of the table at once.
void GridView::Tab_Key(QKeyEvent* event) {
    const bool back =
        event->key() == Qt::Key_Backtab || (event->modifiers() & Qt::ShiftModifier) != 0;
    if ((event->modifiers() & Qt::ControlModifier) != 0)
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): an item view's own goes from cell to cell
        QAbstractScrollArea::focusNextPrevChild(!back);
    else if (!grid_->OnTab || !grid_->OnTab(back))
        event->ignore();
}

void GridView::Edit_Key(QKeyEvent* event) {
    const bool had = hasFocus();
    const int character = Key_Character(*event);
    if (const int code = Key_Code(*event); code != 0 && grid_->OnKeyDown)
        grid_->OnKeyDown(code);
    if (character != 0 && grid_->OnKeyPress)
        grid_->OnKeyPress(character);
    else if (character > Keys::Blank && character <= '~') {
        Find_Typed(static_cast<char>(character));
        return;
    }
    if (!had || hasFocus()) {
        if (grid_->OnKeyPress)
            Answer_Refused_Key(*this, character);
        event->ignore(); // the window's own shortcuts and default buttons
        return;
    }
    // A list that the key has opened searches for what is typed, from the first character on.
    if (auto* list = qobject_cast<QComboBox*>(QApplication::focusWidget());
        list && character > Keys::Blank)
        QCoreApplication::sendEvent(list, event);
    event->accept();
}

// A name that is typed into a table that isn't edited leads to its row.
void GridView::Find_Typed(char character) {
    if (!typed_.empty() && sinceTyped_.hasExpired(QApplication::keyboardInputInterval()))
        typed_.clear();
    typed_ += character;
    sinceTyped_.start();
    if (const int row = Find_Row_By_Typing(*grid_, typed_); row >= 0)
        Go_To(row, grid_->Col(), false);
}

// What can be typed into an editable grid is no shortcut.
bool GridView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && grid_ && grid_->OnKeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (Key_Character(key) >= Keys::Blank || Key_Code(key) == Keys::Delete) {
            event->accept();
            return true;
        }
    }
    const bool done = QTableView::event(event);
    Show_Focus(*this, *event);
    return done;
}

// Who comes by the keyboard sees where he is.
void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    // After the table itself has been told. A move may follow on an editor, and tells by itself.
    untold_ = true;
    const int wait = event->reason() == Qt::OtherFocusReason ? afterEditorMs : 0;
    QTimer::singleShot(wait, this, [this] {
        if (hasFocus() && untold_)
            Tell_Current_Cell();
    });
    const bool byKey = event->reason() == Qt::TabFocusReason ||
                       event->reason() == Qt::BacktabFocusReason ||
                       event->reason() == Qt::ShortcutFocusReason;
    if (byKey && grid_ && grid_->OnKeyPress)
        Reveal_Current();
}

void GridView::mousePressEvent(QMouseEvent* event) {
    Press(*this, event);
}
void GridView::mouseMoveEvent(QMouseEvent* event) {
    Drag(event);
}
void GridView::mouseReleaseEvent(QMouseEvent* event) {
    Release(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Run(grid_->OnDblClick);
}

void GridView::Press(QTableView& pane, QMouseEvent* event) {
    const QModelIndex index = pane.indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton)
        return;
    if (!index.isValid()) {
        grid_->Press_Beside();
        return;
    }
    const int row = index.row() + grid_->FixedRows();
    if ((event->modifiers() & Qt::ShiftModifier) != 0) {
        grid_->Extend_To(row, index.column());
        Run(grid_->OnMouseDown);
    } else {
        grid_->Press(row, index.column());
    }
    link_->Flush();
}

void GridView::Drag(QMouseEvent* event) {
    Mouse_Moved(*event);
    // Also in the columns that the drag didn't begin in.
    const QModelIndex index = Index_At(mapFromGlobal(event->globalPosition().toPoint()));
    if ((event->buttons() & Qt::LeftButton) == 0 || !index.isValid())
        return;
    grid_->Extend_To(index.row() + grid_->FixedRows(), index.column());
}

void GridView::Mouse_Moved(const QMouseEvent& event) const {
    if (grid_->OnMouseMove)
        grid_->OnMouseMove(mapFromGlobal(event.globalPosition().toPoint()).x() / Twip_Scale());
}

void GridView::Release(QMouseEvent* event) {
    if (event->button() != Qt::RightButton)
        return;
    popupPoint_ = event->globalPosition().toPoint();
    Run(grid_->OnPopup ? grid_->OnPopup : grid_->OnMenu);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        Popup_By_Key();
    // The mouse opens the popup when its button comes up.
}

void GridView::Popup_By_Key() {
    popupPoint_ = mapToGlobal(Cell_Rect(grid_->Row(), grid_->Col()).center());
    Run(grid_->OnPopup ? grid_->OnPopup : grid_->OnMenu);
}

} // namespace Tensarix
