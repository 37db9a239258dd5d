// Each kind of drawing as it is laid out, against what was looked at and kept.
#include "Kept.h"
#include "LaidOut.h"
#include "beam/BeamDrawings.h"
#include "common/NumberText.h"
#include "connections/BoltDrawing.h"
#include "connections/WeldDrawing.h"
#include "sections/SectionDrawing.h"

#include <array>
#include <cmath>

using namespace Tensarix;
using namespace Tensarix::Drawn;
using namespace Tensarix::Tests;

namespace {

std::string Pixels(double value) {
    const std::string text = Format_Number(value, "0.0");
    return text == "-0.0" ? "0.0" : text;
}

std::string Place(Point at) {
    return Pixels(at.X) + "," + Pixels(at.Y);
}

// Short lines by their points, the others by their box, length and number of points.
std::string Path(const std::vector<Point>& points) {
    std::string text;
    if (points.size() <= 5) {
        for (const Point& point : points)
            text += " " + Place(point);
        return text;
    }
    Box box{points[0].X, points[0].Y, points[0].X, points[0].Y};
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        box.Take_In({points[i].X, points[i].Y, points[i].X, points[i].Y});
        length += std::hypot(points[i].X - points[i - 1].X, points[i].Y - points[i - 1].Y);
    }
    return " " + std::to_string(points.size()) + " points in " + Place({box.Left, box.Top}) + " " +
           Place({box.Right, box.Bottom}) + " length " + Pixels(length);
}

std::string Look(Ink ink, const std::string& name) {
    constexpr std::array inks{"body",   "measure", "axis", "force",
                              "result", "quiet",   "grid", "alert"};
    return inks[static_cast<std::size_t>(ink)] + (name.empty() ? "" : " [" + name + "]");
}

constexpr Drawn::Size usualView{496, 440}, lowView{525, 164};

std::string Written(const Drawing& drawing, Drawn::Size view) {
    const Drawn::Layout layout = Laid_Out(drawing, view);
    std::string text = drawing.Sentence + "\n";
    for (const Fill& fill : layout.Fills) {
        if (fill.In == Ink::Measure) // the heads of dimensions, where their lines end
            continue;
        text += std::string(fill.Tint ? " tint " : " fill ") + Look(fill.In, fill.Name);
        for (const auto& ring : fill.Rings)
            text += Path(ring);
        text += "\n";
    }
    for (const Stroke& stroke : layout.Strokes)
        text += (stroke.Width == Weight::Bold ? " bold " : " line ") +
                Look(stroke.In, stroke.Name) +
                std::string(1, " -.:"[static_cast<std::size_t>(stroke.Dash)]) +
                (stroke.InPlot ? "plot" : "") + Path(stroke.Points) + "\n";
    for (const Text& words : layout.Texts)
        text += " text " + Look(words.In, words.Name) + " \"" + words.Words + "\"" +
                (words.Crossed ? " crossed" : "") + " " +
                Place({words.Place.Left, words.Place.Top}) + "\n";
    for (const std::string& name : layout.LeftOut)
        text += " left out " + name + "\n";
    return text;
}

} // namespace

TEST(Drawings, AreAsTheyWereLookedAt) {
    std::string text;
    const auto add = [&text](const std::string& title, const Drawing& drawing,
                             Drawn::Size view = usualView) {
        text += "== " + title + "\n" + Written(drawing, view);
    };
    const std::pair<int, const char*> sections[] = {
        {0, "W18x50"},          {3, "S12x35"},      {4, "C10x20"},    {5, "MC18x58"},
        {5, "MC13x40"},         {6, "WT9x25"},      {8, "ST6x25"},    {9, "HSS8x4x1/4"},
        {11, "HSS6.000x0.250"}, {12, "Pipe150STD"}, {14, "L6x4x1/2"}, {15, "2L4x4x1/2x3/8"},
        {16, "2L6x4x1/2LLBB"}};
    for (const auto& [family, name] : sections)
        add(name, Read_Section_Drawing(family, name, {TENSARIX_PROGRAM_DIR}, DrawingDetail::Full));
    for (const auto& [family, name] :
         {std::pair{0, "W44x335"}, {4, "C15x50"}, {13, "L8x8x1-1/8"}, {14, "L2-1/2x1-1/2x3/16"}})
        add(name + std::string{" in little room"},
            Read_Section_Drawing(family, name, {TENSARIX_PROGRAM_DIR}, DrawingDetail::Full),
            lowView);
    add("W18x50, SI, small", Read_Section_Drawing(0, "W18x50", {TENSARIX_PROGRAM_DIR, Profile::SI},
                                                  DrawingDetail::Small));

    const BeamInput beam{{107, 93, 20.6, 0.35, 53.6, 9.47}, 50, 25.0, 0};
    const BeamLoad load = Beam_Load(BeamMethod::ASD13th, beam);
    add("beam", Beam_Under_Load(load, 0.15, load));
    add("load against span", Load_Against_Span(BeamMethod::ASD13th, beam, load, {}));

    add("bolts, nothing known", Bolt_Group_Drawing({}));
    const BoltGroup group{4, 2, 3, 3};
    add("bolts 4 x 2", Bolt_Group_Drawing({4, 2, 3, 3, 6, 30, Balanced_Bolts(group, 6, 30), 2.0}));
    add("bolts 3 x 1, search outside",
        Bolt_Group_Drawing({3, 1, 3, 3, 8, 0, Balanced_Bolts({3, 1, 3, 3}, 8, 0), 1e6}));
    add("welds 6", Weld_Group_Drawing({6, 10, 5, 8, 30, Balanced_Welds(6, 10, 5, 8, 30), 3.0}));
    add("welds 8, loaded in the centroid", Weld_Group_Drawing({8, 8, 8, 0, 75, {}, {}}), lowView);
    WeldPasses passes;
    for (int i = 0; i < 60; ++i)
        passes.Add({i / 10.0, 30 - 20 / (1.0 + i), 30 + 90 / (1.0 + i)});
    add("search", Weld_Search_Plot(passes));
    Expect_As_Kept("drawings.txt", text);
}
