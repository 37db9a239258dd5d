// Sections as plates, after their dimensions, and what follows from plates: an independent way to
// the figures of the tables.
#pragma once

#include "SectionFigures.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace Tensarix {

inline constexpr double pi = std::numbers::pi;
using Row = FigureRow;

inline double Square(double x) {
    return x * x;
}
inline double Cube(double x) {
    return x * x * x;
}

// One flat piece of a section, centred at (X, Y); Sign -1 takes it away.
struct Plate {
    double Width, Height, X, Y, Sign = 1;
};

struct Properties {
    double A = 0, X = 0, Y = 0, Ix = 0, Iy = 0, Ixy = 0;
};

inline Properties Of(const std::vector<Plate>& plates) {
    Properties p;
    for (const Plate& q : plates) {
        const double a = q.Sign * q.Width * q.Height;
        p.A += a;
        p.X += a * q.X;
        p.Y += a * q.Y;
        p.Ix += a * (Square(q.Height) / 12 + Square(q.Y));
        p.Iy += a * (Square(q.Width) / 12 + Square(q.X));
        p.Ixy += a * q.X * q.Y;
    }
    p.X /= p.A;
    p.Y /= p.A;
    p.Ix -= p.A * Square(p.Y);
    p.Iy -= p.A * Square(p.X);
    p.Ixy -= p.A * p.X * p.Y;
    return p;
}

// Plastic modulus about the horizontal axis at height y: the first moments of the two sides. With
// the axes exchanged, that about the vertical one.
inline double Plastic(const std::vector<Plate>& plates, double at, bool vertical = false) {
    double sum = 0;
    for (Plate q : plates) {
        if (vertical)
            q = {q.Height, q.Width, q.Y, q.X, q.Sign};
        const double low = q.Y - q.Height / 2 - at;
        const double high = q.Y + q.Height / 2 - at;
        sum += q.Sign * q.Width *
               (low < 0 && high > 0 ? Square(low) + Square(high)
                                    : std::abs(Square(high) - Square(low))) /
               2;
    }
    return sum;
}

// The area on the low side of the axis; an axis of equal areas has half of it there.
inline double Area_Below(const std::vector<Plate>& plates, double at, bool vertical = false) {
    double sum = 0;
    for (const Plate& q : plates) {
        const double size = vertical ? q.Width : q.Height;
        const double low = (vertical ? q.X : q.Y) - size / 2;
        sum += q.Sign * q.Width * q.Height * std::clamp((at - low) / size, 0.0, 1.0);
    }
    return sum;
}

// A fillet between web and flange is taken as a square of its area, with its own centre.
inline Plate Fillet(double size, double x, double y, double signX, double signY) {
    const double side = size * std::sqrt(1 - pi / 4);
    const double centre = 0.2234 * size;
    return {side, side, x + signX * centre, y + signY * centre};
}

// How much the inner face of a flange rises towards the web; TF is the thickness halfway out. The
// standard shapes have one in six, most of the MC-shapes two degrees, the others none.
inline double Slope(const Row& r) {
    const bool standard = r.Family == "S" || r.Family == "ST" || r.Family == "C" ||
                          r.Us.starts_with("MC13x") || r.Us == "MC12x10.6" || r.Us == "MC10x8.4" ||
                          r.Us == "MC8x8.5";
    if (standard)
        return 1.0 / 6;
    return r.Family == "MC" ? 0.035 : 0;
}

inline double Flange_At_Web(const Row& r, double overhang) {
    return r("TF") + Slope(r) * overhang / 2;
}

inline double Fillet_Size(const Row& r) {
    const double overhang = r("BF") / 2 - r("TW") / 2;
    return std::max(r("KDES") - Flange_At_Web(r, overhang), 0.0);
}

// One flange beside the web, from (x, y), its outer face, in strips that follow the slope.
inline void Add_Overhang(std::vector<Plate>& plates, const Row& r, double x, double y,
                         double length, double signX, double signY) {
    constexpr int strips = 10;
    const double width = length / strips;
    for (int i = 0; i < strips; ++i) {
        const double out = (i + 0.5) * width;
        const double thick = Flange_At_Web(r, length) - Slope(r) * out;
        plates.push_back({width, thick, x + signX * out, y + signY * thick / 2});
    }
}

