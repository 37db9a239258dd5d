#include "connections/WeldPass.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "connections/ArrayMath.h"
#include "connections/WeldElements.h"

namespace Tensarix {
namespace {

constexpr double strengthOfThroat = weldStressFactor * electrodeStrength;

// Deformations over the weld size: 0.209 (angle + 2)^-0.32, and 1.087 (angle + 6)^-0.65 up to 0.17.
constexpr double deltaMAngle = 2.0;
constexpr double deltaMPower = -0.32;
constexpr double deltaMFactor = 0.209;
constexpr double deltaUAngle = 6.0;
constexpr double deltaUPower = -0.65;
constexpr double deltaUFactor = 1.087;
constexpr double mostDeltaU = 0.17;

constexpr std::size_t blockSize = 64;

enum class Lie { Flat, Upright, Leaning };

// Some elements of one line. `tangent` is that of the angle between force and axis, or of its
// complement on a flat line.
struct ElementBlock { // NOLINT(cppcoreguidelines-pro-type-member-init): for speed
    std::size_t count = 0;
    std::array<double, blockSize> X, r, tangent; // as far as `count`
};

// One line of a pass, with what is constant on it.
struct LineSweep {
    WeldCut cut;
    Lie lie = Lie::Flat;
    double t = 0; // tan a
    double Ro = 0;
};

Lie Lie_Of(double a) {
    return a == 0 ? Lie::Flat : a == pi / 2 ? Lie::Upright : Lie::Leaning;
}

double Leaning_Tangent(double t, double u) {
    return (t + 1 / (-u)) / (1.0 - t / (-u));
}

void Fill(const LineSweep& line, double first, ElementBlock& block) {
    for (std::size_t k = 0; k < block.count; ++k) {
        const double i = first + static_cast<double>(k);
        const double y = line.cut.Middle_Y(i);
        const double X = line.cut.Middle_X(i) + line.Ro;
        block.X[k] = X;
        block.r[k] = std::sqrt(y * y + X * X);
        block.tangent[k] = y / X;
    }
    if (line.lie == Lie::Leaning)
        for (std::size_t k = 0; k < block.count; ++k)
            block.tangent[k] = Leaning_Tangent(line.t, block.tangent[k]);
}

// Goes through all elements in blocks: use(sweep, block).
template <typename Use>
void For_Blocks(const std::vector<WeldLine>& lines, double Ro, const WeldState& state, Use&& use) {
    LineSweep line;
    ElementBlock block;
    line.Ro = Ro;
    for (const WeldLine& each : lines) {
        line.cut.Take(each, state.StripsPerUnit);
        line.lie = Lie_Of(line.cut.a);
        line.t = std::tan(line.cut.a);
        for (double first = 0; first < line.cut.count; first += blockSize) {
            block.count = static_cast<std::size_t>(
                std::min(static_cast<double>(blockSize), line.cut.count - first));
            Fill(line, first, block);
            use(line, block);
        }
    }
}

void Degrees(const LineSweep& line, const ElementBlock& block, double* degrees) {
    std::copy_n(block.tangent.data(), block.count, degrees);
    Arctangent_Each(degrees, block.count);
    if (line.lie == Lie::Flat)
        for (std::size_t k = 0; k < block.count; ++k)
            degrees[k] = pi / 2 - degrees[k];
    for (std::size_t k = 0; k < block.count; ++k)
        degrees[k] = std::abs((degrees[k] * 180.0) / pi);
}

// Finds the critical element, which needs every deltaU, and the largest deltaM, which is that of
// the smallest angle.
void Find_Critical(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                   WeldPass& pass, SearchYield& yield) {
    double leastDegrees = std::numeric_limits<double>::infinity();
    double leastRatio = leastDegrees;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): for speed
    std::array<double, blockSize> powers;
    const auto use = [&](const LineSweep& line, const ElementBlock& block) {
        Degrees(line, block, powers.data());
        for (std::size_t k = 0; k < block.count; ++k) {
            leastDegrees = std::min(leastDegrees, powers[k]);
            powers[k] += deltaUAngle;
        }
        Raise_Each(powers.data(), block.count, deltaUPower);
        for (std::size_t k = 0; k < block.count; ++k) {
            const double deltaU = std::min(powers[k] * deltaUFactor, mostDeltaU) * weldSize;
            leastRatio = std::min(leastRatio, deltaU / block.r[k]);
            yield();
            yield();
        }
    };
    For_Blocks(lines, Ro, state, use);
    if (std::isfinite(leastRatio)) {
        pass.dRatio = leastRatio;
        pass.dMax = Weld_Delta_M(leastDegrees);
    }
}

// 1 + 0.5 sin^1.5 of the angle between force and axis.
double Direction_Factor(const LineSweep& line, double tangent) {
    const double secant = std::sqrt(1 + tangent * tangent);
    const double sine = (line.lie == Lie::Flat ? 1 : std::abs(tangent)) / secant;
    return 1.0 + 0.5 * (sine * std::sqrt(sine));
}

// False where a sum is not finite: then a step has failed. The tangents are summed for this alone,
// as that of an element straight above the centre goes into no other sum on a flat line.
bool Add_Forces(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                WeldPass& pass, SearchYield& yield) {
    pass.SM = pass.SV = pass.SR = 0;
    double tangents = 0;
    std::array<double, blockSize> f; // NOLINT(cppcoreguidelines-pro-type-member-init): for speed
    const auto use = [&](const LineSweep& line, const ElementBlock& block) {
        const double area = line.cut.elementLength * weldThroat * weldSize;
        for (std::size_t k = 0; k < block.count; ++k) {
            const double rho = (pass.dRatio * block.r[k]) / pass.dMax;
            f[k] = (1.9 - 0.9 * rho) * rho;
        }
        Raise_Each(f.data(), block.count, weldForcePower);
        for (std::size_t k = 0; k < block.count; ++k) {
            const double r = block.r[k];
            const double R =
                Direction_Factor(line, block.tangent[k]) * strengthOfThroat * f[k] * area;
            pass.SR += r * r;
            pass.SM += R * r;
            pass.SV += R * (block.X[k] / r);
            tangents += block.tangent[k];
            yield();
        }
        pass.f = f[block.count - 1];
    };
    For_Blocks(lines, Ro, state, use);
    return std::isfinite(pass.SR + pass.SM + pass.SV + tangents);
}

void Find_Critical_Step_By_Step(const std::vector<WeldLine>& lines, double Ro,
                                const WeldState& state, WeldPass& pass, SearchYield& yield) {
    bool first = true;
    const auto take = [&](const WeldElement& element) {
        pass.dRatio = first ? element.deltaURatio : std::min(pass.dRatio, element.deltaURatio);
        pass.dMax = first ? element.deltaM : std::max(pass.dMax, element.deltaM);
        first = false;
        yield();
    };
    BuildWeldElements(lines, Ro, state.StripsPerUnit, take, yield);
}

void Add_Force_Step_By_Step(const WeldElement& element, WeldPass& pass) {
    Keep(pass.Delta, pass.dRatio * element.r);
    Keep(pass.rho, pass.Delta / pass.dMax);
    Keep(pass.f, std::pow((1.9 - 0.9 * pass.rho) * pass.rho, weldForcePower));
    Keep(pass.R, (1.0 + 0.5 * std::pow(std::sin(element.theta), 1.5)) * strengthOfThroat * pass.f *
                     (element.elementLength * weldThroat * weldSize));
    Keep(pass.V, std::abs(std::cos(element.radiusAngle)) * pass.R * element.forceSign);
    Keep(pass.SR, pass.SR + element.r * element.r);
    Keep(pass.SM, pass.SM + pass.R * element.r);
    Keep(pass.SV, pass.SV + pass.V);
}

} // namespace

double Weld_Delta_M(double degrees) {
    return std::pow(degrees + deltaMAngle, deltaMPower) * (deltaMFactor * weldSize);
}

double Weld_Delta_U(double degrees) {
    return std::min(std::pow(degrees + deltaUAngle, deltaUPower) * deltaUFactor, mostDeltaU) *
           weldSize;
}

void Take_Weld_Pass_Step_By_Step(const std::vector<WeldLine>& lines, double Ro,
                                 const WeldState& state, WeldPass& pass, SearchYield& yield) {
    Find_Critical_Step_By_Step(lines, Ro, state, pass, yield);
    pass.SM = pass.SV = pass.SR = 0;
    const auto take = [&](const WeldElement& element) {
        Add_Force_Step_By_Step(element, pass);
        yield();
    };
    BuildWeldElements(lines, Ro, state.StripsPerUnit, take, [] {});
}

void Take_Weld_Pass(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                    WeldPass& pass, SearchYield& yield) {
    const WeldPass before = pass;
    Find_Critical(lines, Ro, state, pass, yield);
    if (Add_Forces(lines, Ro, state, pass, yield))
        return;
    pass = before;
    Take_Weld_Pass_Step_By_Step(lines, Ro, state, pass, yield);
}

} // namespace Tensarix
