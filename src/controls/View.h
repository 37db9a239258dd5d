// What every control has for whoever shows it and for whoever handles it.
#pragma once

#include <functional>

namespace Tensarix {

// A routine that a control calls; an empty one is not called.
using Handler = std::function<void()>;

inline void Run(const Handler& handler) {
    if (handler)
        handler();
}

// The control's line to its view. Changed tells the view that it has to be redrawn; the view may
// wait with that, the handlers of the control never do.
class View {
  public:
    Handler OnChanged;

    void Changed() const { Run(OnChanged); }
};

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

// Where an editor lies on its form, in twips (1440 to the inch).
struct Placement {
    double Left = 0, Top = 0, Width = 0, Height = 0;
};

} // namespace Tensarix
