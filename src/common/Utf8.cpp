#include "common/Utf8.h"

#include <algorithm>

namespace Tensarix {

std::string Utf8(unsigned code) {
    const auto tail = [code](unsigned shift) {
        return static_cast<char>(0x80 | (code >> shift & 0x3F));
    };
    if (code < 0x80)
        return {static_cast<char>(code)};
    if (code < 0x800)
        return {static_cast<char>(0xC0 | code >> 6), tail(0)};
    return {static_cast<char>(0xE0 | code >> 12), tail(6), tail(0)};
}

int Utf8_Length(std::string_view text) {
    // Bytes that start a character.
    return static_cast<int>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

} // namespace Tensarix
