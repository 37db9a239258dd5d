#include "window/grid/CellOverlay.h"

#include "window/Bind.h"
#include "window/LabelOf.h"
#include "window/Link.h"
#include "window/To_Qt.h"
#include "window/grid/GridModel.h"
#include "window/grid/GridView.h"

#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include <functional>

namespace Tensarix {

namespace {

// Keeps one editor where its cell is.
class CellOverlay final : public QObject {
  public:
    CellOverlay(GridView* view, const FlexGrid& grid, QWidget* editor, Link* link,
                std::function<bool()> visible)
        : QObject(editor), view_(view), grid_(grid), editor_(editor), label_(Label_Of(editor)),
          name_(editor->accessibleName()), visible_(std::move(visible)) {
        link->Also([this] { Place(); });
        view->viewport()->installEventFilter(this);
        editor->installEventFilter(this);
    }

    void Place();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Name_By_Cell();

    GridView* view_;
    const FlexGrid& grid_;
    QWidget* editor_;
    QLabel* label_;
    QString name_;
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
    if (editor_->geometry() != cell)
        editor_->setGeometry(cell);
    if (auto* box = qobject_cast<QLineEdit*>(editor_))
        box->setAlignment(Shown_Alignment(grid_.Style(grid_.Row(), grid_.Col()).Align));
    Name_By_Cell();
    editor_->show();
}

// Whoever hears the editor hears where it is: "Bolt group input, row 3, Load Eccentricity".
void CellOverlay::Name_By_Cell() {
    QStringList name{name_};
    const auto add = [this, &name](int row, int col, const QString& before) {
        const QString text = To_Qt(grid_.Text(row, col)).simplified();
        if (!text.isEmpty())
            name.append(before + text);
    };
    if (grid_.FixedCols() > 0)
        add(grid_.Row(), 0, grid_.FixedRows() > 0 ? QStringLiteral("row ") : QString());
    if (grid_.FixedRows() > 0)
        add(0, grid_.Col(), {});
    label_->setText(name.join(QStringLiteral(", ")));
    if (editor_->accessibleName() != label_->text())
        editor_->setAccessibleName(label_->text());
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

// An old text that goes while the box has the keyboard would be heard.
void Forget_Text(QLineEdit* box) {
    const QSignalBlocker quiet(box);
    box->clear();
}

void Forget_Text(QComboBox*) {}

template <typename Widget, typename Control>
CellOverlay* Overlay(GridView* view, const FlexGrid& grid, Widget* widget, Control& control) {
    Link* link = Bind(widget, control);
    auto* overlay =
        new CellOverlay(view, grid, widget, link, [&control] { return control.Visible(); });
    // A hidden widget takes no focus; and what is typed arrives where the keyboard already is.
    control.Focus.Take = [widget, link, overlay] {
        link->Flush_After([widget, overlay] {
            if (widget->isHidden())
                Forget_Text(widget);
            overlay->Place();
            widget->setFocus();
        });
    };
    return overlay;
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
    overlay->Place();
}

void Lay_Over(GridView* view, const FlexGrid& grid, ComboBox& editor, const QString& name,
              const QString& accessibleName) {
    auto* widget = new QComboBox(view->viewport());
    Name(widget, name, accessibleName);
    Overlay(view, grid, widget, editor);
}

} // namespace Tensarix
