#include "measures/FeetInchFormatting.h"

#include "Largest.h"
#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "measures/FeetInchParsing.h"

#include <cmath>
#include <limits>
#include <random>
#include <string>

using namespace Tensarix;

namespace {

std::string Digits(double feet, int inchesOnly = 0) {
    return Format_FeetInch(feet, lengthDenominator, inchesOnly, 0);
}

std::string Words(double feet, int inchesOnly = 0) {
    return Format_FeetInch(feet, lengthDenominator, inchesOnly, 1);
}

constexpr double notFinite[] = {std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()};

} // namespace

TEST(FeetInchFormatting, BothFormsOfALength) {
    using Case = std::tuple<double, const char*, const char*, const char*, const char*>;
    const Case cases[] = {
        {0, "0\"", "0\"", "0 Inch", "0 Inch"},
        {.375, "3/8\"", "3/8\"", "Three-Eights Inch", "Three-Eights Inch"},
        {1, "1\"", "1\"", "One Inch", "One Inch"},
        {1.5, "1 1/2\"", "1 1/2\"", "One and One-Half Inch", "One and One-Half Inch"},
        {6, "6\"", "6\"", "Six Inches", "Six Inches"},
        {6.375, "6 3/8\"", "6 3/8\"", "Six and Three-Eights Inch", "Six and Three-Eights Inch"},
        {12, "1'-0\"", "12\"", "One Foot", "Twelve Inches"},
        {13, "1'-1\"", "13\"", "One Foot and One Inch", "Thirteen Inches"},
        {18, "1'-6\"", "18\"", "One Foot and Six Inches", "Eighteen Inches"},
        {144, "12'-0\"", "144\"", "Twelve Feet", "One Hundred Forty Four Inches"},
        {144.375, "12'-3/8\"", "144 3/8\"", "Twelve Feet and Three-Eights Inch",
         "One Hundred Forty Four and Three-Eights Inch"},
        {150.375, "12'-6 3/8\"", "150 3/8\"", "Twelve Feet and Six and Three-Eights Inches",
         "One Hundred Fifty and Three-Eights Inches"},
        {-18, "-1'-6\"", "-18\"", "(One Foot and Six Inches)", "(Eighteen Inches)"},
        {67, "5'-7\"", "67\"", "Five Feet and Seven Inches", "Sixty Seven Inches"},
        // ties of the fraction go to the even numerator
        {1. / 32, "0\"", "0\"", "0 Inch", "0 Inch"},
        {1. / 16, "1/16\"", "1/16\"", "One-Sixteenth Inch", "One-Sixteenth Inch"},
        {3. / 32, "1/8\"", "1/8\"", "One-Eight Inch", "One-Eight Inch"},
        // no carry from inches to feet, and a dash that outlives the rounding
        {.99999 * 12, "12\"", "12\"", "Twelve Inches", "Twelve Inches"},
        {5.99999 * 12, "5'-12\"", "72\"", "Five Feet and Twelve Inches", "Seventy Two Inches"},
        {-.0012, "-0\"", "-0\"", "(0 Inch)", "(0 Inch)"},
        {-0.0, "0\"", "0\"", "0 Inch", "0 Inch"},
    };
    for (const auto& [inches, text, folded, spoken, spokenFolded] : cases) {
        EXPECT_EQ(Digits(inches / 12), text) << inches;
        EXPECT_EQ(Digits(inches / 12, 1), folded) << inches;
        EXPECT_EQ(Words(inches / 12), spoken) << inches;
        EXPECT_EQ(Words(inches / 12, 1), spokenFolded) << inches;
    }
}

TEST(FeetInchFormatting, NoWholeInchIsLeftAwayInAFullText) {
    const auto full = [](double inches) { return Full_Length_Text(inches / 12); };
    EXPECT_EQ(full(36.6875), "3'-0 11/16\"");
    EXPECT_EQ(full(36), "3'-0\"");
    EXPECT_EQ(full(42.5), "3'-6 1/2\"");
    EXPECT_EQ(full(0.375), "3/8\"");
    EXPECT_EQ(full(INFINITY), "");
}

TEST(FeetInchFormatting, LimitsLeaveTheTextEmpty) {
    EXPECT_EQ(Digits(123456789012345), "123456789012345'-0\"");
    EXPECT_EQ(Words(32767), "Thirty Two Thousand Seven Hundred Sixty Seven Feet");
    EXPECT_EQ(Words(32768) + Words(-32768) + Format_FeetInch(1.5, 0, 0, 0), "");
    EXPECT_EQ(Format_FeetInch(1.5, 40000, 0, 0), "");
    EXPECT_EQ(Format_FeetInch(1.03125, 64, 0, 0), "1'-3/8\"");
    for (const double value : notFinite)
        EXPECT_EQ(Digits(value) + Words(value), "") << value;
}

