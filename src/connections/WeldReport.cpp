// The running report of a weld search.
#include <cmath>
#include <limits>

#include "common/Failure.h"
#include "common/NumberText.h"
#include "connections/WeldFunctions.h"

namespace Tensarix {
namespace {

constexpr std::int64_t secondsBetweenClearings = 15;

std::int64_t Seconds_Between(std::int64_t from, std::int64_t to) {
    return to > from ? to - from : from - to;
}

void Clear_Display_In_Time(WeldState& state, WeldDisplay& display, std::int64_t now) {
    if (Seconds_Between(state.LastClearTime, now) <= secondsBetweenClearings)
        return;
    if (state.ClearCount == std::numeric_limits<std::int16_t>::max())
        throw Failure("too many clearings");
    ++state.ClearCount;
    state.LastClearTime = now;
    std::string text = "**Previous Iteration DELETED...[";
    text.append(std::to_string(state.ClearCount)).append("]").append(reportLineBreak);
    text.append("[Iteration Display is cleared every").append(reportLineBreak);
    text.append("15 sec. to maintain iteration speed]");
    display.Replace_Text(text);
}

void Append_Force(std::string_view label, double force, std::string_view end,
                  WeldDisplay& display) {
    std::string text(label);
    text.append(Format_Number(Finite(force), "0.0000")).append(end);
    display.Append_Text(text);
}

} // namespace

void ShowIterationStep(double angle, double Ro, double Fv, double Fm, double scale, bool noMoment,
                       WeldState& state, WeldDisplay& display) {
    const std::int64_t now = display.Now();
    state.ElapsedSeconds = static_cast<double>(Seconds_Between(state.IterationStart, now));
    Clear_Display_In_Time(state, display, now);
    if (display.Has_Text())
        display.Append_Text(std::string(reportLineBreak).append(reportLineBreak));
    std::string text = " -> Ro    = ";
    text.append(Format_Number(Finite(Ro / scale), "0.00000"));
    text.append(" [Rotated ").append(General_Text(angle)).append("°]").append(reportLineBreak);
    display.Append_Text(text);
    Append_Force("    Fy[v] = ", Fv / scale, reportLineBreak, display);
    if (noMoment)
        display.Append_Text("    Fy[m] = N.A.");
    else
        Append_Force("    Fy[m] = ", Fm / scale, "", display);
    if (!noMoment)
        display.Show_Loads(Ro / scale, Fv / scale, Fm / scale);
    display.Show_Elapsed("Iteration Time »  " + FormatIterationTime(state.ElapsedSeconds));
}

// Minutes are cut off from the fraction of an hour: at 3660 s and some other times, where that
// falls just short, they read one less. The report is fixed to the character, its time too.
std::string FormatIterationTime(double seconds) {
    const double hours = seconds / 60 / 60;
    const double minutes = seconds / 60;
    const double hh = std::trunc(seconds / 3600);
    const double mm = std::trunc((hours - std::trunc(hours)) * 60);
    const double ss = (minutes - std::trunc(minutes)) * 60;
    return Format_Number(hh, "00") + "h:" + Format_Number(mm, "00") +
           "m:" + Format_Number(ss, "00") + "s ";
}

} // namespace Tensarix
