// One pass of the weld search: the elements of all lines about one position of the centre.
#pragma once

#include <vector>

#include "connections/WeldFunctions.h"

namespace Tensarix {

// All weld forces are those of a 1/16 weld.
inline constexpr double weldSize = 0.0625;
inline constexpr double weldThroat = 0.707106781;
inline constexpr double electrodeStrength = 70.0;
inline constexpr double weldStressFactor = 0.6;
inline constexpr double weldForcePower = 0.3; // of (1.9 - 0.9 p) p

// Deformation at maximum stress and ultimate deformation at the angle between force and axis.
double Weld_Delta_M(double degrees);
double Weld_Delta_U(double degrees);

// What a pass adds up, and the locals that a failing step leaves as they were, from pass to pass.
struct WeldPass {
    double SM = 0, SV = 0, SR = 0;
    double dRatio = 0; // smallest deltaU / r
    double dMax =
        0; // largest deltaM of the group, for every element: validation.md tells what it does
    double Delta = 0, rho = 0, f = 0, R = 0, V = 0;
};

// Elements, critical element and sums of one pass about the centre at -Ro. No element is stored:
// the lines are gone through twice. Yields three times an element.
void Take_Weld_Pass(const std::vector<WeldLine>& lines, double Ro, const WeldState& state,
                    WeldPass& pass, SearchYield& yield);

// The same with every step on its own, for numbers at which steps fail.
void Take_Weld_Pass_Step_By_Step(const std::vector<WeldLine>& lines, double Ro,
                                 const WeldState& state, WeldPass& pass, SearchYield& yield);

} // namespace Tensarix
