// The page of View All on the screen.
#pragma once

#include "sections/ViewAllPage.h"

#include <QWidget>

namespace Tensarix {

// Makes the page's widget and binds it.
QWidget* Make_View_All_Form(ViewAllPage& page, QWidget* parent);

} // namespace Tensarix
