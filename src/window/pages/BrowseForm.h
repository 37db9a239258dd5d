// The page of Browse Sections on the screen.
#pragma once

#include "sections/BrowsePage.h"

#include <QWidget>

namespace Tensarix {

// Makes the page's widget and binds it.
QWidget* Make_Browse_Form(BrowsePage& page, QWidget* parent);

} // namespace Tensarix
