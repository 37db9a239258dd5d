// A text made ready for a voice that tells which word it is speaking: a mark before each word.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

struct WordPlace {
    std::size_t At = 0, Length = 0; // bytes of the text
};

// The words of a text, in order: what stands between blanks or colons, without the punctuation
// around it. What is nothing but punctuation is no word.
std::vector<WordPlace> Words_Of(std::string_view text);

// The text in one line of SSML (Speech Synthesis Markup Language, W3C), with a mark named 0, 1,
// 2, ... before each of the words.
std::string Marked_Text(std::string_view text, const std::vector<WordPlace>& words);

} // namespace Tensarix
