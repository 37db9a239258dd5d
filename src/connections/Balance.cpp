#include "connections/Balance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "common/Failure.h"
#include "common/NumberText.h"
#include "connections/Numbers.h"
#include "connections/WeldConfigurations.h"
#include "connections/WeldPass.h"

namespace Tensarix {
namespace {

constexpr int mostBalancedBolts = 2000;
constexpr int elementsOfLongestLine = 64;
constexpr int leastElements = 8;
constexpr int mostIterations = 30;
constexpr double nearlyBalanced = 1e-4;    // good enough for a remark
constexpr double balancedResidual = 1e-9;  // residual over the load
constexpr double leastEccentricity = 1e-6; // over the size of the group; less is concentric
constexpr double largestNumber = 1e9;      // of any input
constexpr double newtonDifference = 1e-6;
constexpr int concentricParts = 50;

// The instantaneous centre stands at (-a, -b) from the centroid, the load is vertical at +e.
struct Centre {
    double a = 0, b = 0;
};

// What the fasteners resist when they turn about a centre.
struct Resistance {
    double horizontal = 0, vertical = 0;
    double moment = 0; // about the centre
    double torque = 0; // about the centroid
    double total = 0;  // of the magnitudes
    double polar = 0;  // sum of r^2

    // A force R on the fastener at (w, u), square to its radius r = (X, Y) from the centre.
    void Add(double R, double X, double Y, double r, double w, double u) {
        const double across = R * (X / r);
        const double up = R * (Y / r);
        vertical += across;
        horizontal += up;
        moment += R * r;
        torque += across * w + up * u;
        total += R;
        polar += r * r;
    }
};

// What the solver needs of a group.
struct Problem {
    double e = 0;      // > 0
    double spread = 0; // radius of gyration
    double count = 0;  // of fasteners
};

// By how much rotation and horizontal equilibrium are missed. Moments are taken about the centroid:
// about the centre, any centre far enough away would seem to balance.
struct Residual {
    double rotation = 0, horizontal = 0;
    double Size() const { return std::hypot(rotation, horizontal); }
};

Residual Residual_Of(const Problem& problem, const Resistance& forces) {
    return {(forces.torque - forces.vertical * problem.e) /
                (forces.total * (problem.e + problem.spread)),
            forces.horizontal / forces.total};
}

// The step of an elastic group with the stiffness of this centre (G. D. Brandt, Rapid Determination
// of Ultimate Strength of Eccentrically Loaded Bolt Groups, AISC Engineering Journal, 1982).
Centre Elastic_Step(const Problem& problem, const Centre& at, const Resistance& forces) {
    const double factor = forces.polar / (problem.count * forces.moment);
    const double byMoment = forces.moment / (problem.e + at.a);
    return {(byMoment - forces.vertical) * factor, -forces.horizontal * factor};
}

// Newton's step by differences; none where the equations are singular.
template <typename Group>
std::optional<Centre> Newton_Step(const Problem& problem, const Group& group, const Centre& at,
                                  const Residual& here) {
    const double h = newtonDifference * (problem.spread + std::abs(at.a));
    const Centre across{at.a + h, at.b};
    const Centre up{at.a, at.b + h};
    const Residual byA = Residual_Of(problem, group.About(across));
    const Residual byB = Residual_Of(problem, group.About(up));
    const double va = (byA.rotation - here.rotation) / h;
    const double vb = (byB.rotation - here.rotation) / h;
    const double ha = (byA.horizontal - here.horizontal) / h;
    const double hb = (byB.horizontal - here.horizontal) / h;
    const double determinant = va * hb - vb * ha;
    const Centre step{(vb * here.horizontal - hb * here.rotation) / determinant,
                      (ha * here.rotation - va * here.horizontal) / determinant};
    if (!std::isfinite(step.a) || !std::isfinite(step.b))
        return std::nullopt;
    return step;
}

// The largest part of a step that brings the centre nearer to balance; none if none does.
template <typename Group>
std::optional<Centre> Better(const Problem& problem, const Group& group, const Centre& at,
                             const Centre& step, double size) {
    for (double part = 1; part > 1e-3; part /= 2) {
        const Centre to{at.a + part * step.a, at.b + part * step.b};
        if (problem.e + to.a > 0 &&
            Residual_Of(problem, group.About(to)).Size() < size * (1 - 0.1 * part))
            return to;
    }
    return std::nullopt;
}

// How near a centre came to balance, and the load there.
struct Attained {
    double size = 1e9;
    double load = 0;
    Centre centre;
};

// Newton's steps, elastic ones where they don't help. Ends at balance, or where it goes no further.
template <typename Group>
Attained Approach(const Problem& problem, const Group& group, Centre at) {
    Attained best;
    for (int k = 0; k < mostIterations; ++k) {
        const Resistance forces = group.About(at);
        const Residual residual = Residual_Of(problem, forces);
        const double size = residual.Size();
        if (size < best.size && forces.vertical > 0)
            best = {size, forces.vertical, at};
        if (!std::isfinite(size) || size <= balancedResidual)
            break;
        const Centre elastic = Elastic_Step(problem, at, forces);
        std::optional<Centre> next;
        if (const auto newton = Newton_Step(problem, group, at, residual))
            next = Better(problem, group, at, *newton, size);
        if (!next)
            next = Better(problem, group, at, elastic, size);
        if (!next)
            next = Centre{at.a + elastic.a, at.b + elastic.b};
        if (problem.e + next->a <= 0)
            break;
        at = *next;
    }
    return best;
}

// From the elastic centre, and from others about it if that leads nowhere. Where the critical
// element changes the equations have a kink, and a search may stop just beside balance.
template <typename Group>
std::optional<Attained> Solve(const Problem& problem, const Group& group) {
    const double elastic = problem.spread * problem.spread / problem.e;
    Attained best;
    for (const double part : {1.0, 0.4, 2.5}) {
        const Attained attained = Approach(problem, group, {elastic * part, 0});
        if (attained.size < best.size)
            best = attained;
        if (best.size <= nearlyBalanced)
            return best;
    }
    return std::nullopt;
}

struct Bolts {
    std::vector<double> u, w;

