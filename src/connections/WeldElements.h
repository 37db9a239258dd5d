// How a weld line is cut into elements, and the elements one by one.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "connections/Numbers.h"
#include "connections/WeldPass.h"

namespace Tensarix {

struct WeldElement {
    double r = 0;           // from the instantaneous centre to the middle of the element
    double radiusAngle = 0; // of the radius from the horizontal, radians
    double deltaM = 0;
    double lineAngle = 0;
    std::int16_t lineNumber = 0;
    double theta = 0; // angle of the strength term, radians
    double elementLength = 0;
    double deltaU = 0;
    double deltaURatio = 0; // deltaU / r
    std::int16_t forceSign = 0;
};

// The cut of one line; a field whose step fails keeps the value it had from the line before.
struct WeldCut {
    double roundedLength = 0;
    double count = 0; // of elements, a whole number
    double elementLength = 0;
    double a = 0, cosA = 1, sinA = 0;
    double sx = 0, sy = 0;
    double x1 = 0, y1 = 0;

    void Take(const WeldLine& line, std::int16_t stripsPerUnit);

    // The signs multiply the signed cosine and sine: the elements of a line that leans to the left
    // step away from it. Without that, C of every turned group would change (validation.md
    // tells how far it is off).
    double Middle_X(double i) const {
        return (x1 + ((sx * i) * elementLength) * cosA) + sx * ((elementLength * cosA) / 2.0);
    }
    double Middle_Y(double i) const {
        return (y1 + ((sy * i) * elementLength) * sinA) + sy * ((elementLength * sinA) / 2.0);
    }
};

inline void WeldCut::Take(const WeldLine& line, std::int16_t stripsPerUnit) {
    const double dx = line.x2 - line.x1;
    const double dy = line.y2 - line.y1;
    Attempt([&] { roundedLength = Whole_32(Finite(std::sqrt(dy * dy + dx * dx))); });
    Attempt([&] { count = std::trunc(Finite(roundedLength / Finite(1.0 / stripsPerUnit))); });
    Keep(elementLength, roundedLength / count);
    a = line.lineAngle;
    cosA = std::cos(a);
    sinA = std::sin(a);
    sx = Sign_Of(dx);
    sy = Sign_Of(dy);
    x1 = line.x1;
    y1 = line.y1;
}

// The locals that the elements of one call share.
struct WeldAngles {
    double xm = 0, ym = 0, beta = 0, phi = 0, r = 0;
    double X = 0; // xm + Ro, maybe not finite: then the steps that need it fail
};

// The sum form of the tangent, with a plus where the geometry has a minus: evened out, C of every
// turned group would change (validation.md).
inline double Leaning_Angle(double a, double beta) {
    const double t = std::tan(a);
    const double u = std::tan(beta);
    const double numerator = Finite(t + Finite(1 / (-u)));
    const double denominator = Finite(1.0 - Finite(t / (-u)));
    return std::atan(Finite(numerator / denominator));
}

inline void Take_Angles(const WeldCut& cut, double i, double Ro, WeldAngles& at) {
    Keep(at.xm, cut.Middle_X(i));
    Keep(at.ym, cut.Middle_Y(i));
    at.X = at.xm + Ro;
    const double tangent = at.ym / at.X;
    if (std::isfinite(at.X) && std::isfinite(tangent))
        at.beta = std::atan(tangent);
    if (cut.a == 0)
        at.phi = pi / 2 - at.beta;
    else if (cut.a == pi / 2)
        at.phi = at.beta;
    else
        Attempt([&] { at.phi = Leaning_Angle(cut.a, at.beta); });
    Keep(at.r, std::sqrt(at.ym * at.ym + at.X * at.X));
}

inline WeldElement Element_At(const WeldCut& cut, const WeldAngles& at, std::size_t line) {
    WeldElement element;
    const double degrees = std::abs((at.phi * 180.0) / pi);
    if (std::isfinite(at.X))
        element.forceSign = static_cast<std::int16_t>(Sign_Of(at.X));
    element.theta = std::abs(at.phi);
    element.radiusAngle = at.beta;
    element.r = at.r;
    element.lineAngle = cut.a;
    element.deltaM = Weld_Delta_M(degrees);
    element.deltaU = Weld_Delta_U(degrees);
    Keep(element.deltaURatio, element.deltaU / at.r);
    element.elementLength = cut.elementLength;
    element.lineNumber = static_cast<std::int16_t>(line + 1);
    return element;
}

// Hands the elements of all lines about the centre at -Ro to `take`, in order, and calls `after`
// once an element, also for one on the centre itself, which is left out.
template <typename Take, typename After>
void BuildWeldElements(const std::vector<WeldLine>& lines, double Ro, std::int16_t stripsPerUnit,
                       Take&& take, After&& after) {
    WeldCut cut;
    WeldAngles at;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        cut.Take(lines[line], stripsPerUnit);
        for (double i = 0; i < cut.count; ++i) {
            Take_Angles(cut, i, Ro, at);
            if (at.r != 0)
                take(Element_At(cut, at, line));
            after();
        }
    }
}

} // namespace Tensarix
