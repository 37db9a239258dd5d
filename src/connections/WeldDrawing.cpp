#include "connections/WeldDrawing.h"

#include "common/NumberText.h"
#include "connections/GroupDrawing.h"
#include "connections/WeldConfigurations.h"
#include "controls/DrawingLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace Tensarix {

namespace {

using namespace Drawn;

constexpr double usualLength = 10, usualLeg = 6;
constexpr double nearby = 1.6, sameCentre = 0.03; // of the size of the group

bool Is_Lying(int item) { // its base length lies level
    return item == 3 || item == 5;
}
bool Has_X(int item) {
    return item >= 6;
}
bool Has_Y(int item) {
    return item >= 8;
}
bool Has_X_From_Right(int item) {
    return item == 7 || item == 9;
}
bool Is_Right_Angle(int item) { // a line above, one at the right
    return item == 9;
}

// The lines about their centroid, and the box around them.
struct Group {
    std::vector<WeldLine> Lines;
    double Left = 0, Right = 0, Bottom = 0, Top = 0;

    double Size() const { return std::max(Right - Left, Top - Bottom); }
};

Group Group_Of(int item, double base, double leg) {
    Group group{Weld_Configuration_Lines(item, base, leg)};
    const double x = WeldCentroidX(group.Lines), y = WeldCentroidY(group.Lines);
    for (WeldLine& line : group.Lines) {
        line.x1 -= x;
        line.x2 -= x;
        line.y1 -= y;
        line.y2 -= y;
        group.Left = std::min({group.Left, line.x1, line.x2});
        group.Right = std::max({group.Right, line.x1, line.x2});
        group.Bottom = std::min({group.Bottom, line.y1, line.y2});
        group.Top = std::max({group.Top, line.y1, line.y2});
    }
    return group;
}

void Add_Length(Drawing& drawing, const Group& group, int item, bool upright,
                const std::string& symbol, const std::optional<double>& value) {
    const Point corner{group.Left, group.Top};
    // The lower end of an upright line, which may stand at the right.
    const double foot = Is_Right_Angle(item) ? group.Right : group.Left;
    const Point to = upright ? Point{foot, group.Bottom} : Point{group.Right, group.Top};
    if (!(corner == to))
        drawing.Add(
            Dimension{corner, to, upright ? Side::Left : Side::Above, symbol, Known_Text(value)},
            Ink::Measure, symbol);
}

void Add_Sizes(Drawing& drawing, const Group& group, const WeldPicture& picture, bool known) {
    const bool lying = Is_Lying(picture.Item);
    const auto distance = [known](double value) {
        return known ? std::optional(value) : std::nullopt;
    };
    if (Has_Y(picture.Item))
        drawing.Add(
            Dimension{
                {group.Left, group.Top}, {0, 0}, Side::Left, "yL", Known_Text(distance(group.Top))},
            Ink::Measure, "yL");
    Add_Length(drawing, group, picture.Item, !lying, "L", picture.L);
    Add_Length(drawing, group, picture.Item, lying, "kL", picture.kL);
    if (!Has_X(picture.Item))
        return;
    const double edge = Has_X_From_Right(picture.Item) ? group.Right : group.Left;
    drawing.Add(
        Dimension{
            {edge, group.Bottom}, {0, 0}, Side::Below, "xL", Known_Text(distance(std::abs(edge)))},
        Ink::Measure, "xL");
}

// Two lines in one place are drawn once, with a word on it.
void Add_Welds(Drawing& drawing, const Group& group) {
    const WeldLine& first = group.Lines.front();
    const bool doubled = group.Lines.size() == 2 && first.x1 == group.Lines[1].x1 &&
                         first.y1 == group.Lines[1].y1 && first.x2 == group.Lines[1].x2;
    for (std::size_t i = doubled ? 1 : 0; i < group.Lines.size(); ++i) {
        const WeldLine& line = group.Lines[i];
        drawing.Add(Weld{{line.x1, line.y1}, {line.x2, line.y2}}, Ink::Body, "Weld");
    }
    if (doubled)
        drawing.Add(Label{{group.Left, group.Bottom}, "2 lines in one place"}, Ink::Body, "Weld");
}

std::string Sentence(const WeldPicture& picture) {
    std::string words = "Weld configuration " + std::to_string(picture.Item);
    const auto add = [&words](const char* symbol, const std::optional<double>& value) {
        if (value)
            words.append(", ").append(symbol).append(" = ").append(Known_Text(value));
    };
    add("L", picture.L);
    if (picture.Item != 1)
        add("kL", picture.kL);
    add("aL", picture.aL);
    add("Ø", picture.Angle);
    return words;
}

void Add_Centres(Drawing& drawing, const GroupLoad& load, const WeldPicture& picture) {
    std::optional<Point> centre;
    if (picture.Balanced && picture.Balanced->Turns) {
        centre = Point{picture.Balanced->X, picture.Balanced->Y};
        Add_Centre(drawing, *centre, load.Size, nearby, MarkKind::Dot, Ink::Result, "Centre");
        drawing.Sentence += "; the centre in equilibrium is " + Place_In_Words(*centre, "");
    }
    if (!picture.SearchRo)
        return;
    const Point search = Search_Centre(load, *picture.SearchRo);
    if (centre && std::hypot(search.X - centre->X, search.Y - centre->Y) < sameCentre * load.Size)
        return;
    Add_Centre(drawing, search, load.Size, nearby, MarkKind::Hollow, Ink::Alert, "Search");
    drawing.Sentence += "; the search's own centre is " + Place_In_Words(search, "");
}

} // namespace

