// The page of View All on the screen.
#pragma once

#include "sections/ViewPage.h"

#include <QWidget>

namespace Tensarix {

// Makes the page's widget and binds it.
QWidget* Make_View_Form(ViewPage& page, QWidget* parent);

} // namespace Tensarix
