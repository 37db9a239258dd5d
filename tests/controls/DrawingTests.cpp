// How drawings are laid out: nothing over anything, everything inside, to scale.
#include "LaidOut.h"

#include <cmath>

using namespace Tensarix;
using namespace Tensarix::Drawn;
using namespace Tensarix::Tests;

namespace {

// A plate of 10 x 20 with a dimension on every side and inside it.
Drawing Plate() {
    Drawing plate{"A plate."};
    plate.Add(Outline{{{{{0, 0}}, {{10, 0}}, {{10, 20}}, {{0, 20}}}}}, Ink::Body, "plate");
    plate.Add(Dimension{{0, 0}, {0, 20}, Side::Left, "d", "20.00"}, Ink::Measure, "d");
    plate.Add(Dimension{{0, 20}, {10, 20}, Side::Above, "b", "10.00"}, Ink::Measure, "b");
    plate.Add(Dimension{{10, 20}, {10, 19}, Side::Right, "k", "1.00"}, Ink::Measure, "k");
    plate.Add(Dimension{{10, 19}, {10, 1}, Side::Right, "T", "18.00"}, Ink::Measure, "T");
    plate.Add(Dimension{{5, 0}, {5.5, 0}, Side::Below, "k1", "0.50"}, Ink::Measure, "k1");
    plate.Add(Dimension{{4, 10}, {4.5, 10}, Side::Inside, "tw", "0.50"}, Ink::Measure, "tw");
    plate.Add(CentreLine{{0, 10}, {10, 10}, "X"}, Ink::Axis);
    plate.Add(Mark{{5, 10}, MarkKind::Cross, "C.G."}, Ink::Result, "y");
    return plate;
}

void Expect_In_Order(const Layout& layout, Size view,
                     const std::vector<std::string>& leftOut = {}) {
    const Box whole{0, 0, view.Width, view.Height};
    EXPECT_EQ(layout.LeftOut, leftOut);
    Expect_Texts_Apart(layout, view);
    for (const Stroke& stroke : layout.Strokes)
        for (const Point& point : stroke.Points)
            EXPECT_TRUE(whole.Contains({point.X, point.Y, point.X, point.Y}));
}

const Text* Text_Of(const Layout& layout, const std::string& name) {
    for (const Text& text : layout.Texts)
        if (text.Name == name)
            return &text;
    return nullptr;
}

} // namespace

TEST(DrawingTest, FitsAndStaysToScaleInViewsOfAnyShape) {
    for (const Size view : {Size{330, 330}, Size{800, 300}, Size{340, 700}, Size{1600, 900}}) {
        const Layout layout = Laid_Out(Plate(), view);
        Expect_In_Order(layout, view);
        EXPECT_EQ(layout.XScale, layout.YScale);
        const Stroke& edge = layout.Strokes.front();
        EXPECT_NEAR(edge.Points[1].X - edge.Points[0].X, 10 * layout.XScale, 1e-9);
        EXPECT_NEAR(edge.Points[1].Y - edge.Points[2].Y, 20 * layout.XScale, 1e-9);
        const Point back = layout.In_Drawing(layout.In_View({3, 4}));
        EXPECT_NEAR(back.X, 3, 1e-9);
        EXPECT_NEAR(back.Y, 4, 1e-9);
    }
}

TEST(DrawingTest, WhereRoomIsShortTheShortestDimensionsGoAndThenTheValues) {
    EXPECT_EQ(Text_Of(Laid_Out(Plate(), {400, 400}), "d")->Words, "d = 20.00");
    const Layout narrow = Laid_Out(Plate(), {290, 700});
    Expect_In_Order(narrow, {290, 700}, {"k1", "k"});
    EXPECT_EQ(Text_Of(narrow, "d")->Words, "d = 20.00");
    const Layout small = Laid_Out(Plate(), {150, 190});
    Expect_In_Order(small, {150, 190});
    EXPECT_EQ(Text_Of(small, "d")->Words, "d");
    EXPECT_FALSE(small.Values);
    const Layout tiny = Laid_Out(Plate(), {60, 70});
    EXPECT_EQ(Text_Of(tiny, "tw"), nullptr);
    for (const Text& text : tiny.Texts)
        EXPECT_TRUE((Box{0, 0, 60, 70}.Contains(text.Place))) << text.Words;
}

TEST(DrawingTest, PointingFindsTheDimensionByItsTextAndByItsLine) {
    const Layout layout = Laid_Out(Plate(), {400, 400});
    const Box& place = Text_Of(layout, "b")->Place;
    EXPECT_EQ(Name_At(layout, {place.Left + 1, place.Top + 1}, 4), "b");
    const Point onEdge = layout.In_View({7, 0});
    EXPECT_EQ(Name_At(layout, {onEdge.X, onEdge.Y - 2}, 4), "plate");
    EXPECT_EQ(Name_At(layout, {1, 1}, 4), "");
}

