#include "connections/WeldFunctions.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "connections/Numbers.h"
#include "connections/WeldPass.h"

namespace Tensarix {
namespace {

constexpr double concentricThreshold = 0.001;
constexpr double toleranceFactor = 0.5; // of the scale
constexpr double shortestLine = 0.1;

double Length_Of(const WeldLine& line) {
    const double dx = std::abs(line.x2 - line.x1);
    const double dy = std::abs(line.y2 - line.y1);
    return std::sqrt(dx * dx + dy * dy);
}

// Length-weighted sums. A step that fails leaves its sum as it was.
struct Moments {
    double length = 0, sum = 0, x = 0, y = 0;

    void Add(const WeldLine& line) {
        Keep(length, Length_Of(line));
        Keep(sum, sum + length);
        Keep(x, ((line.x2 + line.x1) * length) / 2.0 + x);
        Keep(y, ((line.y2 + line.y1) * length) / 2.0 + y);
    }
};

Moments Moments_Of(const std::vector<WeldLine>& lines) {
    Moments moments;
    for (const WeldLine& line : lines)
        moments.Add(line);
    return moments;
}

void Move_To_Centroid(std::vector<WeldLine>& lines, SearchYield& yield) {
    Moments moments;
    for (const WeldLine& line : lines) {
        moments.Add(line);
        yield();
    }
    double x = 0, y = 0;
    Keep(x, moments.x / moments.sum);
    Keep(y, moments.y / moments.sum);
    for (WeldLine& line : lines) {
        Keep(line.x1, line.x1 - x);
        Keep(line.y1, line.y1 - y);
        Keep(line.x2, line.x2 - x);
        Keep(line.y2, line.y2 - y);
        yield();
    }
}

void Rotate_End(double& x, double& y, double cosine, double sine) {
    const double oldX = x;
    const double oldY = y;
    Keep(x, oldX * cosine - oldY * sine);
    Keep(y, oldX * sine + oldY * cosine);
}

void Rotate(std::vector<WeldLine>& lines, double theta, SearchYield& yield) {
    const double cosine = std::cos(theta);
    const double sine = std::sin(theta);
    for (WeldLine& line : lines) {
        Rotate_End(line.x1, line.y1, cosine, sine);
        Rotate_End(line.x2, line.y2, cosine, sine);
        Attempt([&] { line.lineAngle = WeldLineAngle(line); });
        yield();
    }
}

// The numbers of a run that are fixed before its first pass.
struct Run {
    std::vector<WeldLine> lines; // about the centroid, rotated
    double angle = 0;
    double scale = 0;
    double E = 0;
    double Ltot = 0;
};

// A number that is out of range leaves the rest of the step unwritten.
void Show(const Run& run, double Ro, double Fv, double Fm, bool noMoment, WeldSearch& search) {
    Attempt([&] {
        ShowIterationStep(run.angle, Ro, Fv, Fm, run.scale, noMoment, search.state, search.display);
    });
}

// Step first, test after; the centre only ever moves outwards.
double Search(const Run& run, WeldSearch& search) {
    WeldState& state = search.state;
    double Ro = state.ResumeRequested ? state.SavedRo : 0;
    double Fm = 0, Fv = 0, G = 0;
    WeldPass pass;
    for (bool done = false; !done;) {
        state.PassRo = Ro;
        if (state.StopRequested) {
            state.SavedRo = Ro;
            break;
        }
        Take_Weld_Pass(run.lines, Ro, state, pass, search.yield);
        Fm = 0;
        Fv = pass.SV;
        const double lever = run.E + Ro;
        if (std::isfinite(lever))
            Keep(Fm, pass.SM / lever);
        Show(run, Ro, Fv, Fm, false, search);
        const double resisted = run.Ltot * pass.SM;
        if (std::isfinite(resisted))
            Keep(G, pass.SR / resisted);
        Keep(Ro, Ro + (std::abs(Fm - Fv) * G) / run.Ltot);
        done = std::abs(Fv - Fm) <= toleranceFactor * run.scale;
        if (!done)
            search.yield();
    }
    // The last pass stands twice, the second time with the Ro of the step behind it,
    // from which a resumed run goes on.
    Show(run, Ro, Fv, Fm, false, search);
    double mean = 0;
    Keep(mean, Largest_Of({0, (Fv + Fm) / 2}));
    return mean;
}

} // namespace

double SolveWeldGroup(const std::vector<WeldLine>& lines, double eccentricity, double angle,
                      double scale, WeldSearch& search) {
    WeldState& state = search.state;
    state.IterationStart = search.display.Now();
    state.LastClearTime = state.IterationStart;
    state.ClearCount = 0;
    state.PassRo = state.ResumeRequested ? state.SavedRo : 0;
    Run run{lines, angle, scale, 0, 0};
    double theta = 0;
    Keep(theta, (angle * pi) / 180);
    Keep(run.E, std::abs(std::cos(theta) * eccentricity));
    Attempt([&] { NormalizeWeldLines(run.lines, search.yield); });
    Attempt([&] { run.Ltot = TotalWeldLength(run.lines); });
    Move_To_Centroid(run.lines, search.yield);
    Rotate(run.lines, theta, search.yield);
    if (run.E <= concentricThreshold) {
        const double P = ConcentricWeldCapacity(run.lines);
        Show(run, 0, P, 0, true, search);
        return P;
    }
    return Search(run, search);
}

void NormalizeWeldLines(std::vector<WeldLine>& lines, SearchYield& yield) {
    std::vector<WeldLine> kept;
    for (WeldLine& line : lines) {
        if (line.y1 > line.y2 || (line.y1 == line.y2 && line.x2 < line.x1)) {
            std::swap(line.x1, line.x2);
            std::swap(line.y1, line.y2);
        }
        if (Finite(Length_Of(line)) > shortestLine)
            kept.push_back(line);
        yield();
    }
    lines = std::move(kept);
}

double TotalWeldLength(const std::vector<WeldLine>& lines) {
    double total = 0;
    for (const WeldLine& line : lines)
        total = Finite(total + Length_Of(line));
    return total;
}

double WeldLineAngle(const WeldLine& line) {
    if (line.x1 == line.x2)
        return pi / 2;
    if (line.y1 == line.y2)
        return 0;
    const double rise = Finite(line.y2 - line.y1);
    const double run = Finite(line.x2 - line.x1);
    return std::atan(Finite(rise / run));
}

double ConcentricWeldCapacity(const std::vector<WeldLine>& lines) {
    double A = 0, length = 0, P = 0;
    for (const WeldLine& line : lines) {
        Keep(A, pi / 2.0 - line.lineAngle);
        Keep(length, Length_Of(line));
        // The exact throat here, the nine-digit one in the iteration: evened out, the fifth decimal
        // of C would change.
        const double strength = ((weldStressFactor * electrodeStrength) * std::sqrt(2.0)) / 2.0;
        Keep(P, (1.0 + 0.5 * std::pow(std::sin(A), 1.5)) * (strength * weldSize * length) + P);
    }
    return P;
}

double WeldCentroidX(const std::vector<WeldLine>& lines) {
    const Moments moments = Moments_Of(lines);
    double centroid = 0;
    Keep(centroid, moments.x / moments.sum);
    return centroid;
}

double WeldCentroidY(const std::vector<WeldLine>& lines) {
    const Moments moments = Moments_Of(lines);
    double centroid = 0;
    Keep(centroid, moments.y / moments.sum);
    return centroid;
}

double WeldCentroidFromTop(const std::vector<WeldLine>& lines) {
    double ymin = 0, ymax = 0;
    for (const WeldLine& line : lines) {
        ymin = Smallest_Of({ymin, line.y1, line.y2});
        ymax = Largest_Of({ymax, line.y1, line.y2});
    }
    double distance = 0;
    const Moments moments = Moments_Of(lines);
    Keep(distance, std::abs(ymax - ymin) - moments.y / moments.sum);
    return distance;
}

} // namespace Tensarix
