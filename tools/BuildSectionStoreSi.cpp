#include "BuildSectionStoreSi.h"

namespace Tensarix {

namespace {

// 128 bits: ten digits times 254^6 take 82, and a factor of some thousands at either side fits.
__extension__ using Wide = unsigned __int128;

struct Fraction {
    Wide Top, Bottom;
};

Fraction Decimal_Fraction(std::string_view text) {
    Fraction value{0, 1};
    bool decimals = false;
    for (const char c : text) {
        if (c == '.') {
            decimals = true;
            continue;
        }
        value.Top = value.Top * 10 + static_cast<Wide>(c - '0');
        if (decimals)
            value.Bottom *= 10;
    }
    return value;
}

void Convert(Fraction& value, Measure kind) {
    if (kind == Measure::Mass) { // lb/ft to kg/m
        value.Top *= 45'359'237; // 0.45359237 / 0.3048
        value.Bottom *= 30'480'000;
        return;
    }
    for (int power = static_cast<int>(kind); power > 0; --power) {
        value.Top *= 254;
        value.Bottom *= 10;
    }
}

// digits x 10^exponent, without superfluous zeros behind the point.
std::string Plain_Text(std::string digits, int exponent) {
    if (exponent >= 0)
        return digits.append(static_cast<std::size_t>(exponent), '0');
    const auto places = static_cast<std::size_t>(-exponent);
    if (digits.size() <= places)
        digits.insert(0, places + 1 - digits.size(), '0');
    digits.insert(digits.size() - places, 1, '.');
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.')
        digits.pop_back();
    return digits;
}

std::string Three_Digits(Fraction value) {
    int exponent = 0;
    for (; value.Top < 100 * value.Bottom; --exponent)
        value.Top *= 10;
    for (; value.Top >= 1000 * value.Bottom; ++exponent)
        value.Bottom *= 10;
    const Wide rounded = (2 * value.Top + value.Bottom) / (2 * value.Bottom); // half up
    return Plain_Text(std::to_string(static_cast<unsigned>(rounded)), exponent);
}

} // namespace

std::string Si_Figure(std::string_view usFigure, Measure kind) {
    if (kind == Measure::Ratio)
        return std::string{usFigure};
    Fraction value = Decimal_Fraction(usFigure);
    Convert(value, kind);
    return Three_Digits(value);
}

void Fill_Si_Figures(SectionRow& row) {
    for (std::size_t i = 0; i < figureColumns.size(); ++i) {
        if (!row.Si[i].empty() || row.Us[i].empty())
            continue;
        const Measure kind = figureColumns[i].Kind;
        if (kind == Measure::Mass && row.Family->MassInName)
            row.Si[i] = row.SiName.substr(row.SiName.rfind('x') + 1);
        else
            row.Si[i] = Si_Figure(row.Us[i], kind);
    }
}

} // namespace Tensarix
