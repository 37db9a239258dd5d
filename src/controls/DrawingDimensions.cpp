#include "controls/DrawingSheet.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace Tensarix::Drawn {

namespace {

// In heights of a line of text.
constexpr double headLength = 0.55;
constexpr double leastBetweenHeads = 2.4; // of a line whose heads stand between its ends
constexpr double offCentre = 4;           // of a label's width: a line that can have it off centre
constexpr double firstGap = 0.95, laneStep = 0.3, leastBetweenLines = 0.55;
constexpr double lineToText = 0.9, lineUnderText = 0.3; // of a label that is not its own
constexpr double tailLength = 1.1, tailStep = 0.5, longestTail = 7;
constexpr double extensionGap = 0.15, extensionEnd = 0.25, textGap = 0.3;
constexpr int lanes = 60;
constexpr double farthestLine = 100;

double Length_Of(const Dimension& dimension) {
    const double x = std::abs(dimension.To.X - dimension.From.X);
    const double y = std::abs(dimension.To.Y - dimension.From.Y);
    switch (dimension.At) {
    case Side::Left:
    case Side::Right:
        return y;
    case Side::Inside:
        return std::max(x, y);
    default:
        return x;
    }
}

} // namespace

std::vector<const Part*> First_To_Go(const Drawing& drawing, std::size_t count) {
    std::vector<std::tuple<bool, double, const Part*>> all;
    for (const Part& part : drawing.Parts)
        if (const auto* dimension = std::get_if<Dimension>(&part.What))
            all.emplace_back(dimension->Main || dimension->At == Side::Inside,
                             Length_Of(*dimension), &part);
    std::sort(all.begin(), all.end());
    all.resize(std::min(count, all.size()));
    std::vector<const Part*> parts;
    parts.reserve(all.size());
    for (const auto& [main, length, part] : all)
        parts.push_back(part);
    return parts;
}

// A dimension in its own direction: U along it, V across; Out leads away from the drawing.
struct Sheet::Run {
    const Part& Of;
    std::string Words;
    Size Label; // along and across
    bool Upright = false;
    double From = 0, To = 0;     // along, From < To
    double FromAt = 0, ToAt = 0; // across: where the measured points lie
    double Out = 1;
    bool Pinched = false; // the heads stand outside and point inward

    Point At(double along, double across) const {
        return Upright ? Point{across, along} : Point{along, across};
    }
    Box Label_Box(Point centre) const {
        const double width = (Upright ? Label.Height : Label.Width) / 2;
        const double height = (Upright ? Label.Width : Label.Height) / 2;
        return {centre.X - width, centre.Y - height, centre.X + width, centre.Y + height};
    }
};

// Where the extension lines of a dimension beside the drawing may run.
void Sheet::Expect_Dimension(const Part& part, const Dimension& dimension) {
    if (dimension.At == Side::Inside)
        return;
    const double far = farthestLine * em_;
    const bool upright = dimension.At == Side::Left || dimension.At == Side::Right;
    const double out = dimension.At == Side::Left || dimension.At == Side::Above ? -far : far;
    for (const Point& own : {dimension.From, dimension.To}) {
        const Point from = layout_.In_View(own);
        const Point to = upright ? Point{from.X + out, from.Y} : Point{from.X, from.Y + out};
        toCome_.push_back({&part, {from, to}});
    }
}

void Sheet::Place_Dimension(const Part& part, const Dimension& dimension) {
    std::erase_if(toCome_, [&part](const auto& line) { return line.first == &part; });
    const Point a = layout_.In_View(dimension.From), b = layout_.In_View(dimension.To);
    Run run{part, dimension.Symbol, {}};
    if (detail_.Values && !dimension.Value.empty())
        run.Words += " = " + dimension.Value;
    run.Upright = dimension.At == Side::Left || dimension.At == Side::Right ||
                  (dimension.At == Side::Inside && std::abs(b.Y - a.Y) > std::abs(b.X - a.X));
    const Size size = measure_(run.Words);
    run.Label = run.Upright ? Size{size.Height, size.Width} : size;
    run.From = run.Upright ? a.Y : a.X;
    run.To = run.Upright ? b.Y : b.X;
    run.FromAt = run.Upright ? a.X : a.Y;
    run.ToAt = run.Upright ? b.X : b.Y;
    if (run.From > run.To) {
        std::swap(run.From, run.To);
        std::swap(run.FromAt, run.ToAt);
    }
    run.Out = dimension.At == Side::Left || dimension.At == Side::Above ? -1 : 1;
    run.Pinched = run.To - run.From < leastBetweenHeads * em_;
    const bool inside = dimension.At == Side::Inside;
    for (const Care care : Cares(!inside))
        if (inside ? Place_Inside(run, care) : Place_Beside(run, care))
            return;
    Leave_Out(part, run.Words);
}

