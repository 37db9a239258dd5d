// The rules of the allowable uniform load on a rolled beam: simply supported, bent about its strong
// axis, with the compression flange held. Pure: numbers in, numbers out.
//
// Flexure allows an end reaction that falls with the span; shear allows one that doesn't. They meet
// at the boundary span, below which shear governs: a shorter span is replaced by it.
//
// Each step that isn't finite leaves its target as it was, 0 at the start; none of the routines
// fails.
#pragma once

#include <optional>

namespace Tensarix {

// What the rules read of a section; what it doesn't have is 0.
struct BeamSection {
    double Zx = 0, Sx = 0; // in^3
    double d = 0, tw = 0;  // in.
    double h_tw = 0, bf_2tf = 0;
    double Ix = 0;                 // in^4
    double bf = 0, tf = 0, ry = 0; // in.
};

struct BeamInput {
    BeamSection Section;
    float YieldKsi = 0;
    std::optional<double> TypedSpanFeet; // none: the text is no length
    double EarlierSpanFeet = 0;          // stays in force where the typed one is none
};

struct BeamLoad {
    double BoundaryFeet = 0;
    double SpanFeet = 0; // in force
    double EndReactionKips = 0;
    double LoadKipsPerFoot = 0;
};

enum class DesignMethod { ASD = 0, LRFD = 1 };

// AISC Manual of Steel Construction, 9th Edition, chapter F: Fb = 0.66 Fy (F1-1) and Fv = 0.4 Fy
// (F4-1) for every section. Compactness is not checked: the page tells it beside the
// results, and docs/validation.md lists it.
BeamLoad Beam_Load_9th(const BeamInput& input);

// AISC 360-05 (Manual, 13th Edition): F2.1 and F3.2(a) for flexure, G2.1 for shear with Cv = 1.0.
// The web's slenderness chooses the shear factor alone: web buckling isn't followed further, and
// channels get the factors of I-shapes. The page tells both beside the results.
BeamLoad Beam_Load_13th(const BeamInput& input, DesignMethod method);

// AISC 360-05 table B4.1 case 1: bf/2tf up to 0.38 sqrt(E/Fy).
bool Is_Compact_Flange(const BeamSection& section, float yieldKsi);

// AISC 360-05 G2.1(a): h/tw up to 2.24 sqrt(E/Fy), where the higher shear factors hold.
bool Is_Stocky_Web(const BeamSection& section, float yieldKsi);

// True where the edition itself would take web shear buckling into account, which the two rules
// above don't: h/tw beyond 380 / sqrt(Fy) (9th Edition, F4), beyond 1.10 sqrt(5 E/Fy) (G2.1(b)).
bool Web_Buckles_9th(const BeamSection& section, float yieldKsi);
bool Web_Buckles_13th(const BeamSection& section, float yieldKsi);

// What the two rules above leave out: compactness (9th Edition F1-3, F1-5) and web shear buckling
// (F4-2 with kv = 5.34; 13th Edition G2.1(b) with kv = 5), and that the higher shear factors of
// G2.1(a) hold for I-shapes alone. The reaction and load at a span, which is not replaced.
BeamLoad Whole_Rules_9th(const BeamSection& section, float yieldKsi, double spanFeet);
BeamLoad Whole_Rules_13th(const BeamSection& section, float yieldKsi, double spanFeet,
                          DesignMethod method, bool isChannel);

// The longest distance between braces of the compression flange at which the flexural strength
// above holds, in feet. 9th Edition, F1-2: the smaller of 76 bf / sqrt(Fy) and
// 20,000 / ((d / Af) Fy) inches. 13th Edition, F2-5: Lp = 1.76 ry sqrt(E / Fy).
double Braced_Feet_9th(const BeamSection& section, float yieldKsi);
double Braced_Feet_13th(const BeamSection& section, float yieldKsi);

// 5 w L^4 / (384 E Ix), in inches, with E = 29,000 ksi (Manual, table 3-23, case 1).
double Deflection_Inches(double loadKipsPerFoot, double spanFeet, double Ix);

} // namespace Tensarix
