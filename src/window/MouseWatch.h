#pragma once

#include "controls/View.h"

class QWidget;

namespace Tensarix {

// Runs the handler whenever the mouse moves over the widget.
void Watch_Mouse(QWidget* widget, Handler handler);
// Runs the handler when the left button goes down on the widget.
void Watch_Click(QWidget* widget, Handler handler);

} // namespace Tensarix
