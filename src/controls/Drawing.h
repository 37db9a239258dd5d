// A drawing as a record: made by the room that knows the thing, painted by one view. It stands in
// the drawing's own units, x to the right and y upward, without a toolkit and without pixels. What
// has the size of a text (arrowheads, marks, labels, the distance of a dimension from what it
// measures) is left to the layout (DrawingLayout.h).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Tensarix {

namespace Drawn {

struct Point {
    double X = 0, Y = 0;
    bool operator==(const Point&) const = default;
};

// What a part is, which decides its colour in light and dark.
enum class Ink : std::uint8_t {
    Body,    // the thing itself
    Measure, // dimensions
    Axis,    // centre lines
    Force,   // loads and forces
    Result,  // what was computed: a centre, the present point
    Quiet,   // what stands behind
    Grid,    // of a plot
    Alert    // what must not be overlooked
};

enum class Pattern : std::uint8_t { Solid, Dashed, DashDot, Dotted };

struct Line {
    Point From, To;
    Pattern Dash = Pattern::Solid;
};

// A corner of a closed ring. It is rounded from Before to After, lengths along the two edges that
// meet there: a quarter of an ellipse, drawn into the angle of the edges.
struct Corner {
    Point At;
    double Before = 0, After = 0;
};
using Ring = std::vector<Corner>;

// Rings, filled with a tint of the ink; a ring inside another one is a hole.
struct Outline {
    std::vector<Ring> Rings;
};

struct Circle {
    Point Centre;
    double Radius = 0;
    bool Filled = false;
};

// Its head has the size of a text, its length is true.
struct Arrow {
    Point Tail, Head;
    std::string Label = {};
};

// Towards something that lies beyond the drawing: an arrow in the size of a text, beside or behind
// the point From, whose length says nothing.
struct Pointer {
    Point From, Towards; // Towards is a direction
    std::string Label;
};

// A weld along a line: a bead with its ripples, as wide as a text allows.
struct Weld {
    Point From, To;
};

// A line that stands out a little at both ends, its label behind To; in a plot, where it is
// upright, below the numbers of the axis.
struct CentreLine {
    Point From, To;
    std::string Label = {};
    Pattern Dash = Pattern::DashDot;
};

// Where the line of a dimension runs: outside of all that is drawn, or at the measured points.
enum class Side : std::uint8_t { Left, Right, Above, Below, Inside };

// Left and Right measure the height between the points, Above and Below the width, Inside the one
// in which the points differ.
struct Dimension {
    Point From, To;
    Side At = Side::Inside;
    std::string Symbol;     // "tf"
    std::string Value = {}; // "1.77"; left away where there is no room
    bool Main = false;      // of the last ones to be left away
};

// A place, in the size of a text.
enum class MarkKind : std::uint8_t { Cross, Dot, Hollow };
struct Mark {
    Point At;
    MarkKind Kind = MarkKind::Cross;
    std::string Label = {};
};

// A text near a point, above it if it can be.
struct Label {
    Point At;
    std::string Words;
};

// A line through points, in the order given; its label stands somewhere along it.
struct Curve {
    std::vector<Point> Points;
    std::string Label = {};
    Pattern Dash = Pattern::Solid;
};

using Shape = std::variant<Line, Outline, Circle, Arrow, Pointer, Weld, CentreLine, Dimension, Mark,
                           Label, Curve>;

struct Part {
    Shape What;
    Ink In = Ink::Body;
    std::string Name = {}; // what it is lit up by, and what pointing at it gives
};

// One line of a plot's legend.
struct LegendRow {
    std::string Words;
    Ink In = Ink::Body;
    Pattern Dash = Pattern::Solid;
};

// The frame of a plot: x and y have scales of their own then, with round numbers along them. The
// legend stands in the upper right.
struct Axes {
    double XFrom = 0, XTo = 1, YFrom = 0, YTo = 1;
    std::string XTitle, YTitle; // with their units
    std::vector<LegendRow> Legend = {};
};

} // namespace Drawn

struct Drawing {
    std::string Sentence;                // what it shows, for those who can't see it
    std::vector<Drawn::Part> Parts = {}; // painted in this order, texts above all
    std::string ScaleUnit = {};          // of a scale bar with a round number; empty: no bar
    std::optional<Drawn::Axes> Frame = {};
    // Two corners of what is fitted into the view besides the parts: drawings with the same room
    // have the same scale and place in views of the same size, as long as they have no texts.
    std::optional<std::pair<Drawn::Point, Drawn::Point>> Room = {};

    void Add(Drawn::Shape what, Drawn::Ink in = Drawn::Ink::Body, std::string name = {});
    bool Empty() const { return Parts.empty() && !Frame; }
};

} // namespace Tensarix
