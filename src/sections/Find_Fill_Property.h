// The list of properties that a family can be searched by.
#pragma once

#include "controls/Controls.h"

namespace Tensarix {

// Clears the list and adds the properties of the family at a list position; fails where there is
// none, and the list is empty then.
void Find_Fill_Property(ComboBox& list, int family);

} // namespace Tensarix
