#include "controls/DrawingLayout.h"

#include "common/NumberText.h"
#include "controls/DrawingSheet.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace Tensarix::Drawn {

namespace {

constexpr double edgeRoom = 3; // pixels between the drawing and the edge of the view
constexpr int mostTries = 12;  // to find the scale at which all fits
constexpr double scaleStep = 0.92, largePart = 0.6, muchLarger = 1.25;
// Of the scale without texts: below these, something goes, what crosses texts at the second one.
constexpr double easyPart = 0.3, leastPart = 0.2;
constexpr std::size_t valuesBefore = 2; // one dimension in so many may go before the values
constexpr double barRoom = 2.1, barPart = 0.25, barTick = 0.25, barGap = 0.4; // lines; of the view

Point Between(Point from, Point to, double length) {
    const double whole = std::hypot(to.X - from.X, to.Y - from.Y);
    const double part = whole > 0 ? std::min(length / whole, 1.0) : 0;
    return {from.X + (to.X - from.X) * part, from.Y + (to.Y - from.Y) * part};
}

// All points that decide how far a drawing reaches, in its own units.
class Reach {
  public:
    void Take_In(Point point) {
        low_ = {std::min(low_.X, point.X), std::min(low_.Y, point.Y)};
        high_ = {std::max(high_.X, point.X), std::max(high_.Y, point.Y)};
    }
    void operator()(const Line& line) { Take_In(line.From), Take_In(line.To); }
    void operator()(const Outline& outline) {
        for (const Ring& ring : outline.Rings)
            for (const Corner& corner : ring)
                Take_In(corner.At);
    }
    void operator()(const Circle& circle) {
        Take_In({circle.Centre.X - circle.Radius, circle.Centre.Y - circle.Radius});
        Take_In({circle.Centre.X + circle.Radius, circle.Centre.Y + circle.Radius});
    }
    void operator()(const Arrow& arrow) { Take_In(arrow.Tail), Take_In(arrow.Head); }
    void operator()(const Pointer& pointer) { Take_In(pointer.From); }
    void operator()(const Weld& weld) { Take_In(weld.From), Take_In(weld.To); }
    void operator()(const CentreLine& line) { Take_In(line.From), Take_In(line.To); }
    void operator()(const Dimension& dimension) { Take_In(dimension.From), Take_In(dimension.To); }
    void operator()(const Mark& mark) { Take_In(mark.At); }
    void operator()(const Label& label) { Take_In(label.At); }
    void operator()(const Curve& curve) {
        for (const Point& point : curve.Points)
            Take_In(point);
    }
    Box Whole() const { return {low_.X, high_.Y, high_.X, low_.Y}; }

