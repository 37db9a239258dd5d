#include "window/Theme.h"

#include <algorithm>

namespace Tensarix {

namespace {

struct ColourPair {
    Colour Light;
    QRgb Dark;
};

constexpr ColourPair darkColours[] = {
    {Colours::HeadBack, 0x1D4B52},
    {Colours::HeadText, 0xFFA39A},
    {Colours::SymbolText, 0x8AB8FF},
    {Colours::NameText, 0xA9C7FF},
};

// By ink: its colour under a light theme and under a dark one.
struct InkColours {
    QRgb Light, Dark;
};

constexpr InkColours inkColours[] = {
    {0x101010, 0xE8E8E8}, // Body
    {0x1F5FA8, 0x7FB4F0}, // Measure
    {0x6B6B6B, 0xA8A8A8}, // Axis
    {0x6A3FA0, 0xC3A5F0}, // Force
    {0x1E6E34, 0x7FD08A}, // Result
    {0x868686, 0x8C8C8C}, // Quiet
    {0xD2D2D2, 0x464A4E}, // Grid
    {0xA34A00, 0xFFB454}, // Alert
};

constexpr float tintPart = 0.17F; // of the ink over the background

} // namespace

bool Is_Dark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor Shown_Colour(Colour value, const QPalette& palette) {
    if (Is_Dark(palette))
        for (const ColourPair& pair : darkColours)
            if (pair.Light == value)
                return QColor(pair.Dark);
    const int red = static_cast<int>(value & 0xFF), green = static_cast<int>(value >> 8 & 0xFF),
              blue = static_cast<int>(value >> 16 & 0xFF);
    const QColor colour(red, green, blue);
    if (!Is_Dark(palette))
        return colour;
    return QColor::fromHsl(std::max(colour.hslHue(), 0), colour.hslSaturation(),
                           255 - colour.lightness() / 2);
}

QColor Grid_Line_Colour(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
    const auto blend = [](int below, int above) { return (4 * below + above) / 5; };
    return {blend(base.red(), text.red()), blend(base.green(), text.green()),
            blend(base.blue(), text.blue())};
}

QColor Ink_Colour(Drawn::Ink ink, const QPalette& palette) {
    const InkColours& colours = inkColours[static_cast<std::size_t>(ink)];
    return QColor(Is_Dark(palette) ? colours.Dark : colours.Light);
}

QColor Tint_Colour(Drawn::Ink ink, const QPalette& palette) {
    // The body has a cool grey, which its own ink would make a plain one.
    QColor tint = Ink_Colour(ink == Drawn::Ink::Body ? Drawn::Ink::Measure : ink, palette);
    tint.setAlphaF(tintPart);
    return tint;
}

} // namespace Tensarix
