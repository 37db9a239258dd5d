#include "beam/BeamDrawings.h"

#include "common/NumberText.h"
#include "controls/DrawingLayout.h"
#include "measures/FeetInchFormatting.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Tensarix {

namespace {

using namespace Drawn;

constexpr std::string_view twoDecimals = "0.00";
constexpr std::array methods{BeamMethod::ASD9th, BeamMethod::ASD13th, BeamMethod::LRFD13th};

std::string Use(double value) {
    return " (use " + Format_Number(value, twoDecimals) + ")";
}

bool Has_Load(const BeamLoad& load) {
    return load.SpanFeet > 0 && load.LoadKipsPerFoot > 0 && std::isfinite(load.LoadKipsPerFoot);
}

// The heights of the drawing, in parts of the span.
constexpr double loadTop = 0.08, beamDepth = 0.011, supportDepth = 0.03;
constexpr double reactionTail = -0.12, spanLine = -0.15;
constexpr double shearAxis = -0.30, shearHeight = 0.075;
constexpr double momentAxis = -0.55, momentHeight = 0.12;
constexpr int loadArrows = 11, parabolaPieces = 24;
constexpr double leastForWord = 0.13; // of the width of the plot

void Add_Beam(Drawing& drawing, double span) {
    const auto corner = [span](double x, double y) { return Corner{{x, y * span}}; };
    drawing.Add(Outline{{{corner(0, -beamDepth), corner(span, -beamDepth), corner(span, beamDepth),
                          corner(0, beamDepth)}}});
    const double half = supportDepth / 2 * span;
    for (const double x : {0.0, span})
        drawing.Add(Outline{{{corner(x, -beamDepth), corner(x - half, -beamDepth - supportDepth),
                              corner(x + half, -beamDepth - supportDepth)}}});
}

void Add_Load(Drawing& drawing, double span, const std::string& words) {
    const double top = loadTop * span;
    drawing.Add(Line{{0, top}, {span, top}}, Ink::Force);
    for (int i = 0; i < loadArrows; ++i) {
        const double x = span * i / (loadArrows - 1);
        drawing.Add(Arrow{{x, top}, {x, beamDepth * span}}, Ink::Force);
    }
    drawing.Add(Label{{span / 2, top}, words}, Ink::Force, "w");
}

void Add_Reactions(Drawing& drawing, double span, const std::string& words) {
    const double foot = -(beamDepth + supportDepth) * span, tail = reactionTail * span;
    drawing.Add(Arrow{{0, tail}, {0, foot}, words}, Ink::Force, "R");
    drawing.Add(Arrow{{span, tail}, {span, foot}, "R"}, Ink::Force, "R");
}

// Up on the left, down on the right.
void Add_Shear(Drawing& drawing, double span, const std::string& words) {
    const double axis = shearAxis * span, height = shearHeight * span;
    drawing.Add(Outline{{{{{0, axis}}, {{0, axis + height}}, {{span / 2, axis}}},
                         {{{span / 2, axis}}, {{span, axis - height}}, {{span, axis}}}}},
                Ink::Quiet);
    drawing.Add(Line{{0, axis}, {span, axis}}, Ink::Body);
    drawing.Add(Label{{0.3 * span, axis + height}, words}, Ink::Measure, "V");
}

void Add_Moment(Drawing& drawing, double span, const std::string& words) {
    const double axis = momentAxis * span, height = momentHeight * span;
    Ring ring;
    for (int i = 0; i <= parabolaPieces; ++i) {
        const double part = static_cast<double>(i) / parabolaPieces;
        ring.push_back({{part * span, axis + 4 * part * (1 - part) * height}});
    }
    drawing.Add(Outline{{std::move(ring)}}, Ink::Quiet);
    drawing.Add(Line{{0, axis}, {span, axis}}, Ink::Body);
    drawing.Add(Label{{span / 2, axis + height}, words}, Ink::Measure, "M");
}

BeamInput At_Span(BeamInput input, double span) {
    input.TypedSpanFeet = span;
    return input;
}

Curve Bending_Branch(BeamMethod method, const BeamInput& input, double from, double to) {
    constexpr int pieces = 48;
    Curve curve;
    for (int i = 0; i <= pieces && from > 0 && from < to; ++i) {
        const double span = from * std::pow(to / from, static_cast<double>(i) / pieces);
        curve.Points.push_back({span, Beam_Load(method, At_Span(input, span)).LoadKipsPerFoot});
    }
    return curve;
}

// Of the curves of a plot: the method's own is solid, the other two differ.
Pattern Pattern_Of(BeamMethod each, BeamMethod own) {
    if (each == own)
        return Pattern::Solid;
    const bool first = each == (own == methods.front() ? methods[1] : methods.front());
    return first ? Pattern::Dotted : Pattern::Dashed;
}

void Add_Other(Drawing& drawing, BeamMethod method, const BeamInput& input, Pattern dash) {
    const BeamLoad boundary = Beam_Load(method, At_Span(input, 0));
    Curve curve = Bending_Branch(method, input, boundary.BoundaryFeet, drawing.Frame->XTo);
    curve.Points.insert(curve.Points.begin(), {0, boundary.LoadKipsPerFoot});
    curve.Dash = dash;
    drawing.Add(std::move(curve), Ink::Quiet, std::string{Method_Name(method)});
}

Axes Frame_Of(BeamMethod own, const BeamInput& input, const BeamLoad& present) {
    Axes axes{0,          Round_Up(std::max(2.2 * present.BoundaryFeet, 1.25 * present.SpanFeet)),
              0,          0,
              "Span, ft", "w, Kip/ft"};
    for (const BeamMethod method : methods) {
        axes.YTo = std::max(axes.YTo, Beam_Load(method, At_Span(input, 0)).LoadKipsPerFoot);
        axes.Legend.push_back({std::string{Method_Name(method)},
                               method == own ? Ink::Body : Ink::Quiet, Pattern_Of(method, own)});
    }
    axes.YTo = Round_Up(1.05 * axes.YTo);
    return axes;
}

} // namespace

