#include "connections/BoltPass.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "connections/BoltFunctions.h"
#include "connections/Numbers.h"

namespace Tensarix {
namespace {

constexpr std::size_t boltsBetweenYields = 4096;

double Rmax() {
    static const double force = Bolt_Force(ultimateBoltDeformation);
    return force;
}

// Goes through the bolts, yielding now and then.
template <typename Use>
void For_Bolts(std::vector<TurnedBolt>& bolts, SearchYield& yield, Use&& use) {
    for (std::size_t k = 0; k < bolts.size(); ++k) {
        if (k > 0 && k % boltsBetweenYields == 0)
            yield();
        use(bolts[k]);
    }
}

// For ordinary numbers. False, and nothing is changed, where a sum is not finite: then a step has
// failed, as that of the direction of a bolt on the centre.
bool Take_Quick_Pass(std::vector<TurnedBolt>& bolts, double Ro, BoltPass& pass,
                     SearchYield& yield) {
    BoltPass sum;
    double dmax = 0;
    for (TurnedBolt& bolt : bolts) {
        sum.X = Ro + bolt.w;
        bolt.d = std::sqrt(sum.X * sum.X + bolt.u * bolt.u);
        dmax = std::max(dmax, bolt.d);
    }
    const double full = Rmax();
    For_Bolts(bolts, yield, [&](const TurnedBolt& bolt) {
        sum.d = bolt.d;
        sum.Delta = (ultimateBoltDeformation * bolt.d) / dmax;
        sum.R = Bolt_Force(sum.Delta);
        const double share = sum.R / full;
        sum.SM += share * bolt.d;
        sum.SV += share * ((Ro + bolt.w) / bolt.d);
        sum.SD += bolt.d * bolt.d;
    });
    if (!std::isfinite(sum.SM + sum.SV + sum.SD))
        return false;
    pass = sum;
    return true;
}

void Measure(const TurnedBolt& bolt, double Ro, BoltPass& pass) {
    Keep(pass.X, Ro + bolt.w);
    Keep(pass.d, std::sqrt(pass.X * pass.X + bolt.u * bolt.u));
}

// Every step on its own, for numbers at which steps fail.
void Take_Pass_Step_By_Step(std::vector<TurnedBolt>& bolts, double Ro, BoltPass& pass,
                            SearchYield& yield) {
    double dmax = 0;
    for (const TurnedBolt& bolt : bolts) {
        Measure(bolt, Ro, pass);
        dmax = std::max(dmax, pass.d);
    }
    pass.SM = pass.SV = pass.SD = 0;
    For_Bolts(bolts, yield, [&](const TurnedBolt& bolt) {
        Measure(bolt, Ro, pass);
        Keep(pass.Delta, (ultimateBoltDeformation * pass.d) / dmax);
        Keep(pass.R, Bolt_Force(pass.Delta));
        Keep(pass.SM, pass.SM + (pass.R / Rmax()) * pass.d);
        Keep(pass.SV, pass.SV + Sign_Of(pass.X) * ((pass.R / Rmax()) * std::abs(pass.X / pass.d)));
        Keep(pass.SD, pass.SD + pass.d * pass.d);
    });
}

} // namespace

void Take_Bolt_Pass(std::vector<TurnedBolt>& bolts, double Ro, BoltPass& pass, SearchYield& yield) {
    if (!Take_Quick_Pass(bolts, Ro, pass, yield))
        Take_Pass_Step_By_Step(bolts, Ro, pass, yield);
}

} // namespace Tensarix
