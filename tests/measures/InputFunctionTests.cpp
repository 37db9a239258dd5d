#include "measures/InputFunction.h"

#include <gtest/gtest.h>

#include <string>

using namespace Tensarix;

TEST(InputFunction, KeysThatPass) {
    const std::string digits = "\b\t\r0123456789";
    const auto passes = [](const std::string& keys, int key) {
        return key > 0 && key < 128 && keys.find(static_cast<char>(key)) != std::string::npos;
    };
    for (int key = -300; key <= 70000; ++key) {
        const int digit = passes(digits, key) ? key : 0;
        const int decimal = passes(digits + '.', key) ? key : 0;
        ASSERT_EQ(Filter_Digits(key), digit);
        ASSERT_EQ(Filter_Decimal(key), decimal);
        ASSERT_EQ(Filter_FeetInch(key, "5'-6\""), passes(digits + ". /\"'-", key) ? key : 0);
        ASSERT_EQ(Filter_Single_Point(key, "1.5"), digit);
        ASSERT_EQ(Filter_Single_Point(key, "15"), decimal);
        ASSERT_EQ(Filter_Single_Point(key, ""), decimal);
    }
}
