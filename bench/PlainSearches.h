// Both searches written down plainly, element by element, with the C library's scalar functions:
// what the engines are measured against, and what their tests compare them with. Every search ends
// after so many passes.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

#include "connections/BoltFunctions.h"
#include "connections/WeldFunctions.h"

namespace Tensarix::Plain {

constexpr double TruncatedPi = 3.14159265358979;

struct Outcome {
    double value = 0;
    long passes = 0;
};

inline void Assign(double& target, double value) {
    if (std::isfinite(value))
        target = value;
}

inline double Sign(double value) {
    return value > 0 ? 1 : value < 0 ? -1 : 0;
}

inline double Force(double deformation) {
    return 74.0 * std::pow(1 - std::exp(-10 * deformation), 0.55);
}

inline Outcome BoltC(const BoltGroup& group, double ex, double angle,
                     long mostPasses = std::numeric_limits<long>::max()) {
    struct Bolt {
        double u, w;
    };
    double theta = 0;
    Assign(theta, (angle * TruncatedPi) / 180);
    const double e = std::cos(theta) * ex;
    const int mn = group.m * group.n;
    if (e == 0)
        return {double(mn), 0};
    std::vector<Bolt> bolts;
    for (int i = 0; i < group.m; ++i) {
        for (int j = 0; j < group.n; ++j) {
            const double y = i * group.sv - ((group.m - 1) * group.sv) / 2;
            const double x = j * group.sh - ((group.n - 1) * group.sh) / 2;
            bolts.push_back({x * std::sin(theta) + y * std::cos(theta),
                             x * std::cos(theta) - y * std::sin(theta)});
        }
    }
    const double Rmax = Force(0.34);
    double Ro = 0, G = 0, Pm = 0, Pv = 0, d = 0, delta = 0, R = 0;
    Outcome outcome;
    bool done = false;
    while (!done && outcome.passes < mostPasses) {
        double dmax = 0;
        for (const Bolt& bolt : bolts) {
            const double X = Ro + bolt.w;
            Assign(d, std::sqrt(X * X + bolt.u * bolt.u));
            dmax = std::max(dmax, d);
        }
        double SM = 0, SV = 0, SD = 0;
        for (const Bolt& bolt : bolts) {
            const double X = Ro + bolt.w;
            Assign(d, std::sqrt(X * X + bolt.u * bolt.u));
            Assign(delta, (0.34 * d) / dmax);
            Assign(R, Force(delta));
            Assign(SM, SM + (R / Rmax) * d);
            Assign(SV, SV + Sign(X) * ((R / Rmax) * std::abs(X / d)));
            Assign(SD, SD + d * d);
        }
        Pm = 0;
        Assign(Pm, SM / (std::abs(e) + Ro));
        Pv = SV;
        done = std::abs(Pm - Pv) <= 0.0001;
        Assign(G, SD / (SM * mn));
        Assign(Ro, Ro + (std::abs(Pm - Pv) * G) / 2);
        ++outcome.passes;
    }
    outcome.value = (Pm + Pv) / 2;
    return outcome;
}

struct Element {
    double r, beta, deltaM, theta, length, ratio, sign;
};

inline std::vector<Element> Elements(const std::vector<WeldLine>& lines, double Ro, int strips) {
    std::vector<Element> elements;
    double beta = 0, phi = 0;
    for (const WeldLine& line : lines) {
        const double Ln = std::nearbyint(
            std::sqrt(std::pow(line.y2 - line.y1, 2) + std::pow(line.x2 - line.x1, 2)));
        const double N = std::trunc(Ln / (1.0 / strips));
        const double length = Ln / N;
        const double a = line.lineAngle;
        for (double i = 0; i < N; ++i) {
            const double sx = Sign(line.x2 - line.x1);
            const double sy = Sign(line.y2 - line.y1);
            const double xm =
                (line.x1 + ((sx * i) * length) * std::cos(a)) + sx * ((length * std::cos(a)) / 2.0);
            const double ym =
                (line.y1 + ((sy * i) * length) * std::sin(a)) + sy * ((length * std::sin(a)) / 2.0);
            if (std::isfinite(ym / (xm + Ro)))
                beta = std::atan(ym / (xm + Ro));
            const double u = std::tan(beta);
            const double t = std::tan(a);
            if (a == 0)
                phi = TruncatedPi / 2 - beta;
            else if (a == TruncatedPi / 2)
                phi = beta;
            else if (u != 0)
                Assign(phi, std::atan((t + 1 / (-u)) / (1.0 - t / (-u))));
            const double r = std::sqrt(ym * ym + (xm + Ro) * (xm + Ro));
            if (r == 0)
                continue;
            const double degrees = std::abs((phi * 180.0) / TruncatedPi);
            const double deltaU = std::min(std::pow(degrees + 6.0, -0.65) * 1.087, 0.17) * 0.0625;
            elements.push_back({r, beta, std::pow(degrees + 2.0, -0.32) * (0.209 * 0.0625),
                                std::abs(phi), length, deltaU / r, Sign(xm + Ro)});
        }
    }
    return elements;
}

// One pass over lines that stand about their centroid, rotated: the sums of R r, V and r^2.
struct WeldSums {
    double SM = 0, SV = 0, SR = 0;
};

inline WeldSums WeldPassSums(const std::vector<WeldLine>& lines, double Ro, int strips) {
    const std::vector<Element> elements = Elements(lines, Ro, strips);
    double dRatio = 0, dMax = 0, f = 0;
    for (std::size_t k = 0; k < elements.size(); ++k) {
        dRatio = k == 0 ? elements[k].ratio : std::min(dRatio, elements[k].ratio);
        dMax = k == 0 ? elements[k].deltaM : std::max(dMax, elements[k].deltaM);
    }
    WeldSums sums;
    for (const Element& element : elements) {
        const double rho = (dRatio * element.r) / dMax;
        Assign(f, std::pow((1.9 - 0.9 * rho) * rho, 0.3));
        const double R = (1.0 + 0.5 * std::pow(std::sin(element.theta), 1.5)) * (0.6 * 70.0) * f *
                         (element.length * 0.707106781 * 0.0625);
        sums.SR += element.r * element.r;
        sums.SM += R * element.r;
        sums.SV += std::abs(std::cos(element.beta)) * R * element.sign;
    }
    return sums;
}

// The whole search. Lines go in as they come out of the configuration's routine.
inline Outcome WeldLoad(const std::vector<WeldLine>& lines, double eccentricity, double angle,
                        double scale, int strips,
                        long mostPasses = std::numeric_limits<long>::max()) {
    const double theta = (angle * TruncatedPi) / 180;
    const double E = std::abs(std::cos(theta) * eccentricity);
    double Ltot = 0, Sx = 0, Sy = 0;
    std::vector<WeldLine> kept;
    for (WeldLine line : lines) {
        if (line.y1 > line.y2 || (line.y1 == line.y2 && line.x2 < line.x1))
            line = {line.x2, line.y2, line.x1, line.y1};
        const double length = std::hypot(line.x2 - line.x1, line.y2 - line.y1);
        if (length <= 0.1)
            continue;
        Ltot += length;
        Sx += ((line.x2 + line.x1) * length) / 2.0;
        Sy += ((line.y2 + line.y1) * length) / 2.0;
        kept.push_back(line);
    }
    const auto turned = [&](double x, double y, double& toX, double& toY) {
        x -= Sx / Ltot;
        y -= Sy / Ltot;
        toX = x * std::cos(theta) - y * std::sin(theta);
        toY = x * std::sin(theta) + y * std::cos(theta);
    };
    for (WeldLine& line : kept) {
        turned(line.x1, line.y1, line.x1, line.y1);
        turned(line.x2, line.y2, line.x2, line.y2);
        line.lineAngle = line.x1 == line.x2 ? TruncatedPi / 2
                         : line.y1 == line.y2
                             ? 0
                             : std::atan((line.y2 - line.y1) / (line.x2 - line.x1));
    }
    Outcome outcome;
    double Ro = 0, Fm = 0, Fv = 0;
    for (bool done = false; !done && outcome.passes < mostPasses; ++outcome.passes) {
        const WeldSums sums = WeldPassSums(kept, Ro, strips);
        Fv = sums.SV;
        Fm = sums.SM / (E + Ro);
        const double G = sums.SR / (Ltot * sums.SM);
        Ro += (std::abs(Fm - Fv) * G) / Ltot;
        done = std::abs(Fv - Fm) <= 0.5 * scale;
    }
    outcome.value = std::max(0.0, (Fv + Fm) / 2);
    return outcome;
}

} // namespace Tensarix::Plain
