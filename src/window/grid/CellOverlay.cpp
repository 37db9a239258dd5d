#include "window/grid/CellOverlay.h"

#include "window/Bind.h"
#include "window/Link.h"
#include "window/grid/GridModel.h"
#include "window/grid/GridView.h"

#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <cmath>
#include <functional>

namespace Tensarix {

namespace {

constexpr double boxTopTwips = 55; // clear of the grid line above

// Keeps one editor where its cell is.
class CellOverlay final : public QObject {
  public:
    CellOverlay(GridView* view, const FlexGrid& grid, QWidget* editor, Link* link,
                std::function<bool()> visible)
        : QObject(editor), view_(view), grid_(grid), editor_(editor), visible_(std::move(visible)) {
        link->Also([this] { Place(); });
        view->viewport()->installEventFilter(this);
        editor->installEventFilter(this);
    }

    double TopTwips = 0;

    void Place();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    GridView* view_;
    const FlexGrid& grid_;
    QWidget* editor_;
    std::function<bool()> visible_;
};

void CellOverlay::Place() {
    if (!visible_()) {
        // The keyboard stays with the grid, whatever would come next in the order of the tabs.
        if (editor_->hasFocus())
            view_->setFocus();
        editor_->hide();
        return;
    }
    QRect cell = view_->Cell_Rect(grid_.Row(), grid_.Col());
    cell.moveTopLeft(view_->viewport()->mapFrom(view_, cell.topLeft()));
    cell.setTop(cell.top() + static_cast<int>(std::lround(TopTwips * view_->Twip_Scale())));
    if (editor_->geometry() != cell)
        editor_->setGeometry(cell);
    if (auto* box = qobject_cast<QLineEdit*>(editor_))
        box->setAlignment(Shown_Alignment(grid_.Style(grid_.Row(), grid_.Col()).Align));
    editor_->show();
}

bool CellOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == editor_) {
        if (event->type() != QEvent::Wheel)
            return false;
        QCoreApplication::sendEvent(view_->viewport(), event); // scrolls the grid
        return true;
    }
    switch (event->type()) {
    case QEvent::Paint: // whatever has moved the cell
        if (visible_())
            Place();
        return false;
    case QEvent::KeyPress: // one that the editor has left over; the grid has no use for it
        return true;
    default:
        return false;
    }
}

// Several lines that are pasted while a cell is being edited are a column for the grid: run
// together in the one cell they would read as a wrong number.
class ColumnPaste final : public QObject {
  public:
    ColumnPaste(QLineEdit* widget, const FlexGrid& grid, TextBox& editor)
        : QObject(widget), grid_(grid), editor_(editor) {
        widget->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !grid_.OnPaste ||
            !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste) ||
            !QGuiApplication::clipboard()->text().trimmed().contains(QLatin1Char('\n')))
            return false;
        editor_.OnKeyDown(Keys::Escape);
        Run(grid_.OnPaste);
        return true;
    }

  private:
    const FlexGrid& grid_;
    TextBox& editor_;
};

template <typename Widget, typename Control>
CellOverlay* Overlay(GridView* view, const FlexGrid& grid, Widget* widget, Control& control) {
    Link* link = Bind(widget, control);
    control.Focus.Take = [widget, link] {
        link->Flush(); // a hidden widget takes no focus
        widget->setFocus();
    };
    return new CellOverlay(view, grid, widget, link, [&control] { return control.Visible(); });
}

void Name(QWidget* widget, const QString& name, const QString& accessibleName) {
    widget->hide();
    widget->setObjectName(name);
    widget->setAccessibleName(accessibleName);
}

} // namespace

void Lay_Over(GridView* view, const FlexGrid& grid, TextBox& editor, const QString& name,
              const QString& accessibleName) {
    auto* widget = new QLineEdit(view->viewport());
    Name(widget, name, accessibleName);
    widget->setFrame(false);
    CellOverlay* overlay = Overlay(view, grid, widget, editor);
    new ColumnPaste(widget, grid, editor);
    overlay->TopTwips = boxTopTwips;
    overlay->Place();
}

void Lay_Over(GridView* view, const FlexGrid& grid, ComboBox& editor, const QString& name,
              const QString& accessibleName) {
    auto* widget = new QComboBox(view->viewport());
    Name(widget, name, accessibleName);
    Overlay(view, grid, widget, editor);
}

} // namespace Tensarix
