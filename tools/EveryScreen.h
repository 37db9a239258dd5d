// Every window, page and dialog of the program, for tests of what has to hold on all of them and
// for pictures of them.
#pragma once

#include "window/Program.h"

#include <functional>
#include <string>
#include <vector>

namespace Tensarix {

// Gets the window, dialog, menu or list that is on top, laid out, with the keyboard in it. It may
// move the focus, also out of a cell that is being edited, and must not close anything.
using Visit = std::function<void(const std::string& name, QWidget& top)>;

// Drives the started program as a user would: modal dialogs are opened by what opens them, visited
// and closed. Size of window, font and palette are the caller's. What each screen shows depends on
// no clock. Returns what went wrong on the way, a sentence each.
std::vector<std::string> For_Each_Screen(Program& program, const Visit& visit);

} // namespace Tensarix
