#pragma once

namespace Tensarix {

// Gives every ReportView a text that a screen reader can read line by line. Once, by the program.
void Let_Reports_Be_Read();

} // namespace Tensarix
