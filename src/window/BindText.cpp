// Boxes and labels with a text: their keys, and what of a text is chosen.
#include "window/Bind.h"

#include "window/KeysToControl.h"
#include "window/Link.h"
#include "window/RemarkLook.h"
#include "window/Theme.h"
#include "window/To_Qt.h"

#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>

namespace Tensarix {

namespace {

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

// By its form.
bool Gives_Way(const QWidget& widget) {
    return widget.property("hiddenWhenEmpty").toBool();
}

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
        return Filter_Key(control_.OnKeyPress, *event, *widget_);
    }

    QLineEdit* widget_;
    TextBox& control_;
};

} // namespace

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

void Bind(QLabel* widget, Label& control) {
    const bool stop = (widget->focusPolicy() & Qt::TabFocus) != 0;
    const bool givesWay = Gives_Way(*widget);
    const QString described = widget->accessibleDescription();
    new Link(widget, control.Shown, [widget, stop, givesWay, described, &control] {
        QString text = To_Qt(control.Caption());
        if (widget->wordWrap()) // a sign alone on the next line is read as nothing
            text.replace(QStringLiteral(" %"), QStringLiteral("\u00A0%"));
        widget->setText(text);
        if (givesWay)
            widget->setVisible(!text.isEmpty());
        widget->setToolTip(Tip_Text(Remark_In_Words(control.Remark(), control.Remark_Weight())));
        Show_Weight(*widget, control.Caption_Weight());
        widget->setAccessibleDescription(
            described.isEmpty()
                ? Heavy_Word(control.Caption_Weight())
                : Remark_In_Words(described.toStdString(), control.Caption_Weight()));
        if (stop) // there is nothing to be seen in an empty one
            widget->setFocusPolicy(control.Caption().empty() ? Qt::ClickFocus : Qt::StrongFocus);
    });
    if (stop)
        new WholeText(widget);
}

void Bind(QLineEdit* widget, ResultBox& control) {
    widget->setReadOnly(true);
    const bool givesWay = Gives_Way(*widget);
    new Link(widget, control.Shown, [widget, givesWay, &control] {
        widget->setText(To_Qt(control.Text()));
        if (givesWay)
            widget->setVisible(!control.Text().empty());
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

} // namespace Tensarix
