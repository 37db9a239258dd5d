#include "controls/DrawingSheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Tensarix::Drawn {

namespace {

// In heights of a line of text.
constexpr double headLength = 0.55, headHalfWidth = 0.17;
constexpr double markSize = 0.38, dotSize = 0.22;
constexpr double overhang = 0.7, reachStep = 0.5, longestReach = 8;
constexpr double labelDistances[] = {0.35, 0.8, 1.4, 2.2, 3.2};
constexpr double besideMark = 1;    // a label farther from its own mark has a leader
constexpr double besideLine = 0.3;  // a leader so near to a line can't be told from it
constexpr double nearAnother = 1.6; // one so near to another mark is taken for the label of that
constexpr double textMargin = 0.2, beforeText = 0.35; // the latter side by side
constexpr double pointerLength = 2, pointerStep = 0.5, farthestPointer = 16, pointerBeside = 1.1;
constexpr int pointersBeside = 3;
constexpr double beadHalfWidth = 0.26, rippleStep = 0.42, rippleDepth = 0.22;

constexpr int circlePieces = 72;

constexpr std::array<Point, 8> directions{
    {{1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}, {0, 1}, {1, 1}}};
constexpr std::array<Point, 8> directionsFromAbove{
    {{0, -1}, {1, 0}, {-1, 0}, {0, 1}, {1, -1}, {-1, -1}, {1, 1}, {-1, 1}}};

Point Along(Point from, Point to, double length) {
    const double whole = std::hypot(to.X - from.X, to.Y - from.Y);
    if (whole == 0)
        return {from.X + length, from.Y};
    return {from.X + (to.X - from.X) * length / whole, from.Y + (to.Y - from.Y) * length / whole};
}

// Some points of a curve from its end to its start, where its label may stand.
std::vector<Point> Spread(const std::vector<Point>& points) {
    constexpr int most = 9;
    std::vector<Point> some;
    for (int i = most - 1; i >= 0 && !points.empty(); --i) {
        const double place = static_cast<double>(points.size() - 1) * i / (most - 1);
        const auto before = static_cast<std::size_t>(place);
        const Point &a = points[before], &b = points[std::min(before + 1, points.size() - 1)];
        const double part = place - static_cast<double>(before);
        some.push_back({a.X + part * (b.X - a.X), a.Y + part * (b.Y - a.Y)});
    }
    return some;
}

} // namespace

Sheet::Sheet(const Drawing& drawing, const Layout& scaled, const TextMeasure& measure,
             Detail detail)
    : drawing_(drawing), measure_(measure), detail_(detail), layout_(scaled),
      em_(measure("X").Height) {
    layout_.Values = detail.Values;
}

void Sheet::Draw() {
    if (drawing_.Frame)
        Draw_Frame(*drawing_.Frame);
    for (const Part& part : drawing_.Parts)
        Draw_Shape(part);
    if (drawing_.Room)
        for (const Point& corner : {drawing_.Room->first, drawing_.Room->second}) {
            const Point at = layout_.In_View(corner);
            extent_.Take_In({at.X, at.Y, at.X, at.Y});
        }
    things_ = extent_;
    std::vector<const Part*> dimensions;
    const std::vector<const Part*> leftAway = First_To_Go(drawing_, detail_.Dimensions);
    for (const Part& part : drawing_.Parts)
        if (std::holds_alternative<Dimension>(part.What) &&
            std::find(leftAway.begin(), leftAway.end(), &part) == leftAway.end())
            dimensions.push_back(&part);
    for (const Part* part : dimensions)
        Expect_Dimension(*part, std::get<Dimension>(part->What));
    for (const Part& part : drawing_.Parts) {
        const auto* mark = std::get_if<Mark>(&part.What);
        const auto* line = std::get_if<CentreLine>(&part.What);
        if (mark && !mark->Label.empty())
            named_.emplace_back(&part, layout_.In_View(mark->At));
        if (line && !line->Label.empty() && !drawing_.Frame)
            named_.emplace_back(&part, layout_.In_View(line->To));
    }
    std::vector<const Part*> axes; // whose labels come last
    for (const Part& part : drawing_.Parts)
        if (const auto* line = std::get_if<CentreLine>(&part.What))
            Draw_CentreLine(part, *line);
    for (const auto& [part, at] : named_)
        if (std::holds_alternative<CentreLine>(part->What) &&
            (detail_.First == Care::AllLines || !Place_Behind(*part, detail_.First)))
            axes.push_back(part);
    // Those inside have the least choice of places, those beside the drawing the most.
    for (const Part* part : dimensions)
        if (const auto& dimension = std::get<Dimension>(part->What); dimension.At == Side::Inside)
            Place_Dimension(*part, dimension);
    for (const Part& part : drawing_.Parts)
        Place_Label(part);
    for (const Part* part : dimensions)
        if (const auto& dimension = std::get<Dimension>(part->What); dimension.At != Side::Inside)
            Place_Dimension(*part, dimension);
    for (const Part* part : axes)
        Place_Axis_Label(*part);
    for (const Part& part : drawing_.Parts)
        if (const auto* pointer = std::get_if<Pointer>(&part.What))
            Place_Pointer(part, *pointer);
    Mark_Crossed_Texts();
}

