// A text box that shows a result and can't be typed into.
#pragma once

#include "controls/FlexGrid.h"

#include <string>

namespace Tensarix {

class ResultBox {
  public:
    View Shown;

    const std::string& Text() const { return text_; }
    Colour Fore() const { return fore_; }
    void Set_Text(std::string text) {
        text_ = std::move(text);
        Shown.Changed();
    }
    void Set_Fore(Colour fore) {
        fore_ = fore;
        Shown.Changed();
    }

  private:
    std::string text_;
    Colour fore_ = Colours::Standard;
};

} // namespace Tensarix
