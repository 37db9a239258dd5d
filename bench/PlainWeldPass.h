// A pass of the weld search written down plainly, element by element, with the C library's scalar
// functions: what the engine's is measured against.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "connections/WeldFunctions.h"

namespace Tensarix::Plain {

constexpr double truncatedPi = 3.14159265358979;

inline void Assign(double& target, double value) {
    if (std::isfinite(value))
        target = value;
}

inline double Sign(double value) {
    return value > 0 ? 1 : value < 0 ? -1 : 0;
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
                phi = truncatedPi / 2 - beta;
            else if (a == truncatedPi / 2)
                phi = beta;
            else if (u != 0)
                Assign(phi, std::atan((t + 1 / (-u)) / (1.0 - t / (-u))));
            const double r = std::sqrt(ym * ym + (xm + Ro) * (xm + Ro));
            if (r == 0)
                continue;
            const double degrees = std::abs((phi * 180.0) / truncatedPi);
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

} // namespace Tensarix::Plain
