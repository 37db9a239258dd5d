// One pass of the bolt search: the sums over all bolts about one position of the centre.
#pragma once

#include <vector>

#include "connections/SearchYield.h"

namespace Tensarix {

// A bolt in the frame in which the load is vertical: u up, w across, from the centroid.
struct TurnedBolt {
    double u = 0, w = 0;
    double d = 0; // from the centre, in the pass at hand
};

// What a pass adds up, and the locals that a failing step leaves as they were, from pass to pass.
struct BoltPass {
    double SM = 0; // of (R / Rmax) d
    double SV = 0; // of (R / Rmax) X / d
    double SD = 0; // of d^2
    double X = 0, d = 0, Delta = 0, R = 0;
};

// About the centre at -Ro. Yields within the pass where there are thousands of bolts.
void Take_Bolt_Pass(std::vector<TurnedBolt>& bolts, double Ro, BoltPass& pass, SearchYield& yield);

} // namespace Tensarix
