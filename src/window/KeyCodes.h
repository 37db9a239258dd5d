// The desktop's keys as the codes and characters that controls know.
#pragma once

class QKeyEvent;

namespace Tensarix {

// 0: a key that no handler looks at.
int Key_Code(const QKeyEvent& event);

// The character of a printing key or of Enter, Tab, Backspace, Escape; 0: none. The number pad's
// separator is a point, whatever the keyboard's language.
int Key_Character(const QKeyEvent& event);

// True for the number pad's separator where it does not already type a point.
bool Is_Pad_Separator(const QKeyEvent& event);

} // namespace Tensarix
