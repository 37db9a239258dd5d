// What the menu and the pages open. The modal dialogs return when they have been closed.
#pragma once

#include "sections/DesignationSearch.h"

#include <string_view>

namespace Tensarix {

class AnySectionFrm;

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual void Show_CalcMainFrm() = 0;
    virtual void Show_WtCalcsFrm() = 0;
    virtual void Show_WtCalcsFrmA() = 0;
    virtual void Show_AboutFrm() = 0;
    // Type 1, with this section chosen.
    virtual void Show_WtCalcsFrm_Of(SectionPlace place) = 0;
    virtual void Show_AnySectionFrm(AnySectionFrm& form) = 0;
    // These two stay open beside the program: the guide at the chapter with this head; the sections
    // compared, which get the keyboard or leave it where it is.
    virtual void Show_Guide(std::string_view chapter) = 0;
    virtual void Show_Compare(bool withKeyboard) = 0;
};

} // namespace Tensarix
