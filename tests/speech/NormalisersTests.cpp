#include "speech/Normalisers.h"

#include <gtest/gtest.h>

using namespace Tensarix;

TEST(Normalisers, Symbols) {
    const std::pair<const char*, const char*> cases[] = {
        // clang-format off
        {"Ix", "I X"}, {" A ", "AREA"}, {"[beta]", "BETA"}, {"h/tw", "H OVER T W"},
        {"h / tw", "H OVER T W"}, {"bf/2tf", "BF OVER 2 TF"}, {"tan alpha", "TANGENT ALPHA"},
        {"W12x50", "W12x50"}, {" Cw ", " Cw "}, {"2.5x10^6", "2.5 :: TIMES 10 TO THE POWER 6"},
        {"2.5X10^6", "2.5X10^6"}, {"1'-4 3/8\"", "One Foot and Four and Three-Eights Inches"},
        {"-3/8\"", "(Three-Eights Inch)"},
        {" 3/8\"", " and Three-Eights Inch"}, // a length is read as it stands, not trimmed
        {"5'6\"", "*ERROR*"}, {"", ""},
        // clang-format on
    };
    for (const auto& [text, spoken] : cases)
        EXPECT_EQ(Speak_Symbol(text), spoken) << text;
}

TEST(Normalisers, Units) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        // clang-format off
        {"in^2", "1.00", "SQUARE INCH"}, {"in^2", "1.01", "SQUARE INCHES"},
        {"in^2", "0.5", "SQUARE INCH"}, {" lb/ft ", "50", "POUNDS PER FOOT"},
        {"kg/m", "x", "KILOGRAM PER METER"}, {"in.", "2 1/2", "INCHES"},
        {"in^6", "12", "INCHES TO THE POWER 6"}, {"mm^4", "0", "MM TO THE POWER 4"},
        {"mm^4/10^6", "7", "DIVIDED BY 10 TO THE POWER 6 MM TO THE POWER 4"},
        {"in", "1e999", "INCH"}, // the value can't be read, so it stays 0
        {"ksi", "50", ""}, {"", "2", ""},
        // clang-format on
    };
    for (const auto& [unit, value, spoken] : cases)
        EXPECT_EQ(Speak_Unit(unit, value), spoken) << unit << " " << value;
}

TEST(Normalisers, PhrasesWordByWord) {
    const std::pair<const char*, const char*> cases[] = {
        // clang-format off
        {"", ""}, {"Ix", "I X"}, {"Depth of a section", "Depth of AREA section"},
        {"Pipe id  and OD ", "Pipe INSIDE DIAMETER  and OUTSIDE DIAMETER "}, {"h / tw", "h / tw"},
        {"member's web", "member s web"}, {"a'a", "AREA AREA"},
        {"bolt 3/4\" dia", "bolt Three-Fourths Inch dia"},
        // clang-format on
    };
    for (const auto& [text, spoken] : cases)
        EXPECT_EQ(Speak_Phrase(text), spoken) << text;
}
