#pragma once

class QEvent;
class QFrame;

namespace Tensarix {

// Marks the frame of a view that has the keyboard: many a style does so only on a cell, or not at
// all. To be called after the view's own handling of an event.
void Show_Focus(QFrame& view, const QEvent& event);

} // namespace Tensarix
