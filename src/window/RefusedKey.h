// A key that a filter refuses is answered, so that nobody believes that the keyboard is broken. The
// program's window says where.
#pragma once

#include "controls/Controls.h"

#include <functional>

namespace Tensarix {

inline std::function<void(const std::string& answer)> AnswerRefusedKey;

inline void Answer_Refused_Key(int character) {
    if (!AnswerRefusedKey || character <= Keys::Blank || character > '~')
        return;
    if (character == ',')
        AnswerRefusedKey("Type the decimal point as .");
    else
        AnswerRefusedKey(std::string{"No place here for "} + static_cast<char>(character));
}

} // namespace Tensarix
