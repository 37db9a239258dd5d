#include "measures/FeetInchParsing.h"
#include "measures/InputFunction.h"

#include <gtest/gtest.h>

#include <string>

using namespace Tensarix;

TEST(FeetInchParsing, LengthsInFeet) {
    const std::pair<const char*, double> cases[] = {
        // clang-format off
        {"6", 6}, {"6\"", 6}, {"6 \"", 6}, {".5", .5}, {"5.\"", 5}, {"1/2", .5}, {"1/2\"", .5},
        {"6 1/2", 6.5}, {"6 1/2\"", 6.5}, {"5'", 60}, {"5.5'", 66}, {" 5'", 60}, {"5'-6", 66},
        {"5'-6\"", 66}, {"5' -6\"", 66}, {"5'-6 1/2", 66.5}, {"5'-6 1/2\"", 66.5},
        {"5'-6 1/2 ", 66.5}, {"5'-14\"", 74}, {"5'-6.25\"", 66.25}, {"12'-3/8\"", 144.375},
        {"0'-0\"", 0}, {"-5'-6\"", -66}, {"-1/2", -.5},
        // what stands behind a foot mark, or behind a blank without a slash, is dropped
        {"5'6", 60}, {"5''''", 60}, {"5 6", 5}, {"5 x", 5}, {"5 \xC3\xA9", 5},
        // the classifier trims and drops a dash of its own, the readers don't
        {" 5", 0}, {" 6 1/2", 30.5}, {"--5", 5}, {"--5'-6", 55},
        // clang-format on
    };
    for (const auto& [text, inches] : cases) {
        const auto feet = Feet_Of(text);
        ASSERT_TRUE(feet.has_value() && Is_FeetInch(text)) << text;
        EXPECT_NEAR(*feet * 12, inches, 1e-12) << text;
    }
}

TEST(FeetInchParsing, TextsThatAreNoLength) {
    const std::string_view texts[] = {
        // clang-format off
        "", " ", "-", ".", "'", "\"", "abc", "5'-", "5'-\"",
        // the dash is compulsory, and so is the foot mark
        "5'6\"", "5-6", "5-6\"", "-6'5\"",
        // marks out of order, a second dash, a second inch mark
        "5\"-6'", "5-6'", "5'-6\"-", "6\"\"", "6\" 1/2",
        // a blank behind the dash, behind a whole length, behind the slash; a second slash
        "5'- 6\"", "5'-6\" 1", "1/ 2\"", "3/4 5", "1/2 ", "1/2/3", "5 1/2/3\"",
        // half a fraction, and divisions by zero
        "/2", "1/", "1/\"", "1/0\"", "0/0\"", "5'-6 1/0",
        "1e300/1e-300", "1e999", "x'-6\"", "5'-x\"", "5,5", std::string_view("5\0", 2), "\xFF\xFE",
        // clang-format on
    };
    for (const auto text : texts) {
        EXPECT_FALSE(Feet_Of(text).has_value() || Is_FeetInch(text)) << text;
        EXPECT_EQ(Parse_FeetInch(text, "FT"), LengthValue{std::string{lengthError}}) << text;
        EXPECT_EQ(Parse_FeetInch(text, "in"), LengthValue{std::string{lengthError}}) << text;
    }
}

TEST(FeetInchParsing, UnitsInEitherCase) {
    EXPECT_EQ(Parse_FeetInch("5'-6\"", "ft"), LengthValue{5.5});
    EXPECT_EQ(Parse_FeetInch("5'-6\"", "In"), LengthValue{66.0});
    EXPECT_EQ(Parse_FeetInch("1e308'", "IN"), LengthValue{std::string{lengthError}});
    EXPECT_EQ(Parse_FeetInch("5'-6\"", "MM"), LengthValue{});
    EXPECT_EQ(Parse_FeetInch("", ""), LengthValue{});
}

TEST(FeetInchParsing, FormsTellTheMarksOfWhatIsNotAccepted) {
    const std::pair<const char*, int> cases[] = {
        {" 6 ", 0},    {"-5'", 1},      {"5-6", 2},    {"5'-6", 3},   {"6\"", 4},
        {"5'6\"", 5},  {"5-6\"", 6},    {"5'-6\"", 7}, {"5-6'", 100}, {"'5-", 100},
        {"\"5'", 100}, {"--5'-6", 100}, {"x'", 100},   {"5'-", 100},  {"5\"'-", 100},
    };
    for (const auto& [text, form] : cases)
        EXPECT_EQ(Classify_FeetInch(text), form) << text;
    for (int code = -1; code <= 100; ++code)
        EXPECT_EQ(Is_Form_Accepted(static_cast<std::int16_t>(code)),
                  code == 0 || code == 1 || code == 3 || code == 4 || code == 7)
            << code;
}

TEST(FeetInchParsing, PositionsAreSixteenBit) {
    const std::string zeros(32765, '0');
    EXPECT_EQ(Feet_Of(zeros + "6'"), 6.0);
    EXPECT_FALSE(Feet_Of(zeros + "06'").has_value() || Feet_Of(zeros + zeros + "6\"").has_value());
    EXPECT_FALSE(Feet_Of("1/" + zeros + zeros + "6").has_value());
    EXPECT_EQ(Feet_Of("6 " + std::string(40000, 'x')), 0.5);
    EXPECT_FALSE(Feet_Of(std::string(40000, '-')).has_value());
    EXPECT_FALSE(Feet_Of(std::string(40000, '9')).has_value());
}
