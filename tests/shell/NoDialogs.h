// Dialogs that close at once.
#pragma once

#include "shell/Dialogs.h"

namespace Tensarix::Tests {

struct NoDialogs : Dialogs {
    void Show_CalcMainFrm() override {}
    void Show_WtCalcsFrm() override {}
    void Show_WtCalcsFrmA() override {}
    void Show_AboutFrm() override {}
    void Show_WtCalcsFrm_Of(SectionPlace) override {}
    void Show_AnySectionFrm(AnySectionFrm&) override {}
    void Show_Guide(std::string_view) override {}
    void Show_Compare(bool) override {}
};

} // namespace Tensarix::Tests
