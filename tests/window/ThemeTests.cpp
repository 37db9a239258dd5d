// Whatever is told by a colour can be read on its ground, under a light theme and under a dark one.
#include "window/RemarkLook.h"
#include "window/Theme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Tensarix;

namespace {

// By WCAG 2.1, from 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto part = [](float c) {
            return c <= 0.04045F ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
               0.0722 * part(colour.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

TEST(Theme, TextsCanBeReadOnTheirGrounds) {
    for (const QRgb window : {0xEFEFEFU, 0x2B2F33U}) {
        const QPalette palette{QColor(window), QColor(window)};
        const QColor base = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
        ASSERT_EQ(Is_Dark(palette), window < 0x800000U);
        using Drawn::Ink;
        for (const Ink ink :
             {Ink::Body, Ink::Measure, Ink::Axis, Ink::Force, Ink::Result, Ink::Alert})
            for (const QColor& ground : {base, QColor(window)})
                EXPECT_GE(Contrast(Ink_Colour(ink, palette), ground), 4.5)
                    << static_cast<int>(ink) << " on " << ground.name().toStdString();
        EXPECT_GE(Contrast(Ink_Colour(Ink::Quiet, palette), base), 3);
        const double lines = Contrast(Grid_Line_Colour(palette), base);
        EXPECT_TRUE(lines > 1.2 && lines < 2) << lines; // between cells, not through them
        EXPECT_LT(Contrast(Ink_Colour(Ink::Grid, palette), base),
                  Contrast(Ink_Colour(Ink::Quiet, palette), base));
        EXPECT_GE(Contrast(Shown_Colour(Colours::HeadText, palette),
                           Shown_Colour(Colours::HeadBack, palette)),
                  3.5);
        for (const RemarkWeight weight : {RemarkWeight::Caution, RemarkWeight::Unsafe})
            for (const QColor& above : {text, Shown_Colour(Colours::SymbolText, palette),
                                        Shown_Colour(Colours::NameText, palette)})
                for (const QColor& ground :
                     {base, Remark_Ground(weight, palette), Current_Row_Ground(palette)})
                    EXPECT_GE(Contrast(above, ground), 4.5)
                        << above.name().toStdString() << " on " << ground.name().toStdString();
        EXPECT_GE(Contrast(Remark_Ground(RemarkWeight::Unsafe, palette), base), 1.15);
    }
}
