#include "common/NumberText.h"
#include "controls/DrawingSheet.h"

#include <algorithm>
#include <cmath>

namespace Tensarix::Drawn {

namespace {

// In heights of a line of text.
constexpr double tickGap = 0.3, leastBetweenTicks = 1.6, mostTicks = 10;
constexpr double legendGap = 0.5, legendLine = 2.6, legendStep = 1.2;

// A round step, not under the least, of which the end of the axis is a multiple if one is.
double Tick_Step(double least, double end) {
    for (double step = Round_Step(least); step <= end; step = Round_Step(1.5 * step))
        if (std::abs(std::remainder(end, step)) < 1e-6 * step)
            return step;
    return Round_Step(least);
}

} // namespace

void Sheet::Draw_Frame(const Axes& axes) {
    const Point low = layout_.In_View({axes.XFrom, axes.YFrom});
    const Point high = layout_.In_View({axes.XTo, axes.YTo});
    const Part frame{Line{}, Ink::Quiet, {}};
    Add_Stroke(frame, {{low.X, high.Y}, low, {high.X, low.Y}}, Weight::Thin, Pattern::Solid);
    Draw_Ticks(axes, false);
    Draw_Ticks(axes, true);
    const Size x = measure_(axes.XTitle), y = measure_(axes.YTitle);
    const double below = extent_.Bottom + tickGap * em_, above = high.Y - tickGap * em_;
    const double left = std::min(extent_.Left, low.X);
    xTitle_ = {high.X - x.Width, below, high.X, below + x.Height};
    Add_Text(frame, xTitle_, axes.XTitle);
    Add_Text(frame, {left, above - y.Height - em_ / 2, left + y.Width, above - em_ / 2},
             axes.YTitle);
    layout_.Plot = Box{low.X, high.Y, high.X, low.Y};
    Draw_Legend(axes);
}

// In the line of the axis' title, where no curve comes.
void Sheet::Place_Below_Axis(const Part& part, const std::string& words, double x) {
    const double width = measure_(words).Width, last = xTitle_.Left - betweenTexts * em_ - width;
    const double left = std::max(std::min(x - width / 2, last), extent_.Left);
    const Box place{left, xTitle_.Top, left + width, xTitle_.Bottom};
    if (left > last)
        Leave_Out(part, words);
    else
        Add_Text(part, place, words);
}

void Sheet::Draw_Legend(const Axes& axes) {
    double widest = 0;
    for (const LegendRow& row : axes.Legend)
        widest = std::max(widest, measure_(row.Words).Width);
    const double left = layout_.Plot->Right - legendGap * em_ - widest;
    double y = layout_.Plot->Top + legendStep * em_;
    for (const LegendRow& row : axes.Legend) {
        const Part part{Line{}, row.In, row.Words};
        const double end = left - legendGap * em_;
        Add_Stroke(part, {{end - legendLine * em_, y}, {end, y}}, Weight::Bold, row.Dash);
        const Size size = measure_(row.Words);
        Add_Text(part, {left, y - size.Height / 2, left + size.Width, y + size.Height / 2},
                 row.Words);
        y += legendStep * em_;
    }
}

// Round numbers along one of the axes, as close as their texts allow, but not too many.
void Sheet::Draw_Ticks(const Axes& axes, bool upright) {
    const Part grid{Line{}, Ink::Quiet, {}};
    const double from = upright ? axes.YFrom : axes.XFrom, to = upright ? axes.YTo : axes.XTo;
    const double scale = upright ? layout_.YScale : layout_.XScale;
    const double widest = std::max(measure_(General_Text(Round_Step(to))).Width, 2 * em_);
    const double room = upright ? leastBetweenTicks * em_ : widest + em_;
    const double step = Tick_Step(std::max(room / scale, (to - from) / mostTicks), to);
    for (double k = std::ceil(from / step - 1e-9); k * step <= to + 1e-9 * step; ++k) {
        const std::string words = General_Text(k * step);
        const Point at =
            layout_.In_View(upright ? Point{axes.XFrom, k * step} : Point{k * step, axes.YFrom});
        const Point end =
            layout_.In_View(upright ? Point{axes.XTo, k * step} : Point{k * step, axes.YTo});
        layout_.Strokes.push_back({{at, end}, Ink::Grid, Weight::Thin, Pattern::Solid, {}});
        const Size size = measure_(words);
        const Point centre = upright ? Point{at.X - tickGap * em_ - size.Width / 2, at.Y}
                                     : Point{at.X, at.Y + tickGap * em_ + size.Height / 2};
        Add_Text(grid, Text_Box(centre, words), words);
    }
}

} // namespace Tensarix::Drawn
