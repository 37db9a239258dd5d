// The keys that lead from a section on one page to the same section on another.
#pragma once

#include "shell/Travel.h"

#include <QKeySequence>

#include <span>

class QStackedWidget;
class QWidget;

namespace Tensarix {

struct TravelKey {
    const char* Name; // of the menu's action
    MenuItem Travel::*Item;
    QKeySequence Key;
};

// Puts a section into the window of those that are compared, and leads back out of it.
QKeySequence Compare_Key();

// In the order of the popup's second group.
std::span<const TravelKey> Travel_Keys();

// The keys work in the whole window; Backspace and Alt+Left on the pages that can be travelled to.
void Bind_Travel_Keys(Travel& travel, QWidget* window, const QStackedWidget& pages);

} // namespace Tensarix
