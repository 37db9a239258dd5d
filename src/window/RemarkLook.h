// How the three weights of a remark look, in cells, labels and boxes, under a light and a dark
// theme: a note is a small corner, a caution a larger one on a tinted ground, unsafe a sign on
// amber. Nobody has to tell them by their colours.
#pragma once

#include "controls/Remark.h"

#include <QColor>
#include <QString>

class QLabel;
class QLineEdit;
class QPainter;
class QPalette;
class QRect;

namespace Tensarix {

// The ground under a text of that weight; none for a note.
QColor Remark_Ground(RemarkWeight weight, const QPalette& palette);
// The ground of the row in which the current cell lies.
QColor Current_Row_Ground(const QPalette& palette);

// In the upper right corner of a cell or head. On the selection, which hides the ground, light.
void Paint_Remark_Mark(QPainter& painter, const QRect& cell, RemarkWeight weight,
                       const QPalette& palette, bool selected = false);
// At the left edge of the cell with the number of a row that has something unsafe in it.
void Paint_Unsafe_Sign(QPainter& painter, const QRect& cell, const QPalette& palette);

// The remark as a screen reader is told it: with its weight, if it is more than a note.
QString Remark_In_Words(const std::string& remark, RemarkWeight weight);
// The weight alone; of a note nothing.
QString Heavy_Word(RemarkWeight weight);
// Its tool tip: no line is longer than 60 characters, but for a longer word.
QString Tip_Text(const QString& text);

// A label whose text is a remark, or a box beside which one stands.
void Show_Weight(QLabel& label, RemarkWeight weight);
void Show_Weight(QLineEdit& box, RemarkWeight weight);

} // namespace Tensarix
