#include "connections/WeldPass.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "connections/VectorMath.h"
#include "connections/WeldElements.h"

namespace Tensarix {
namespace {

constexpr double StrengthOfThroat = WeldStressFactor * ElectrodeStrength;

// Deformations over the weld size: 0.209 (angle + 2)^-0.32, and 1.087 (angle + 6)^-0.65 up to 0.17.
constexpr double DeltaMAngle = 2.0;
constexpr double DeltaMPower = -0.32;
constexpr double DeltaMFactor = 0.209;
constexpr double DeltaUAngle = 6.0;
constexpr double DeltaUPower = -0.65;
constexpr double DeltaUFactor = 1.087;
constexpr double MostDeltaU = 0.17;

// Coordinates and tangents below this leave no step of a pass that can fail.
constexpr double Ordinary = 1e60;
constexpr std::size_t Block = 64;

enum class Lie { Flat, Upright, Leaning };

// Some elements of one line. `tangent` is that of the angle between force and axis, or of its
// complement on a flat line.
struct ElementBlock { // NOLINT(cppcoreguidelines-pro-type-member-init): for speed
    std::size_t count = 0;
    std::array<double, Block> X, r, tangent; // as far as `count`
};

// One line of a pass, with what is constant on it.
struct LineSweep {
    WeldCut cut;
    Lie lie = Lie::Flat;
    double t = 0; // tan a
    double Ro = 0;
};

Lie Lie_Of(double a) {
    return a == 0 ? Lie::Flat : a == Pi / 2 ? Lie::Upright : Lie::Leaning;
}

double Leaning_Tangent(double t, double u) {
    return (t + 1 / (-u)) / (1.0 - t / (-u));
}

// False if a step of an element might fail.
bool Fill(const LineSweep& line, double first, ElementBlock& block) {
    bool ordinary = true;
    for (std::size_t k = 0; k < block.count; ++k) {
        const double i = first + static_cast<double>(k);
        const double y = line.cut.Middle_Y(i);
        const double X = line.cut.Middle_X(i) + line.Ro;
        const double u = y / X;
        block.X[k] = X;
        block.r[k] = std::sqrt(y * y + X * X);
        block.tangent[k] = u;
        ordinary &= std::abs(u) < Ordinary;
    }
    if (line.lie == Lie::Leaning) {
        for (std::size_t k = 0; k < block.count; ++k) {
            const double u = block.tangent[k];
            block.tangent[k] = Leaning_Tangent(line.t, u);
            ordinary &= std::abs(u) > 1 / Ordinary;
            ordinary &= std::abs(block.tangent[k]) < Ordinary;
        }
    }
    return ordinary;
}

// Goes through all elements in blocks: use(sweep, block). False as soon as one might fail.
template <typename Use>
bool For_Blocks(const std::vector<WeldLine>& lines, double Ro, const WeldState& state, Use&& use) {
    LineSweep line;
    ElementBlock block;
    line.Ro = Ro;
    for (const WeldLine& each : lines) {
        line.cut.Take(each, state.StripsPerUnit);
        line.lie = Lie_Of(line.cut.a);
        line.t = std::tan(line.cut.a);
        for (double first = 0; first < line.cut.count; first += Block) {
            block.count = static_cast<std::size_t>(
                std::min(static_cast<double>(Block), line.cut.count - first));
            if (!Fill(line, first, block) || !use(line, block))
                return false;
        }
    }
    return true;
}

void Degrees(const LineSweep& line, const ElementBlock& block, double* degrees) {
    std::copy_n(block.tangent.data(), block.count, degrees);
    Arctangent_Each(degrees, block.count);
    if (line.lie == Lie::Flat)
        for (std::size_t k = 0; k < block.count; ++k)
            degrees[k] = Pi / 2 - degrees[k];
    for (std::size_t k = 0; k < block.count; ++k)
        degrees[k] = std::abs((degrees[k] * 180.0) / Pi);
}

// Finds the critical element, which needs every deltaU, and the largest deltaM, which is that of
// the smallest angle.
bool Find_Critical(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                   WeldPass& pass, SearchYield& yield) {
    double leastDegrees = std::numeric_limits<double>::infinity();
    double leastRatio = leastDegrees;
    std::array<double, Block> powers; // NOLINT(cppcoreguidelines-pro-type-member-init): for speed
    const auto use = [&](const LineSweep& line, const ElementBlock& block) {
        Degrees(line, block, powers.data());
        for (std::size_t k = 0; k < block.count; ++k) {
            leastDegrees = std::min(leastDegrees, powers[k]);
            powers[k] += DeltaUAngle;
        }
        Raise_Each(powers.data(), block.count, DeltaUPower);
        for (std::size_t k = 0; k < block.count; ++k) {
            const double deltaU = std::min(powers[k] * DeltaUFactor, MostDeltaU) * WeldSize;
            leastRatio = std::min(leastRatio, deltaU / block.r[k]);
            yield();
            yield();
        }
        return true;
    };
    if (!For_Blocks(lines, Ro, state, use))
        return false;
    if (std::isfinite(leastRatio)) {
        pass.dRatio = leastRatio;
        pass.dMax = Weld_Delta_M(leastDegrees);
    }
    return true;
}

// 1 + 0.5 sin^1.5 of the angle between force and axis.
double Direction_Factor(const LineSweep& line, double tangent) {
    const double secant = std::sqrt(1 + tangent * tangent);
    const double sine = (line.lie == Lie::Flat ? 1 : std::abs(tangent)) / secant;
    return 1.0 + 0.5 * (sine * std::sqrt(sine));
}

bool Add_Forces(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                WeldPass& pass, SearchYield& yield) {
    pass.SM = pass.SV = pass.SR = 0;
    std::array<double, Block> f; // NOLINT(cppcoreguidelines-pro-type-member-init): for speed
    const auto use = [&](const LineSweep& line, const ElementBlock& block) {
        const double area = line.cut.elementLength * WeldThroat * WeldSize;
        for (std::size_t k = 0; k < block.count; ++k) {
            const double rho = (pass.dRatio * block.r[k]) / pass.dMax;
            f[k] = (1.9 - 0.9 * rho) * rho;
        }
        Raise_Each(f.data(), block.count, WeldForcePower);
        for (std::size_t k = 0; k < block.count; ++k) {
            const double r = block.r[k];
            const double R =
                Direction_Factor(line, block.tangent[k]) * StrengthOfThroat * f[k] * area;
            pass.SR += r * r;
            pass.SM += R * r;
            pass.SV += R * (block.X[k] / r);
            yield();
        }
        pass.f = f[block.count - 1];
        return true;
    };
    // A power that fails anywhere has made SM not a number.
    return For_Blocks(lines, Ro, state, use) && std::isfinite(pass.SM);
}

bool Is_Ordinary(const std::vector<WeldLine>& lines, double Ro) {
    const auto inside = [](double value) { return std::abs(value) < Ordinary; };
    return inside(Ro) && std::all_of(lines.begin(), lines.end(), [&](const WeldLine& line) {
               return inside(line.x1) && inside(line.y1) && inside(line.x2) && inside(line.y2);
           });
}

void Find_Careful_Critical(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                           WeldPass& pass, SearchYield& yield) {
    bool first = true;
    const auto take = [&](const WeldElement& element) {
        pass.dRatio = first ? element.deltaURatio : std::min(pass.dRatio, element.deltaURatio);
        pass.dMax = first ? element.deltaM : std::max(pass.dMax, element.deltaM);
        first = false;
        yield();
    };
    BuildWeldElements(lines, Ro, state.StripsPerUnit, take, yield);
}

void Add_Careful_Force(const WeldElement& element, WeldPass& pass) {
    Keep(pass.Delta, pass.dRatio * element.r);
    Keep(pass.rho, pass.Delta / pass.dMax);
    Keep(pass.f, std::pow((1.9 - 0.9 * pass.rho) * pass.rho, WeldForcePower));
    Keep(pass.R, (1.0 + 0.5 * std::pow(std::sin(element.theta), 1.5)) * StrengthOfThroat * pass.f *
                     (element.elementLength * WeldThroat * WeldSize));
    Keep(pass.V, std::abs(std::cos(element.radiusAngle)) * pass.R * element.forceSign);
    Keep(pass.SR, pass.SR + element.r * element.r);
    Keep(pass.SM, pass.SM + pass.R * element.r);
    Keep(pass.SV, pass.SV + pass.V);
}

} // namespace

double Weld_Delta_M(double degrees) {
    return std::pow(degrees + DeltaMAngle, DeltaMPower) * (DeltaMFactor * WeldSize);
}

double Weld_Delta_U(double degrees) {
    return std::min(std::pow(degrees + DeltaUAngle, DeltaUPower) * DeltaUFactor, MostDeltaU) *
           WeldSize;
}

void Take_Careful_Weld_Pass(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                            WeldPass& pass, SearchYield& yield) {
    Find_Careful_Critical(lines, Ro, state, pass, yield);
    pass.SM = pass.SV = pass.SR = 0;
    const auto take = [&](const WeldElement& element) {
        Add_Careful_Force(element, pass);
        yield();
    };
    BuildWeldElements(lines, Ro, state.StripsPerUnit, take, [] {});
}

void Take_Weld_Pass(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                    WeldPass& pass, SearchYield& yield) {
    const WeldPass before = pass;
    if (Is_Ordinary(lines, Ro) && Find_Critical(lines, Ro, state, pass, yield) &&
        Add_Forces(lines, Ro, state, pass, yield))
        return;
    pass = before;
    Take_Careful_Weld_Pass(lines, Ro, state, pass, yield);
}

} // namespace Tensarix
