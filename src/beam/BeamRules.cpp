#include "beam/BeamRules.h"

#include "common/Extremes.h"
#include "common/Failure.h"
#include "measures/FeetInchParsing.h"

#include <cmath>

namespace Tensarix {

namespace {

constexpr double elasticKsi = 29000.0;

// 9th Edition.
constexpr double bendingShare9th = 0.66; // of Fy
constexpr double shearShare9th = 0.4;
constexpr double webLimit9th = 380.0;

// 13th Edition.
constexpr double stockyWeb = 2.24; // times sqrt(E/Fy)
constexpr double compactFlange = 0.38;
constexpr double residualShare = 0.7; // of Fy, at the end of the noncompact range
constexpr double shearShare13th = 0.6;
constexpr double webCoefficient = 1.0;          // Cv
constexpr double unbuckledWeb = 1.10, kv = 5.0; // G2.1(b)

struct Factors {
    double Flexure, StockyShear, Shear;
};
constexpr Factors asd{1.0 / 1.67, 1.0 / 1.5, 1.0 / 1.67};
constexpr Factors lrfd{0.9, 1.0, 0.9};

// 0 where there is no yield strength.
double Slenderness_Limit(double coefficient, double yield) {
    double limit = 0;
    Keep(limit, coefficient * std::sqrt(elasticKsi / yield));
    return limit;
}

double Span_In_Force(double boundary, const BeamInput& input) {
    double span = input.EarlierSpanFeet;
    if (input.TypedSpanFeet)
        Keep(span, Largest_Of({boundary, *input.TypedSpanFeet}));
    return span;
}

// kip-ft. The noncompact range ends at 1.0 sqrt(E/Fy), formed as limit / 0.38.
double Nominal_Moment(const BeamSection& section, double yield) {
    const double limit = Slenderness_Limit(compactFlange, yield);
    double moment = 0;
    if (section.bf_2tf <= limit) {
        Keep(moment, (yield * section.Zx) / InchesPerFoot);
        return moment;
    }
    const double plastic = yield * section.Zx;
    const double share = (section.bf_2tf - limit) / ((limit / compactFlange) - limit);
    Keep(moment,
         (plastic - (plastic - (yield * residualShare) * section.Sx) * share) / InchesPerFoot);
    return moment;
}

} // namespace

bool Is_Compact_Flange(const BeamSection& section, float yieldKsi) {
    return section.bf_2tf <= Slenderness_Limit(compactFlange, yieldKsi);
}

bool Is_Stocky_Web(const BeamSection& section, float yieldKsi) {
    return section.h_tw <= Slenderness_Limit(stockyWeb, yieldKsi);
}

bool Web_Buckles_9th(const BeamSection& section, float yieldKsi) {
    return section.h_tw * std::sqrt(static_cast<double>(yieldKsi)) > webLimit9th;
}

bool Web_Buckles_13th(const BeamSection& section, float yieldKsi) {
    return section.h_tw > Slenderness_Limit(unbuckledWeb * std::sqrt(kv), yieldKsi);
}

BeamLoad Beam_Load_9th(const BeamInput& input) {
    const BeamSection& section = input.Section;
    const double yield = input.YieldKsi;
    BeamLoad load;
    Keep(load.BoundaryFeet,
         (bendingShare9th * section.Sx) / (((3.0 * shearShare9th) * section.d) * section.tw));
    const double span = load.SpanFeet = Span_In_Force(load.BoundaryFeet, input);
    Keep(load.EndReactionKips, ((yield * bendingShare9th) * section.Sx) / (3.0 * span));
    Keep(load.LoadKipsPerFoot,
         ((2.0 * bendingShare9th * yield) * section.Sx) / ((span * span) * 3.0));
    return load;
}

BeamLoad Beam_Load_13th(const BeamInput& input, DesignMethod method) {
    const BeamSection& section = input.Section;
    const double yield = input.YieldKsi;
    const Factors& factors = method == DesignMethod::ASD ? asd : lrfd;
    const bool stocky = Is_Stocky_Web(section, input.YieldKsi);
    const double shearFactor = (stocky ? factors.StockyShear : factors.Shear) / webCoefficient;
    double shear = 0, moment = 0;
    Keep(shear, shearFactor * (((yield * shearShare13th) * section.tw) * section.d));
    Keep(moment, factors.Flexure * Nominal_Moment(section, yield));
    BeamLoad load;
    Keep(load.BoundaryFeet, (4.0 * moment) / shear);
    load.SpanFeet = Span_In_Force(load.BoundaryFeet, input);
    Keep(load.EndReactionKips, (shear * load.BoundaryFeet) / load.SpanFeet);
    Keep(load.LoadKipsPerFoot, (2.0 * load.EndReactionKips) / load.SpanFeet);
    return load;
}

} // namespace Tensarix