    // At a part of the rotation at which the farthest bolt reaches its limit.
    Resistance About(const Centre& at, double part = 1) const {
        double dmax = 0;
        for (std::size_t k = 0; k < u.size(); ++k)
            dmax = std::max(dmax, std::hypot(w[k] + at.a, u[k] + at.b));
        const double decay = boltExponentFactor * ultimateBoltDeformation * part / dmax;
        Resistance sum;
        for (std::size_t k = 0; k < u.size(); ++k) {
            const double d = std::hypot(w[k] + at.a, u[k] + at.b);
            const double force = std::pow(1 - std::exp(decay * d), boltPower);
            if (d > 0)
                sum.Add(force, w[k] + at.a, u[k] + at.b, d, w[k], u[k]);
        }
        return sum;
    }
};

bool In_Range(std::initializer_list<double> inputs) {
    return std::all_of(inputs.begin(), inputs.end(),
                       [](double value) { return std::abs(value) <= largestNumber; });
}

Bolts Turned_Bolts(const BoltGroup& group, double theta) {
    Bolts bolts;
    for (int i = 0; i < group.m; ++i) {
        for (int j = 0; j < group.n; ++j) {
            const double y = (i - (group.m - 1) / 2.0) * group.sv;
            const double x = (j - (group.n - 1) / 2.0) * group.sh;
            bolts.u.push_back(x * std::sin(theta) + y * std::cos(theta));
            bolts.w.push_back(x * std::cos(theta) - y * std::sin(theta));
        }
    }
    return bolts;
}

// One element of unit thickness 1/16: where it is, which way it lies, and its strength and limits
// as they depend on the angle of its force.
struct WeldPiece {
    double x, y;
    double cosine, sine; // of its axis
    double area;
};

struct Welds {
    std::vector<WeldPiece> pieces;

