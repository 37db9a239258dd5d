// The drawn sections against their figures: as thick as the table says, and readable, all 1,973.
#include "LaidOut.h"
#include "Walk.h"
#include "common/NumberText.h"
#include "controls/DrawingLayout.h"
#include "sections/SectionDrawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

using namespace Tensarix;
using namespace Tensarix::Drawn;

namespace {

using Each = std::function<void(const SectionRecordset&, const Family&)>;

void For_Every_Section(const Each& work) {
    for (const Family& family : allFamilies) {
        SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_Family(family.Type));
        for (; !read.Records.At_End(); read.Records.MoveNext())
            work(read.Records, family);
    }
}

Drawing Full(const SectionRecordset& record, const Family& family, Profile units = Profile::US,
             DimensionStyle style = DimensionStyle::Decimal) {
    return Draw_Section(record, family, units, style, DrawingDetail::Full);
}

Drawing Of_Name(const std::string& name, int family) {
    return Read_Section_Drawing(family, name, {TENSARIX_PROGRAM_DIR}, DrawingDetail::Full);
}

std::vector<std::vector<Point>> Polygons(const Drawing& drawing) {
    std::vector<std::vector<Point>> all;
    for (const Part& part : drawing.Parts)
        if (const auto* outline = std::get_if<Outline>(&part.What))
            for (const Ring& ring : outline->Rings)
                all.push_back(Polygon_Of(ring, 24));
    return all;
}

double Signed_Area(const std::vector<Point>& polygon) {
    double sum = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point &a = polygon[i], &b = polygon[(i + 1) % polygon.size()];
        sum += a.X * b.Y - b.X * a.Y;
    }
    return sum / 2;
}

// A hollow section has a hole, a pair of angles two pieces.
double Area(const Drawing& drawing, bool hollow) {
    const auto polygons = Polygons(drawing);
    const double first = std::abs(Signed_Area(polygons[0]));
    if (polygons.size() < 2)
        return first;
    return first + (hollow ? -1 : 1) * std::abs(Signed_Area(polygons[1]));
}

// How much of a line is inside the drawn section: level at y, or upright at x.
double Chord(const Drawing& drawing, double at, bool upright, double from, double to) {
    std::vector<double> cuts;
    for (const auto& polygon : Polygons(drawing))
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
            if (upright)
                a = {a.Y, a.X}, b = {b.Y, b.X};
            if ((a.Y > at) != (b.Y > at))
                cuts.push_back(std::clamp(a.X + (at - a.Y) * (b.X - a.X) / (b.Y - a.Y), from, to));
        }
    std::sort(cuts.begin(), cuts.end());
    double sum = 0;
    for (std::size_t i = 0; i + 1 < cuts.size(); i += 2)
        sum += cuts[i + 1] - cuts[i];
    return sum;
}

std::map<std::string, const Dimension*> Dimensions(const Drawing& drawing) {
    std::map<std::string, const Dimension*> all;
    for (const Part& part : drawing.Parts)
        if (const auto* dimension = std::get_if<Dimension>(&part.What))
            all[part.Name] = dimension;
    return all;
}

double Length(const Dimension& d) {
    const bool upright =
        d.At == Side::Left || d.At == Side::Right || (d.At == Side::Inside && d.From.X == d.To.X);
    return std::abs(upright ? d.To.Y - d.From.Y : d.To.X - d.From.X);
}

// Beside its own line a label would be taken for that of another one.
void Expect_Labels_On_Axes(const Drawing& drawing, const Drawn::Layout& layout) {
    for (const Part& part : drawing.Parts) {
        const auto* axis = std::get_if<CentreLine>(&part.What);
        if (!axis || axis->Label.empty())
            continue;
        const auto text = std::find_if(layout.Texts.begin(), layout.Texts.end(),
                                       [&](const Text& t) { return t.Words == axis->Label; });
        ASSERT_NE(text, layout.Texts.end()) << axis->Label;
        const Box& place = text->Place;
        const Point middle{(place.Left + place.Right) / 2, (place.Top + place.Bottom) / 2};
        const Point from = layout.In_View(axis->From), to = layout.In_View(axis->To);
        const auto beyond = [](Point end, Point other) { // far behind the end
            return Point{11 * end.X - 10 * other.X, 11 * end.Y - 10 * other.Y};
        };
        EXPECT_LT(Distance(middle, beyond(from, to), beyond(to, from)), 4) << axis->Label;
    }
}

} // namespace

// And where it is measured inside the outline there is steel from end to end, and none beyond.
TEST(SectionDrawingTest, EveryDimensionIsAsLongAsItSays) {
    int inside = 0;
    For_Every_Section([&](const SectionRecordset& record, const Family& family) {
        for (const Profile units : {Profile::US, Profile::SI}) {
            const Drawing drawing = Full(record, family, units);
            for (const auto& [symbol, d] : Dimensions(drawing)) {
                const std::string name = record.Text("AISC_Manual_Label") + " " + symbol;
                EXPECT_NEAR(Length(*d), Leading_Value(d->Value), 5.1e-5) << name;
                if (d->At != Side::Inside)
                    continue;
                const bool upright = d->From.X == d->To.X;
                const double from = upright ? d->From.Y : d->From.X;
                const double beyond = Length(*d) / 10;
                EXPECT_NEAR(Chord(drawing, upright ? d->From.X : d->From.Y, upright, from - beyond,
                                  from + Length(*d) + beyond),
                            Length(*d), 1e-9)
                    << name;
                ++inside;
            }
        }
    });
    EXPECT_GT(inside, 2 * 1800); // all but the round ones
}

