// Keys that go to the control before the widget has them.
#pragma once

#include "controls/Controls.h"
#include "window/KeyCodes.h"

#include <QKeyEvent>

#include <string>

class QInputMethodEvent;
class QLineEdit;
class QWidget;

namespace Tensarix {

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

// A window that answers a key which a filter refuses, so that nobody believes that the keyboard is
// broken.
class RefusedKeyWindow {
  public:
    virtual void Tell_Refused_Key(const std::string& answer) = 0;

  protected:
    ~RefusedKeyWindow() = default;
};

// Tells it to the nearest such window around the widget.
void Answer_Refused_Key(QWidget& widget, int character);

// True if the key has been dealt with: the filter has refused its character, or the box has got the
// one that stands for the number pad's separator.
bool Filter_Key(const KeyFilter& filter, const QKeyEvent& event, QLineEdit& box);

// Text that comes from an input method passes the filter of the keys, character by character, as if
// typed. True if the widget has got it in another way than by this event.
bool Filter_Input_Method(QWidget* widget, const KeyFilter& filter, QInputMethodEvent& event);

} // namespace Tensarix
