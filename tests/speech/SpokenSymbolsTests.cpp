#include "speech/SpokenSymbols.h"

#include <gtest/gtest.h>

using namespace Tensarix;

TEST(SpokenSymbols, Symbols) {
    const std::pair<const char*, const char*> cases[] = {
        // clang-format off
        {"[beta]", "BETA"}, {"aisc", "A I S C"}, {" A ", "AREA"}, {"Wt", "WEIGHT"},
        {"Wno", "W N O"}, {"Iy", "I Y"}, {"Ix", "I X"}, {"Zy", "Z Y"}, {"Sy", "S Y"},
        {"ry", "R Y"}, {"ro", "R O"}, {"Qs", "Q S"}, {"yp", "Y P"}, {"eo", "E O"},
        {"h / tw", "H OVER T W"}, {"h/tw", "H OVER T W"}, {"bf / 2tf", "BF OVER 2 TF"},
        {"bf/2tf", "BF OVER 2 TF"}, {"b / t", "B OVER T"}, {"b/t", "B OVER T"},
        {"h / t", "H OVER T"}, {"h/t", "H OVER T"}, {"D / t", "D OVER T"}, {"D/t", "D OVER T"},
        {"kdes", "K DESIGN"}, {"kdet", "K DETAIL"}, {"tdes", "T DESIGN"}, {"tnom", "T NOMINAL"},
        {"tan alpha", "TANGENT ALPHA"}, {"ID", "INSIDE DIAMETER"}, {"OD", "OUTSIDE DIAMETER"},
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

TEST(SpokenSymbols, Units) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        // of one, of more than one
        {"lb/ft", "POUND PER FOOT", "POUNDS PER FOOT"},
        {"kg/m", "KILOGRAM PER METER", "KILOGRAMS PER METER"},
        {"in", "INCH", "INCHES"},
        {" in. ", "INCH", "INCHES"},
        {"in^2", "SQUARE INCH", "SQUARE INCHES"},
        {"in^3", "INCH TO THE POWER 3", "INCHES TO THE POWER 3"},
        {"in^4", "INCH TO THE POWER 4", "INCHES TO THE POWER 4"},
        {"in^5", "INCH TO THE POWER 5", "INCHES TO THE POWER 5"},
        {"in^6", "INCH TO THE POWER 6", "INCHES TO THE POWER 6"},
    };
    for (const auto& [unit, one, more] : cases) {
        for (const char* value : {"0.5", "1.00", "x", "1e999"}) // which can't be read
            EXPECT_EQ(Speak_Unit(unit, value), one) << value;
        for (const char* value : {"1.01", "2 1/2", "50"})
            EXPECT_EQ(Speak_Unit(unit, value), more) << value;
    }
    const std::pair<const char*, const char*> alike[] = {
        {"mm", "MM"},
        {"mm^2", "SQUARE MM"},
        {"mm^3", "MM TO THE POWER 3"},
        {"mm^4", "MM TO THE POWER 4"},
        {"mm^6", "MM TO THE POWER 6"},
        {"mm^3/10^3", "DIVIDED BY 10 TO THE POWER 3 MM TO THE POWER 3"},
        {"mm^4/10^3", "DIVIDED BY 10 TO THE POWER 3 MM TO THE POWER 4"},
        {"mm^4/10^6", "DIVIDED BY 10 TO THE POWER 6 MM TO THE POWER 4"},
        {"mm^6/10^9", "DIVIDED BY 10 TO THE POWER 9 MM TO THE POWER 6"},
        {"ksi", ""},
        {"", ""},
    };
    for (const auto& [unit, spoken] : alike)
        EXPECT_EQ(Speak_Unit(unit, "1") + Speak_Unit(unit, "2"), std::string(spoken) + spoken);
}

TEST(SpokenSymbols, PhrasesWordByWord) {
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