// About the middle of the web.
inline std::vector<Plate> Beam(const Row& r) {
    const double d = r("D"), tw = r("TW"), overhang = (r("BF") - tw) / 2;
    std::vector<Plate> plates{{tw, d, 0, 0}};
    for (const double x : {-1.0, 1.0})
        for (const double y : {-1.0, 1.0}) {
            Add_Overhang(plates, r, x * tw / 2, y * d / 2, overhang, x, -y);
            plates.push_back(Fillet(Fillet_Size(r), x * tw / 2,
                                    y * (d / 2 - Flange_At_Web(r, overhang)), x, -y));
        }
    return plates;
}

// From the back of the web, and the middle of its height. The fillets are small.
inline std::vector<Plate> Channel(const Row& r) {
    const double d = r("D"), tw = r("TW");
    std::vector<Plate> plates{{tw, d, tw / 2, 0}};
    for (const double y : {-1.0, 1.0})
        Add_Overhang(plates, r, tw, y * d / 2, r("BF") - tw, 1, -y);
    return plates;
}

// Torsion of thin walls: the web between the middles of the flanges, and the strips of the flanges.
inline double Channel_Torsion(const Row& r) {
    double sum = (r("D") - r("TF")) * Cube(r("TW"));
    const std::vector<Plate> plates = Channel(r);
    for (std::size_t i = 1; i < plates.size(); ++i)
        sum += plates[i].Width * Cube(plates[i].Height);
    return sum / 3;
}

// From the outer face of the flange, down the stem.
inline std::vector<Plate> Tee(const Row& r) {
    const double tw = r("TW"), overhang = (r("BF") - tw) / 2;
    std::vector<Plate> plates{{tw, r("D"), 0, r("D") / 2}};
    for (const double x : {-1.0, 1.0}) {
        Add_Overhang(plates, r, x * tw / 2, 0, overhang, x, 1);
        plates.push_back(Fillet(Fillet_Size(r), x * tw / 2, Flange_At_Web(r, overhang), x, 1));
    }
    return plates;
}

// From the heel. The rounded toes make up for the fillet.
inline std::vector<Plate> Angle(const Row& r) {
    const double t = r("T");
    return {{t, r("D"), t / 2, r("D") / 2}, {r("B") - t, t, (r("B") + t) / 2, t / 2}};
}

inline double Least_Inertia(const Properties& p) {
    return (p.Ix + p.Iy) / 2 - std::hypot((p.Ix - p.Iy) / 2, p.Ixy);
}

// A box with rounded corners: the rectangle less what is missing at each corner, which has the form
// of a fillet.
inline void Add_Box(std::vector<Plate>& plates, double h, double b, double radius, double sign) {
    plates.push_back({b, h, 0, 0, sign});
    for (const double x : {-1.0, 1.0})
        for (const double y : {-1.0, 1.0}) {
            plates.push_back(Fillet(radius, x * b / 2, y * h / 2, -x, -y));
            plates.back().Sign = -sign;
        }
}

// The corner radius is two walls outside and one inside.
inline std::vector<Plate> Tube(const Row& r, double wall) {
    std::vector<Plate> plates;
    Add_Box(plates, r("HT"), r("B"), 2 * wall, 1);
    Add_Box(plates, r("HT") - 2 * wall, r("B") - 2 * wall, wall, -1);
    return plates;
}

inline std::vector<Plate> Tube(const Row& r) {
    return Tube(r, r("TDES"));
}

// Torsion of a closed thin wall about its middle line, and of the wall itself.
inline double Tube_Torsion(const Row& r) {
    const double t = r("TDES");
    const double lost = 1.5 * t * (4 - pi);
    const double area = (r("HT") - t) * (r("B") - t) - 1.5 * t * lost;
    const double length = 2 * (r("HT") + r("B") - 2 * t) - 2 * lost;
    return length * Cube(t) / 3 + 4 * Square(area) * t / length;
}

} // namespace Tensarix
