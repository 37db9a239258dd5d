// The sums of one pass of the bolt search, in the fast way of this machine.
#pragma once

#include <cstddef>
#include <vector>

namespace Tensarix {

struct BoltSums {
    double SM = 0, SV = 0, SD = 0;
};

// The bolts in the frame in which the load is vertical: u up, w across, from the centroid. The
// arrays end in copies of the first bolt, so that they can be read in whole vectors.
struct RotatedBolts {
    explicit RotatedBolts(std::size_t bolts);
    // Once all bolts are set.
    void Close();

    std::size_t count;
    std::vector<double> u, w;
    std::vector<double> d; // distances from the centre in the pass at hand
    double reach = 0;      // largest |u| or |w|
};

// None of these numbers may be near the end of the range.
// Sets d about the centre at -Ro; the largest.
double Farthest_Bolt(RotatedBolts& bolts, double Ro);
// Adds the bolts from first on. dmax > 0.
void Add_Bolts(const RotatedBolts& bolts, std::size_t first, std::size_t count, double Ro,
               double dmax, BoltSums& sums);

} // namespace Tensarix
