#include "window/Bind.h"

#include "common/Failure.h"
#include "window/ElidedLabel.h"
#include "window/KeyCodes.h"
#include "window/Link.h"
#include "window/MouseWatch.h"
#include "window/RefusedKey.h"
#include "window/RemarkLook.h"
#include "window/Theme.h"
#include "window/drawing/PictureView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolTip>

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int listItemsShown = 20; // of a list that hangs open

QString To_Qt(const std::string& text) {
    return QString::fromStdString(text);
}

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

// True if the handler has hidden the control: the key was for it alone then. Shift with Left or
// Right selects in a text and is no handler's.
template <typename Control>
bool Tell_Key_Down(Control& control, const QKeyEvent& event) {
    const int code = Key_Code(event);
    const bool selects =
        (event.modifiers() & Qt::ShiftModifier) != 0 && (code == Keys::Left || code == Keys::Right);
    if (!control.OnKeyDown || code == 0 || selects)
        return false;
    const bool shown = control.Visible();
    control.OnKeyDown(code);
    return shown && !control.Visible();
}

// Text that comes from an input method passes the filter of the keys, character by character. True
// if it had to be changed, and the widget has got what is left of it.
bool Filter_Input_Method(QWidget* widget, const KeyFilter& filter, QInputMethodEvent& event) {
    if (!filter)
        return false;
    QString kept;
    for (const QChar character : event.commitString())
        if (filter(character.unicode()) != 0)
            kept += character;
    if (kept == event.commitString())
        return false;
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    rest.setCommitString(kept, event.replacementStart(), event.replacementLength());
    QCoreApplication::sendEvent(widget, &rest);
    return true;
}

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
        if (!control_.OnKeyPress || !widget_->isEditable())
            return false;
        const int character = Key_Character(*event);
        if (character == 0)
            return false;
        const int kept = control_.OnKeyPress(character);
        if (kept == 0)
            Answer_Refused_Key(character);
        if (kept != 0 && Is_Pad_Separator(*event)) {
            widget_->lineEdit()->insert(QChar(kept));
            emit widget_->lineEdit()->textEdited(widget_->lineEdit()->text());
            return true;
        }
        return kept == 0;
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

// The wheel passes over what it would change unasked.
class NoWheel final : public QObject {
  public:
    explicit NoWheel(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore();
        return true;
    }
};

// A text that Tab goes to is chosen as a whole, ready to be copied, as that of a box would be.
class WholeText final : public QObject {
  public:
    explicit WholeText(QLabel* label) : QObject(label) { label->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* label = qobject_cast<QLabel*>(watched); // none any more when it is being deleted
        if (label && event->type() == QEvent::FocusOut)
            label->setSelection(0, 0);
        if (label && event->type() == QEvent::FocusIn &&
            static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason)
            label->setSelection(0, static_cast<int>(label->text().size()));
        return false;
    }
};

// Keys of a text box: every character passes the control's filter first.
class TextKeys final : public QObject {
  public:
    TextKeys(QLineEdit* widget, TextBox& control)
        : QObject(widget), widget_(widget), control_(control) {
        widget->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::InputMethod)
            return Filter_Input_Method(widget_, control_.OnKeyPress,
                                       *static_cast<QInputMethodEvent*>(event));
        return event->type() == QEvent::KeyPress && Key_Pressed(static_cast<QKeyEvent*>(event));
    }

  private:
    bool Key_Pressed(QKeyEvent* event) {
        control_.Set_SelStart(widget_->cursorPosition());
        if (Tell_Key_Down(control_, *event))
            return true;
        const int character = Key_Character(*event);
        if (character == 0)
            return false;
        const int kept = control_.OnKeyPress ? control_.OnKeyPress(character) : character;
        if (kept == 0)
            Answer_Refused_Key(character);
        if (kept != 0 && Is_Pad_Separator(*event)) {
            widget_->insert(QChar(kept));
            emit widget_->textEdited(widget_->text());
            return true;
        }
        return kept == 0;
    }

    QLineEdit* widget_;
    TextBox& control_;
};

} // namespace

// By itself a group learns this only from the focus.
void Choose(QAbstractButton* option) {
    option->setChecked(true);
    for (auto* other :
         option->parent()->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        if (other->autoExclusive())
            other->setFocusPolicy(other == option ? Qt::StrongFocus : Qt::ClickFocus);
}

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

Link* Bind(QLineEdit* widget, TextBox& control) {
    new TextKeys(widget, control);
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        const int caret = control.SelStart();
        if (widget->text() != To_Qt(control.Text()))
            widget->setText(To_Qt(control.Text()));
        if (widget->cursorPosition() != caret)
            widget->setCursorPosition(caret);
        widget->setEnabled(control.Enabled());
    });
    new FocusLink(widget, control.Focus);
    QObject::connect(widget, &QLineEdit::textEdited, link, [widget, &control](const QString& text) {
        control.Set_Text(text.toStdString());
        control.Set_SelStart(widget->cursorPosition());
    });
    QObject::connect(widget, &QLineEdit::cursorPositionChanged, link,
                     [&control](int, int caret) { control.Set_SelStart(caret); });
    return link;
}

void Bind(QPushButton* widget, Button& control) {
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        widget->setText(To_Qt(control.Caption()));
        widget->setEnabled(control.Enabled());
    });
    QObject::connect(widget, &QPushButton::clicked, link, [&control] { control.Click(); });
}

void Bind(QAbstractButton* widget, OptionButton& control) {
    widget->setCheckable(true);
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        widget->setText(To_Qt(control.Caption()));
        widget->setEnabled(control.Enabled());
        if (control.Value())
            Choose(widget);
    });
    QObject::connect(widget, &QAbstractButton::clicked, link, [&control] { control.Select(); });
}