  private:
    static constexpr double far = std::numeric_limits<double>::max();
    Point low_{far, far}, high_{-far, -far};
};

// Its least and greatest x and y; Top is the greatest y.
Box Bounds_Of(const Drawing& drawing) {
    if (const auto& axes = drawing.Frame)
        return {axes->XFrom, axes->YTo, axes->XTo, axes->YFrom};
    Reach reach;
    for (const Part& part : drawing.Parts)
        std::visit(reach, part.What);
    if (drawing.Room)
        reach.Take_In(drawing.Room->first), reach.Take_In(drawing.Room->second);
    return reach.Whole();
}

// The scales at which the drawing alone takes so much room.
void Set_Scale(Layout& layout, const Box& bounds, Size room, bool plot) {
    const double width = bounds.Right - bounds.Left, height = bounds.Top - bounds.Bottom;
    const double x = width > 0 ? std::max(room.Width, 1.0) / width : 0;
    const double y = height > 0 ? std::max(room.Height, 1.0) / height : 0;
    const double same = x > 0 && y > 0 ? std::min(x, y) : x + y > 0 ? x + y : 1;
    layout.XScale = plot && x > 0 ? x : same;
    layout.YScale = plot && y > 0 ? y : same;
}

void Move(Layout& layout, double x, double y) {
    const auto move = [x, y](std::vector<Point>& points) {
        for (Point& point : points)
            point = {point.X + x, point.Y + y};
    };
    const auto moveBox = [x, y](Box& box) {
        box = {box.Left + x, box.Top + y, box.Right + x, box.Bottom + y};
    };
    for (Fill& fill : layout.Fills)
        for (std::vector<Point>& ring : fill.Rings)
            move(ring);
    for (Stroke& stroke : layout.Strokes)
        move(stroke.Points);
    for (Text& text : layout.Texts)
        moveBox(text.Place);
    if (layout.Plot)
        moveBox(*layout.Plot);
    layout.Zero = {layout.Zero.X + x, layout.Zero.Y + y};
}

// A try at a scale. Over: by how much it is too large for the room.
struct Fitted {
    Layout Laid;
    Size Over;
    bool Fits() const { return Over.Width <= 0 && Over.Height <= 0; }
};

Fitted Try(const Drawing& drawing, const Layout& scaled, Size room, const TextMeasure& measure,
           Detail detail) {
    Sheet sheet(drawing, scaled, measure, detail);
    sheet.Draw();
    const Box extent = sheet.Extent();
    Fitted fitted{std::move(sheet.Result()),
                  {extent.Width() - room.Width, extent.Height() - room.Height}};
    Move(fitted.Laid, (room.Width - extent.Width()) / 2 - extent.Left,
         (room.Height - extent.Height()) / 2 - extent.Top);
    return fitted;
}

// Makes the drawing smaller by what its texts reach over the room, until all is inside. As a
// smaller one may have its texts in other places and so need more room, the scales that were jumped
// over are tried then. Gives the part of the scale that the room alone allows; 0 if that would have
// to be less than the least, or anything is left out.
double Fit(const Drawing& drawing, Size room, const TextMeasure& measure, Detail detail,
           double least, Layout& fitted) {
    const Box bounds = Bounds_Of(drawing);
    const bool plot = drawing.Frame.has_value();
    Layout whole;
    Set_Scale(whole, bounds, room, plot);
    double reached = 0;
    Size body = room;
    for (int i = 0; i < mostTries && reached == 0; ++i) {
        Layout scaled;
        Set_Scale(scaled, bounds, body, plot);
        const double part = std::max(scaled.XScale / whole.XScale, scaled.YScale / whole.YScale);
        if (part < least)
            break;
        Fitted tried = Try(drawing, scaled, room, measure, detail);
        fitted = std::move(tried.Laid);
        reached = tried.Fits() ? part : 0;
        const double width = (bounds.Right - bounds.Left) * scaled.XScale;
        const double height = (bounds.Top - bounds.Bottom) * scaled.YScale;
        const Size over = tried.Over;
        body = {std::min(body.Width, over.Width > 0 ? width - over.Width - 1 : body.Width),
                std::min(body.Height, over.Height > 0 ? height - over.Height - 1 : body.Height)};
    }
    const double smallest = std::max(least, reached / scaleStep);
    for (double part = scaleStep; part > smallest && !plot; part *= scaleStep) {
        Layout scaled;
        Set_Scale(scaled, bounds, {part * room.Width, part * room.Height}, false);
        Fitted tried = Try(drawing, scaled, room, measure, detail);
        if (tried.Fits()) {
            fitted = std::move(tried.Laid);
            reached = part;
            break;
        }
    }
    return fitted.LeftOut.empty() ? reached : 0;
}

std::size_t Dimensions_Of(const Drawing& drawing) {
    return static_cast<std::size_t>(
        std::count_if(drawing.Parts.begin(), drawing.Parts.end(), [](const Part& part) {
            return std::holds_alternative<Dimension>(part.What);
        }));
}

// All of it where there is room, else as much of it as there is room for.
Layout Fit_What_Fits(const Drawing& drawing, Size room, const TextMeasure& measure) {
    Layout layout, closer;
    const double careful =
        Fit(drawing, room, measure, {true, 0, Care::LinesToCome}, leastPart, layout);
    if (careful > largePart)
        return layout;
    // Lines that cross a text are worth it where the drawing gets a good deal larger by that.
    const double plain =
        Fit(drawing, room, measure, {true, 0, Care::Everything}, leastPart, closer);
    if (plain > muchLarger * careful)
        return closer;
    if (careful > 0 ||
        Fit(drawing, room, measure, {true, 0, Care::AllLines}, leastPart, layout) > 0)
        return layout;
    const std::size_t all = Dimensions_Of(drawing);
    const auto fits = [&](bool values, std::size_t without, Care care, double least) {
        const double part = Fit(drawing, room, measure, {values, without, care}, least, layout);
        for (const Part* gone : First_To_Go(drawing, without))
            layout.LeftOut.push_back(gone->Name);
        return part > 0;
    };
    for (const auto& [care, least] :
         {std::pair{Care::LinesToCome, easyPart}, {Care::AllLines, leastPart}})
        for (std::size_t without = 1; without <= all / valuesBefore; ++without)
            if (fits(true, without, care, least))
                return layout;
    for (std::size_t without = 0; without < all; ++without)
        if (fits(false, without, Care::AllLines, leastPart))
            return layout;
    fits(false, all, Care::AllLines, 0);
    return layout;
}

// A bar of a round length at the lower left.
void Add_Scale_Bar(Layout& layout, const Drawing& drawing, Size view, const TextMeasure& measure) {
    const double em = measure("X").Height;
    double length = Round_Step(barPart * view.Width / layout.XScale);
    while (length * layout.XScale > barPart * view.Width)
        length = Round_Step(length / 2.6); // the next one below
    const std::string words = General_Text(length) + " " + drawing.ScaleUnit;
    const Size size = measure(words);
    const double left = edgeRoom, right = left + length * layout.XScale;
    const double line = view.Height - edgeRoom - size.Height / 2, tick = barTick * em;
    for (const auto& [from, to] : {std::pair{Point{left, line}, Point{right, line}},
                                   {Point{left, line - tick}, Point{left, line + tick}},
                                   {Point{right, line - tick}, Point{right, line + tick}}})
        layout.Strokes.push_back({{from, to}, Ink::Body, Weight::Bold, Pattern::Solid, {}});
    const double start = right + barGap * em;
    layout.Texts.push_back(
        {{start, line - size.Height / 2, start + size.Width, line + size.Height / 2},
         words,
         Ink::Body,
         {}});
}

} // namespace

