// The page of Find Sections on the screen.
#pragma once

#include "sections/FindPage.h"

#include <QWidget>

namespace Tensarix {

// Makes the page's widget and binds it.
QWidget* Make_Find_Form(FindPage& page, QWidget* parent);

} // namespace Tensarix
