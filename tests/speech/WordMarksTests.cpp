#include "speech/WordMarks.h"

#include <gtest/gtest.h>

using namespace Tensarix;

namespace {

std::vector<std::string> Words(std::string_view text) {
    std::vector<std::string> words;
    for (const WordPlace& word : Words_Of(text))
        words.emplace_back(text.substr(word.At, word.Length));
    return words;
}

} // namespace

TEST(WordMarks, WordsAndMarkup) {
    // The text, its words, and what is marked between <speak> and </speak>.
    const std::tuple<std::string, std::vector<std::string>, std::string> cases[] = {
        {"", {}, ""},
        {" :: ", {}, " :: "},
        {"AREA = 98.50 SQUARE INCHES :: area",
         {"AREA", "98.50", "SQUARE", "INCHES", "area"},
         "<mark name=\"0\"/>AREA = <mark name=\"1\"/>98.50 <mark name=\"2\"/>SQUARE "
         "<mark name=\"3\"/>INCHES :: <mark name=\"4\"/>area"},
        {"(one), two.:::three",
         {"one", "two", "three"},
         "<mark name=\"0\"/>(one), <mark name=\"1\"/>two.:::<mark name=\"2\"/>three"},
        {"a<b & \"c\"\r\n.\n\x01-5",
         {"a<b", "c", "5"},
         "<mark name=\"0\"/>a&lt;b &amp; <mark name=\"1\"/>\"c\"  .  <mark name=\"2\"/>-5"},
        {"caf\xC3\xA9 \xC2\xA9",
         {"caf\xC3\xA9", "\xC2\xA9"},
         "<mark name=\"0\"/>caf\xC3\xA9 <mark name=\"1\"/>\xC2\xA9"},
    };
    for (const auto& [text, words, marked] : cases) {
        EXPECT_EQ(Words(text), words);
        EXPECT_EQ(Marked_Text(text, Words_Of(text)), "<speak>" + marked + "</speak>");
    }
}