void Sheet::Draw_Shape(const Part& part) {
    if (const auto* line = std::get_if<Line>(&part.What))
        Add_Stroke(part, {layout_.In_View(line->From), layout_.In_View(line->To)}, Weight::Thin,
                   line->Dash);
    else if (const auto* outline = std::get_if<Outline>(&part.What))
        Draw_Outline(part, *outline);
    else if (const auto* circle = std::get_if<Circle>(&part.What)) {
        std::vector<Point> points =
            Circle_Points(layout_.In_View(circle->Centre), circle->Radius * layout_.XScale);
        if (circle->Filled)
            layout_.Fills.push_back({{points}, part.In, true, part.Name});
        Add_Stroke(part, std::move(points), Weight::Thin, Pattern::Solid);
    } else if (const auto* arrow = std::get_if<Arrow>(&part.What))
        Draw_Arrow(part, *arrow);
    else if (const auto* mark = std::get_if<Mark>(&part.What))
        Draw_Mark(part, *mark);
    else if (const auto* weld = std::get_if<Weld>(&part.What))
        Draw_Weld(part, *weld);
    else if (const auto* curve = std::get_if<Curve>(&part.What)) {
        std::vector<Point> points;
        points.reserve(curve->Points.size());
        for (const Point& point : curve->Points)
            points.push_back(layout_.In_View(point));
        Add_Stroke(part, std::move(points), Weight::Bold, curve->Dash);
    }
}

void Sheet::Draw_Outline(const Part& part, const Outline& outline) {
    Fill fill{{}, part.In, true, part.Name};
    for (const Ring& ring : outline.Rings) {
        std::vector<Point> points = Polygon_Of(ring);
        for (Point& point : points)
            point = layout_.In_View(point);
        fill.Rings.push_back(points);
        if (!points.empty())
            points.push_back(points.front());
        Add_Stroke(part, std::move(points), Weight::Thin, Pattern::Solid);
    }
    layout_.Fills.push_back(std::move(fill));
}

void Sheet::Draw_Arrow(const Part& part, const Arrow& arrow) {
    const Point tail = layout_.In_View(arrow.Tail), head = layout_.In_View(arrow.Head);
    Add_Stroke(part, {tail, head}, Weight::Bold, Pattern::Solid);
    Add_Head(part, head, tail);
}

void Sheet::Draw_Mark(const Part& part, const Mark& mark) {
    const Point at = layout_.In_View(mark.At);
    const double size = markSize * em_;
    if (mark.Kind == MarkKind::Cross) {
        Add_Stroke(part, {{at.X - size, at.Y}, {at.X + size, at.Y}}, Weight::Bold, Pattern::Solid);
        Add_Stroke(part, {{at.X, at.Y - size}, {at.X, at.Y + size}}, Weight::Bold, Pattern::Solid);
        return;
    }
    const bool dot = mark.Kind == MarkKind::Dot;
    std::vector<Point> points = Circle_Points(at, (dot ? dotSize : markSize) * em_);
    if (dot)
        layout_.Fills.push_back({{points}, part.In, false, part.Name});
    Add_Stroke(part, std::move(points), Weight::Bold, Pattern::Solid);
}