    // At a part of the rotation at which the first element reaches its limit.
    Resistance About(const Centre& at, double part = 1) const;
};

struct PieceState {
    double r, X, Y, degrees, strength;
};

PieceState State_About(const WeldPiece& piece, const Centre& at) {
    const double X = piece.x + at.a;
    const double Y = piece.y + at.b;
    const double r = std::hypot(X, Y);
    // The force is square to the radius, so its angle to the axis is that of radius and normal.
    const double sine = r > 0 ? std::min(1.0, std::abs(X * piece.cosine + Y * piece.sine) / r) : 0;
    return {r, X, Y, std::asin(sine) * 180 / pi, 1.0 + 0.5 * sine * std::sqrt(sine)};
}

Resistance Welds::About(const Centre& at, double part) const {
    std::vector<PieceState> states;
    states.reserve(pieces.size());
    double critical = 0; // rotation at which the first element is at its limit
    for (const WeldPiece& piece : pieces) {
        const PieceState state = State_About(piece, at);
        states.push_back(state);
        if (state.r > 0) {
            const double limit = Weld_Delta_U(state.degrees) / state.r;
            critical = critical > 0 ? std::min(critical, limit) : limit;
        }
    }
    Resistance sum;
    for (std::size_t k = 0; k < pieces.size(); ++k) {
        const PieceState& state = states[k];
        if (state.r == 0)
            continue;
        const double p = part * critical * state.r / Weld_Delta_M(state.degrees);
        const double R = state.strength * weldStressFactor * electrodeStrength * pieces[k].area *
                         std::pow(std::max(0.0, (1.9 - 0.9 * p) * p), weldForcePower);
        sum.Add(R, state.X, state.Y, state.r, pieces[k].x, pieces[k].y);
    }
    return sum;
}

double Length_Of(const WeldLine& line) {
    return std::hypot(line.x2 - line.x1, line.y2 - line.y1);
}

void Add_Pieces(const WeldLine& line, double longest, double xc, double yc, double theta,
                Welds& welds) {
    const double length = Length_Of(line);
    const int count = std::max(leastElements, int(elementsOfLongestLine * length / longest));
    const double cosine = std::cos(theta);
    const double sine = std::sin(theta);
    const double dx = (line.x2 - line.x1) / length;
    const double dy = (line.y2 - line.y1) / length;
    for (int k = 0; k < count; ++k) {
        const double along = (k + 0.5) / count * length;
        const double x = line.x1 + dx * along - xc;
        const double y = line.y1 + dy * along - yc;
        welds.pieces.push_back({x * cosine - y * sine, x * sine + y * cosine,
                                dx * cosine - dy * sine, dx * sine + dy * cosine,
                                length / count * weldThroat * weldSize});
    }
}

Welds Turned_Welds(std::vector<WeldLine> lines, double theta) {
    const auto go = [] { return true; };
    SearchYield yield(go);
    NormalizeWeldLines(lines, yield);
    const double xc = WeldCentroidX(lines);
    const double yc = WeldCentroidY(lines);
    double longest = 0;
    for (const WeldLine& line : lines)
        longest = std::max(longest, Length_Of(line));
    Welds welds;
    for (const WeldLine& line : lines)
        Add_Pieces(line, longest, xc, yc, theta, welds);
    return welds;
}

// Without eccentricity all move alike: the sum about a centre that is very far away. A weld is past
// its strongest when the first element is at its limit, so the load on the way there counts too.
template <typename Group>
double Concentric(const Group& group, double spread) {
    const Centre away{spread / (leastEccentricity * leastEccentricity), 0};
    double most = 0;
    for (int part = 1; part <= concentricParts; ++part)
        most = std::max(most, group.About(away, double(part) / concentricParts).vertical);
    return most;
}

// The load and, where the group turns, the centre.
struct BalancedLoad {
    double load = 0;
    std::optional<Centre> centre;
};

template <typename Group, typename Fasteners>
std::optional<BalancedLoad> Load(const Group& group, const Fasteners& places, double e) {
    const Resistance about = group.About({0, 0});
    const auto count = static_cast<double>(places.size());
    const double spread = std::sqrt(about.polar / count);
    if (std::abs(e) <= leastEccentricity * spread || e == 0)
        return BalancedLoad{Concentric(group, spread), std::nullopt};
    if (spread == 0)
        return BalancedLoad{}; // all in one place: no moment can be resisted
    if (const auto solved = Solve({e, spread, count}, group))
        return BalancedLoad{solved->load, solved->centre};
    return std::nullopt;
}

// The centre was found in the frame in which the load is vertical and on the right. Where it is on
// the left, the group was looked at turned about (up = -1) or from behind (up = 1).
Balance In_The_Groups_Frame(double C, const Centre& centre, double theta, double across,
                            double up) {
    const double w = -across * centre.a;
    const double u = -up * centre.b;
    return {C, true, w * std::cos(theta) + u * std::sin(theta),
            u * std::cos(theta) - w * std::sin(theta)};
}

// AISC 360-05 J2.4(c), for a group without eccentricity whose lines run along the (vertical) load
// or across it: the larger of Rwl + Rwt and 0.85 Rwl + 1.5 Rwt. None where a line leans.
std::optional<double> Load_Along_And_Across(const Welds& welds) {
    constexpr double straight = 1e-6; // of the cosine: the angle has a truncated pi behind it
    double along = 0, across = 0;
    for (const WeldPiece& piece : welds.pieces) {
        const double strength = weldStressFactor * electrodeStrength * piece.area;
        if (std::abs(piece.cosine) < straight)
            along += strength;
        else if (std::abs(piece.sine) < straight)
            across += strength;
        else
            return std::nullopt;
    }
    return std::max(along + across, 0.85 * along + 1.5 * across);
}

} // namespace

std::optional<Balance> Balanced_Bolts(const BoltGroup& group, double ex, double angle) {
    const int mn = int{group.m} * group.n;
    if (group.m <= 0 || group.n <= 0 || mn > mostBalancedBolts ||
        !In_Range({group.sv, group.sh, ex, angle}))
        return std::nullopt;
    const double theta = angle * pi / 180;
    const Bolts bolts = Turned_Bolts(group, theta);
    const double e = std::cos(theta) * ex;
    // Turned about, the group is the same: the side of the load makes no difference to C.
    const double side = e < 0 ? -1 : 1;
    const auto load = Load(bolts, bolts.u, std::abs(e));
    if (!load)
        return std::nullopt;
    if (!load->centre)
        return Balance{load->load};
    return In_The_Groups_Frame(load->load, *load->centre, theta, side, side);
}

std::optional<Balance> Balanced_Welds(int item, double L, double kL, double aL, double angle) {
    if (!In_Range({L, kL, aL, angle}) || L <= 0)
        return std::nullopt;
    const double scale = Weld_Scale(L);
    const double base = L * scale;
    const double theta = angle * pi / 180;
    const double e = std::cos(theta) * std::abs(aL) * scale;
    Welds welds = Turned_Welds(Weld_Configuration_Lines(item, base, kL * scale), theta);
    // Turned past a right angle the load stands on the other side: look at it from behind.
    const double side = e < 0 ? -1 : 1;
    for (WeldPiece& piece : welds.pieces) {
        piece.x *= side;
        piece.cosine *= side;
    }
    const auto load = Load(welds, welds.pieces, std::abs(e));
    if (!load)
        return std::nullopt;
    const double C = Weld_Coefficient(load->load, base);
    if (!load->centre) {
        const auto byLines = Load_Along_And_Across(welds);
        return byLines ? Balance{.C = Weld_Coefficient(*byLines, base), .ByLines = true}
                       : Balance{C};
    }
    const Centre centre{load->centre->a / scale, load->centre->b / scale};
    return In_The_Groups_Frame(C, centre, theta, side, 1);
}

double Excess_Over(const std::optional<Balance>& balance, double shown, double tolerance) {
    if (!balance || !(balance->C > 0) || !std::isfinite(shown))
        return 0;
    const double excess = shown / balance->C - 1;
    return std::abs(excess) > tolerance ? excess : 0;
}

Advice Balance_Remark(double shown, const std::optional<Balance>& balance, double tolerance) {
    if (!balance && shown > 0)
        return {"Not checked: no centre that satisfies all equilibrium conditions was found",
                RemarkWeight::Caution};
    const double excess = Excess_Over(balance, shown, tolerance);
    if (excess == 0)
        return {};
    std::string text = excess > 0 ? "Use C = " : "C = ";
    text.append(Format_Number(balance->C, "0.000"));
    text.append(balance->ByLines ? " from AISC 360-05 J2.4(c), for lines along and across the load"
                                 : " from the centre that satisfies all equilibrium conditions");
    text.append(": the value shown is ").append(Format_Number(std::abs(excess) * 100, "0"));
    text.append(excess > 0 ? " % higher" : " % lower");
    return {std::move(text), excess > 0 ? RemarkWeight::Unsafe : RemarkWeight::Note};
}

} // namespace Tensarix
