// Characters of UTF-8, in which all texts are written.
#pragma once

#include <string>
#include <string_view>

namespace Tensarix {

// The character of a code up to 0xFFFF.
std::string Utf8(unsigned code);

// Counts the characters of a text.
int Utf8_Length(std::string_view text);

// A byte behind the first one of a character.
bool Continues_Utf8(char c);

// False if a character is cut short, or a byte begins none.
bool Is_Utf8(std::string_view text);

} // namespace Tensarix
