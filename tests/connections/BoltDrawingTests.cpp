#include "LaidOut.h"
#include "Walk.h"
#include "connections/BoltDrawing.h"
#include "connections/BoltFunctions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace Tensarix {
namespace {

using namespace Drawn;
using namespace Tests;

constexpr double farthest = 0.98150; // of a bolt's full strength, at its ultimate deformation

BoltPicture Complete(const BoltGroup& group, double ex, double angle) {
    return {static_cast<double>(group.m),
            static_cast<double>(group.n),
            group.sv,
            group.sh,
            ex,
            angle,
            Balanced_Bolts(group, ex, angle),
            {}};
}

TEST(BoltDrawing, IsToScale) {
    const Drawing drawing = Bolt_Group_Drawing(Complete({6, 2, 3, 5.5}, 16, 30));
    const auto bolts = Parts_Of<Circle>(drawing, "Bolts");
    ASSERT_EQ(bolts.size(), 12);
    EXPECT_EQ(bolts[0].Centre, (Point{-2.75, -7.5}));
    EXPECT_EQ(bolts[11].Centre, (Point{2.75, 7.5}));
    for (const auto& [name, length] :
         {std::pair{"sv", 3.0}, {"m", 15.0}, {"sh", 5.5}, {"n", 5.5}, {"ex", 16.0}}) {
        const auto dimension = Parts_Of<Dimension>(drawing, name).at(0);
        EXPECT_NEAR(
            std::hypot(dimension.To.X - dimension.From.X, dimension.To.Y - dimension.From.Y),
            length, 1e-12)
            << name;
    }
    EXPECT_EQ(Parts_Of<Dimension>(drawing, "m").at(0).Value, "6 bolts"); // not inches
    EXPECT_EQ(drawing.Sentence.substr(0, 41), "A bolt group, m = 6 bolts high, n = 2 bol");
}

// The load points where it goes, and the bolts' arrows hold it in balance.
TEST(BoltDrawing, ArrowsBalanceTheLoad) {
    struct Case {
        BoltGroup group;
        double ex, angle;
    };
    for (const Case& c :
         {Case{{3, 1, 3, 3}, 8, 0}, Case{{6, 2, 3, 5.5}, 16, 30}, Case{{4, 3, 3, 2}, -5, 40},
          Case{{5, 2, 3, 3}, 6, 140}, Case{{3, 2, 3, 3}, 0, 20}}) {
        const Drawing drawing = Bolt_Group_Drawing(Complete(c.group, c.ex, c.angle));
        const Arrow load = Parts_Of<Arrow>(drawing, "P").at(0);
        EXPECT_EQ(load.Head, (Point{c.ex, 0}));
        const double theta = c.angle * 3.14159265358979 / 180;
        const Point along{load.Head.X - load.Tail.X, load.Head.Y - load.Tail.Y};
        const double length = std::hypot(along.X, along.Y);
        EXPECT_NEAR(along.X / length, -std::sin(theta), 1e-9);
        EXPECT_NEAR(along.Y / length, -std::cos(theta), 1e-9);
        double across = 0, up = 0, moment = 0;
        for (const Arrow& force : Parts_Of<Arrow>(drawing, "Force")) {
            const double x = force.Head.X - force.Tail.X, y = force.Head.Y - force.Tail.Y;
            across += x;
            up += y;
            moment += force.Tail.X * y - force.Tail.Y * x;
        }
        const double C = Balanced_Bolts(c.group, c.ex, c.angle).value_or(Balance{}).C;
        const double unit = std::hypot(across, up) / (C / farthest);
        EXPECT_NEAR(across, std::sin(theta) * C / farthest * unit, 2e-3) << c.angle;
        EXPECT_NEAR(up, std::cos(theta) * C / farthest * unit, 2e-3) << c.angle;
        EXPECT_NEAR(moment, c.ex * up, 2e-2) << c.angle;
    }
}

TEST(BoltDrawing, CentresNearAndFar) {
    BoltPicture picture = Complete({3, 1, 3, 3}, 8, 0);
    picture.SearchRo = 1e5;
    const Drawing drawing = Bolt_Group_Drawing(picture);
    const Mark centre = Parts_Of<Mark>(drawing, "Centre").at(0);
    EXPECT_LT(centre.At.X, 0); // on the other side of the load
    EXPECT_NEAR(centre.At.Y, 0, 1e-6);
    const Pointer outside = Parts_Of<Pointer>(drawing, "Search").at(0);
    EXPECT_EQ(outside.Towards, (Point{-1, 0}));
    EXPECT_EQ(outside.Label, "Search outside");
    EXPECT_NE(drawing.Sentence.find("own centre is 1.0E+5 in. left of the centroid"),
              std::string::npos);
    picture.SearchRo = -centre.At.X + 0.01; // the same
    EXPECT_TRUE(Parts_Of<Mark>(Bolt_Group_Drawing(picture), "Search").empty());
}

TEST(BoltDrawing, AnIncompleteRowShowsWhatIsKnown) {
    BoltPicture picture;
    picture.m = 5;
    picture.sv = 4;
    const Drawing drawing = Bolt_Group_Drawing(picture);
    EXPECT_EQ(Parts_Of<Circle>(drawing, "Bolts").size(), 10);
    EXPECT_EQ(Parts_Of<Dimension>(drawing, "sv").at(0).Value, "4");
    EXPECT_EQ(Parts_Of<Dimension>(drawing, "sh").at(0).Value, "");
    EXPECT_EQ(Parts_Of<Dimension>(drawing, "ex").at(0).Value, "");
    EXPECT_EQ(drawing.Sentence, "A bolt group, m = 5 bolts high, sv = 4 in. apart");
    picture.n = 0;
    EXPECT_TRUE(Bolt_Group_Drawing(picture).Empty());
    picture.n = 30000;
    EXPECT_TRUE(Parts_Of<Circle>(Bolt_Group_Drawing(picture), "Bolts").empty()); // one outline
}

TEST(BoltDrawing, TextsStayApart) {
    std::mt19937 random(7);
    const auto between = [&random](double low, double high) {
        return low + (high - low) * static_cast<double>(random() % 1000) / 999;
    };
    for (int i = 0; i < 60; i += Tests::walkStep) {
        const BoltGroup group{static_cast<std::int16_t>(between(1, 13)),
                              static_cast<std::int16_t>(between(1, 6)), between(0, 6),
                              between(0, 9)};
        const double ex = between(-25, 25), angle = between(-90, 180);
        BoltPicture picture = Complete(group, ex, angle);
        picture.SearchRo = between(0, 40);
        for (const Size view : {Size{330, 300}, Size{800, 700}}) {
            SCOPED_TRACE(testing::Message() << group.m << " x " << group.n << ", " << group.sv
                                            << ", " << group.sh << ", " << ex << ", " << angle);
            const Layout layout = Laid_Out(Bolt_Group_Drawing(picture), view);
            Expect_Texts_Apart(layout, view);
            EXPECT_TRUE(layout.LeftOut.empty() || view.Width < 400);
        }
    }
}

} // namespace
} // namespace Tensarix
