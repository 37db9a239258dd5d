#include "connections/BoltDrawing.h"

#include "common/NumberText.h"
#include "connections/BoltFunctions.h"
#include "connections/GroupDrawing.h"
#include "connections/Numbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Tensarix {

namespace {

using namespace Drawn;

constexpr double usualRows = 4, usualColumns = 2, usualSpacing = 3; // of a group not known yet
constexpr double mostBoltsDrawn = 400, mostForcesDrawn = 120;
constexpr double boltRadius = 0.16, longestForce = 0.8; // of the least spacing
constexpr double nearby = 2.2;                          // of the size of the group
constexpr double sameCentre = 0.03;

// The group with usual numbers in the place of those that aren't known.
struct Group {
    int m = 0, n = 0;
    double sv = 0, sh = 0;

    double X(int column) const { return (column - (n - 1) / 2.0) * sh; }
    double Y(int row) const { return (row - (m - 1) / 2.0) * sv; }
    double Left() const { return X(0); }
    double Top() const { return Y(m - 1); }
    // The least distance of two bolts beside each other; that of usual bolts if there is none.
    double Spacing() const {
        double least = 0;
        for (const double spacing : {m > 1 ? std::abs(sv) : 0, n > 1 ? std::abs(sh) : 0})
            if (spacing > 0)
                least = least > 0 ? std::min(least, spacing) : spacing;
        return least > 0 ? least : usualSpacing;
    }
    double Size() const {
        return std::max({std::abs((m - 1) * sv), std::abs((n - 1) * sh), Spacing()});
    }
};

int Whole(const std::optional<double>& value, double usual) {
    constexpr double most = 32767;
    return static_cast<int>(std::clamp(std::nearbyint(value.value_or(usual)), 0.0, most));
}

Group Group_Of(const BoltPicture& picture) {
    return {Whole(picture.m, usualRows), Whole(picture.n, usualColumns),
            picture.sv.value_or(usualSpacing), picture.sh.value_or(usualSpacing)};
}

void Add_Bolts(Drawing& drawing, const Group& group) {
    const double radius = boltRadius * group.Spacing();
    if (double{1} * group.m * group.n > mostBoltsDrawn) {
        const double x = group.Left() - radius, y = group.Top() + radius;
        drawing.Add(Outline{{{{{x, y}}, {{-x, y}}, {{-x, -y}}, {{x, -y}}}}}, Ink::Body, "Bolts");
        return;
    }
    for (int row = 0; row < group.m; ++row)
        for (int column = 0; column < group.n; ++column)
            drawing.Add(Circle{{group.X(column), group.Y(row)}, radius, true}, Ink::Body, "Bolts");
}

// Of what is counted along a line that looks like a length.
std::string Count_Text(const std::optional<double>& bolts) {
    return bolts ? Known_Text(bolts) + " bolts" : std::string{};
}

void Add_Sizes(Drawing& drawing, const Group& group, const BoltPicture& picture) {
    const double left = group.Left(), top = group.Top();
    if (group.m > 1) {
        drawing.Add(
            Dimension{
                {left, top}, {left, top - group.sv}, Side::Left, "sv", Known_Text(picture.sv)},
            Ink::Measure, "sv");
        drawing.Add(Dimension{{left, -top}, {left, top}, Side::Left, "m", Count_Text(picture.m)},
                    Ink::Measure, "m");
    } else {
        drawing.Add(Label{{left, top}, "m = 1"}, Ink::Measure, "m");
    }
    if (group.n > 1) {
        drawing.Add(
            Dimension{
                {left, top}, {left + group.sh, top}, Side::Above, "sh", Known_Text(picture.sh)},
            Ink::Measure, "sh");
        drawing.Add(Dimension{{left, top}, {-left, top}, Side::Above, "n", Count_Text(picture.n)},
                    Ink::Measure, "n");
    } else {
        drawing.Add(Label{{left, top}, "n = 1"}, Ink::Measure, "n");
    }
}

// Square to the radius from the centre and against the load, or straight against it.
void Add_Forces(Drawing& drawing, const Group& group, const GroupLoad& load,
                const Balance& balance) {
    if (double{1} * group.m * group.n > mostForcesDrawn || !(balance.C > 0))
        return;
    const Point towards = load.Towards();
    // The load turns the group clockwise if its line passes on the right.
    const double turn = load.X() * towards.Y < 0 ? 1 : -1;
    double farthest = 0;
    for (int row = 0; row < group.m; ++row)
        for (int column = 0; column < group.n; ++column)
            farthest = std::max(farthest,
                                std::hypot(group.X(column) - balance.X, group.Y(row) - balance.Y));
    const double length = longestForce * group.Spacing();
    const double most = Bolt_Force(ultimateBoltDeformation);
    for (int row = 0; row < group.m; ++row) {
        for (int column = 0; column < group.n; ++column) {
            const Point at{group.X(column), group.Y(row)};
            Point force{-towards.X * length, -towards.Y * length};
            if (balance.Turns) {
                const double dx = at.X - balance.X, dy = at.Y - balance.Y;
                const double d = std::hypot(dx, dy);
                const double part =
                    d > 0 ? turn * Bolt_Force(ultimateBoltDeformation * d / farthest) / most / d
                          : 0;
                force = {-dy * part * length, dx * part * length};
            }
            drawing.Add(Arrow{at, {at.X + force.X, at.Y + force.Y}}, Ink::Force, "Force");
        }
    }
}

std::string Sentence(const BoltPicture& picture) {
    const auto known = [](const char* words, const std::optional<double>& value,
                          const char* unit) -> std::string {
        return value ? std::string{words} + Known_Text(value) + unit : std::string{};
    };
    return "A bolt group" + known(", m = ", picture.m, " bolts high") +
           known(", n = ", picture.n, " bolts wide") + known(", sv = ", picture.sv, " in. apart") +
           known(", sh = ", picture.sh, " in. apart") +
           known(", loaded at ex = ", picture.ex, " in. from the centroid") +
           known(", at Ø = ", picture.Angle, "° from the vertical");
}

} // namespace

