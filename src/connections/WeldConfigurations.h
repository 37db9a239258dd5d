// The nine weld configurations: their lines, their coefficient C, and their centroid distances.
#pragma once

#include <cstdint>
#include <vector>

#include "connections/WeldFunctions.h"

namespace Tensarix {

inline constexpr int weldConfigurationCount = 9;

// What a configuration's routine is asked for; any other mode gives 0.
inline constexpr std::int16_t weldModeC = 0;
inline constexpr std::int16_t weldModeXL = 1;
inline constexpr std::int16_t weldModeYL = 2;

// Base length L, leg length kL and eccentricity aL in one unit, the angle in degrees. The result is
// C, or xL or yL in that unit. Fails where L is 0 or a scaled number is out of range; throws
// SearchAbandoned as the search does. Only mode 0 runs a search.
double TwoVerticalLines(double L, double kL, double aL, double angle, std::int16_t mode,
                        WeldSearch& search);
double TwoHorizontalLines(double L, double kL, double aL, double angle, std::int16_t mode,
                          WeldSearch& search);
double TallBoxLines(double L, double kL, double aL, double angle, std::int16_t mode,
                    WeldSearch& search);
double WideBoxLines(double L, double kL, double aL, double angle, std::int16_t mode,
                    WeldSearch& search);
double LeftChannelLines(double L, double kL, double aL, double angle, std::int16_t mode,
                        WeldSearch& search);
double RightChannelLines(double L, double kL, double aL, double angle, std::int16_t mode,
                         WeldSearch& search);
double LeftAngleLines(double L, double kL, double aL, double angle, std::int16_t mode,
                      WeldSearch& search);
double RightAngleLines(double L, double kL, double aL, double angle, std::int16_t mode,
                       WeldSearch& search);

// The routine of an item, 1 to 9, of the list of configurations. Item 1 is item 2 with kL = 0.
double Weld_Configuration_Result(int item, double L, double kL, double aL, double angle,
                                 std::int16_t mode, WeldSearch& search);

// The lines of an item over the scaled base and leg lengths. Fails on an item outside 1 to 9.
std::vector<WeldLine> Weld_Configuration_Lines(int item, double base, double leg);

// By how much an item is scaled, so that the rounding of line lengths to whole numbers stays small:
// a base length up to 100 becomes 100. Fails where L is 0.
double Weld_Scale(double L);

// So many of the units of the report make one of L: 1, but for the configuration that is reported
// scaled.
double Weld_Display_Unit(int item, double L);

// C of a raw load over the scaled base length.
double Weld_Coefficient(double raw, double base);

} // namespace Tensarix
