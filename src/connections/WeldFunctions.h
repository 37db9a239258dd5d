// The load of an eccentrically loaded weld group by iteration about the instantaneous centre of
// rotation. Load-deformation of a weld element: Lesik and Kennedy, as in AISC
// 360, section J2.4, and behind tables 8-4 to 8-11 of the AISC Steel Construction Manual.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "connections/SearchYield.h"

namespace Tensarix {

// One straight weld line, in the (scaled) unit of the base length.
struct WeldLine {
    double x1 = 0, y1 = 0;
    double x2 = 0, y2 = 0;
    double lineAngle = 0; // radians from the horizontal, set after rotation
};

// What outlives a run: written by the screen and the engine, read on the next call.
struct WeldState {
    std::int16_t StripsPerUnit = 4; // elements per unit of line length: 4, 8, 16 or 32
    bool StopRequested = false;     // read at the top of each pass
    bool ResumeRequested = false;   // start from SavedRo
    double SavedRo = 0;
    double PassRo = 0;               // of the pass at hand, for a run that is left in its middle
    std::int64_t IterationStart = 0; // whole seconds of the display's clock
    double ElapsedSeconds = 0;
    std::int64_t LastClearTime = 0;
    std::int16_t ClearCount = 0;
};

// A line break in the report is these two characters: some of its texts repeat the first alone.
inline constexpr std::string_view reportLineBreak = "\r\n";

// Where a run is shown: IterationDisplayBox and ElapsedIndicator, and the clock.
class WeldDisplay {
  public:
    WeldDisplay() = default;
    WeldDisplay(const WeldDisplay&) = delete;
    WeldDisplay& operator=(const WeldDisplay&) = delete;
    virtual ~WeldDisplay() = default;

    virtual std::int64_t Now() = 0; // whole seconds, from any start
    virtual bool Has_Text() = 0;    // is the box's text, trimmed, not empty
    virtual void Replace_Text(std::string_view text) = 0;
    virtual void Append_Text(std::string_view text) = 0;
    virtual void Show_Elapsed(std::string_view caption) = 0;
    // The numbers of a pass of a search, as they are displayed; beside the texts, for a plot.
    virtual void Show_Loads(double /*Ro*/, double /*Fv*/, double /*Fm*/) {}
};

// All that a run needs from outside.
struct WeldSearch {
    WeldState& state;
    WeldDisplay& display;
    SearchYield& yield;
};

// The raw load of the group. `angle` is in degrees; `scale` divides all displayed numbers, and half
// of it is the tolerance. Ends at the tolerance, on StopRequested (the state then holds SavedRo),
// or at once where the load is concentric; there is no limit on the passes. Never fails; throws
// SearchAbandoned if the yield says so.
double SolveWeldGroup(const std::vector<WeldLine>& lines, double eccentricity, double angle,
                      double scale, WeldSearch& search);

// Lines upward, horizontal ones to the right; those not longer than 0.1 leave the group. These
// three fail on a length that is out of range; no line has left the group then.
void NormalizeWeldLines(std::vector<WeldLine>& lines, SearchYield& yield);
double TotalWeldLength(const std::vector<WeldLine>& lines);
// Radians, signed: a line that leans to the left has a negative angle.
double WeldLineAngle(const WeldLine& line);
// The direct sum of a (rotated) group without eccentricity.
double ConcentricWeldCapacity(const std::vector<WeldLine>& lines);

// Length-weighted centroid of the lines, and its distance from the top edge.
double WeldCentroidX(const std::vector<WeldLine>& lines);
double WeldCentroidY(const std::vector<WeldLine>& lines);
double WeldCentroidFromTop(const std::vector<WeldLine>& lines);

// Writes one pass to the display. Fails on a number that is out of range; what was written by then
// stays.
void ShowIterationStep(double angle, double Ro, double Fv, double Fm, double scale, bool noMoment,
                       WeldState& state, WeldDisplay& display);
// "00h:00m:00s " of so many seconds.
std::string FormatIterationTime(double seconds);

} // namespace Tensarix
