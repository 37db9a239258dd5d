// The place of a drawing on a screen.
#pragma once

#include "controls/Drawing.h"
#include "controls/View.h"

#include <functional>
#include <string>

namespace Tensarix {

class DrawingBox {
  public:
    View Shown;
    // What is told about the place that is pointed at: the name of the part there, or none, and the
    // point in the drawing's units. Empty: nothing. It changes nothing.
    std::function<std::string(const std::string& name, Drawn::Point at)> Tell;

    const Drawing& Shows() const { return drawing_; }
    void Set_Drawing(Drawing drawing) {
        drawing_ = std::move(drawing);
        ++version_;
        Shown.Changed();
    }
    // The name of the parts that are lit up; empty: none.
    const std::string& Lit() const { return lit_; }
    void Light_Up(std::string name) {
        lit_ = std::move(name);
        Shown.Changed();
    }
    // Counts the drawings, so that a view knows when to lay out again.
    unsigned Drawing_Version() const { return version_; }

  private:
    Drawing drawing_;
    std::string lit_;
    unsigned version_ = 0;
};

} // namespace Tensarix
