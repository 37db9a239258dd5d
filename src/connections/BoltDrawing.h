// The bolt group of a row, drawn to scale with its load and with the centre it turns about.
#pragma once

#include "connections/Balance.h"
#include "controls/Drawing.h"

#include <optional>

namespace Tensarix {

// A row as far as it is known. Lengths in inches, the angle in degrees.
struct BoltPicture {
    std::optional<double> m, n, sv, sh, ex, Angle;
    std::optional<Balance> Balanced; // of a complete row
    std::optional<double> SearchRo;  // how far out the search's own centre ended
};

// In inches from the centroid. What isn't known is drawn as in any group, without a number. Each
// bolt's resistance is an arrow from the bolt, as long as its part of the farthest bolt's.
Drawing Bolt_Group_Drawing(const BoltPicture& picture);

} // namespace Tensarix
