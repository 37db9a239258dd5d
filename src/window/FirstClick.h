#pragma once

class QLineEdit;

namespace Tensarix {

// The click that brings the keyboard into the box chooses its whole text, as Tab does: what is
// typed then replaces it. A drag chooses what it passes over, and a second click places the caret.
void Choose_All_At_First_Click(QLineEdit* box);

} // namespace Tensarix
