// The two pages of Connection Design on the screen.
#pragma once

#include "connections/DesignPage.h"

#include <QWidget>

namespace Tensarix {

// Makes the page's widget and binds it.
QWidget* Make_Design_Form(DesignPage& page, QWidget* parent);

} // namespace Tensarix