void Bind(QLabel* widget, Label& control) {
    const bool stop = (widget->focusPolicy() & Qt::TabFocus) != 0;
    const QString described = widget->accessibleDescription();
    new Link(widget, control.Shown, [widget, stop, described, &control] {
        QString text = To_Qt(control.Caption());
        if (widget->wordWrap()) // a sign alone on the next line is read as nothing
            text.replace(QStringLiteral(" %"), QStringLiteral("\u00A0%"));
        widget->setText(text);
        widget->setToolTip(Tip_Text(Remark_In_Words(control.Remark(), control.Remark_Weight())));
        Show_Weight(*widget, control.Caption_Weight());
        widget->setAccessibleDescription(
            Remark_In_Words(described.toStdString(), control.Caption_Weight()));
        if (stop) // there is nothing to be seen in an empty one
            widget->setFocusPolicy(control.Caption().empty() ? Qt::ClickFocus : Qt::StrongFocus);
    });
    if (stop)
        new WholeText(widget);
}

void Bind(QGroupBox* widget, Frame& control) {
    new Link(widget, control.Shown, [widget, &control] { widget->setEnabled(control.Enabled()); });
}

void Bind(QTabBar* widget, TabControl& control) {
    new NoWheel(widget);
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        const QSignalBlocker quiet(widget);
        widget->setCurrentIndex(control.Tab() - 1);
    });
    QObject::connect(widget, &QTabBar::currentChanged, link,
                     [&control](int index) { control.Select(index + 1); });
}

void Bind(QTabWidget* widget, TabControl& control) {
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        const QSignalBlocker quiet(widget);
        widget->setCurrentIndex(control.Tab());
    });
    QObject::connect(widget, &QTabWidget::currentChanged, link,
                     [&control](int index) { control.Select(index); });
}

void Bind(QLineEdit* widget, ResultBox& control) {
    widget->setReadOnly(true);
    new Link(widget, control.Shown, [widget, &control] {
        widget->setText(To_Qt(control.Text()));
        QPalette palette;
        if (control.Fore() != Colours::Standard)
            palette.setColor(QPalette::Text, Shown_Colour(control.Fore(), palette));
        widget->setPalette(palette);
        Show_Weight(*widget, control.Remark_Weight());
        const QString remark = Remark_In_Words(control.Remark(), control.Remark_Weight());
        widget->setToolTip(Tip_Text(remark));
        widget->setAccessibleDescription(remark);
    });
}

void Bind(QStackedWidget* widget, TabControl& control) {
    new Link(widget, control.Shown, [widget, &control] { widget->setCurrentIndex(control.Tab()); });
}

void Bind(QTabBar* bar, QStackedWidget* pages, TabControl& control) {
    auto* link = new Link(bar, control.Shown, [bar, pages, &control] {
        const QSignalBlocker quiet(bar);
        bar->setCurrentIndex(control.Tab());
        pages->setCurrentIndex(control.Tab());
    });
    QObject::connect(bar, &QTabBar::currentChanged, link, [link, &control](int tab) {
        control.Select(tab);
        link->Flush();
    });
}

void Bind(QStatusBar* widget, StatusBar& control) {
    const auto panel = [widget](const char* name, const char* description, int stretch) {
        auto* label = new ElidedLabel(widget);
        label->setObjectName(QLatin1String(name));
        label->setAccessibleDescription(QLatin1String(description)); // its name is its text
        widget->addWidget(label, stretch);
        return label;
    };
    QLabel* panel1 = panel("Panel1", "Selection", 5);
    QLabel* remark = panel("RemarkPanel", "Remark", 3);
    QLabel* count = panel("CountPanel", "Count", 0);
    new Link(widget, control.Shown, [panel1, remark, count, &control] {
        panel1->setText(To_Qt(control.Panel1()));
        panel1->setToolTip(Tip_Text(panel1->text().trimmed()));
        remark->setText(Remark_In_Words(control.Remark(), control.Remark_Weight()));
        remark->setToolTip(Tip_Text(remark->text()));
        Show_Weight(*remark, control.Remark_Weight());
        remark->setVisible(!remark->text().isEmpty()); // leaves its room to the selection
        count->setText(To_Qt(control.Count()));
        count->setMinimumWidth(count->sizeHint().width()); // short, and never cut
    });
    Watch_Mouse(widget, [&control] { Run(control.OnMouseMove); });
    // Where the bar cuts a text, its tool tip has it whole: here is the key for that.
    auto* whole = new QShortcut(Qt::CTRL | Qt::Key_F1, widget);
    QObject::connect(whole, &QShortcut::activated, widget, [widget, panel1, remark] {
        const QString texts = panel1->toolTip() + QLatin1Char('\n') + remark->toolTip();
        QToolTip::showText(panel1->mapToGlobal(QPoint(0, 0)), texts.trimmed(), widget);
    });
}

void Bind(QAction* action, MenuItem& control) {
    // An action is no widget, and its menu asks for its state at any time: it follows at once.
    const auto pull = [action, &control] {
        action->setText(To_Qt(control.Caption()));
        action->setEnabled(control.Enabled());
        if (action->isCheckable())
            action->setChecked(control.Checked());
    };
    control.Shown.OnChanged = pull;
    pull();
    QObject::connect(action, &QObject::destroyed,
                     [&control] { control.Shown.OnChanged = nullptr; });
    QObject::connect(action, &QAction::triggered, action, [pull, &control] {
        control.Click();
        pull();
    });
}

void Bind(PictureView* widget, Picture& control) {
    new Link(widget, control.Shown, [widget, &control] { widget->Show_Picture(control.Name()); });
    Watch_Mouse(widget, [&control] { Run(control.OnMouseMove); });
}

} // namespace Tensarix
