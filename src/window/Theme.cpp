#include "window/Theme.h"

#include <QFile>

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

// The colours that the drawings use, and what stands for them under a dark theme.
struct KeyColour {
    const char* Key;
    const char* Dark;
};

constexpr KeyColour keyColours[] = {
    {"#101010", "#e8e8e8"}, // ink
    {"#d9e2ec", "#3a4652"}, // body
    {"#1f5fa8", "#7fb4f0"}, // measure
    {"#a83232", "#f08080"}, // axis
};

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

QByteArray Drawing(const QString& name, const QPalette& palette) {
    QFile file(QStringLiteral(":/pictures/") + name + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray text = file.readAll();
    if (Is_Dark(palette))
        for (const KeyColour& colour : keyColours)
            text.replace(colour.Key, colour.Dark);
    return text;
}

} // namespace Tensarix
