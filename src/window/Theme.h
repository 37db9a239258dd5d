// Colours under the palette of the desktop, light or dark.
#pragma once

#include "controls/Drawing.h"
#include "controls/FlexGrid.h"

#include <QColor>
#include <QPalette>

namespace Tensarix {

bool Is_Dark(const QPalette& palette);

// A colour value as it is under a light theme, and one with the same meaning under a dark one.
// Not for Colours::Standard.
QColor Shown_Colour(Colour value, const QPalette& palette);

// The lines between the cells of a grid, seen on any base.
QColor Grid_Line_Colour(const QPalette& palette);

// The colour of an ink on the background of a window, and a light tint of it.
QColor Ink_Colour(Drawn::Ink ink, const QPalette& palette);
QColor Tint_Colour(Drawn::Ink ink, const QPalette& palette);

} // namespace Tensarix
