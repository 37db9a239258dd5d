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

    // An advisory beside the result, never part of it.
    const std::string& Remark() const { return remark_.Text; }
    RemarkWeight Remark_Weight() const { return remark_.Weight; }
    void Set_Remark(std::string remark, RemarkWeight weight = RemarkWeight::Note) {
        remark_ = {std::move(remark), weight};
        Shown.Changed();
    }

  private:
    std::string text_;
    Advice remark_;
    Colour fore_ = Colours::Standard;
};

} // namespace Tensarix
