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

} // namespace Tensarix
