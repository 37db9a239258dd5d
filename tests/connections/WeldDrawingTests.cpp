#include "LaidOut.h"
#include "connections/SearchStandIns.h"
#include "connections/WeldConfigurations.h"
#include "connections/WeldDrawing.h"
#include "controls/ListView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace Tensarix {
namespace {

using namespace Drawn;
using namespace Tests;

WeldPicture Complete(int item, double L, double kL, double aL, double angle) {
    return {item, L, kL, aL, angle, Balanced_Welds(item, L, kL, aL, angle), {}};
}

TEST(WeldDrawing, EachConfigurationIsToScaleAboutItsCentroid) {
    for (int item = 1; item <= weldConfigurationCount; ++item) {
        SCOPED_TRACE(item);
        const Drawing drawing = Weld_Group_Drawing(Complete(item, 10, 5, 8, 30));
        double length = 0, x = 0, y = 0;
        for (const Weld& line : Parts_Of<Weld>(drawing, "Weld")) {
            const Point from = line.From, to = line.To;
            const double part = std::hypot(to.X - from.X, to.Y - from.Y);
            length += part;
            x += part * (from.X + to.X) / 2;
            y += part * (from.Y + to.Y) / 2;
        }
        const double lengths[] = {10, /* twice in one place */ 20, 20, 30, 30, 20, 20, 15, 15};
        EXPECT_NEAR(length, lengths[item - 1], 1e-9);
        EXPECT_NEAR(x, 0, 1e-9);
        EXPECT_NEAR(y, 0, 1e-9);
        const Arrow load = Parts_Of<Arrow>(drawing, "P").at(0);
        EXPECT_EQ(load.Head, (Point{8, 0}));
        EXPECT_GT(load.Tail.X, load.Head.X); // 30 degrees clockwise from straight down
        EXPECT_GT(load.Tail.Y, load.Head.Y);
        EXPECT_LT(Parts_Of<Mark>(drawing, "Centre").at(0).At.X, 0);
    }
}

TEST(WeldDrawing, DistancesOfTheCentroidAreThoseOfTheTable) {
    const auto value = [](int item, const std::string& name) {
        const auto found =
            Parts_Of<Dimension>(Weld_Group_Drawing(Complete(item, 8, 8, 3, 0)), name);
        return found.empty() ? "none" : found[0].Value;
    };
    EXPECT_EQ(value(5, "xL") + value(7, "yL"), "nonenone");
    EXPECT_EQ(value(6, "xL"), "2.667"); // 2 x 8 x 4 / 24
    EXPECT_EQ(value(7, "xL"), "2.667");
    EXPECT_EQ(value(8, "xL") + " " + value(8, "yL"), "2 2");
    EXPECT_EQ(value(9, "xL") + " " + value(9, "yL"), "2 2");
}

TEST(WeldDrawing, BeforeTheInputsAreCompleteOnlySymbols) {
    WeldPicture picture;
    picture.Item = 6;
    picture.L = 10;
    const Drawing drawing = Weld_Group_Drawing(picture);
    EXPECT_FALSE(Parts_Of<Weld>(drawing, "Weld").empty());
    EXPECT_EQ(Parts_Of<Dimension>(drawing, "kL").at(0).Value, "");
    EXPECT_EQ(Parts_Of<Dimension>(drawing, "xL").at(0).Value, "");
    EXPECT_TRUE(Parts_Of<Mark>(drawing, "Centre").empty());
    EXPECT_TRUE(Weld_Group_Drawing(Complete(6, 0, 0, 3, 0)).Empty());
    EXPECT_EQ(Parts_Of<Drawn::Label>(Weld_Group_Drawing(Complete(1, 10, 0, 3, 0)), "Weld").size(),
              1); // tells that it is two lines
}

TEST(WeldDrawing, IconsStandInTheMiddleOfTheirSquare) {
    for (int item = 1; item <= weldConfigurationCount; ++item) {
        double left = iconSide, right = -iconSide, bottom = iconSide, top = -iconSide;
        for (const Line& line : Weld_Icon(item))
            for (const Point& end : {line.From, line.To}) {
                left = std::min(left, end.X), right = std::max(right, end.X);
                bottom = std::min(bottom, end.Y), top = std::max(top, end.Y);
            }
        EXPECT_NEAR(left + right, 0, 1e-9) << item;
        EXPECT_NEAR(bottom + top, 0, 1e-9) << item;
        EXPECT_NEAR(std::max(right - left, top - bottom), 34, 1e-9) << item; // the base length
    }
}

TEST(WeldDrawing, TextsStayApart) {
    std::mt19937 random(11);
    const auto between = [&random](double low, double high) {
        return std::round((low + (high - low) * static_cast<double>(random() % 1000) / 999) * 100) /
               100;
    };
    for (int i = 0; i < 90; ++i) {
        WeldPicture picture = Complete(i % weldConfigurationCount + 1, between(1, 40),
                                       between(0, 40), between(0, 60), between(-80, 100));
        picture.SearchRo = between(0, 60);
        for (const Size view : {Size{330, 300}, Size{800, 700}}) {
            const Drawing drawing = Weld_Group_Drawing(picture);
            SCOPED_TRACE(drawing.Sentence);
            const Layout layout = Laid_Out(drawing, view);
            Expect_Texts_Apart(layout, view);
            EXPECT_TRUE(layout.LeftOut.empty() || view.Width < 400);
        }
    }
}

// Thousands of passes are thinned out, but not the few in the bend at the start.
TEST(WeldDrawing, TheCurvesOfASearchMeetAtItsEnd) {
    WeldPasses passes;
    EXPECT_TRUE(Weld_Search_Plot(passes).Empty());
    for (int i = 0; i <= 5000; ++i) {
        const double Ro = std::sqrt(i / 200.0); // in smaller and smaller steps
        passes.Add({Ro, 10 * Ro, 300 / (1 + Ro)});
        ASSERT_EQ(passes.Kept().back().Ro, Ro);
    }
    EXPECT_LT(passes.Kept().size(), 600);
    for (std::size_t i = 1; i < passes.Kept().size(); ++i) {
        const WeldPassLoads &from = passes.Kept()[i - 1], &to = passes.Kept()[i];
        EXPECT_LT(from.Ro, to.Ro);
        EXPECT_NEAR((from.Fm + to.Fm) / 2, 300 / (1 + (from.Ro + to.Ro) / 2), 1) << from.Ro;
    }
    const Drawing plot = Weld_Search_Plot(passes);
    for (const char* name : {"Fy[v]", "Fy[m]"})
        EXPECT_EQ(Parts_Of<Curve>(plot, name).at(0).Points.back(), (Point{5, 50}));
    for (const auto& [now, due] :
         {std::pair{10.0, true}, {10.2, false}, {10.25, true}, {3.0, true}})
        EXPECT_EQ(passes.Is_Plot_Due(now), due) << now; // also on a clock that was set back
    const Size view{300, 220};
    Expect_Texts_Apart(Laid_Out(plot, view), view);
}

} // namespace
} // namespace Tensarix