// Only the edges of the bead keep texts away, not its many ripples.
void Sheet::Draw_Weld(const Part& part, const Weld& weld) {
    const Point from = layout_.In_View(weld.From), to = layout_.In_View(weld.To);
    const double length = std::hypot(to.X - from.X, to.Y - from.Y);
    if (length == 0)
        return;
    const Point along{(to.X - from.X) / length, (to.Y - from.Y) / length};
    const auto at = [&](double forward, double aside) {
        return Point{from.X + along.X * forward - along.Y * aside,
                     from.Y + along.Y * forward + along.X * aside};
    };
    const double half = beadHalfWidth * em_;
    const std::vector<Point> edge{at(0, -half), at(length, -half), at(length, half), at(0, half)};
    layout_.Fills.push_back({{edge}, part.In, true, part.Name});
    Add_Stroke(part, {edge[0], edge[1], edge[2], edge[3], edge[0]}, Weight::Thin, Pattern::Solid);
    const int ripples = static_cast<int>(length / (rippleStep * em_));
    for (int i = 1; i < ripples; ++i) {
        Stroke ripple{{}, part.In, Weight::Thin, Pattern::Solid, part.Name};
        for (const double aside : {-1.0, -0.5, 0.0, 0.5, 1.0})
            ripple.Points.push_back(
                at(length * i / ripples + rippleDepth * em_ * (0.5 - aside * aside), aside * half));
        layout_.Strokes.push_back(std::move(ripple));
    }
}

void Sheet::Draw_CentreLine(const Part& part, const CentreLine& line) {
    const Point from = layout_.In_View(line.From), to = layout_.In_View(line.To);
    Add_Stroke(part, {Along(from, to, -overhang * em_), Along(to, from, -overhang * em_)},
               Weight::Thin, line.Dash);
    if (drawing_.Frame && !line.Label.empty())
        Place_Below_Axis(part, line.Label, to.X);
}

// Where all else has its place already.
void Sheet::Place_Axis_Label(const Part& part) {
    if (Place_Behind(part, Care::AllLines) || Place_Behind(part, Care::DimensionLines))
        return;
    const auto& line = std::get<CentreLine>(part.What);
    const std::vector<Point> ends{layout_.In_View(line.To), layout_.In_View(line.From)};
    if (detail_.First < Care::AllLines || !Place_Near(part, ends, line.Label))
        Leave_Out(part, line.Label);
}

// Behind one of its ends, which reaches as far as the label has to go.
bool Sheet::Place_Behind(const Part& part, Care care) {
    const auto& line = std::get<CentreLine>(part.What);
    const Point from = layout_.In_View(line.From), to = layout_.In_View(line.To);
    for (double reach = overhang; reach < longestReach; reach += reachStep)
        if (Try_Behind(part, from, to, reach, care) || Try_Behind(part, to, from, reach, care))
            return true;
    return false;
}

bool Sheet::Try_Behind(const Part& part, Point from, Point to, double reach, Care care) {
    const auto& line = std::get<CentreLine>(part.What);
    const Size size = measure_(line.Label);
    const Point usual = Along(to, from, -overhang * em_), end = Along(to, from, -reach * em_);
    const Point onward = Along({0, 0}, {end.X - from.X, end.Y - from.Y}, 1);
    const Point centre{end.X + onward.X * (size.Width / 2 + 2 * textMargin * em_),
                       end.Y + onward.Y * (size.Height / 2 + 1.5 * textMargin * em_)};
    const Box place = Text_Box(centre, line.Label);
    if (!Is_Free(place, care) || !Misses_Texts({usual, end}))
        return false;
    if (reach > overhang)
        Add_Stroke(part, {usual, end}, Weight::Thin, line.Dash);
    Add_Text(part, place, line.Label);
    return true;
}

void Sheet::Add_Stroke(const Part& part, std::vector<Point> points, Weight width, Pattern dash) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Box place{points[i].X, points[i].Y, points[i].X, points[i].Y};
        if (!started_)
            extent_ = place;
        started_ = true;
        extent_.Take_In(place);
        if (i > 0)
            segments_.push_back({points[i - 1], points[i]});
    }
    layout_.Strokes.push_back(
        {std::move(points), part.In, width, dash, part.Name,
         layout_.Plot.has_value() && std::holds_alternative<Curve>(part.What)});
}

// The head of an arrow whose tip is at a point and which comes from another one. A short arrow has
// a small one, so that its length can still be seen.
void Sheet::Add_Head(const Part& part, Point tip, Point from) {
    constexpr double mostOfArrow = 0.6;
    const double length =
        std::min(headLength * em_, mostOfArrow * std::hypot(from.X - tip.X, from.Y - tip.Y));
    const Point foot = Along(tip, from, length);
    const Point half =
        Along({0, 0}, {-(foot.Y - tip.Y), foot.X - tip.X}, headHalfWidth / headLength * length);
    layout_.Fills.push_back(
        {{{tip, {foot.X + half.X, foot.Y + half.Y}, {foot.X - half.X, foot.Y - half.Y}}},
         part.In,
         false,
         part.Name});
}

