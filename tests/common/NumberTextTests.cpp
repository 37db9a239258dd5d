#include "common/Failure.h"
#include "common/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using namespace Tensarix;

TEST(NumberText, PatternsRoundTheFifteenDigitTextHalfAwayFromZero) {
    const std::tuple<double, const char*, const char*> cases[] = {
        // clang-format off
        {12.5, "0.00##  ", "12.50  "},       {12.34565, "0.00##  ", "12.3457  "},
        {0.00004, "0.00##  ", "0.00  "},     {-0.00004, "0.00##  ", "0.00  "},
        {-0.00005, "0.00##  ", "-0.0001  "}, {1.005, "0.00", "1.01"},
        {7.154999999999999, "0.00", "7.16"}, // 15 digits read 7.155
        {-2.5, "0", "-3"}, {1000000, "##,##0.00     ", "1,000,000.00     "},
        {525, "##,##0.00     ", "525.00     "}, {999.995, "##,##0.00", "1,000.00"},
        {0, "####################", ""}, {0.4, "####################", ""},
        {12900000000.0, "####################", "12900000000"}, {416e6, "###e+#", "416e+6"},
        {1550e6, "####e+#", "16e+8"}, {1030, "#e+#", "1e+3"}, {9960, "#e+#", "1e+4"},
        {1234.5, "0.000E+00", "1.235E+03"}, {0.00012345, "0.00E+00", "1.23E-04"},
        {0.00012345, "##0.0E+00", "123.5E-06"}, {0.012345, "##0.0E+00", "12.3E-03"},
        {0.5, "##0.0E+00", "500.0E-03"}, {12345, "##0.0E+00", "12.3E+03"},
        {0, "0.00E+00", "0.00E+00"}, {13, "0.", "13."}, {0.5, "#.0", ".5"},
        // clang-format on
    };
    for (const auto& [value, pattern, text] : cases)
        EXPECT_EQ(Format_Number(value, pattern), text) << value << " " << pattern;
}

TEST(NumberText, GeneralText) {
    const std::pair<double, const char*> cases[] = {
        // clang-format off
        {0, "0"}, {-0.0, "0"}, {0.1 + 0.2, "0.3"}, {25, "25"}, {-7.25, "-7.25"},
        {100000000000000.5, "100000000000001"}, // a tie at the fifteenth digit
        {999999999999999.0, "999999999999999"}, {999999999999999.9, "1E+15"}, {1.5e15, "1.5E+15"},
        {1e-15, "0.000000000000001"}, {1.2e-15, "1.2E-15"}, {1.0 / 3, "0.333333333333333"},
        {1.0 / 30, "3.33333333333333E-02"}, {1e300, "1E+300"},
        // clang-format on
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(General_Text(value), text);
    EXPECT_THROW(General_Text(std::nan("")), Failure);
    EXPECT_THROW(Format_Number(INFINITY, "0.00"), Failure);
}

TEST(NumberText, NumericTestAndLeadingValue) {
    for (const char* text :
         {"5", " 5.5 ", ".5", "5.", "-.5", "+3", "1e5", "1.E+03", "13.", "1E-400"})
        EXPECT_TRUE(Is_Numeric(text)) << text;
    for (const char* text : {"", " ", ".", "-", "5x", "1 2", "1e", "e5", "1,000", "1E999",
                             "*ERROR*", "0x10", "inf", "nan"})
        EXPECT_FALSE(Is_Numeric(text)) << text;
    const std::pair<const char*, double> cases[] = {
        {"5'-6\"", 5},  {"  50 Ksi", 50}, {"", 0},      {"abc", 0},   {"1 2 3", 123},
        {"1.2.3", 1.2}, {"-4e2x", -400},  {"4e", 4},    {".5.", 0.5}, {"- 7", -7},
        {"+8", 8},      {"1E-999", 0},    {"0E999", 0}, {"12,5", 12}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(Leading_Value(text), value) << text;
    EXPECT_THROW(Leading_Value("1E999"), Failure);
    EXPECT_THROW(Text_Number("5x"), Failure);
}

TEST(NumberText, WholeNumbersRoundHalfToEvenAndFailOutsideTheirType) {
    EXPECT_EQ(Whole_16(2.5), 2);
    EXPECT_EQ(Whole_16(3.5), 4);
    EXPECT_EQ(Whole_16(32767.4), 32767);
    EXPECT_EQ(Whole_16(-32768.5), -32768);
    EXPECT_THROW(Whole_16(32767.5), Failure);
    EXPECT_THROW(Whole_16(-32769), Failure);
    EXPECT_EQ(Whole_32(2147483647), 2147483647);
    EXPECT_THROW(Whole_32(2147483648.0), Failure);
    EXPECT_THROW(Whole_32(std::nan("")), Failure);
}

// Every text of up to fifteen digits comes back from the double that is nearest to it.
TEST(NumberText, FifteenDigitTextsSurviveTheRoundTrip) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const auto whole = static_cast<double>(random() % 1000000000000000ull);
        const int decimals = static_cast<int>(random() % 12);
        const double value = whole / std::pow(10, decimals);
        const std::string text = General_Text(value);
        EXPECT_EQ(General_Text(Leading_Value(text)), text);
        EXPECT_NEAR(Leading_Value(text), value, value * 1e-15);
    }
}

TEST(NumberText, TextHelpers) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim("\ta "), "\ta");
    EXPECT_EQ(Upper("bf / 2tf \xC3\xB8"), "BF / 2TF \xC3\xB8");
    EXPECT_EQ(Replace_All("a  b  c", "  ", " "), "a b c");
    EXPECT_EQ(Replace_All("aaa", "aa", "b"), "ba");
}

TEST(FailureRule, AFailedStatementLeavesItsTarget) {
    double target = 3;
    EXPECT_FALSE(Attempt([&] { target = Finite(1 / 0.0); }));
    EXPECT_EQ(target, 3);
    Keep(target, std::nan(""));
    EXPECT_EQ(target, 3);
    Keep(target, 4);
    EXPECT_EQ(target, 4);
    EXPECT_THROW(Attempt([] { throw std::runtime_error("a fault of ours"); }), std::runtime_error);
}
