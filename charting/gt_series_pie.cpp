#include "charting/gt_series.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "charting/truncated.h"
#include "platform/base/number.h"

namespace tallyvane {

/// One slice for the first X value of each point, clockwise from the right. There is none for a value below 0.
///
/// A label moves on by the angle of its slice, beginning at half of the first slice that there is, so it stands in the
/// middle of its slice as long as slices are alike.
void GTSeries::renderPie(Graphics& g, int x, int y, int w, int h) const {
    if (w == 0 || h == 0)
        return;
    const auto hasSlice = [](const GTDataPoint& point) { return std::isfinite(point.XValue()) && point.XValue() >= 0; };
    double total = 0;
    for (const auto& point : myDataPoints)
        if (hasSlice(*point))
            total += point->XValue();
    if (total == 0)
        return;

    const int centreX = truncated(x + w / 2.0);
    const int centreY = truncated(y + h / 2.0);
    const double diameter = std::min(w, h);
    const double labelRadius = 0.75 * diameter / 2;
    ArcShape slice;
    slice.Width = slice.Height = diameter;
    std::optional<double> labelAngle;
    for (int i = 0; i < Count(); ++i) {
        const GTDataPoint& point = *myDataPoints[static_cast<std::size_t>(i)];
        if (!hasSlice(point))
            continue;
        slice.ArcAngle = point.XValue() / total * (2 * std::numbers::pi);
        slice.FillColor = slice.BorderColor = pieceColor(i);
        g.DrawObject(slice, centreX, centreY);
        if (!labelAngle)
            labelAngle = slice.ArcAngle / 2;
        if (dataLabelsVisible) {
            g.ForeColor(myPenColor);
            setLabelFont(g);
            g.DrawString(Format(point.XValue(), "#.0"), truncated(centreX + labelRadius * std::cos(*labelAngle)),
                         truncated(centreY + labelRadius * std::sin(*labelAngle)));
        }
        slice.StartAngle += slice.ArcAngle;
        *labelAngle += slice.ArcAngle;
    }
}

} // namespace tallyvane
