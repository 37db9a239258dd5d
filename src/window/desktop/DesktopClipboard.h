#pragma once

#include "platform/Machine.h"

namespace Tensarix {

class DesktopClipboard final : public Clipboard {
  public:
    void Clear() override;
    void Set_Text(std::string_view text) override;
    std::string Text() override;
};

} // namespace Tensarix
