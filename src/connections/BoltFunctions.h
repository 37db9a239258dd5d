// Coefficients of an eccentrically loaded rectangular bolt group by the instantaneous centre of
// rotation. Load-deformation of one bolt, R = 74 (1 - e^(-10 D))^0.55: Crawford and Kulak, as
// behind tables 7-7 to 7-14 of the AISC Steel Construction Manual.
#pragma once

#include <cstdint>

#include "connections/SearchYield.h"

namespace Tensarix {

// m bolts on the vertical and n on the horizontal, sv and sh apart. Any one unit of length.
struct BoltGroup {
    std::int16_t m = 0;
    std::int16_t n = 0;
    double sv = 0;
    double sh = 0;
    bool operator==(const BoltGroup&) const = default;
};

inline constexpr double ultimateBoltForce = 74.0; // kips; cancels in C
inline constexpr double ultimateBoltDeformation = 0.34;
inline constexpr double boltExponentFactor = -10;
inline constexpr double boltPower = 0.55;
inline constexpr double boltTolerance = 0.0001; // of C, inclusive

// R of one bolt at a deformation, in kips.
double Bolt_Force(double deformation);

// Above so many bolts (2,097,152) the array of bolts can't be had, and both coefficients are 0.
inline constexpr std::int32_t mostBolts = 1 << 21;

// C: the load the group carries at the eccentricity ex (length, from the centroid) and the angle
// from the vertical (degrees), in capacities of one bolt. There is no limit on the passes; yields
// once a pass, in groups of thousands more often. Never fails; throws SearchAbandoned if the yield
// says so.
double BoltCoefficientC(const BoltGroup& group, double ex, double angle, SearchYield& yield);
// The same, with the distance of the centre at which the search ended; 0 without a search.
struct BoltSearchEnd {
    double C = 0, Ro = 0;
};
BoltSearchEnd Search_Bolts(const BoltGroup& group, double ex, double angle, SearchYield& yield);

// C': the pure-moment coefficient about the centroid, in the unit of length. Never fails.
double BoltCoefficientCPrime(const BoltGroup& group);

} // namespace Tensarix
