// Drop-down lists: what they show, their keys, the search by typing.
#include "window/Bind.h"

#include "common/Failure.h"
#include "controls/TypedName.h"
#include "window/KeysToControl.h"
#include "window/Link.h"
#include "window/To_Qt.h"

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int listItemsShown = 20; // of a list that hangs open

// The list of a combo box as it stands in the control: nothing is copied.
class ItemModel final : public QAbstractListModel {
  public:
    ItemModel(const ComboBox& control, QObject* parent)
        : QAbstractListModel(parent), control_(control) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : shown_;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (index.row() >= control_.Count() || (role != Qt::DisplayRole && role != Qt::EditRole))
            return {};
        return To_Qt(control_.Item(index.row()));
    }
    void Update() {
        if (version_ == control_.Items_Version())
            return;
        beginResetModel();
        shown_ = control_.Count();
        version_ = control_.Items_Version();
        endResetModel();
    }

  private:
    const ComboBox& control_;
    int shown_ = 0;
    unsigned version_ = ~0u;
};

// Keys and wheel of a list. The wheel does not change a closed one, and Page Up and Page Down move
// by what an open one would show.
class ComboKeys final : public QObject {
  public:
    ComboKeys(QComboBox* widget, ComboBox& control)
        : QObject(widget), widget_(widget), control_(control) {
        sinceTyped_.start();
        widget->installEventFilter(this);
        widget->view()->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Wheel && watched == widget_) {
            event->ignore();
            return true;
        }
        if (event->type() == QEvent::FocusIn)
            typed_.clear();
        if (event->type() == QEvent::InputMethod && watched == widget_ && widget_->isEditable())
            return Filter_Input_Method(widget_, control_.OnKeyPress,
                                       *static_cast<QInputMethodEvent*>(event));
        if (event->type() != QEvent::KeyPress)
            return false;
        auto* key = static_cast<QKeyEvent*>(event);
        if (!widget_->isEditable() && Search(*key))
            return true;
        return watched == widget_ && Key_Pressed(key);
    }

  private:
    // What is typed into a list that can't be typed in looks for an item.
    bool Search(const QKeyEvent& event) {
        const int character = Key_Character(event);
        if (sinceTyped_.hasExpired(QApplication::keyboardInputInterval()))
            typed_.clear();
        if (character < Keys::Blank || character > '~' ||
            (character == Keys::Blank && typed_.empty()))
            return false;
        typed_ += static_cast<char>(character);
        sinceTyped_.restart();
        if (const int found = Find_By_Typing(control_, typed_); found >= 0)
            Go_To(found);
        else if (control_.OnTypedInVain)
            control_.OnTypedInVain(typed_);
        return true;
    }

    void Go_To(int position) {
        if (widget_->view()->isVisible())
            widget_->view()->setCurrentIndex(widget_->model()->index(position, 0));
        else
            control_.Select(position);
    }

    bool Key_Pressed(QKeyEvent* event) {
        if (event->key() == Qt::Key_PageDown || event->key() == Qt::Key_PageUp)
            return Page(event->key() == Qt::Key_PageDown ? 1 : -1);
        if (Tell_Key_Down(control_, *event))
            return true;
        return control_.OnKeyPress && widget_->isEditable() &&
               Filter_Key(control_.OnKeyPress, *event, *widget_->lineEdit());
    }

    bool Page(int direction) {
        if (control_.Count() == 0)
            return true;
        const int to = std::clamp(control_.ListIndex() + direction * widget_->maxVisibleItems(), 0,
                                  control_.Count() - 1);
        control_.Select(to);
        return true;
    }

    QComboBox* widget_;
    ComboBox& control_;
    std::string typed_;
    QElapsedTimer sinceTyped_;
};

} // namespace

void Name_List(QComboBox* widget) {
    widget->view()->setAccessibleName(
        QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name));
}

Link* Bind(QComboBox* widget, ComboBox& control) {
    Name_List(widget);
    auto* model = new ItemModel(control, widget);
    widget->setModel(model);
    widget->setMaxVisibleItems(listItemsShown);
    if (widget->isEditable()) {
        widget->setCompleter(nullptr);
        // By itself the box would choose the item whose text was typed, when the typing ends.
        for (const auto end : {&QLineEdit::editingFinished, &QLineEdit::returnPressed})
            QObject::disconnect(widget->lineEdit(), end, widget, nullptr);
    }
    new ComboKeys(widget, control);
    const auto pull = [widget, model, &control] {
        const QSignalBlocker quiet(widget);
        model->Update();
        if (widget->currentIndex() != control.ListIndex())
            widget->setCurrentIndex(control.ListIndex());
        if (widget->isEditable() && widget->lineEdit()->text() != To_Qt(control.Text()))
            widget->setEditText(To_Qt(control.Text()));
        widget->setEnabled(control.Enabled());
    };
    auto* link = new Link(widget, control.Shown, pull);
    new FocusLink(widget, control.Focus);
    QObject::connect(widget, &QComboBox::activated, link, [link, &control](int position) {
        Attempt([&] { control.Select(position); });
        link->Flush();
    });
    if (widget->isEditable())
        QObject::connect(widget->lineEdit(), &QLineEdit::textEdited, link,
                         [widget, link, &control](const QString& text) {
                             const int caret = widget->lineEdit()->cursorPosition();
                             control.Set_Text(text.toStdString());
                             link->Flush();
                             widget->lineEdit()->setCursorPosition(caret);
                         });
    return link;
}

} // namespace Tensarix