std::vector<Point> Sheet::Circle_Points(Point centre, double radius) {
    std::vector<Point> points;
    for (int i = 0; i <= circlePieces; ++i) {
        const double angle = 2 * std::numbers::pi * i / circlePieces;
        points.push_back(
            {centre.X + radius * std::cos(angle), centre.Y + radius * std::sin(angle)});
    }
    return points;
}

Box Sheet::Text_Box(Point centre, const std::string& words) const {
    const Size size = measure_(words);
    return {centre.X - size.Width / 2, centre.Y - size.Height / 2, centre.X + size.Width / 2,
            centre.Y + size.Height / 2};
}

void Sheet::Add_Text(const Part& part, const Box& place, const std::string& words) {
    if (!started_)
        extent_ = place;
    started_ = true;
    extent_.Take_In(place);
    layout_.Texts.push_back({place, words, part.In, part.Name});
}

bool Sheet::Is_Free(const Box& place, Care care) const {
    Box room = place.Grown(textMargin * em_);
    room.Left = place.Left - beforeText * em_;
    room.Right = place.Right + beforeText * em_;
    const auto& lines = care == Care::DimensionLines ? dimensionLines_ : segments_;
    if (std::any_of(lines.begin(), lines.end(),
                    [&](const Segment& line) { return room.Meets(line.From, line.To); }))
        return false;
    if (care == Care::LinesToCome &&
        std::any_of(toCome_.begin(), toCome_.end(),
                    [&](const auto& line) { return room.Meets(line.second.From, line.second.To); }))
        return false;
    const double between = care == Care::LinesToCome ? wellBetweenTexts : betweenTexts;
    room.Left = place.Left - between * em_;
    room.Right = place.Right + between * em_;
    return std::none_of(layout_.Texts.begin(), layout_.Texts.end(),
                        [&](const Text& text) { return text.Place.Overlaps(room); });
}

bool Sheet::Misses_Texts(const Segment& line) const {
    return std::none_of(layout_.Texts.begin(), layout_.Texts.end(), [&](const Text& text) {
        return text.Place.Grown(textMargin * em_).Meets(line.From, line.To);
    });
}

void Sheet::Place_Label(const Part& part) {
    std::vector<Point> anchors;
    std::string words;
    const auto* label = std::get_if<Label>(&part.What);
    if (label) {
        anchors = {layout_.In_View(label->At)};
        words = label->Words;
    } else if (const auto* mark = std::get_if<Mark>(&part.What)) {
        anchors = {layout_.In_View(mark->At)};
        words = mark->Label;
    } else if (const auto* arrow = std::get_if<Arrow>(&part.What)) {
        const Point tail = layout_.In_View(arrow->Tail), head = layout_.In_View(arrow->Head);
        anchors = {tail, {(tail.X + head.X) / 2, (tail.Y + head.Y) / 2}, head};
        words = arrow->Label;
    } else if (const auto* curve = std::get_if<Curve>(&part.What)) {
        for (const Point& point : Spread(curve->Points))
            anchors.push_back(layout_.In_View(point));
        words = curve->Label;
    }
    if (words.empty())
        return;
    if (!Place_Near(part, anchors, words, label != nullptr))
        Leave_Out(part, words);
    else if (anchors.size() == 1)
        Draw_Leader(part, anchors.front());
}

// From a mark or a point to its label, the last one, where that found no place beside it.
void Sheet::Draw_Leader(const Part& part, Point mark) {
    const Box label = layout_.Texts.back().Place.Grown(textMargin * em_);
    const Point end = label.Nearest(mark);
    const Segment line{Along(mark, end, (markSize + textMargin) * em_), end};
    const double length = std::hypot(end.X - mark.X, end.Y - mark.Y);
    const bool unclear =
        length > besideMark * em_ || Is_Taken_For_Another(part, label, Care::LinesToCome);
    if (unclear && Misses_Texts({line.From, Along(end, mark, 1)}))
        Add_Stroke(part, {line.From, line.To}, Weight::Thin, Pattern::Solid);
}

