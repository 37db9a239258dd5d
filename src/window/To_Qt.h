// The texts of the rooms below as the toolkit has them.
#pragma once

#include <QString>

#include <string_view>

namespace Tensarix {

inline QString To_Qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace Tensarix
