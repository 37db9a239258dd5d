#include "common/Utf8.h"

#include <algorithm>
#include <functional>

namespace Tensarix {

namespace {

// Bytes that follow the first byte of a character; -1 if none begins so.
int Following_Bytes(unsigned char first) {
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first < 0xE0)
        return 1;
    if (first >= 0xE0 && first < 0xF0)
        return 2;
    return first >= 0xF0 && first < 0xF5 ? 3 : -1;
}

} // namespace

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
    return static_cast<int>(std::count_if(text.begin(), text.end(), std::not_fn(Continues_Utf8)));
}

bool Continues_Utf8(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

bool Is_Utf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const int following = Following_Bytes(static_cast<unsigned char>(text[i++]));
        if (following < 0)
            return false;
        for (int k = 0; k < following; ++k, ++i)
            if (i >= text.size() || !Continues_Utf8(text[i]))
                return false;
    }
    return true;
}

} // namespace Tensarix
