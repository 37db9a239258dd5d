#include "speech/SpokenSymbols.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchFormatting.h"
#include "measures/FeetInchParsing.h"

namespace Tensarix {

namespace {

struct SpokenSymbol {
    std::string_view Symbol, Spoken;
};

// The first hit decides.
constexpr SpokenSymbol spokenSymbols[] = {
    {"[BETA]", "BETA"},
    {"AISC", "A I S C"},
    {"A", "AREA"},
    {"WT", "WEIGHT"},
    {"WNO", "W N O"},
    {"IY", "I Y"},
    {"IX", "I X"},
    {"ZY", "Z Y"},
    {"SY", "S Y"},
    {"RY", "R Y"},
    {"RO", "R O"},
    {"QS", "Q S"},
    {"YP", "Y P"},
    {"EO", "E O"},
    {"H / TW", "H OVER T W"},
    {"H/TW", "H OVER T W"},
    {"BF / 2TF", "BF OVER 2 TF"},
    {"BF/2TF", "BF OVER 2 TF"},
    {"B / T", "B OVER T"},
    {"B/T", "B OVER T"},
    {"H / T", "H OVER T"},
    {"H/T", "H OVER T"},
    {"D / T", "D OVER T"},
    {"D/T", "D OVER T"},
    {"KDES", "K DESIGN"},
    {"KDET", "K DETAIL"},
    {"TDES", "T DESIGN"},
    {"TNOM", "T NOMINAL"},
    {"TAN ALPHA", "TANGENT ALPHA"},
    {"ID", "INSIDE DIAMETER"},
    {"OD", "OUTSIDE DIAMETER"},
};

struct SpokenUnit {
    std::string_view Unit, Singular, Plural, Behind;
};

// The divisor comes first, whatever the order in which the unit is written: listeners know
// the units so.
constexpr std::string_view thirdOver3 = "DIVIDED BY 10 TO THE POWER 3 MM TO THE POWER 3";
constexpr std::string_view fourthOver3 = "DIVIDED BY 10 TO THE POWER 3 MM TO THE POWER 4";
constexpr std::string_view fourthOver6 = "DIVIDED BY 10 TO THE POWER 6 MM TO THE POWER 4";
constexpr std::string_view sixthOver9 = "DIVIDED BY 10 TO THE POWER 9 MM TO THE POWER 6";

constexpr SpokenUnit spokenUnits[] = {
    {"LB/FT", "POUND", "POUNDS", " PER FOOT"},
    {"KG/M", "KILOGRAM", "KILOGRAMS", " PER METER"},
    {"IN^2", "SQUARE INCH", "SQUARE INCHES", ""},
    {"MM^2", "SQUARE MM", "SQUARE MM", ""},
    {"IN", "INCH", "INCHES", ""},
    {"IN.", "INCH", "INCHES", ""},
    {"MM", "MM", "MM", ""},
    {"IN^3", "INCH", "INCHES", " TO THE POWER 3"},
    {"MM^3", "MM", "MM", " TO THE POWER 3"},
    {"MM^4", "MM", "MM", " TO THE POWER 4"},
    {"MM^6", "MM", "MM", " TO THE POWER 6"},
    {"MM^3/10^3", thirdOver3, thirdOver3, ""},
    {"IN^4", "INCH", "INCHES", " TO THE POWER 4"},
    {"MM^4/10^3", fourthOver3, fourthOver3, ""},
    {"MM^4/10^6", fourthOver6, fourthOver6, ""},
    {"IN^5", "INCH", "INCHES", " TO THE POWER 5"},
    {"IN^6", "INCH", "INCHES", " TO THE POWER 6"},
    {"MM^6/10^9", sixthOver9, sixthOver9, ""},
};

constexpr std::string_view powerOfTen = "x10^";
constexpr std::string_view spokenPowerOfTen = " :: TIMES 10 TO THE POWER ";

bool Has_Length_Mark(std::string_view text) {
    return text.find(inchMark) != std::string_view::npos ||
           text.find(footMark) != std::string_view::npos;
}

} // namespace

std::string Speak_Symbol(std::string_view text) {
    const std::string symbol = Upper(Trim(text));
    for (const SpokenSymbol& row : spokenSymbols)
        if (row.Symbol == symbol)
            return std::string{row.Spoken};
    if (Has_Length_Mark(text))
        return FeetInch_Text_To_Words(text);
    return Replace_All(text, powerOfTen, spokenPowerOfTen);
}

std::string Speak_Value(std::string_view text) {
    return Is_Numeric(text) ? General_Text(Leading_Value(text)) : Speak_Symbol(text);
}

std::string Speak_Unit(std::string_view unit, std::string_view value) {
    double number = 0;
    Attempt([&] { number = Leading_Value(value); });
    const std::string name = Upper(Trim(unit));
    for (const SpokenUnit& row : spokenUnits)
        if (row.Unit == name)
            return std::string{number > 1 ? row.Plural : row.Singular}.append(row.Behind);
    return {};
}

std::string Speak_Phrase(std::string_view text) {
    const std::string words = Replace_All(text, "'", " ");
    std::string spoken;
    std::size_t at = 0;
    while (true) {
        const std::size_t blank = words.find(' ', at);
        spoken += Speak_Symbol(std::string_view{words}.substr(at, blank - at));
        if (blank == std::string::npos)
            return spoken;
        spoken += ' ';
        at = blank + 1;
    }
}

} // namespace Tensarix