std::string_view Method_Name(BeamMethod method) {
    switch (method) {
    case BeamMethod::ASD9th:
        return "9th Edition";
    case BeamMethod::ASD13th:
        return "13th Edition, ASD";
    case BeamMethod::LRFD13th:
        break;
    }
    return "13th Edition, LRFD";
}

BeamLoad Beam_Load(BeamMethod method, const BeamInput& input) {
    if (method == BeamMethod::ASD9th)
        return Beam_Load_9th(input);
    return Beam_Load_13th(input,
                          method == BeamMethod::ASD13th ? DesignMethod::ASD : DesignMethod::LRFD);
}

Drawing Beam_Under_Load(const BeamLoad& load, double magnification,
                        const std::optional<BeamLoad>& toUse) {
    const bool known = Has_Load(load);
    const double span = known ? load.SpanFeet : 1;
    const auto words = [&](const std::string& symbol, auto value, std::string_view unit) {
        if (!known)
            return symbol;
        return symbol + " = " + Format_Number(value(load), twoDecimals) + std::string{unit} +
               (toUse ? Use(value(*toUse)) : "");
    };
    const std::string w = words(
        "w", [](auto& l) { return l.LoadKipsPerFoot; }, " Kip/ft");
    const std::string R = words(
        "R", [=](auto& l) { return (1 + magnification) * l.EndReactionKips; }, " Kips");
    const std::string V = words(
        "V", [](auto& l) { return l.EndReactionKips; }, " Kips");
    const std::string M = words(
        "M", [=](auto& l) { return l.LoadKipsPerFoot * span * span / 8; }, " Kip-ft");
    Drawing drawing;
    drawing.Sentence = "A simply supported beam under a uniform load";
    if (known)
        drawing.Sentence += ": span " + Full_Length_Text(span) + ", " + w + ", end reaction " + R +
                            ", shear at the ends " + V + ", moment in the middle " + M;
    Add_Load(drawing, span, w);
    Add_Beam(drawing, span);
    Add_Reactions(drawing, span, R);
    drawing.Add(Dimension{{0, spanLine * span},
                          {span, spanLine * span},
                          Side::Inside,
                          "Span",
                          known ? Full_Length_Text(span) : ""},
                Ink::Measure, "Span");
    Add_Shear(drawing, span, V);
    Add_Moment(drawing, span, M);
    return drawing;
}

Drawing Load_Against_Span(BeamMethod method, const BeamInput& input, const BeamLoad& present,
                          const std::optional<BeamLoad>& toUse) {
    Drawing drawing;
    const BeamLoad boundary = Beam_Load(method, At_Span(input, 0));
    if (!Has_Load(present) || !Has_Load(boundary))
        return drawing;
    drawing.Frame = Frame_Of(method, input, present);
    // Below the boundary the rules keep the load of the boundary.
    for (const BeamMethod each : methods)
        if (each != method)
            Add_Other(drawing, each, input, Pattern_Of(each, method));
    const double Lv = boundary.BoundaryFeet;
    const double highest = boundary.LoadKipsPerFoot;
    drawing.Add(Curve{{{0, highest}, {Lv, highest}}}, Ink::Body, "Shear");
    if (Lv > leastForWord * drawing.Frame->XTo)
        drawing.Add(Label{{Lv / 2, highest}, "Shear"}, Ink::Body, "Shear");
    Curve bending = Bending_Branch(method, input, Lv, drawing.Frame->XTo);
    bending.Label = "Bending";
    drawing.Add(std::move(bending), Ink::Body, "Bending");
    const std::string point = "w = " + Format_Number(present.LoadKipsPerFoot, twoDecimals) +
                              (toUse ? Use(toUse->LoadKipsPerFoot) : "");
    drawing.Add(Mark{{present.SpanFeet, present.LoadKipsPerFoot}, MarkKind::Dot, point},
                Ink::Result, "Present");
    drawing.Add(CentreLine{{Lv, highest}, {Lv, 0}, "Boundary " + Full_Length_Text(Lv)}, Ink::Axis,
                "Boundary");
    drawing.Sentence = "Allowable load against span by the " + std::string{Method_Name(method)} +
                       ": shear governs up to " + Full_Length_Text(Lv) + ", bending beyond; at " +
                       Full_Length_Text(present.SpanFeet) + ": " + point + " Kip/ft";
    return drawing;
}

std::string Load_At_Span(BeamMethod method, const BeamInput& input, double span) {
    const BeamLoad load = Beam_Load(method, At_Span(input, span));
    if (!(span > 0) || !Has_Load(load))
        return {};
    return Full_Length_Text(span) + ": w = " + Format_Number(load.LoadKipsPerFoot, twoDecimals) +
           " Kip/ft by the " + std::string{Method_Name(method)} +
           (span < load.BoundaryFeet ? ", shear governs" : "");
}

} // namespace Tensarix
