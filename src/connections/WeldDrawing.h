// The weld group of the page, drawn to scale with its load and with the centre it turns about; the
// icons of the configurations; and the two loads of a search against the place of its centre.
#pragma once

#include "connections/Balance.h"
#include "controls/Drawing.h"

#include <optional>
#include <vector>

namespace Tensarix {

// The inputs as far as they are known: lengths in any one unit, the angle in degrees.
struct WeldPicture {
    int Item = 1; // 1 to 9
    std::optional<double> L, kL, aL, Angle;
    std::optional<Balance> Balanced; // of complete inputs
    std::optional<double> SearchRo;  // where a search ended, in the unit of the inputs
};

// From the centroid. Until L and kL are known, the configuration as it is in general, by its
// symbols alone. Empty where there are no lines of any length.
Drawing Weld_Group_Drawing(const WeldPicture& picture);

// The lines of an item, 1 to 9, as the icon of a list.
std::vector<Drawn::Line> Weld_Icon(int item);

// One pass of a search: the place of its centre, and the loads by vertical forces and by moments.
struct WeldPassLoads {
    double Ro = 0, Fv = 0, Fm = 0;
};

// The passes of a run. Where there are many they are thinned out, those first that their curves
// miss least; the first and the last one always stay.
class WeldPasses {
  public:
    void Clear() { kept_.clear(); }
    void Add(const WeldPassLoads& pass);
    const std::vector<WeldPassLoads>& Kept() const { return kept_; }
    // Whether at that time, in seconds, they are to be drawn anew: a few times a second, because a
    // search makes thousands of passes in one.
    bool Is_Plot_Due(double now);

  private:
    void Thin_Out();
    // How much the curves would miss a pass: by its distance from the next ones and by the bend
    // that they have there, in parts of their length and height.
    double Worth_Of(std::size_t place, double height) const;

    std::vector<WeldPassLoads> kept_;
    double plotted_ = 0; // seconds
};

// Fy[v] and Fy[m] against Ro: two curves that meet where the search ends. Empty before two passes.
Drawing Weld_Search_Plot(const WeldPasses& passes);

} // namespace Tensarix
