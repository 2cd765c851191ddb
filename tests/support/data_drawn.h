#pragma once

#include "charting/gt_series.h"
#include "support/drawn.h"

namespace tallyvane {

/// Draws the series' data alone, on a plot of 100 x 50 at 10, 20.
inline GraphicsRecorder& dataDrawn(GTSeries& series, GraphicsRecorder& g) {
    series.XAxis().visible(false);
    series.YAxis().visible(false);
    int used[4] = {};
    series.Render(g, 10, 20, used[0], used[1], used[2], used[3], 100, 50);
    return g;
}

inline std::vector<std::string> dataDrawn(GTSeries& series) {
    GraphicsRecorder g(200, 200);
    return drawn(dataDrawn(series, g));
}

} // namespace tallyvane
