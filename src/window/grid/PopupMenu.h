// The popup menu of the large grids on the screen.
#pragma once

#include "shell/GridPopup.h"

class QMenu;
class QWidget;

namespace Tensarix {

// Makes the menu and binds it. It opens on the grids that are children of the window under the
// system's names.
QMenu* Make_Grid_Popup(GridPopup& popup, QWidget* window);

} // namespace Tensarix
