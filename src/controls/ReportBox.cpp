#include "controls/ReportBox.h"

namespace Tensarix {

void ReportBox::Append(std::string_view text) {
    text_.append(text);
    Shown.Changed();
}

void ReportBox::Set_Text(std::string_view text) {
    text_ = text;
    ++version_;
    Shown.Changed();
}

} // namespace Tensarix
