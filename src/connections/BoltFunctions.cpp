#include "connections/BoltFunctions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "common/Failure.h"
#include "connections/BoltPass.h"
#include "connections/Numbers.h"

namespace Tensarix {
namespace {

constexpr double farOutside = 10;      // times the reach of the group
constexpr double ordinaryReach = 1e60; // no step fails in a pass at such numbers

double Local(int index, int count, double spacing) {
    return index * spacing - ((count - 1) * spacing) / 2;
}

std::vector<TurnedBolt> Turned(const BoltGroup& group, double theta) {
    const double sine = std::sin(theta);
    const double cosine = std::cos(theta);
    std::vector<TurnedBolt> bolts;
    bolts.reserve(static_cast<std::size_t>(group.m) * static_cast<std::size_t>(group.n));
    double x = 0, y = 0;
    for (int i = 0; i < group.m; ++i) {
        for (int j = 0; j < group.n; ++j) {
            TurnedBolt& bolt = bolts.emplace_back();
            Keep(y, Local(i, group.m, group.sv));
            Keep(x, Local(j, group.n, group.sh));
            Keep(bolt.u, x * sine + y * cosine);
            Keep(bolt.w, x * cosine - y * sine);
        }
    }
    return bolts;
}

double Reach_Of(const std::vector<TurnedBolt>& bolts) {
    double reach = 0;
    for (const TurnedBolt& bolt : bolts)
        reach = std::max({reach, std::abs(bolt.u), std::abs(bolt.w)});
    return reach;
}

// The search as it stands: the centre at -Ro, and the loads that it takes there by moments, Pm, and
// by the vertical forces, Pv.
struct BoltSearch {
    std::vector<TurnedBolt>& bolts;
    double e = 0; // > 0
    SearchYield& yield;
    double Ro = 0, Pm = 0, Pv = 0, G = 0; // G: a step is half of the gap by it
    BoltPass pass{};

    double Gap() const { return std::abs(Pm - Pv); }
    BoltSearchEnd End() const {
        double mean = 0;
        Keep(mean, (Pm + Pv) / 2);
        return {mean, Ro};
    }
    void Take_Pass() {
        Take_Bolt_Pass(bolts, Ro, pass, yield);
        Pm = 0;
        Keep(Pm, pass.SM / (e + Ro));
        Pv = pass.SV;
    }
    // Made from an absolute difference: the centre only ever moves outwards.
    void Step() {
        const double resisted = pass.SM * static_cast<double>(bolts.size());
        if (std::isfinite(resisted))
            Keep(G, pass.SD / resisted);
        Keep(Ro, Ro + (Gap() * G) / 2);
        yield();
    }
};

// A step that went past the true centre can't come back, and the search walks on by about e / 2 a
// pass until both loads are near m n: hundreds of thousands of passes. Far outside the group the
// gap between them falls as 1 / Ro, so the end is a few secants (in 1 / Ro, through 0) away. None
// where they don't settle.
std::optional<BoltSearchEnd> Far_End(BoltSearch search) {
    constexpr int mostSecants = 30;
    // In groups of thousands rounding moves the gap by more than the first part.
    const double settled = 1e-6 + 1e-9 * static_cast<double>(search.bolts.size());
    for (int k = 0; k < mostSecants && search.Pm < search.Pv; ++k) {
        const double part = search.Gap() / boltTolerance;
        if (std::abs(part - 1) <= settled)
            return search.End();
        search.Ro *= part;
        search.yield();
        search.Take_Pass();
    }
    return std::nullopt;
}

bool Has_Passed_The_Centre(const BoltSearch& search, double reach) {
    return search.Pm < search.Pv && search.Ro > farOutside * reach && search.Ro < ordinaryReach;
}

BoltSearchEnd Search(std::vector<TurnedBolt>& bolts, double e, SearchYield& yield) {
    const double reach = Reach_Of(bolts);
    BoltSearch search{bolts, e, yield};
    bool looked = false;
    search.Take_Pass();
    while (search.Gap() > boltTolerance) {
        if (!looked && Has_Passed_The_Centre(search, reach)) {
            looked = true;
            if (const auto end = Far_End(search))
                return *end;
        }
        search.Step();
        search.Take_Pass();
    }
    yield();
    return search.End();
}

} // namespace

double Bolt_Force(double deformation) {
    return ultimateBoltForce * std::pow(1 - std::exp(boltExponentFactor * deformation), boltPower);
}

BoltSearchEnd Search_Bolts(const BoltGroup& group, double ex, double angle, SearchYield& yield) {
    const std::int32_t mn = std::int32_t{group.m} * group.n;
    double theta = 0, e = 0;
    Keep(theta, (angle * pi) / 180);
    Keep(e, std::cos(theta) * ex);
    if (e == 0)
        return {static_cast<double>(mn), 0};
    // Without an array every step of the one pass fails or adds 0.
    if (mn <= 0 || mn > mostBolts)
        return {};
    std::vector<TurnedBolt> bolts = Turned(group, theta);
    return Search(bolts, std::abs(e), yield);
}

double BoltCoefficientC(const BoltGroup& group, double ex, double angle, SearchYield& yield) {
    return Search_Bolts(group, ex, angle, yield).C;
}

// Unlike C, measured from the centroid and with the plain force term: the farthest bolt counts
// 0.9815 as in the Manual's tables, not 1 as in C.
double BoltCoefficientCPrime(const BoltGroup& group) {
    const std::int32_t mn = std::int32_t{group.m} * group.n;
    if (mn <= 0 || mn > mostBolts)
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
        Keep(T, std::pow(1 - std::exp(((boltExponentFactor * d) * ultimateBoltDeformation) / dmax),
                         boltPower));
        Keep(S, S + d * T);
    }
    return S;
}

} // namespace Tensarix