// What lies beyond is pointed at without making the drawing smaller; a weld is a bead as long as
// it.
TEST(DrawingTest, PointersAndWeldsHaveTheSizeOfATextAndAreFound) {
    const Size view{400, 400};
    for (const Point& towards : {Point{-1, 0}, Point{0.6, 0.8}, Point{0, -1}}) {
        Drawing plate = Plate();
        plate.Add(Weld{{3, 0}, {3, 20}}, Ink::Body, "weld");
        plate.Add(Pointer{{5, 10}, towards, "Search outside"}, Ink::Alert, "Search");
        const Layout layout = Laid_Out(plate, view);
        Expect_In_Order(layout, view);
        int beads = 0;
        for (const Stroke& stroke : layout.Strokes) {
            const Point &from = stroke.Points.front(), &to = stroke.Points.back();
            if (stroke.Name == "Search") {
                const double length = std::hypot(to.X - from.X, to.Y - from.Y);
                EXPECT_NEAR(length, 2 * 15, 1e-9);
                EXPECT_NEAR((to.X - from.X) / length, towards.X, 1e-9);
                EXPECT_NEAR((from.Y - to.Y) / length, towards.Y, 1e-9);
            }
            beads += stroke.Name == "weld" ? 1 : 0;
        }
        EXPECT_GT(beads, 20);
        const Point onWeld = layout.In_View({3, 5});
        EXPECT_EQ(Name_At(layout, onWeld, 4), "weld");
    }
}

// The lines that cross a text after all are interrupted there, and it is told where.
TEST(DrawingTest, ATextThatIsCrossedSaysSo) {
    Drawing grate;
    for (int i = 0; i <= 40; ++i)
        grate.Add(Line{{0.25 * i, 0}, {0.25 * i, 10}});
    grate.Add(Label{{5, 5}, "in between"});
    EXPECT_TRUE(Laid_Out(grate, {300, 300}).Texts.at(0).Crossed);
}

TEST(DrawingTest, TheScaleBarHasARoundLength) {
    for (const double size : {0.3, 1.0, 7.0, 44.0, 1118.0}) {
        Drawing square;
        square.Add(Outline{{{{{0, 0}}, {{size, 0}}, {{size, size}}, {{0, size}}}}});
        square.ScaleUnit = "mm";
        const Layout layout = Laid_Out(square, {400, 400});
        const std::string& words = layout.Texts.back().Words;
        const double length = std::stod(words);
        EXPECT_EQ(words.substr(words.size() - 3), " mm");
        EXPECT_DOUBLE_EQ(Round_Step(length), length) << words;
        const Stroke& bar = layout.Strokes[layout.Strokes.size() - 3];
        EXPECT_NEAR(bar.Points[1].X - bar.Points[0].X, length * layout.XScale, 1e-6);
        EXPECT_GT(length * layout.XScale, 30);
    }
}

TEST(DrawingTest, ARoundedCornerTouchesBothEdges) {
    // A square whose corners take all of its edges is a circle.
    const Ring round{{{1, 1}, 1, 1}, {{-1, 1}, 1, 1}, {{-1, -1}, 1, 1}, {{1, -1}, 1, 1}};
    for (const Point& point : Polygon_Of(round))
        EXPECT_NEAR(std::hypot(point.X, point.Y), 1, 1e-12);
    // A fillet bends into the angle of its edges, away from the corner.
    const Ring fillet{{{0, 0}, 2, 1}, {{9, 0}}, {{9, 9}}, {{0, 9}}};
    const std::vector<Point> points = Polygon_Of(fillet, 2);
    EXPECT_EQ(points[0], (Point{0, 2}));
    EXPECT_NEAR(points[1].Y, 2 * (1 - std::sqrt(0.5)), 1e-12);
    EXPECT_NEAR(points[2].X, 1, 1e-12);
}

TEST(DrawingTest, APlotHasRoundNumbersAndItsCurvesInsideItsFrame) {
    Drawing plot{"Load against span."};
    plot.Frame = Axes{0, 37, 0, 128, "Span (ft)", "w (kip/ft)", {{"ASD"}, {"LRFD"}}};
    Curve curve{{}, "LRFD"};
    for (double x = 1; x <= 37; ++x)
        curve.Points.push_back({x, 200 / x});
    plot.Add(curve, Ink::Force, "LRFD");
    plot.Add(Mark{{20, 10}, MarkKind::Dot, "w = 10.00"}, Ink::Result, "now");
    const Size view{420, 260};
    const Layout layout = Laid_Out(plot, view);
    Expect_Texts_Apart(layout, view);
    ASSERT_TRUE(layout.Plot);
    for (const char* name : {"now", "ASD"})
        EXPECT_TRUE(layout.Plot->Contains(Text_Of(layout, name)->Place)) << name;
    EXPECT_NEAR(layout.In_View({37, 128}).X, layout.Plot->Right, 1e-9);
    EXPECT_NEAR(layout.In_View({37, 128}).Y, layout.Plot->Top, 1e-9);
    EXPECT_EQ(layout.Texts.front().Words, "0");
    // A round frame has a number at its end: 25 has one at each fifth, not at 10 and 20.
    Drawing empty;
    empty.Frame = Axes{0, 25, 0, 150, "Ro", "Fy"};
    const Layout round = Laid_Out(empty, view);
    for (const Point& end : {round.In_View({25, 0}), round.In_View({0, 150})})
        EXPECT_TRUE(
            std::any_of(round.Strokes.begin(), round.Strokes.end(), [&](const Stroke& line) {
                return line.In == Ink::Grid &&
                       std::hypot(line.Points[0].X - end.X, line.Points[0].Y - end.Y) < 1e-6;
            }));
}
