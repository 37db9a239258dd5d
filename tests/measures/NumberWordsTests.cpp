#include "measures/NumberWords.h"

#include <gtest/gtest.h>

using namespace Tensarix;

TEST(NumberWords, NumbersWithTheirBlanks) {
    const std::pair<double, const char*> cases[] = {
        // clang-format off
        {0, " "}, {7, "Seven "}, {13, "Thirteen "}, {40, "Forty "}, {91, "Ninety One "},
        {105, "One Hundred Five "}, {999, "Nine Hundred Ninety Nine "}, {1000, "One Thousand "},
        {1010, "One Thousand Ten "}, {100000, "One Hundred  Thousand "},
        {1000001, "One Million One "}, {2e9 + 3e12, "Three Trillion Two Billion "},
        {123456789012345, "One Hundred Twenty Three Trillion Four Hundred Fifty Six Billion Seven "
                          "Hundred Eighty Nine Million Twelve Thousand Three Hundred Forty Five "},
        {1.05, "One Point Five"}, {1.5, "One Point Fifty"}, {0.25, " Point Twenty Five"},
        {1.005, "One Point One"},
        // clang-format on
        {1.999, "One "}, // the whole part is cut off, the decimals are rounded
    };
    for (const auto& [value, words] : cases)
        EXPECT_EQ(Number_To_Words(value), words) << value;
    std::string all;
    for (int number = 1; number < 100; number += number < 20 ? 1 : 10)
        all += Number_To_Words(number);
    EXPECT_EQ(all,
              "One Two Three Four Five Six Seven Eight Nine Ten Eleven Twelve Thirteen Fourteen "
              "Fifteen Sixteen Seventeen Eighteen Nineteen Twenty Thirty Forty Fifty Sixty "
              "Seventy Eighty Ninety ");
    EXPECT_NO_THROW(Number_To_Words(1.25e300));
    EXPECT_EQ(Group_To_Words("001", 8), " One Infinitillion");
}

TEST(NumberWords, UnitNames) {
    const std::tuple<double, const char*, const char*, const char*> cases[] = {
        // clang-format off
        {1.25, "Dollar", "Cent", "One Dollar And Twenty Five Cents"},
        {2, " Dollar ", "Cent", "Two Dollars "},
        {2.01, "Dollar", "Cent", "Two Dollars And One Cent"},
        {0.25, "Dollar", "Cent", " Twenty Five Cents"}, {0, "Dollar", "Cent", " "},
        {1, "Dollar", "", "One Dollar"}, {2.5, "Dollar", " ", "Two Point Fifty Dollars"},
        {0, "Dollar", "", " "}, {1.25, "", "Cent", "One Hundred Twenty Five Cents "},
        {0.01, "", "Cent", "One Cent "},
        // clang-format on
    };
    for (const auto& [value, unit1, unit2, words] : cases)
        EXPECT_EQ(Number_To_Words(value, unit1, unit2), words) << value << unit1;
}

TEST(NumberWords, Ordinals) {
    const std::tuple<std::int16_t, std::int16_t, const char*> cases[] = {
        {1, 1, "First"},          {2, 1, "Half"},
        {2, 3, "Halves"},         {3, 2, "Thirds"},
        {4, 1, "Fourth"},         {5, 2, "Fifths"},
        {6, 1, "Sixth"},          {7, 1, "Seventh"},
        {8, 1, "Eight"},          {8, 3, "Eights"},
        {9, 1, "Ninth"},          {12, 1, "Twelfth"},
        {16, 1, "Sixteenth"},     {16, 3, "Sixteenths"},
        {20, 1, "Twentieth"},     {21, 1, "Twenty First"},
        {22, 1, "Twenty Second"}, {23, 1, "Twenty Third"},
        {25, 1, "Twenty Fifth"},  {28, 1, "Twenty Eighth"},
        {29, 1, "Twenty Ninth"},  {32, 31, "Thirty Seconds"},
        {64, 1, "Sixty Fourth"},  {100, 1, "One Hundredth"},
    };
    for (const auto& [denominator, numerator, word] : cases)
        EXPECT_EQ(Ordinal_Words(denominator, numerator), word) << denominator;
}
