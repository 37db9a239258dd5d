// The proper ultimate load of a bolt or weld group, beside what the searches give: the
// instantaneous centre is free in both directions and satisfies all three equations of equilibrium.
// Used only for remarks; the searches never see it.
#pragma once

#include <optional>
#include <string>

#include "connections/BoltFunctions.h"
#include "controls/Remark.h"

namespace Tensarix {

// What a group's coefficient is held against.
struct Balance {
    double C = 0;
    bool Turns = false; // a load without eccentricity turns nothing
    // The centre it turns about, seen from the centroid: x to the right, y up, the unit of the
    // inputs.
    double X = 0, Y = 0;
    bool ByLines = false; // no balance, but the rule for lines along and across the load
};

// C as the AISC Manual's tables 7-7 to 7-14 are made: every bolt, the farthest too, counts its own
// (1 - e^(-10 D))^0.55. Lengths in one unit, the angle in degrees. None where there is no group,
// the numbers are out of range, the group is larger than a remark is worth, or no centre is found.
std::optional<Balance> Balanced_Bolts(const BoltGroup& group, double ex, double angle);

// C of an item of the weld configurations, each element with its own deformation limits and its
// true angle, the critical one by the smallest ultimate deformation over radius (AISC Manual,
// tables 8-4 to 8-11). Arguments as for the configurations' routines. None as above, and for L <=
// 0.
std::optional<Balance> Balanced_Welds(int item, double L, double kL, double aL, double angle);

// Differences of more than this part of the balanced C are worth a remark. The bolt search counts
// the farthest bolt with 1, which alone makes 1.9 per cent.
inline constexpr double boltRemarkTolerance = 0.025;
inline constexpr double weldRemarkTolerance = 0.05;

// What stands beside a coefficient that is off by more than the tolerance, or that there is nothing
// to hold against; else empty.
// Unsafe is more than the balanced C; less is a note.
Advice Balance_Remark(double shown, const std::optional<Balance>& balance, double tolerance);
// By how much a coefficient is above what it is held against, as a part of that; 0 within the
// tolerance, and where there is nothing to hold against.
double Excess_Over(const std::optional<Balance>& balance, double shown, double tolerance);

} // namespace Tensarix
