// The modal dialogs that the menu opens. Each returns when it has been closed.
#pragma once

namespace Tensarix {

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual void Show_CalcMainFrm() = 0;
    virtual void Show_WtCalcsFrm() = 0;
    virtual void Show_WtCalcsFrmA() = 0;
    virtual void Show_AboutFrm() = 0;
};

} // namespace Tensarix
