#include "beam/BeamRules.h"

#include "common/Arithmetic.h"
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
constexpr double compactFlange9th = 65.0, slenderFlange9th = 95.0; // over sqrt(Fy)
constexpr double noncompactShare9th = 0.60;
constexpr double kv9th = 5.34; // without stiffeners

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

// What the edition allows, in kips and kip-ft.
struct Strength {
    double Shear = 0, Moment = 0;
};

BeamLoad Load_At(const Strength& strength, double span) {
    BeamLoad load;
    Keep(load.BoundaryFeet, 4.0 * strength.Moment / strength.Shear);
    load.SpanFeet = span;
    Keep(load.EndReactionKips, Smallest_Of({strength.Shear, 4.0 * strength.Moment / span}));
    Keep(load.LoadKipsPerFoot, 2.0 * load.EndReactionKips / span);
    return load;
}

// F1-1, F1-3 and F1-5: the part of Fy that bending may take.
double Bending_Share_9th(double flange, double yield) {
    const double root = std::sqrt(yield);
    if (flange <= compactFlange9th / root)
        return bendingShare9th;
    return flange <= slenderFlange9th / root ? 0.79 - 0.002 * flange * root : noncompactShare9th;
}

// F4-1 and F4-2, as a part of Fy.
double Shear_Share_9th(double web, double yield) {
    if (web * std::sqrt(yield) <= webLimit9th)
        return shearShare9th;
    double coefficient = 45000.0 * kv9th / (yield * web * web);
    if (coefficient > 0.8)
        coefficient = 190.0 / web * std::sqrt(kv9th / yield);
    return Smallest_Of({coefficient / 2.89, shearShare9th});
}

// G2-3 to G2-5.
double Web_Coefficient_13th(double web, double yield) {
    const double root = std::sqrt(kv * elasticKsi / yield);
    if (web <= unbuckledWeb * root)
        return 1.0;
    return web <= 1.37 * root ? unbuckledWeb * root / web
                              : 1.51 * elasticKsi * kv / (web * web * yield);
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
        Keep(moment, (yield * section.Zx) / inchesPerFoot);
        return moment;
    }
    const double plastic = yield * section.Zx;
    const double share = (section.bf_2tf - limit) / ((limit / compactFlange) - limit);
    Keep(moment,
         (plastic - (plastic - (yield * residualShare) * section.Sx) * share) / inchesPerFoot);
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

BeamLoad Whole_Rules_9th(const BeamSection& section, float yieldKsi, double spanFeet) {
    const double yield = yieldKsi;
    return Load_At({Shear_Share_9th(section.h_tw, yield) * yield * section.d * section.tw,
                    Bending_Share_9th(section.bf_2tf, yield) * yield * section.Sx / inchesPerFoot},
                   spanFeet);
}

BeamLoad Whole_Rules_13th(const BeamSection& section, float yieldKsi, double spanFeet,
                          DesignMethod method, bool isChannel) {
    const double yield = yieldKsi;
    const Factors& factors = method == DesignMethod::ASD ? asd : lrfd;
    const bool higher = !isChannel && Is_Stocky_Web(section, yieldKsi);
    const double factor =
        higher ? factors.StockyShear : factors.Shear * Web_Coefficient_13th(section.h_tw, yield);
    return Load_At({factor * shearShare13th * yield * section.d * section.tw,
                    factors.Flexure * Nominal_Moment(section, yield)},
                   spanFeet);
}

double Braced_Feet_9th(const BeamSection& section, float yieldKsi) {
    const double yield = yieldKsi;
    double inches = 0;
    Keep(inches, Smallest_Of({76.0 * section.bf / std::sqrt(yield),
                              20000.0 * section.bf * section.tf / (section.d * yield)}));
    return inches / inchesPerFoot;
}

double Braced_Feet_13th(const BeamSection& section, float yieldKsi) {
    return Slenderness_Limit(1.76, yieldKsi) * section.ry / inchesPerFoot;
}

double Deflection_Inches(double loadKipsPerFoot, double spanFeet, double Ix) {
    const double span = spanFeet * inchesPerFoot;
    double inches = 0;
    Keep(inches,
         5.0 * loadKipsPerFoot / inchesPerFoot * std::pow(span, 4) / (384.0 * elasticKsi * Ix));
    return inches;
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