// Where a label would be taken for that of another one of its kind: too near to that or behind it,
// or where its leader would run through a text.
bool Sheet::Is_Taken_For_Another(const Part& part, const Box& place, Care care) const {
    const auto own = std::find_if(named_.begin(), named_.end(),
                                  [&part](const auto& named) { return named.first == &part; });
    if (own == named_.end() || care == Care::DimensionLines)
        return false;
    const Point from = own->second, to = place.Nearest(from);
    const double away = std::hypot(to.X - from.X, to.Y - from.Y);
    const bool mark = std::holds_alternative<Mark>(part.What);
    if (mark && away > besideMark * em_ && (!Misses_Texts({from, to}) || Lies_On_A_Line(from, to)))
        return true;
    const double near = care == Care::AllLines && mark ? 0 : std::min(away, nearAnother * em_);
    return std::any_of(named_.begin(), named_.end(), [&](const auto& named) {
        const Point at = named.second, end = place.Nearest(at);
        if (named.first->What.index() != part.What.index() || at == from)
            return false;
        const Box other = Box{at.X, at.Y, at.X, at.Y}.Grown(markSize * em_);
        return std::hypot(end.X - at.X, end.Y - at.Y) < near ||
               (other.Meets(from, to) && !other.Contains({from.X, from.Y, from.X, from.Y}));
    });
}

// Where a leader would be lost in a line that runs the same way.
bool Sheet::Lies_On_A_Line(Point from, Point to) const {
    const Point middle{(from.X + to.X) / 2, (from.Y + to.Y) / 2};
    return std::any_of(segments_.begin(), segments_.end(), [&](const Segment& line) {
        return Distance(middle, line.From, line.To) < besideLine * em_ &&
               Distance(to, line.From, line.To) < besideLine * em_;
    });
}

// The nearest free place around the anchors: first one that crosses no line.
bool Sheet::Place_Near(const Part& part, const std::vector<Point>& anchors,
                       const std::string& words, bool above) {
    const Size size = measure_(words);
    for (const Care care : Cares(false))
        for (const double distance : labelDistances)
            for (const Point& anchor : anchors)
                for (const Point& towards : above ? directionsFromAbove : directions) {
                    const Point centre{anchor.X + towards.X * (size.Width / 2 + distance * em_),
                                       anchor.Y + towards.Y * (size.Height / 2 + distance * em_)};
                    const Box place = Text_Box(centre, words);
                    if ((layout_.Plot && !layout_.Plot->Contains(place)) || !Is_Free(place, care) ||
                        Is_Taken_For_Another(part, place, care))
                        continue;
                    Add_Text(part, place, words);
                    return true;
                }
    return false;
}

// As near to its point as it finds room, on the way that it points or beside it.
void Sheet::Place_Pointer(const Part& part, const Pointer& pointer) {
    const Point from = layout_.In_View(pointer.From);
    const Point way = Along({0, 0}, {pointer.Towards.X, -pointer.Towards.Y}, em_);
    for (const Care care : Cares(false))
        for (double away = 0; away < farthestPointer; away += pointerStep)
            for (int k = 0; k <= 2 * pointersBeside; ++k) {
                const double aside = pointerBeside * (k % 2 == 0 ? k / 2 : -(k + 1) / 2);
                const Point tail{from.X + away * way.X - aside * way.Y,
                                 from.Y + away * way.Y + aside * way.X};
                if (Try_Pointer(part, pointer.Label, tail, way, care))
                    return;
            }
    Leave_Out(part, pointer.Label);
}

// The label stands behind the tail; the way is as long as a line of text is high.
bool Sheet::Try_Pointer(const Part& part, const std::string& words, Point tail, Point way,
                        Care care) {
    const Size size = measure_(words);
    const double behind =
        std::min(size.Width / std::abs(way.X), size.Height / std::abs(way.Y)) / 2 + textMargin;
    const Box place = Text_Box({tail.X - behind * way.X, tail.Y - behind * way.Y}, words);
    const Point head{tail.X + pointerLength * way.X, tail.Y + pointerLength * way.Y};
    Box shaft{tail.X, tail.Y, tail.X, tail.Y};
    shaft.Take_In({head.X, head.Y, head.X, head.Y});
    if (!Is_Free(place, care) || !Is_Free(shaft, care))
        return false;
    Add_Stroke(part, {tail, head}, Weight::Bold, Pattern::Solid);
    Add_Head(part, head, tail);
    Add_Text(part, place, words);
    return true;
}

void Sheet::Mark_Crossed_Texts() {
    for (Text& text : layout_.Texts)
        text.Crossed = std::any_of(
            layout_.Strokes.begin(), layout_.Strokes.end(), [&text](const Stroke& stroke) {
                for (std::size_t i = 1; i < stroke.Points.size(); ++i)
                    if (text.Place.Meets(stroke.Points[i - 1], stroke.Points[i]))
                        return true;
                return false;
            });
}

void Sheet::Leave_Out(const Part& part, const std::string& words) {
    layout_.LeftOut.push_back(part.Name.empty() ? words : part.Name);
}

} // namespace Tensarix::Drawn