// Lane by lane away from the drawing.
bool Sheet::Place_Beside(const Run& run, Care care) {
    const double edge = run.Upright ? (run.Out < 0 ? things_.Left : things_.Right)
                                    : (run.Out < 0 ? things_.Top : things_.Bottom);
    for (int lane = 0; lane < lanes; ++lane)
        if (Try(run, edge + run.Out * (firstGap + lane * laneStep) * em_, tailLength * em_, care))
            return true;
    return false;
}

// At the measured points themselves; the tail carries the label as far as it has to go.
bool Sheet::Place_Inside(const Run& run, Care care) {
    const double across = (run.FromAt + run.ToAt) / 2;
    const double longest = care == Care::LinesToCome ? longestTail / 2 : longestTail;
    for (double tail = tailLength; tail < longest; tail += tailStep)
        if (Try(run, across, tail * em_, care))
            return true;
    return false;
}

bool Sheet::Try(const Run& run, double across, double tail, Care care) {
    for (const Point& centre : Label_Centres(run, across, tail)) {
        const Proposal proposal = Proposal_Of(run, across, tail, centre);
        if (!Is_Free(proposal, run.Upright, care))
            continue;
        Accept(run, proposal, across);
        return true;
    }
    return false;
}

// Where the label may stand, the best first: in the line, behind its ends, beside it.
std::vector<Point> Sheet::Label_Centres(const Run& run, double across, double tail) const {
    const double middle = (run.From + run.To) / 2, gap = textGap * em_;
    const double length = run.To - run.From;
    if (detail_.First != Care::LinesToCome && length > offCentre * run.Label.Width)
        return {run.At(middle, across), run.At(middle - length / 4, across),
                run.At(middle + length / 4, across)};
    if (length > run.Label.Width + (2 * headLength + 4 * textGap) * em_)
        return {run.At(middle, across)};
    const bool inside = std::get<Dimension>(run.Of.What).At == Side::Inside;
    const Point beside =
        run.At(middle, across + run.Out * (run.Label.Height / 2 + extensionEnd * em_ + gap));
    const Point before = run.At(run.From - tail - gap - run.Label.Width / 2, across);
    const Point behind = run.At(run.To + tail + gap + run.Label.Width / 2, across);
    if (run.Upright && !inside)
        return {beside, behind, before};
    if (inside && !run.Pinched)
        return {beside, behind, before};
    if (!inside)
        return {before, behind, beside};
    if (!run.Upright)
        return {behind, before};
    // At the foot of the tail, on either side of it.
    const double aside = run.Label.Height / 2;
    const auto moved = [](Point point, double by) { return Point{point.X + by, point.Y}; };
    return {behind,
            before,
            moved(behind, -aside),
            moved(behind, aside),
            moved(before, -aside),
            moved(before, aside)};
}

