// A read-only box for a report that grows by many small pieces a second. The text is complete here
// at once; the view takes over what is new a few times a second, however often it is told.
#pragma once

#include "controls/View.h"

#include <string>
#include <string_view>

namespace Tensarix {

class ReportBox {
  public:
    View Shown;

    const std::string& Text() const { return text_; }
    void Append(std::string_view text);
    void Set_Text(std::string_view text);

    // Counts the times that the text was replaced. A view that has taken over some of the text
    // needs only the rest of it while this stays the same.
    unsigned Version() const { return version_; }

  private:
    std::string text_;
    unsigned version_ = 0;
};

} // namespace Tensarix