double Distance(Point at, Point from, Point to) {
    const double dx = to.X - from.X, dy = to.Y - from.Y, square = dx * dx + dy * dy;
    const double part =
        square > 0 ? std::clamp(((at.X - from.X) * dx + (at.Y - from.Y) * dy) / square, 0.0, 1.0)
                   : 0;
    return std::hypot(at.X - from.X - part * dx, at.Y - from.Y - part * dy);
}

bool Box::Is_Cut_By(Point from, Point to) const {
    double start = 0, end = 1;
    const auto cut = [&](double at, double way, double low, double high) {
        if (way == 0)
            return low <= at && at <= high;
        const double one = (low - at) / way, other = (high - at) / way;
        start = std::max(start, std::min(one, other));
        end = std::min(end, std::max(one, other));
        return start <= end;
    };
    return cut(from.X, to.X - from.X, Left, Right) && cut(from.Y, to.Y - from.Y, Top, Bottom);
}

void Box::Take_In(const Box& other) {
    *this = {std::min(Left, other.Left), std::min(Top, other.Top), std::max(Right, other.Right),
             std::max(Bottom, other.Bottom)};
}

std::vector<Point> Polygon_Of(const Ring& ring, int pieces) {
    std::vector<Point> points;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Corner& corner = ring[i];
        if (corner.Before <= 0 || corner.After <= 0) {
            points.push_back(corner.At);
            continue;
        }
        const Point start =
            Between(corner.At, ring[(i + ring.size() - 1) % ring.size()].At, corner.Before);
        const Point end = Between(corner.At, ring[(i + 1) % ring.size()].At, corner.After);
        for (int piece = 0; piece <= pieces; ++piece) {
            const double angle = std::numbers::pi / 2 * piece / pieces;
            const double towardsStart = 1 - std::sin(angle), towardsEnd = 1 - std::cos(angle);
            points.push_back({corner.At.X + towardsStart * (start.X - corner.At.X) +
                                  towardsEnd * (end.X - corner.At.X),
                              corner.At.Y + towardsStart * (start.Y - corner.At.Y) +
                                  towardsEnd * (end.Y - corner.At.Y)});
        }
    }
    return points;
}

double Round_Up(double value) {
    constexpr double steps = 6;
    const double step = Round_Step(value / steps);
    return std::ceil(value / step) * step;
}

double Round_Step(double least) {
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (least <= factor * power * (1 + 1e-9))
            return factor * power;
    return 10 * power;
}

Layout Lay_Out(const Drawing& drawing, Size view, const TextMeasure& measure) {
    if (drawing.Empty())
        return {};
    const bool bar = !drawing.ScaleUnit.empty();
    const Size room{view.Width - 2 * edgeRoom,
                    view.Height - 2 * edgeRoom - (bar ? barRoom * measure("X").Height : 0)};
    Layout layout = Fit_What_Fits(drawing, room, measure);
    Move(layout, edgeRoom, edgeRoom);
    if (bar)
        Add_Scale_Bar(layout, drawing, view, measure);
    return layout;
}

std::string Name_At(const Layout& layout, Point pixel, double reach) {
    const Box place{pixel.X, pixel.Y, pixel.X, pixel.Y};
    for (const Text& text : layout.Texts)
        if (!text.Name.empty() && text.Place.Contains(place))
            return text.Name;
    double nearest = reach;
    std::string name;
    for (const Stroke& stroke : layout.Strokes)
        for (std::size_t i = 1; !stroke.Name.empty() && i < stroke.Points.size(); ++i)
            if (const double away = Distance(pixel, stroke.Points[i - 1], stroke.Points[i]);
                away <= nearest) {
                nearest = away;
                name = stroke.Name;
            }
    return name;
}

} // namespace Tensarix::Drawn
