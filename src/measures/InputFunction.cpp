#include "measures/InputFunction.h"

#include "measures/FeetInchParsing.h"

namespace Tensarix {

namespace {

constexpr char point = '.';
constexpr std::string_view editKeys = "\b\t\r";
constexpr std::string_view lengthMarks = " /\"'-";

bool Is_One_Of(std::string_view keys, int keyAscii) {
    return keyAscii > 0 && keyAscii < 128 &&
           keys.find(static_cast<char>(keyAscii)) != std::string_view::npos;
}

} // namespace

int Filter_Digits(int keyAscii) {
    const bool passes = (keyAscii >= '0' && keyAscii <= '9') || Is_One_Of(editKeys, keyAscii);
    return passes ? keyAscii : 0;
}

int Filter_Decimal(int keyAscii) {
    return keyAscii == point ? keyAscii : Filter_Digits(keyAscii);
}

int Filter_FeetInch(int keyAscii, std::string_view) {
    return Is_One_Of(lengthMarks, keyAscii) ? keyAscii : Filter_Decimal(keyAscii);
}

int Filter_Single_Point(int keyAscii, std::string_view boxText) {
    return Has_Point(boxText) ? Filter_Digits(keyAscii) : Filter_Decimal(keyAscii);
}

bool Has_Point(std::string_view boxText) {
    return boxText.find(point) != std::string_view::npos;
}

bool Is_FeetInch(std::string_view text) {
    return Feet_Of(text).has_value();
}

} // namespace Tensarix
