// Cell editing for grids, which show text but can't be typed into: a text box or a list is laid
// over the current cell and hands its text back when the user leaves. Commit first, move second:
// giving the focus to the grid makes the editor lose it, and that commits.
//
// None of these routines fails. letEventsRun lets all pending events run and may be empty.
#pragma once

#include "controls/FlexGrid.h"

namespace Tensarix {

// Lays the text box over the current cell and gives it the focus. With loadText it takes a text
// first: a printing character, which replaces what the cell holds, or else the trimmed cell text;
// the caret stands behind it.
void Edit_Show(const FlexGrid& grid, TextBox& editor, int keyAscii, bool loadText);

// Enter and the arrows go to the neighbouring cell, inside the grid. Escape throws the typing away.
// Any other key does nothing.
void Edit_KeyDown(FlexGrid& grid, TextBox& editor, int keyCode, const Handler& letEventsRun);

// Lays the list over the current cell. With loadIndex it takes the position of the cell text first
// and the focus last.
void Combo_Show(const FlexGrid& grid, ComboBox& combo, bool loadIndex);

// The same as Edit_KeyDown for a list; Up and Down are its own, to walk its items.
void Combo_KeyDown(FlexGrid& grid, ComboBox& combo, int keyCode, const Handler& letEventsRun);

// The position of the current cell's text, blanks at the ends apart; -1: none, or an empty cell.
int Combo_Find_Item(const FlexGrid& grid, const ComboBox& combo);

} // namespace Tensarix
