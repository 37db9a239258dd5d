#include "LaidOut.h"
#include "StandIns.h"
#include "beam/BeamDrawings.h"
#include "beam/BeamPage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Tensarix;
using namespace Tensarix::Drawn;
using namespace Tensarix::Tests;

namespace {

// W21x48, 50 ksi: bf/2tf is beyond the compact limit.
const BeamInput w21x48{{107, 93, 20.6, 0.35, 53.6, 9.47}, 50, 25.0, 0};

std::string Words_Of(const Drawing& drawing, const std::string& name) {
    for (const Part& part : drawing.Parts) {
        const auto* label = std::get_if<Drawn::Label>(&part.What);
        const auto* arrow = std::get_if<Arrow>(&part.What);
        const auto* mark = std::get_if<Mark>(&part.What);
        if (part.Name == name && (label || arrow || mark))
            return label ? label->Words : arrow ? arrow->Label : mark->Label;
    }
    return "none";
}

} // namespace

TEST(BeamDrawings, TheBeamTellsLoadSpanReactionsShearAndMoment) {
    const BeamLoad load = Beam_Load(BeamMethod::ASD13th, w21x48);
    const Drawing drawing = Beam_Under_Load(load, 0.15, {});
    EXPECT_EQ(Words_Of(drawing, "w"), "w = 3.39 Kip/ft");
    EXPECT_EQ(Words_Of(drawing, "R"), "R = 48.71 Kips"); // magnified
    EXPECT_EQ(Words_Of(drawing, "V"), "V = 42.36 Kips");
    EXPECT_EQ(Words_Of(drawing, "M"), "M = 264.74 Kip-ft"); // w L^2 / 8
    const auto span = Parts_Of<Dimension>(drawing, "Span").front();
    EXPECT_EQ(span.Value, "25'-0\"");
    EXPECT_EQ(span.To.X - span.From.X, 25);
    std::vector<double> reactions;
    for (const Arrow& reaction : Parts_Of<Arrow>(drawing, "R")) {
        EXPECT_GT(reaction.Head.Y, reaction.Tail.Y);
        reactions.push_back(reaction.Head.X);
    }
    EXPECT_EQ(reactions, (std::vector<double>{0, 25}));
    EXPECT_EQ(Parts_Of<Arrow>(drawing, "").front().Head.X, 0);
    EXPECT_EQ(Parts_Of<Arrow>(drawing, "").back().Head.X, 25);
    // From, to, and where the highest corner is: beam, supports, shear, moment.
    std::vector<std::array<double, 3>> places;
    for (const Outline& outline : Parts_Of<Outline>(drawing, "")) {
        std::array<double, 3> place{1e9, -1e9, 0};
        double top = -1e9;
        for (const Ring& ring : outline.Rings)
            for (const Corner& corner : ring) {
                place[0] = std::min(place[0], corner.At.X);
                place[1] = std::max(place[1], corner.At.X);
                if (corner.At.Y > top)
                    place[2] = corner.At.X;
                top = std::max(top, corner.At.Y);
            }
        for (double& x : place)
            x = std::round(x * 1e4) / 1e4;
        places.push_back(place);
    }
    EXPECT_EQ(
        places,
        (std::vector<std::array<double, 3>>{
            {0, 25, 25}, {-0.375, 0.375, 0}, {24.625, 25.375, 25}, {0, 25, 0}, {0, 25, 12.5}}));
    EXPECT_NE(drawing.Sentence.find("w = 3.39 Kip/ft, end reaction R = 48.71"), std::string::npos);
    // Nothing chosen: the beam without a number.
    EXPECT_EQ(Words_Of(Beam_Under_Load({}, 0, {}), "w"), "w");
    // Another load to use.
    BeamLoad less = load;
    less.LoadKipsPerFoot /= 2;
    EXPECT_EQ(Words_Of(Beam_Under_Load(load, 0, less), "M"), "M = 264.74 Kip-ft (use 132.37)");
}

TEST(BeamDrawings, TheCurveIsTheRulesOwn) {
    for (const BeamMethod method :
         {BeamMethod::ASD9th, BeamMethod::ASD13th, BeamMethod::LRFD13th}) {
        const BeamLoad load = Beam_Load(method, w21x48);
        const Drawing plot = Load_Against_Span(method, w21x48, load, {});
        const auto bending = Parts_Of<Curve>(plot, "Bending").front().Points;
        EXPECT_NEAR(bending.front().X, load.BoundaryFeet, 1e-12);
        EXPECT_NEAR(bending.back().X, plot.Frame->XTo, 1e-9);
        for (const Point& point : bending) // a moment of one size
            EXPECT_NEAR(point.Y * point.X * point.X, load.LoadKipsPerFoot * 25 * 25, 1e-6);
        const auto shear = Parts_Of<Curve>(plot, "Shear").front().Points;
        for (const Point& point : shear)
            EXPECT_NEAR(point.Y, bending.front().Y, 1e-9);
        const Mark present = Parts_Of<Mark>(plot, "Present").front();
        EXPECT_EQ(present.At, (Point{25, load.LoadKipsPerFoot}));
        // The curves of the other two stand behind it.
        EXPECT_EQ(std::count_if(plot.Parts.begin(), plot.Parts.end(),
                                [](const Part& part) {
                                    const auto* curve = std::get_if<Curve>(&part.What);
                                    return curve && part.In == Ink::Quiet &&
                                           curve->Points.size() > 2;
                                }),
                  2);
    }
    EXPECT_TRUE(Load_Against_Span(BeamMethod::ASD9th, {}, {}, {}).Empty());
}

TEST(BeamDrawings, PointingReadsTheCurveOff) {
    EXPECT_EQ(Load_At_Span(BeamMethod::ASD13th, w21x48, 25),
              "25'-0\": w = 3.39 Kip/ft by the 13th Edition, ASD");
    EXPECT_EQ(Load_At_Span(BeamMethod::ASD9th, w21x48, 2),
              "2'-0\": w = 40.65 Kip/ft by the 9th Edition, shear governs"); // that at 7'-1 1/8"
    EXPECT_EQ(Load_At_Span(BeamMethod::ASD9th, w21x48, -1), "");
    EXPECT_EQ(Load_At_Span(BeamMethod::ASD9th, {}, 20), "");
}

// Spans from far below the boundary to far beyond it, for the deepest and the shallowest beam.
TEST(BeamDrawings, TextsStayApart) {
    TestMachine machine;
    Desk desk(machine.Host);
    BeamPage page(desk);
    page.Start_Families();
    page.Start_Inputs();
    for (int family = 0; family < page.zShapeType.Count(); ++family) {
        page.zShapeType.Select(family);
        for (const int size : {0, page.zShapeSizeUS.Count() - 1}) {
            page.zShapeSizeUS.Select(size);
            for (const char* span : {"1'", "10'", "40'", "150'"}) {
                page.BeamSpanBox.Set_Text(span);
                for (const Size view : {Size{420, 220}, Size{700, 420}}) {
                    SCOPED_TRACE(page.zShapeSizeUS.Text() + " " + span);
                    Expect_Texts_Apart(Laid_Out(page.BeamSketch.Shows(), view), view);
                    const Layout plot = Laid_Out(page.LoadPlot.Shows(), view);
                    Expect_Texts_Apart(plot, view);
                    EXPECT_TRUE(plot.LeftOut.empty());
                }
            }
        }
    }
    // Pointing changes nothing.
    EXPECT_NE(page.LoadPlot.Tell("", {20, 1}), "");
    EXPECT_EQ(page.BeamSpanBox.Text(), "150'");
}
