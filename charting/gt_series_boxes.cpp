/// Boxes: of each point the lowest and the highest of its Y values by a thin line, the middle half by a box, the median
/// by a thick line.
#include "charting/gt_series.h"

#include <cmath>

#include "charting/pen_keeper.h"

namespace tallyvane {

void GTSeries::renderBoxes(Graphics& g, int x, int y, int w, int h) const {
    if (w == 0 || h == 0)
        return;
    constexpr int valuesOfBox = 5;
    const PenKeeper keeper(g);
    const double width = boxWidth * scale();
    const double thin = scale();
    const auto pen = [&](Color color, double size) {
        g.ForeColor(color);
        g.PenWidth(size);
        g.PenHeight(size);
    };
    for (const auto& point : myDataPoints) {
        const double middle = x + (point->XValue() - myXMin) * xScale(w);
        const auto level = [&](int value) { return y + h - (point->YValue(value) - myYmin) * yScale(h); };
        if (point->YValueCount() != valuesOfBox || !std::isfinite(middle + level(0) + level(valuesOfBox - 1)))
            continue;
        const double left = middle - width / 2;
        pen(myPenColor, thin);
        g.DrawLine(middle, level(4), middle, level(0));
        g.ForeColor(boxColor);
        g.FillRect(left, level(3), width, level(1) - level(3));
        g.ForeColor(myPenColor);
        g.DrawRect(left, level(3), width, level(1) - level(3));
        pen(medianColor, 2 * thin);
        g.DrawLine(left, level(2) - thin, left + width, level(2) - thin);
    }
}

} // namespace tallyvane
