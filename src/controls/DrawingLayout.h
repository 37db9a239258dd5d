// A drawing laid out for a view: fitted into it, and every text in a place of its own. All
// measures are pixels, x to the right and y downward from the view's upper left corner.
//
// Texts keep the size of the font, and what belongs to them (arrowheads, the distance of a
// dimension) follows it. No text lies on another one, and all lie inside the view. Where there is
// no room for all, the shorter half of the dimensions goes first, then the values, then the other
// dimensions; LeftOut tells.
#pragma once

#include "controls/Drawing.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Tensarix::Drawn {

struct Size {
    double Width = 0, Height = 0;
};

struct Box {
    double Left = 0, Top = 0, Right = 0, Bottom = 0;

    double Width() const { return Right - Left; }
    double Height() const { return Bottom - Top; }
    bool Overlaps(const Box& other) const {
        return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
    }
    bool Contains(const Box& other) const {
        return Left <= other.Left && other.Right <= Right && Top <= other.Top &&
               other.Bottom <= Bottom;
    }
    // Its point that is nearest to another one.
    Point Nearest(Point to) const {
        return {std::clamp(to.X, Left, Right), std::clamp(to.Y, Top, Bottom)};
    }
    // Whether the line between two points comes into it.
    bool Meets(Point from, Point to) const {
        return std::max(from.X, to.X) >= Left && std::min(from.X, to.X) <= Right &&
               std::max(from.Y, to.Y) >= Top && std::min(from.Y, to.Y) <= Bottom &&
               Is_Cut_By(from, to);
    }
    // The same of a line that is not wholly on one side of it.
    bool Is_Cut_By(Point from, Point to) const;
    Box Grown(double by) const { return {Left - by, Top - by, Right + by, Bottom + by}; }
    // Becomes the least box that also holds the other one.
    void Take_In(const Box& other);
};

// The room that a text takes, in pixels.
using TextMeasure = std::function<Size(const std::string& words)>;

// Closed polygons; one inside another is a hole.
struct Fill {
    std::vector<std::vector<Point>> Rings;
    Ink In = Ink::Body;
    bool Tint = false; // a light one of the ink
    std::string Name = {};
};

enum class Weight : std::uint8_t { Thin, Bold };
struct Stroke {
    std::vector<Point> Points;
    Ink In = Ink::Body;
    Weight Width = Weight::Thin;
    Pattern Dash = Pattern::Solid;
    std::string Name = {};
    bool InPlot = false; // cut at the frame of the plot
};

struct Text {
    Box Place;
    std::string Words;
    Ink In = Ink::Body;
    std::string Name = {};
    bool Crossed = false; // by a line, which is to be interrupted there
};

struct Layout {
    std::vector<Fill> Fills;
    std::vector<Stroke> Strokes;
    std::vector<Text> Texts;
    std::optional<Box> Plot;
    std::vector<std::string> LeftOut; // names or words of what found no room
    bool Values = true;               // the values of the dimensions are shown

    Point Zero;                    // where the drawing's own zero lies
    double XScale = 1, YScale = 1; // pixels to a unit

    Point In_View(Point own) const { return {Zero.X + own.X * XScale, Zero.Y - own.Y * YScale}; }
    Point In_Drawing(Point pixel) const {
        return {(pixel.X - Zero.X) / XScale, (Zero.Y - pixel.Y) / YScale};
    }
};

Layout Lay_Out(const Drawing& drawing, Size view, const TextMeasure& measure);

// The name of the part whose text lies at a place, or whose line passes within reach of it; empty:
// none.
std::string Name_At(const Layout& layout, Point pixel, double reach);

// From a point to the line between two others.
double Distance(Point at, Point from, Point to);

// The closed polygon of a ring in the drawing's own units, its corners rounded by so many pieces.
std::vector<Point> Polygon_Of(const Ring& ring, int pieces = 12);

// The least step of 1, 2 or 5 times a power of ten that is not under a length.
double Round_Step(double least);
// The end of an axis that a value fits under: a few round steps, not less than the value.
double Round_Up(double value);

} // namespace Tensarix::Drawn
