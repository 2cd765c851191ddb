#include "charting/gt_hatching.h"

#include <algorithm>

#include "charting/pen_keeper.h"

namespace tallyvane {

namespace {

/// Lines at 45 degrees, each cut off at the rectangle's sides.
void renderSlanting(Graphics& g, bool isRising, double x, double y, double width, double height, double step) {
    for (double start = step - height; start < width; start += step) {
        const double from = std::max(start, 0.0);
        const double to = std::min(start + height, width);
        const double climbFrom = from - start;
        const double climbTo = to - start;
        if (isRising)
            g.DrawLine(x + from, y + height - climbFrom, x + to, y + height - climbTo);
        else
            g.DrawLine(x + from, y + climbFrom, x + to, y + climbTo);
    }
}

} // namespace

void renderHatching(Graphics& g, const GTHatching& hatching, double x, double y, double width, double height,
                    double step) {
    using enum GTHatching::Lines;
    const PenKeeper keeper(g);
    g.ForeColor(hatching.color);
    if (hatching.lines == rising || hatching.lines == crossed)
        renderSlanting(g, true, x, y, width, height, step);
    if (hatching.lines == falling || hatching.lines == crossed)
        renderSlanting(g, false, x, y, width, height, step);
    if (hatching.lines == level)
        for (double line = step / 2; line < height; line += step / 2)
            g.DrawLine(x, y + line, x + width, y + line);
}

} // namespace tallyvane