// Fillets and toes have few figures of their own, and weigh most in the lightest sections.
TEST(SectionDrawingTest, TheOutlineHasTheTabulatedArea) {
    For_Every_Section([&](const SectionRecordset& record, const Family& family) {
        const bool hollow = family.Type.starts_with("HSS") || family.Type == "Pipe";
        const bool light = family.Type == "M" || family.Type == "MT";
        EXPECT_NEAR(Area(Full(record, family), hollow) / record.Number("A"), 1,
                    hollow  ? 0.006
                    : light ? 0.06
                            : 0.03)
            << record.Text("AISC_Manual_Label");
    });
}

TEST(SectionDrawingTest, TheWeakAxisOfAnAngleIsThatOfItsArea) {
    const Drawing drawing = Of_Name("L8x4x1", 14);
    // Product of inertia about the axis through the centroid: none, if it is a principal one.
    const CentreLine axis = Tests::Parts_Of<CentreLine>(drawing, "Tan Alpha").at(0);
    const double length = std::hypot(axis.To.X - axis.From.X, axis.To.Y - axis.From.Y);
    const Point along{(axis.To.X - axis.From.X) / length, (axis.To.Y - axis.From.Y) / length};
    double along2 = 0, across2 = 0, both = 0;
    for (double x = 0.025; x < 4; x += 0.05)
        for (double y = 0.025; y < 8; y += 0.05)
            if (x < 1 || y < 1) { // the legs alone
                const double dx = x - axis.From.X, dy = y - axis.From.Y;
                const double u = dx * along.X + dy * along.Y, v = dx * along.Y - dy * along.X;
                along2 += v * v, across2 += u * u, both += u * v;
            }
    EXPECT_LT(along2, across2);
    EXPECT_LT(std::abs(both), 0.02 * across2);
}

TEST(SectionDrawingTest, TheValuesFollowProfileAndStyle) {
    const auto value = [](Profile units, DimensionStyle style) {
        const Drawing drawing = Read_Section_Drawing(
            0, "W18x50", {TENSARIX_PROGRAM_DIR, units, style}, DrawingDetail::Full);
        return Dimensions(drawing).at("d")->Value + ", bar in " + drawing.ScaleUnit;
    };
    EXPECT_EQ(value(Profile::US, DimensionStyle::Decimal), "18.00, bar in in.");
    EXPECT_EQ(value(Profile::US, DimensionStyle::Imperial), "1'-6\", bar in in.");
    EXPECT_EQ(value(Profile::SI, DimensionStyle::Imperial), "457.00, bar in mm");
    EXPECT_EQ(Of_Name("HSS6x4x1/4", 9).Sentence,
              "HSS6x4x1/4 to scale: Ht = 6.00 in., b = 4.00 in., tdes = 0.233 in.");
    // A pair of angles 3/8 in. apart.
    const auto pair = Polygons(Of_Name("2L4x3x1/4x3/8SLBB", 16));
    EXPECT_EQ(pair[1].front().X - pair[0].front().X, 0.375);
    EXPECT_TRUE(Of_Name("W1x1", 0).Empty());
}

TEST(SectionDrawingTest, LabelsHaveRoomOfTheirOwnOnEverySection) {
    const Size view{496, 440}; // what the page has in a window of 1240 x 700
    int count = 0;
    int cramped = 0;
    std::ptrdiff_t crossed = 0;
    For_Every_Section([&](const SectionRecordset& record, const Family& family) {
        if (count++ % Tests::walkStep != 0)
            return;
        const std::string name = record.Text("AISC_Manual_Label");
        const auto laidOut = [&](Profile units, double width) {
            return Lay_Out(Full(record, family, units), view, [width](const std::string& words) {
                return Size{width * static_cast<double>(words.size()), 2.2 * width};
            });
        };
        const Drawn::Layout usual = laidOut(Profile::US, 6.8), large = laidOut(Profile::SI, 9.5);
        SCOPED_TRACE(name);
        Tests::Expect_Texts_Apart(usual, view);
        Tests::Expect_Texts_Apart(large, view);
        EXPECT_TRUE(usual.LeftOut.empty() && usual.Values && large.Values);
        Expect_Labels_On_Axes(Full(record, family), usual);
        cramped += large.LeftOut.empty() ? 0 : 1;
        crossed += std::count_if(usual.Texts.begin(), usual.Texts.end(),
                                 [](const Text& text) { return text.Crossed; });
    });
    EXPECT_LT(crossed, count / 50); // of some ten on each
    EXPECT_LT(cramped, count / 25);
}
