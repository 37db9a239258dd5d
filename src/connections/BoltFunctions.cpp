#include "connections/BoltFunctions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "common/Failure.h"
#include "connections/BoltSums.h"
#include "connections/Numbers.h"

namespace Tensarix {
namespace {

// What a pass adds up, and the locals that a failing step leaves as they were.
struct BoltPass : BoltSums {
    double X = 0, d = 0, Delta = 0, R = 0;
    double fastRo = 0, fastDmax = 0; // of a fast pass that has not yet left its locals behind
};

// Coordinates below this leave no step of a pass that can fail but the divisions by d and dmax.
constexpr double OrdinaryReach = 1e60;
constexpr std::size_t BoltsBetweenYields = 4096;

double Local(int index, int count, double spacing) {
    return index * spacing - ((count - 1) * spacing) / 2;
}

void Fill(RotatedBolts& bolts, const BoltGroup& group, double theta) {
    const double sine = std::sin(theta);
    const double cosine = std::cos(theta);
    double x = 0, y = 0;
    std::size_t k = 0;
    for (int i = 0; i < group.m; ++i) {
        for (int j = 0; j < group.n; ++j, ++k) {
            Keep(y, Local(i, group.m, group.sv));
            Keep(x, Local(j, group.n, group.sh));
            Keep(bolts.u[k], x * sine + y * cosine);
            Keep(bolts.w[k], x * cosine - y * sine);
        }
    }
    bolts.Close();
}

void Fast_Pass(const RotatedBolts& bolts, double Ro, double dmax, BoltPass& pass,
               SearchYield& yield) {
    for (std::size_t first = 0; first < bolts.count; first += BoltsBetweenYields) {
        if (first > 0)
            yield();
        Add_Bolts(bolts, first, std::min(BoltsBetweenYields, bolts.count - first), Ro, dmax, pass);
    }
}

// What the last bolt of the last pass has left behind, if that was a fast one.
void Leave_Locals(const RotatedBolts& bolts, BoltPass& pass) {
    if (!(pass.fastDmax > 0))
        return;
    const std::size_t last = bolts.count - 1;
    pass.X = pass.fastRo + bolts.w[last];
    pass.d = bolts.d[last];
    pass.Delta = (UltimateBoltDeformation * pass.d) / pass.fastDmax;
    pass.R = Bolt_Force(pass.Delta);
    pass.fastDmax = 0;
}

// The same pass with every step on its own, for numbers at which steps fail.
void Careful_Pass(const RotatedBolts& bolts, double Ro, BoltPass& pass, SearchYield& yield) {
    static const double Rmax = Bolt_Force(UltimateBoltDeformation);
    const std::size_t all = bolts.count;
    double dmax = 0;
    for (std::size_t k = 0; k < all; ++k) {
        Keep(pass.X, Ro + bolts.w[k]);
        Keep(pass.d, std::sqrt(pass.X * pass.X + bolts.u[k] * bolts.u[k]));
        dmax = std::max(dmax, pass.d);
    }
    for (std::size_t k = 0; k < all; ++k) {
        if (k > 0 && k % BoltsBetweenYields == 0)
            yield();
        Keep(pass.X, Ro + bolts.w[k]);
        Keep(pass.d, std::sqrt(pass.X * pass.X + bolts.u[k] * bolts.u[k]));
        Keep(pass.Delta, (UltimateBoltDeformation * pass.d) / dmax);
        Keep(pass.R, Bolt_Force(pass.Delta));
        Keep(pass.SM, pass.SM + (pass.R / Rmax) * pass.d);
        Keep(pass.SV, pass.SV + Sgn(pass.X) * ((pass.R / Rmax) * std::abs(pass.X / pass.d)));
        Keep(pass.SD, pass.SD + pass.d * pass.d);
    }
}

void Take_Pass(RotatedBolts& bolts, double Ro, BoltPass& pass, SearchYield& yield) {
    pass.SM = pass.SV = pass.SD = 0;
    const bool ordinary = bolts.reach < OrdinaryReach && std::abs(Ro) < OrdinaryReach;
    const double dmax = ordinary ? Farthest_Bolt(bolts, Ro) : 0;
    if (dmax > 0) {
        pass.fastRo = Ro;
        pass.fastDmax = dmax;
        Fast_Pass(bolts, Ro, dmax, pass, yield);
    } else {
        Leave_Locals(bolts, pass);
        Careful_Pass(bolts, Ro, pass, yield);
    }
}

// The step is made from an absolute difference, so the centre only ever moves outwards. Where the
// first step goes past the true centre the search ends near m n: intended.
double Search(RotatedBolts& bolts, double e, double mn, SearchYield& yield) {
    double Ro = 0, G = 0, Pm = 0, Pv = 0;
    BoltPass pass;
    bool done = false;
    while (!done) {
        Take_Pass(bolts, Ro, pass, yield);
        Pm = 0;
        Keep(Pm, pass.SM / (std::abs(e) + Ro));
        Pv = pass.SV;
        done = std::abs(Pm - Pv) <= BoltTolerance;
        const double resisted = pass.SM * mn;
        if (std::isfinite(resisted))
            Keep(G, pass.SD / resisted);
        Keep(Ro, Ro + (std::abs(Pm - Pv) * G) / 2);
        yield();
    }
    double mean = 0;
    Keep(mean, (Pm + Pv) / 2);
    return mean;
}

} // namespace

double Bolt_Force(double deformation) {
    return UltimateBoltForce * std::pow(1 - std::exp(BoltExponentFactor * deformation), BoltPower);
}

double BoltCoefficientC(const BoltGroup& group, double ex, double angle, SearchYield& yield) {
    const std::int32_t mn = std::int32_t{group.m} * group.n;
    double theta = 0, e = 0;
    Keep(theta, (angle * Pi) / 180);
    Keep(e, std::cos(theta) * ex);
    if (e == 0)
        return mn;
    // Without an array every step of the one pass fails or adds 0.
    if (mn <= 0 || mn > MostBolts)
        return 0;
    RotatedBolts bolts(static_cast<std::size_t>(mn));
    Fill(bolts, group, theta);
    return Search(bolts, e, mn, yield);
}

// Unlike C, measured from the centroid and with the plain force term: the farthest bolt counts
// 0.9815, not 1. Intended.
double BoltCoefficientCPrime(const BoltGroup& group) {
    const std::int32_t mn = std::int32_t{group.m} * group.n;
    if (mn <= 0 || mn > MostBolts)
        return 0;
    std::vector<double> distances(static_cast<std::size_t>(mn));
    double x = 0, y = 0, dmax = 0, T = 0, S = 0;
    std::size_t k = 0;
    for (int i = 0; i < group.m; ++i) {
        for (int j = 0; j < group.n; ++j, ++k) {
            Keep(y, Local(i, group.m, group.sv));
            Keep(x, Local(j, group.n, group.sh));
            const double d = std::sqrt(std::pow(y, 2.0) + std::pow(x, 2.0));
            distances[k] = d;
            if (std::isfinite(d))
                dmax = std::max(dmax, d);
        }
    }
    double d = 0;
    for (const double distance : distances) {
        Keep(d, distance);
        Keep(T, std::pow(1 - std::exp(((BoltExponentFactor * d) * UltimateBoltDeformation) / dmax),
                         BoltPower));
        Keep(S, S + d * T);
    }
    return S;
}

} // namespace Tensarix
