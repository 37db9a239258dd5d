// The popup menu of the large grids on the screen.
#pragma once

#include "shell/GridPopup.h"
#include "shell/Travel.h"
#include "weights/SheetPopup.h"

class QMenu;
class QWidget;

namespace Tensarix {

class GridView;

// Makes the menu and binds it. It opens on the grids that are children of the window under the
// system's names. A second group leads from a section to other pages.
QMenu* Make_Grid_Popup(GridPopup& popup, Travel& travel, QWidget* window);

// The same for a table of the weight calculators.
QMenu* Make_Sheet_Popup(SheetPopup& popup, GridView* grid);

} // namespace Tensarix
