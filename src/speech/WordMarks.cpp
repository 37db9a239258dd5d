#include "speech/WordMarks.h"

#include "common/NumberText.h"

#include <algorithm>

namespace Tensarix {

namespace {

bool Is_Blank(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == 0x7F;
}

// Words stand between blanks, or between the colons that make a pause.
bool Is_Break(char c) {
    return Is_Blank(c) || c == ':';
}

// Letters and digits; every byte of a character beyond ASCII counts as one.
bool Is_Speakable(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || Is_Digit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Control characters, line ends among them, are none that XML or a line of its own could hold.
void Append_Escaped(std::string& line, char c) {
    switch (c) {
    case '&':
        line += "&amp;";
        break;
    case '<':
        line += "&lt;";
        break;
    case '>':
        line += "&gt;";
        break;
    default:
        line += Is_Blank(c) ? ' ' : c;
    }
}

} // namespace

std::vector<WordPlace> Words_Of(std::string_view text) {
    std::vector<WordPlace> words;
    auto from = text.begin();
    while ((from = std::find_if_not(from, text.end(), Is_Break)) != text.end()) {
        const auto to = std::find_if(from, text.end(), Is_Break);
        const auto first = std::find_if(from, to, Is_Speakable);
        auto last = to;
        while (last != first && !Is_Speakable(*(last - 1)))
            --last;
        if (first != last)
            words.push_back({static_cast<std::size_t>(first - text.begin()),
                             static_cast<std::size_t>(last - first)});
        from = to;
    }
    return words;
}

std::string Marked_Text(std::string_view text, const std::vector<WordPlace>& words) {
    // A mark stands before the whole piece: between a sign and its number it would tear them apart.
    const auto piece = [text](std::size_t at) {
        while (at > 0 && !Is_Break(text[at - 1]))
            --at;
        return at;
    };
    std::string line = "<speak>";
    std::size_t next = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (next < words.size() && piece(words[next].At) == at)
            line += "<mark name=\"" + std::to_string(next++) + "\"/>";
        Append_Escaped(line, text[at]);
    }
    return line + "</speak>";
}

} // namespace Tensarix
