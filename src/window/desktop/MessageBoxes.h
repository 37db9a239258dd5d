#pragma once

#include "platform/Machine.h"

namespace Tensarix {

class MessageBoxes final : public Messages {
  public:
    void Show(std::string_view text, std::string_view title, MessageIcon icon) override;
    bool Ask_Yes_No(std::string_view text, std::string_view title, MessageIcon icon) override;
};

} // namespace Tensarix
