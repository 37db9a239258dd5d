// Dialogs that close at once.
#pragma once

#include "shell/Dialogs.h"

namespace Tensarix::Tests {

struct NoDialogs final : Dialogs {
    void Show_CalcMainFrm() override {}
    void Show_WtCalcsFrm() override {}
    void Show_WtCalcsFrmA() override {}
    void Show_AboutFrm() override {}
};

} // namespace Tensarix::Tests
