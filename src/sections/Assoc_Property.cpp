#include "sections/Assoc_Property.h"

#include "common/NumberText.h"

namespace Tensarix {

namespace {

constexpr std::string_view valuePattern = "0.00##  ";
constexpr std::string_view siPrefix = "x";

struct KeyColumn {
    std::string_view Key, Column;
};

// Any other key is itself the column's name.
constexpr KeyColumn keyColumns[] = {
    {"WT", "W"},      {"BF/2TF", "BF_2TF"}, {"B/T", "B_T"}, {"K", "KDES"},
    {"H/TW", "H_TW"}, {"H/T", "H_T"},       {"D/T", "D_T"}, {"I", "IX"},
    {"Z", "ZX"},      {"S", "SX"},          {"R", "RX"},
};

struct KeyUnit {
    std::string_view Keys; // between blanks
    std::string_view US, SI;
};

constexpr KeyUnit keyUnits[] = {
    {" WT ", "lb/ft", "Kg/m"},
    {" A WNO ", "in^2", "mm^2"},
    {" D HT OD BF B ID TW TF T TNOM TDES KDES KDET K1 K X Y EO XP YP R RX RY RZ RO ", "in", "mm"},
    {" I IX IY SW ", "in^4", "mm^4/10^6"},
    {" Z S ZX SX ZY SY C QF QW ", "in^3", "mm^3/10^3"},
    {" J ", "in^4", "mm^4/10^3"},
    {" CW ", "in^6", "mm^6/10^9"},
};

std::string Key_Of(std::string_view property) {
    return Replace_All(Upper(property), " ", "");
}

} // namespace

std::string FormatSiProperty(double value) {
    const std::string digits = Format_Number(value, "####################");
    const std::size_t zero = digits.find('0');
    if (value < 0 || zero == std::string::npos)
        return "0.00";
    const std::size_t length = digits.size();
    const std::size_t triples = (length - zero) / 3;
    if (triples == 0)
        return Format_Number(value, valuePattern);
    const std::string pattern = std::string(length - 3 * triples, '#') + "e+#";
    return Replace_All(Format_Number(value, pattern), "e+", "x10^");
}

std::string FindColumnName(std::string_view property, Profile profile) {
    std::string column = Key_Of(property);
    for (const KeyColumn& entry : keyColumns)
        if (entry.Key == column) {
            column = entry.Column;
            break;
        }
    return profile == Profile::SI ? std::string{siPrefix} + column : column;
}

std::string_view FindUnitLabel(std::string_view property, Profile profile) {
    const std::string key = std::string{" "}.append(Key_Of(property)).append(" ");
    for (const KeyUnit& entry : keyUnits)
        if (entry.Keys.find(key) != std::string_view::npos)
            return profile == Profile::US ? entry.US : entry.SI;
    return {};
}

} // namespace Tensarix
