// The keyboard's one focus, as it goes from control to control.
#pragma once

#include "controls/View.h"

namespace Tensarix {

// The keyboard has one focus, so one focus point at the most has it at a time. Setting the focus
// runs OnLostFocus of the point that had it, then OnGotFocus of the new one, at once.
class FocusPoint {
  public:
    Handler OnGotFocus;
    Handler OnLostFocus;
    Handler Take; // the view's: moves the real focus

    FocusPoint() = default;
    FocusPoint(const FocusPoint&) = delete;
    FocusPoint& operator=(const FocusPoint&) = delete;
    ~FocusPoint();

    bool Has() const { return holder_ == this; }
    void Set();
    // The focus goes to something that is no focus point.
    void Release();

  private:
    static inline FocusPoint* holder_ = nullptr;
};

} // namespace Tensarix
