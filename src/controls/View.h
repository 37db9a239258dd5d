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

// Where an editor lies on its form, in twips (1440 to the inch).
struct Placement {
    double Left = 0, Top = 0, Width = 0, Height = 0;
};

} // namespace Tensarix