Drawing Weld_Group_Drawing(const WeldPicture& picture) {
    Drawing drawing;
    drawing.Sentence = Sentence(picture);
    const bool known = picture.L.has_value() && (picture.kL.has_value() || picture.Item == 1);
    const double base = known ? *picture.L : usualLength;
    const double leg = known ? picture.kL.value_or(0) : usualLeg;
    constexpr double largest = 1e9;
    if (std::abs(base) > largest || std::abs(leg) > largest)
        return drawing;
    const Group group = Group_Of(picture.Item, base, leg);
    if (!(group.Size() > 0))
        return drawing;
    // The side of aL counts for nothing: the load stands on the right. Before the group is known,
    // it stands where its symbol can be read.
    GroupLoad load{std::nullopt, picture.Angle, group.Size()};
    if (known && picture.aL)
        load.Eccentricity = std::abs(*picture.aL);
    Add_Welds(drawing, group);
    Add_Load(drawing, load, "aL");
    drawing.Add(Mark{{0, 0}, MarkKind::Cross, "C.G."}, Ink::Axis, "C.G.");
    Add_Centres(drawing, load, picture);
    Add_Sizes(drawing, group, picture, known);
    return drawing;
}

std::vector<Line> Weld_Icon(int item) {
    constexpr double length = 34, lyingLeg = 22, angleLeg = 26, usual = 20; // of iconSide
    const double uprightLeg = Has_Y(item) ? angleLeg : usual;
    const Group group = Group_Of(item, length, Is_Lying(item) ? lyingLeg : uprightLeg);
    const double x = (group.Left + group.Right) / 2, y = (group.Bottom + group.Top) / 2;
    std::vector<Line> lines;
    for (const WeldLine& line : group.Lines)
        lines.push_back({{line.x1 - x, line.y1 - y}, {line.x2 - x, line.y2 - y}});
    return lines;
}

void WeldPasses::Add(const WeldPassLoads& pass) {
    constexpr std::size_t most = 512;
    kept_.push_back(pass);
    if (kept_.size() >= most)
        Thin_Out();
}

double WeldPasses::Worth_Of(std::size_t place, double height) const {
    constexpr double leastSeen = 0.004; // less is the grain of the strips
    const WeldPassLoads &before = kept_[place - 1], &at = kept_[place], &behind = kept_[place + 1];
    const double gap = behind.Ro - before.Ro, part = gap > 0 ? (at.Ro - before.Ro) / gap : 0;
    const double bend = std::max(std::abs(at.Fv - before.Fv - part * (behind.Fv - before.Fv)),
                                 std::abs(at.Fm - before.Fm - part * (behind.Fm - before.Fm)));
    const double worth = gap / kept_.back().Ro + (bend > leastSeen * height ? bend / height : 0);
    return std::isfinite(worth) ? worth : 1;
}

// The half that is worth less, but of two passes beside each other one stays.
void WeldPasses::Thin_Out() {
    double height = 0;
    for (const WeldPassLoads& pass : kept_)
        height = std::max({height, pass.Fv, pass.Fm});
    std::vector<double> worths(kept_.size(), std::numeric_limits<double>::infinity());
    for (std::size_t i = 1; i + 1 < kept_.size(); ++i)
        worths[i] = Worth_Of(i, height);
    std::vector<double> sorted = worths;
    const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    std::size_t to = 0;
    bool dropped = false;
    for (std::size_t i = 0; i < kept_.size(); ++i) {
        dropped = !dropped && worths[i] <= *middle;
        if (!dropped)
            kept_[to++] = kept_[i];
    }
    kept_.resize(to);
}

bool WeldPasses::Is_Plot_Due(double now) {
    constexpr double secondsBetween = 0.25;
    if (now - plotted_ < secondsBetween && now >= plotted_)
        return false;
    plotted_ = now;
    return true;
}

Drawing Weld_Search_Plot(const WeldPasses& passes) {
    Drawing drawing{"Here the iteration draws Fy[v] and Fy[m] against Ro"};
    const std::vector<WeldPassLoads>& kept = passes.Kept();
    if (kept.size() < 2 || !(kept.back().Ro > 0))
        return drawing;
    Curve vertical, moments;
    double most = 0;
    for (const WeldPassLoads& pass : kept) {
        vertical.Points.push_back({pass.Ro, pass.Fv});
        moments.Points.push_back({pass.Ro, pass.Fm});
        most = std::max({most, pass.Fv, pass.Fm});
    }
    if (!(most > 0) || !std::isfinite(most))
        return drawing;
    moments.Dash = Pattern::Dashed;
    vertical.Label = "Fy[v]";
    moments.Label = "Fy[m]";
    drawing.Frame = Axes{0, Round_Up(kept.back().Ro), 0, Round_Up(most), "Ro", "Fy"};
    drawing.Add(std::move(vertical), Ink::Body, "Fy[v]");
    drawing.Add(std::move(moments), Ink::Force, "Fy[m]");
    drawing.Sentence =
        "Fy[v] and Fy[m] against Ro: at Ro = " + Format_Number(kept.back().Ro, "0.00") +
        " they are " + Format_Number(kept.back().Fv, "0.00") + " and " +
        Format_Number(kept.back().Fm, "0.00");
    return drawing;
}

} // namespace Tensarix
