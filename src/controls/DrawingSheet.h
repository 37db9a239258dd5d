// One try to lay a drawing out at one scale. Private to the layout of drawings: DrawingSheet.cpp
// has lines and labels, DrawingDimensions.cpp the dimensions, DrawingFrame.cpp what stands around
// a plot.
#pragma once

#include "controls/DrawingLayout.h"

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace Tensarix::Drawn {

// How much a label keeps clear of besides other texts; the first that finds a place is taken.
enum class Care {
    LinesToCome,   // all lines, also where the dimensions yet to be placed may extend theirs
    Everything,    // all lines, and its dimension's extension lines cross no text either
    AllLines,      // these may cross a text
    DimensionLines // and the label lines that aren't of dimensions
};
inline constexpr Care cares[] = {Care::LinesToCome, Care::Everything, Care::AllLines,
                                 Care::DimensionLines};

// Side by side, in heights of a line of text.
inline constexpr double betweenTexts = 0.9, wellBetweenTexts = 1.6;

// What may be left away for want of room.
struct Detail {
    bool Values = true;
    std::size_t Dimensions = 0; // so many are left away
    // Of the labels. Less takes less room: with Everything, those of dimensions beside the drawing
    // don't look ahead, and may stand off their middle; with AllLines, no label looks ahead.
    Care First = Care::LinesToCome;
};

// So many dimensions, in the order in which they go for want of room: the shortest beside the
// drawing, at last the main ones and those inside it.
std::vector<const Part*> First_To_Go(const Drawing& drawing, std::size_t count);

class Sheet {
  public:
    // The layout has its scales and its zero.
    Sheet(const Drawing& drawing, const Layout& scaled, const TextMeasure& measure, Detail detail);

    void Draw();
    // What has been drawn, and the room that it takes with its texts.
    Layout& Result() { return layout_; }
    const Box& Extent() const { return extent_; }

  private:
    struct Segment {
        Point From, To;
    };
    // A proposal for a dimension: its label, and the lines that it adds.
    struct Proposal {
        Box Label;
        std::vector<Segment> Lines, Extensions;
    };
    struct Run; // one dimension along its own direction (DrawingDimensions.cpp)

    // Lines.
    void Draw_Shape(const Part& part);
    void Draw_Outline(const Part& part, const Outline& outline);
    void Draw_Arrow(const Part& part, const Arrow& arrow);
    void Draw_Mark(const Part& part, const Mark& mark);
    void Draw_Weld(const Part& part, const Weld& weld);
    void Draw_CentreLine(const Part& part, const CentreLine& line);
    void Place_Axis_Label(const Part& part);
    bool Place_Behind(const Part& part, Care care);
    bool Try_Behind(const Part& part, Point from, Point to, double reach, Care care);
    void Add_Stroke(const Part& part, std::vector<Point> points, Weight width, Pattern dash);
    void Add_Head(const Part& part, Point tip, Point from);
    static std::vector<Point> Circle_Points(Point centre, double radius);

    // Labels.
    // In which care a place is looked for, the most careful first.
    std::span<const Care> Cares(bool besideDrawing) const {
        const Care last = besideDrawing ? Care::LinesToCome : Care::Everything;
        return std::span(cares).subspan(detail_.First <= last ? 0 : 1);
    }
    Box Text_Box(Point centre, const std::string& words) const;
    void Add_Text(const Part& part, const Box& place, const std::string& words);
    bool Is_Free(const Box& place, Care care) const;
    bool Misses_Texts(const Segment& line) const;
    void Place_Label(const Part& part);
    bool Place_Near(const Part& part, const std::vector<Point>& anchors, const std::string& words,
                    bool above = false);
    bool Is_Taken_For_Another(const Part& part, const Box& place, Care care) const;
    bool Lies_On_A_Line(Point from, Point to) const;
    void Draw_Leader(const Part& part, Point mark);
    void Place_Pointer(const Part& part, const Pointer& pointer);
    bool Try_Pointer(const Part& part, const std::string& words, Point tail, Point way, Care care);
    void Mark_Crossed_Texts();
    void Leave_Out(const Part& part, const std::string& words);

    // Dimensions.
    void Expect_Dimension(const Part& part, const Dimension& dimension);
    void Place_Dimension(const Part& part, const Dimension& dimension);
    bool Place_Beside(const Run& run, Care care);
    bool Place_Inside(const Run& run, Care care);
    bool Try(const Run& run, double across, double tail, Care care);
    std::vector<Point> Label_Centres(const Run& run, double across, double tail) const;
    Proposal Proposal_Of(const Run& run, double across, double tail, Point labelCentre) const;
    bool Is_Free(const Proposal& proposal, bool upright, Care care) const;
    bool Touches_Another_Line(const Proposal& proposal, Care care) const;
    void Accept(const Run& run, const Proposal& proposal, double across);

    // The plot.
    void Draw_Frame(const Axes& axes);
    void Draw_Ticks(const Axes& axes, bool upright);
    void Draw_Legend(const Axes& axes);
    void Place_Below_Axis(const Part& part, const std::string& words, double x);

    const Drawing& drawing_;
    const TextMeasure& measure_;
    Detail detail_;
    Layout layout_;
    double em_;           // the height of a line of text
    Box xTitle_;          // of a plot
    Box extent_, things_; // everything; without texts, dimensions and the ends of centre lines
    bool started_ = false;
    std::vector<Segment> segments_;                       // all lines
    std::vector<Segment> dimensionLines_;                 // those of dimensions, with their tails
    std::vector<std::pair<const Part*, Segment>> toCome_; // extension lines, far enough out
    std::vector<std::pair<const Part*, Point>> named_;    // marks and ends that have a label
};

} // namespace Tensarix::Drawn
