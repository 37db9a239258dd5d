#include "connections/WeldConfigurations.h"

#include <array>
#include <cmath>

#include "common/Failure.h"
#include "connections/WeldPass.h"

namespace Tensarix {
namespace {

constexpr double largestScaledLength = 100;

// An end of a line: 0, the base length or the leg length, across and up.
enum Reach { O, L, K };

struct LineEnds {
    Reach x1, y1, x2, y2;
};

enum class Figure {
    TwoVertical,
    TwoHorizontal,
    TallBox,
    WideBox,
    LeftChannel,
    RightChannel,
    LeftAngle,
    RightAngle
};

struct Configuration {
    int lineCount = 0;
    std::array<LineEnds, 4> lines{};
    bool singleWithoutLeg = false; // a leg length of exactly 0 leaves the upright alone, once
    bool xFromLeg = false;         // xL is measured from the end of the legs
    bool yFromTop = false;         // yL is measured from the top edge
    bool shownScaled = false;      // numbers and tolerance in scaled units, as validation.md tells
};

// The order of Figure.
constexpr std::array<Configuration, 8> configurations{{
    {2, {{{O, O, O, L}, {K, O, K, L}}}, false},
    {2, {{{O, O, L, O}, {O, K, L, K}}}, false},
    {4, {{{O, O, K, O}, {K, O, K, L}, {O, L, K, L}, {O, O, O, L}}}, false},
    {4, {{{O, O, L, O}, {L, O, L, K}, {O, K, L, K}, {O, O, O, K}}}, false},
    {3, {{{O, O, K, O}, {O, O, O, L}, {O, L, K, L}}}, true},
    {3, {{{O, O, K, O}, {K, O, K, L}, {O, L, K, L}}}, true, true, false, true},
    {2, {{{O, O, O, L}, {O, L, K, L}}}, true, false, true},
    {2, {{{O, L, K, L}, {K, O, K, L}}}, true, true, true},
}};

constexpr std::array<Figure, weldConfigurationCount> figureOfItem{
    Figure::TwoVertical,  Figure::TwoVertical, Figure::TwoHorizontal,
    Figure::TallBox,      Figure::WideBox,     Figure::LeftChannel,
    Figure::RightChannel, Figure::LeftAngle,   Figure::RightAngle};

const Configuration& Row_Of(Figure figure) {
    return configurations[static_cast<std::size_t>(figure)];
}

std::vector<WeldLine> Lines_Of(const Configuration& row, double base, double leg) {
    if (row.singleWithoutLeg && leg == 0)
        return {{0, 0, 0, base}};
    const std::array<double, 3> reach{0, base, leg};
    std::vector<WeldLine> lines;
    for (int k = 0; k < row.lineCount; ++k) {
        const LineEnds& ends = row.lines[static_cast<std::size_t>(k)];
        lines.push_back({reach[ends.x1], reach[ends.y1], reach[ends.x2], reach[ends.y2]});
    }
    return lines;
}

struct Inputs {
    double L, kL, aL, angle;
};

double Result(Figure figure, const Inputs& inputs, std::int16_t mode, WeldSearch& search) {
    const Configuration& row = Row_Of(figure);
    const double s = Weld_Scale(inputs.L);
    const double base = Finite(s * inputs.L);
    const double leg = Finite(s * inputs.kL);
    const double eccentricity = Finite(std::abs(inputs.aL) * s);
    const std::vector<WeldLine> lines = Lines_Of(row, base, leg);
    if (mode == weldModeC) {
        const double scale = row.shownScaled ? 1.0 : s;
        return Weld_Coefficient(SolveWeldGroup(lines, eccentricity, inputs.angle, scale, search),
                                base);
    }
    if (mode == weldModeXL) {
        const double x = WeldCentroidX(lines);
        return Finite((row.xFromLeg ? leg - x : x) / s);
    }
    if (mode == weldModeYL)
        return Finite((row.yFromTop ? WeldCentroidFromTop(lines) : WeldCentroidY(lines)) / s);
    return 0;
}

Figure Figure_Of_Item(int item) {
    if (item < 1 || item > weldConfigurationCount)
        throw Failure("no such weld configuration");
    return figureOfItem[static_cast<std::size_t>(item - 1)];
}

// Item 1 is item 2 without a leg.
double Leg_Of_Item(int item, double leg) {
    return item == 1 ? 0 : leg;
}

} // namespace

double TwoVerticalLines(double L, double kL, double aL, double angle, std::int16_t mode,
                        WeldSearch& search) {
    return Result(Figure::TwoVertical, {L, kL, aL, angle}, mode, search);
}

double TwoHorizontalLines(double L, double kL, double aL, double angle, std::int16_t mode,
                          WeldSearch& search) {
    return Result(Figure::TwoHorizontal, {L, kL, aL, angle}, mode, search);
}

double TallBoxLines(double L, double kL, double aL, double angle, std::int16_t mode,
                    WeldSearch& search) {
    return Result(Figure::TallBox, {L, kL, aL, angle}, mode, search);
}

double WideBoxLines(double L, double kL, double aL, double angle, std::int16_t mode,
                    WeldSearch& search) {
    return Result(Figure::WideBox, {L, kL, aL, angle}, mode, search);
}

double LeftChannelLines(double L, double kL, double aL, double angle, std::int16_t mode,
                        WeldSearch& search) {
    return Result(Figure::LeftChannel, {L, kL, aL, angle}, mode, search);
}

double RightChannelLines(double L, double kL, double aL, double angle, std::int16_t mode,
                         WeldSearch& search) {
    return Result(Figure::RightChannel, {L, kL, aL, angle}, mode, search);
}

double LeftAngleLines(double L, double kL, double aL, double angle, std::int16_t mode,
                      WeldSearch& search) {
    return Result(Figure::LeftAngle, {L, kL, aL, angle}, mode, search);
}

double RightAngleLines(double L, double kL, double aL, double angle, std::int16_t mode,
                       WeldSearch& search) {
    return Result(Figure::RightAngle, {L, kL, aL, angle}, mode, search);
}

double Weld_Configuration_Result(int item, double L, double kL, double aL, double angle,
                                 std::int16_t mode, WeldSearch& search) {
    return Result(Figure_Of_Item(item), {L, Leg_Of_Item(item, kL), aL, angle}, mode, search);
}

std::vector<WeldLine> Weld_Configuration_Lines(int item, double base, double leg) {
    return Lines_Of(Row_Of(Figure_Of_Item(item)), base, Leg_Of_Item(item, leg));
}

double Weld_Scale(double L) {
    return L > largestScaledLength ? 1 : Finite(largestScaledLength / L);
}

double Weld_Display_Unit(int item, double L) {
    return Row_Of(Figure_Of_Item(item)).shownScaled ? Weld_Scale(L) : 1;
}

// The two divisions cancel to within rounding; both are made.
double Weld_Coefficient(double raw, double base) {
    return Finite(Finite((raw / base) / 16.0) / weldSize);
}

} // namespace Tensarix
