// What the drawings of bolt groups and of weld groups share: the load, its eccentricity and angle,
// and the centres the group turns about.
#pragma once

#include "controls/Drawing.h"

#include <optional>
#include <string>

namespace Tensarix {

// The load points down, turned clockwise by the angle (degrees), through a point beside the
// centroid, which is the zero of the drawing.
struct GroupLoad {
    std::optional<double> Eccentricity, Angle; // none: not known yet
    double Size = 1;                           // of the group, which the arrow's length follows

    double X() const; // where the line of the load crosses the level of the centroid
    double Radians() const;
    // Its direction.
    Drawn::Point Towards() const;
};

// "3.25", at most three decimals; nothing if it isn't known.
std::string Known_Text(const std::optional<double>& value);

// The arrow with the vertical and the angle between them, and the eccentricity by its symbol.
void Add_Load(Drawing& drawing, const GroupLoad& load, const std::string& symbol);

// A centre of rotation of a group of that size: a mark where it is near, else an arrow towards it.
// `near` is in sizes from the centroid.
void Add_Centre(Drawing& drawing, Drawn::Point centre, double size, double near,
                Drawn::MarkKind kind, Drawn::Ink ink, const std::string& name);

// "3.2 in. left of the centroid and 0.5 in. above it"; the unit is " in." there.
std::string Place_In_Words(Drawn::Point centre, const std::string& unit);

// The centre of a search that moves it so far out on the level of the centroid, where the load is
// vertical: away from the load.
Drawn::Point Search_Centre(const GroupLoad& load, double Ro);

} // namespace Tensarix
