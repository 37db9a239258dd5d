// Lays the editors of a grid's cells over the grid view: real child widgets, exactly over the
// current cell at any font and scale, cut off where the view is. Both controls are those of one
// CellEditing; the grid has been bound to the view before.
#pragma once

#include "controls/Controls.h"

#include <QString>

namespace Tensarix {

class FlexGrid;
class GridView;

// Makes the widget, with the name as its object name, and binds it.
void Lay_Over(GridView* view, const FlexGrid& grid, TextBox& editor, const QString& name,
              const QString& accessibleName);
void Lay_Over(GridView* view, const FlexGrid& grid, ComboBox& editor, const QString& name,
              const QString& accessibleName);

} // namespace Tensarix