Drawing Bolt_Group_Drawing(const BoltPicture& picture) {
    Drawing drawing;
    drawing.Sentence = Sentence(picture);
    drawing.ScaleUnit = "in.";
    const Group group = Group_Of(picture);
    if (group.m < 1 || group.n < 1)
        return drawing;
    const GroupLoad load{picture.ex, picture.Angle, std::max(group.Size(), usualSpacing)};
    Add_Bolts(drawing, group);
    Add_Load(drawing, load, "ex");
    drawing.Add(Mark{{0, 0}, MarkKind::Cross, "C.G."}, Ink::Axis, "C.G.");
    const double size = std::max(load.Size, std::abs(load.X()));
    std::optional<Point> centre;
    if (picture.Balanced) {
        Add_Forces(drawing, group, load, *picture.Balanced);
        if (picture.Balanced->Turns) {
            centre = Point{picture.Balanced->X, picture.Balanced->Y};
            Add_Centre(drawing, *centre, load.Size, nearby, MarkKind::Dot, Ink::Result, "Centre");
            drawing.Sentence += "; it turns about a centre " + Place_In_Words(*centre, " in.");
        }
    }
    if (picture.SearchRo && picture.ex.value_or(0) != 0) {
        const Point search = Search_Centre(load, *picture.SearchRo);
        const bool apart =
            !centre || std::hypot(search.X - centre->X, search.Y - centre->Y) > sameCentre * size;
        if (apart) {
            Add_Centre(drawing, search, load.Size, nearby, MarkKind::Hollow, Ink::Alert, "Search");
            drawing.Sentence += "; the search's own centre is " + Place_In_Words(search, " in.");
        }
    }
    Add_Sizes(drawing, group, picture);
    return drawing;
}

} // namespace Tensarix
