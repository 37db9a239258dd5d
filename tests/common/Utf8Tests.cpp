#include "common/Utf8.h"

#include <gtest/gtest.h>

using namespace Tensarix;

TEST(Utf8, CharactersOfOneToThreeBytes) {
    std::string text;
    for (const unsigned code : {0x7Fu, 0x80u, 0x7FFu, 0x800u, 0x20ACu, 0xFFFFu})
        text += Utf8(code);
    EXPECT_EQ(text, "\x7F\u0080\u07FF\u0800\u20AC\uFFFF");
    EXPECT_EQ(Utf8_Length(text + "\U0001F600"), 7);
}

TEST(Utf8, WhatIsNone) {
    for (const char* text : {"", "W18", "\u00D8 3/4", "\U0010FFFF", "\xDF\xBF\xEF\xBF\xBF"})
        EXPECT_TRUE(Is_Utf8(text)) << text;
    for (const char* text : {"\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE2\x82", "\xE2\x82 ",
                             "\xF0\x9F\x98", "\xF5\x80\x80\x80", "\xBF", "\xDF\xC0"})
        EXPECT_FALSE(Is_Utf8(text)) << text;
}