Sheet::Proposal Sheet::Proposal_Of(const Run& run, double across, double tail,
                                   Point labelCentre) const {
    Proposal proposal{run.Label_Box(labelCentre), {}, {}};
    const auto line = [&](double from, double to) {
        proposal.Lines.push_back({run.At(from, across), run.At(to, across)});
    };
    const double label = run.Upright ? labelCentre.Y : labelCentre.X;
    const bool inLine = labelCentre == run.At(label, across);
    if (run.Pinched) { // the tail under the label as long as it has to be
        line(run.From - (label < run.From ? tail : tailLength * em_), run.From);
        line(run.From, run.To);
        line(run.To, run.To + (label > run.To ? tail : tailLength * em_));
    } else if (inLine && run.From < label && label < run.To) {
        const double half = run.Label.Width / 2 + textGap * em_;
        line(run.From, label - half);
        line(label + half, run.To);
    } else {
        line(label < run.From ? run.From - tail : run.From,
             label > run.To ? run.To + tail : run.To); // as far as its label
    }
    const auto extend = [&](double along, double from) {
        const double way = across - from;
        if (std::abs(way) <= 2 * extensionGap * em_)
            return;
        const double sign = way < 0 ? -1 : 1;
        proposal.Extensions.push_back({run.At(along, from + sign * extensionGap * em_),
                                       run.At(along, across + sign * extensionEnd * em_)});
    };
    extend(run.From, run.FromAt);
    extend(run.To, run.ToAt);
    return proposal;
}

bool Sheet::Is_Free(const Proposal& proposal, bool upright, Care care) const {
    if (!Is_Free(proposal.Label, care) || Touches_Another_Line(proposal, care))
        return false;
    const Box apart = proposal.Label.Grown(1);
    for (const Segment& line : proposal.Lines) {
        if (!Misses_Texts(line) || apart.Meets(line.From, line.To))
            return false;
        // Not into the line of another dimension, nor too close beside it.
        Box own{line.From.X, line.From.Y, line.From.X, line.From.Y};
        own.Take_In({line.To.X, line.To.Y, line.To.X, line.To.Y});
        const double beside = leastBetweenLines * em_;
        own = upright ? Box{own.Left - beside, own.Top + 1, own.Right + beside, own.Bottom - 1}
                      : Box{own.Left + 1, own.Top - beside, own.Right - 1, own.Bottom + beside};
        for (const Segment& other : dimensionLines_) {
            const bool otherUpright = other.From.X == other.To.X;
            if (otherUpright == upright && own.Meets(other.From, other.To))
                return false;
        }
    }
    return std::all_of(proposal.Extensions.begin(), proposal.Extensions.end(),
                       [&](const Segment& line) {
                           return care > Care::Everything ||
                                  (Misses_Texts(line) && !apart.Meets(line.From, line.To));
                       });
}

// Whether a label would stand right before or over the line of another dimension, and be taken for
// the label of that.
bool Sheet::Touches_Another_Line(const Proposal& proposal, Care care) const {
    const auto before = [this, care](const Box& label, const std::vector<Segment>& lines) {
        const Box near = label.Grown(lineUnderText * em_);
        const Box room{label.Left - lineToText * em_, near.Top, label.Right + lineToText * em_,
                       near.Bottom};
        return std::any_of(lines.begin(), lines.end(), [&](const Segment& line) {
            // An upright line would have to end beside the label.
            const auto ends = [&room](Point at) { return room.Meets(at, at); };
            return line.From.Y == line.To.Y
                       ? room.Meets(line.From, line.To)
                       : care < Care::AllLines && (ends(line.From) || ends(line.To));
        });
    };
    return before(proposal.Label, dimensionLines_) ||
           std::any_of(layout_.Texts.begin(), layout_.Texts.end(), [&](const Text& text) {
               return text.In == Ink::Measure && before(text.Place, proposal.Lines);
           });
}

void Sheet::Accept(const Run& run, const Proposal& proposal, double across) {
    for (const Segment& line : proposal.Extensions)
        Add_Stroke(run.Of, {line.From, line.To}, Weight::Thin, Pattern::Solid);
    for (const Segment& line : proposal.Lines) {
        Add_Stroke(run.Of, {line.From, line.To}, Weight::Thin, Pattern::Solid);
        dimensionLines_.push_back(line);
    }
    const double inward = run.Pinched ? -em_ : em_;
    Add_Head(run.Of, run.At(run.From, across), run.At(run.From + inward, across));
    Add_Head(run.Of, run.At(run.To, across), run.At(run.To - inward, across));
    Add_Text(run.Of, proposal.Label, run.Words);
}

} // namespace Tensarix::Drawn
