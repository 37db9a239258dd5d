#include "connections/GroupDrawing.h"

#include "common/NumberText.h"
#include "connections/Numbers.h"

#include <cmath>

namespace Tensarix {

namespace {

using namespace Drawn;

constexpr double usualEccentricity = 1.1, usualAngle = 25; // of the size; degrees
constexpr double arrowLength = 0.6, arcPlace = 0.62;       // of the size; of the arrow
constexpr int arcPieces = 24;

std::string Short_Text(double value) {
    return Format_Number(value, std::abs(value) < 1000 ? "0.0" : "0.0E+0");
}

} // namespace

double GroupLoad::X() const {
    return Eccentricity.value_or(usualEccentricity * Size);
}
double GroupLoad::Radians() const {
    return Angle.value_or(usualAngle) * pi / 180;
}
Point GroupLoad::Towards() const {
    return {-std::sin(Radians()), -std::cos(Radians())};
}

std::string Known_Text(const std::optional<double>& value) {
    constexpr double decimals = 1e3, wholeAbove = 1e9;
    if (!value)
        return {};
    return General_Text(std::abs(*value) < wholeAbove ? std::round(*value * decimals) / decimals
                                                      : *value);
}

void Add_Load(Drawing& drawing, const GroupLoad& load, const std::string& symbol) {
    const double x = load.X(), length = arrowLength * load.Size;
    const Point towards = load.Towards();
    drawing.Add(CentreLine{{0, 0}, {x, 0}}, Ink::Axis);
    drawing.Add(Arrow{{x - towards.X * length, -towards.Y * length}, {x, 0}, "P"}, Ink::Force, "P");
    std::string angle = "Ø";
    if (load.Angle)
        angle += " = " + Known_Text(load.Angle) + "°";
    if (load.Radians() == 0) {
        drawing.Add(Label{{x, length / 2}, angle}, Ink::Measure, "Ø");
    } else {
        drawing.Add(Line{{x, 0}, {x, length}, Pattern::Dashed}, Ink::Axis);
        Curve arc;
        arc.Label = angle;
        for (int i = 0; i <= arcPieces; ++i) {
            const double part = load.Radians() * i / arcPieces;
            arc.Points.push_back(
                {x + arcPlace * length * std::sin(part), arcPlace * length * std::cos(part)});
        }
        drawing.Add(std::move(arc), Ink::Measure, "Ø");
    }
    if (x != 0)
        drawing.Add(Dimension{{0, 0}, {x, 0}, Side::Below, symbol, Known_Text(load.Eccentricity)},
                    Ink::Measure, symbol);
    else
        drawing.Add(Label{{0, 0}, symbol + " = 0"}, Ink::Measure, symbol);
}

void Add_Centre(Drawing& drawing, Point centre, double size, double near, MarkKind kind, Ink ink,
                const std::string& name) {
    const double away = std::hypot(centre.X, centre.Y);
    if (away <= near * size) {
        drawing.Add(Mark{centre, kind, name}, ink, name);
        return;
    }
    constexpr double from = 0.5; // of the size
    const Point towards{centre.X / away, centre.Y / away};
    drawing.Add(
        Pointer{{towards.X * from * size, towards.Y * from * size}, towards, name + " outside"},
        ink, name);
}

std::string Place_In_Words(Point centre, const std::string& unit) {
    return Short_Text(std::abs(centre.X)) + unit + (centre.X < 0 ? " left" : " right") +
           " of the centroid and " + Short_Text(std::abs(centre.Y)) + unit +
           (centre.Y < 0 ? " below it" : " above it");
}

Point Search_Centre(const GroupLoad& load, double Ro) {
    const double side = load.X() * std::cos(load.Radians()) < 0 ? -1 : 1;
    return {-side * Ro * std::cos(load.Radians()), side * Ro * std::sin(load.Radians())};
}

} // namespace Tensarix
