// A two-column list of the calculator's dialogs: name and value.
#pragma once

#include "calculator/CalcMemoryFrm.h"

class QListWidget;
class QTreeWidget;

namespace Tensarix {

void Prepare_Rows(QTreeWidget& list);

// Writes the rows and their selection into the list, without a signal.
void Show_Rows(QTreeWidget& list, const std::vector<CalcRow>& rows,
               const std::vector<bool>& selected);

// As wide as its widest item.
void Fit_Width(QListWidget& list);

} // namespace Tensarix
