// The page of Allowable Beam Load on the screen.
#pragma once

#include "beam/BeamPage.h"

#include <QWidget>

namespace Tensarix {

// Makes the page's widget and binds it.
QWidget* Make_Beam_Form(BeamPage& page, QWidget* parent);

} // namespace Tensarix