TEST(FeetInchFormatting, EveryTextReadsBackAsTheSameLength) {
    constexpr double halfSixteenth = 1. / 16 / 12 / 2;
    for (int step = -3000; step <= 40000; ++step) {
        const double feet = step / 257.0;
        for (const int inchesOnly : {0, 1}) {
            const std::string text = Digits(feet, inchesOnly);
            const auto back = Feet_Of(text);
            ASSERT_TRUE(back.has_value()) << text;
            ASSERT_NEAR(*back, feet, halfSixteenth + 1e-9) << text;
        }
    }
    Tests::Largest deviation;
    for (int sixteenths = -16 * 12 * 60; sixteenths <= 16 * 12 * 60; ++sixteenths) {
        const std::string text = Digits(sixteenths / 16.0 / 12);
        const double back = Feet_Of(text).value();
        ASSERT_EQ(Digits(back), text);
        ASSERT_NEAR(back * 12 * 16, sixteenths, 1e-10) << text;
        deviation.Take(std::abs(back * 12 - sixteenths / 16.0), text);
    }
    deviation.Record("inches");
}

TEST(FeetInchFormatting, AnythingThatParsesCanBeFormattedAndParsedAgain) {
    constexpr std::string_view keys = "0123456789. /\"'-";
    std::mt19937 random(20240611);
    int lengths = 0;
    for (int i = 0; i < 200000; ++i) {
        std::string text(random() % 10, ' ');
        for (char& c : text)
            c = keys[random() % keys.size()];
        FeetInch_Text_To_Words(text);
        const auto feet = Feet_Of(text);
        if (!feet)
            continue;
        ++lengths;
        const std::string formatted = Digits(*feet);
        const auto back = Feet_Of(formatted);
        ASSERT_TRUE(back.has_value()) << text << " -> " << formatted;
        ASSERT_NEAR(*back, *feet, 0.003 + std::abs(*feet) * 1e-14) << text << " -> " << formatted;
    }
    EXPECT_GT(lengths, 1000);
}

TEST(FeetInchFormatting, TextsInWords) {
    const std::pair<const char*, const char*> cases[] = {
        // clang-format off
        {"5'", "Five Feet"}, {"1'", "One Foot"}, {"-5'", "(Five Feet)"},
        {"5''''", "*ERROR*"}, // all but the last mark should be a number
        {"5'x", "*ERROR*"}, {"6\"x", "*ERROR*"}, {"6.5\"", "Six Inches"}, {"1\"", "One Inch"},
        {"6\"", "Six Inches"}, {"3/8\"", "Three-Eights Inch"}, {"1 1/2\"", "One and One-Half Inch"},
        {"4 3/8\"", "Four and Three-Eights Inches"}, {"12'-6\"", "Twelve Feet and Six Inches"},
        {"12'-0\"", "Twelve Feet and  Inch"}, {"12'-3/8\"", "Twelve Feet and Three-Eights Inch"},
        {"1'-4 3/8\"", "One Foot and Four and Three-Eights Inches"},
        {"2'-1 15/16\"", "Two Feet and One and Fifteen-Sixteenths Inch"},
        {"-1'-4 3/8\"", "(One Foot and Four and Three-Eights Inches)"},
        // forms without an inch mark, and what is no length
        {"6", "*ERROR*"}, {"5'-6", "*ERROR*"}, {"5'6\"", "*ERROR*"}, {"", "*ERROR*"},
        {"-", "*ERROR*"},
        // a blank without a fraction behind it
        {"6 \"", "*ERROR*"},   {"5' -6\"", "*ERROR*"}, {"5' -6 1/2\"", "*ERROR*"},
        {"1/2\" ", "*ERROR*"},
        // pieces beyond 16 bits
        {"40000'", "*ERROR*"}, {"1'-1/40000\"", "*ERROR*"},
        // clang-format on
    };
    for (const auto& [text, spoken] : cases)
        EXPECT_EQ(FeetInch_Text_To_Words(text), spoken) << text;
    EXPECT_EQ(FeetInch_Text_To_Words(std::string(40000, '0') + "'"), lengthError);
}

TEST(FeetInchFormatting, RemainderAndCommonDivisor) {
    EXPECT_EQ(Float_Remainder(17, 5), 2);
    EXPECT_EQ(Float_Remainder(-17, 5), -2);
    EXPECT_DOUBLE_EQ(Float_Remainder(5.5, 2), 1.5);
    EXPECT_THROW(Float_Remainder(1, 0), Failure);
    EXPECT_THROW(Float_Remainder(1e300, 1e-300), Failure);
    EXPECT_EQ(Greatest_Common_Divisor(6, 16), 2);
    EXPECT_EQ(Greatest_Common_Divisor(16, 6), 2);
    EXPECT_EQ(Greatest_Common_Divisor(0, 16), 16);
    EXPECT_EQ(Greatest_Common_Divisor(16, 0), 0);
    EXPECT_THROW(Greatest_Common_Divisor(0, 1e10), Failure);
}
