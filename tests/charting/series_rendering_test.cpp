#include <gtest/gtest.h>

#include <algorithm>

#include "support/data_drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;

TEST(SeriesRendering, GridsBaseLinesDataThenAxes) {
    GTSeries series(GTSeries::line);
    series.AddDataValue(0, 0);
    series.AddDataValue(10, 10);
    for (GTAxis* axis : {&series.XAxis(), &series.YAxis()}) {
        axis->baseLine(5);
        axis->baseLineVisible(true);
        axis->ticksAreValues(true);
        axis->tickLabelsVisible(false);
    }
    int used[4] = {};
    GraphicsRecorder bare(300, 300);
    series.Render(bare, 50, 50, used[0], used[1], used[2], used[3], 100, 100);
    EXPECT_EQ(drawn(bare).front(), "picture 50 50") << "no base line without the grid";

    series.XGridVisible(true);
    series.YGridVisible(true);
    GraphicsRecorder g(300, 300);
    std::fill(std::begin(used), std::end(used), 0);
    series.Render(g, 50, 50, used[0], used[1], used[2], used[3], 100, 100);
    EXPECT_EQ(drawn(g), (Lines{"line 50 50 50 150", "line 150 50 150 150", "line 50 150 150 150", "line 50 50 150 50",
                               "line 100 50 100 150", "line 50 100 150 100", "picture 50 50", "  curve 0 100 0 100",
                               "  curve 0 100 100 0", "line 50 150 150 150", "line 50 150 50 154",
                               "line 150 150 150 154", "line 50 50 50 150", "line 46 150 50 150", "line 46 50 50 50"}));
}

TEST(SeriesRendering, AxesStackOutward) {
    struct Row {
        const char* name;
        bool far; // top and right
        Lines want; // the axis lines
        std::vector<int> used; // left, top, right, bottom
    };
    // On a plot of 120 x 60 an X axis is 12 + 7 + 12 high. A Y axis of 60 has labels of up to "6.67", 24: 12 + 7 + 24
    // wide (of 120 it would have up to "9.1"). A line at the top or left stands at the inner end of its band.
    const Row rows[] = {
        {"bottom and left",
         false,
         {"line 50 110 170 110", "line 50 50 50 110", "line 50 141 170 141", "line 7 50 7 110"},
         {86, 0, 0, 62}},
        {"top and right",
         true,
         {"line 50 50 170 50", "line 170 50 170 110", "line 50 19 170 19", "line 213 50 213 110"},
         {0, 62, 86, 0}},
    };
    for (const Row& row : rows) {
        GraphicsRecorder g(300, 300);
        std::vector<int> used(4);
        for (const bool visible : {true, false, true}) {
            GTSeries series(visible ? GTSeries::line : -1); // axes do not ask for the type
            series.XAxis().visible(visible);
            series.YAxis().visible(visible);
            series.XAxis().top(row.far);
            series.YAxis().right(row.far);
            series.SetXRange(0, 1);
            series.SetYRange(0, 10);
            series.Render(g, 50, 50, used[0], used[1], used[2], used[3], 120, 60);
        }
        GraphicsRecorder axisLines(300, 300); // those as long as the plot
        for (const GraphicsRecorder::Call& call : g.calls()) {
            const auto& n = call.numbers;
            if (call.operation == "DrawLine" && (n[2] - n[0] == 120 || n[3] - n[1] == 60))
                axisLines.DrawLine(n[0], n[1], n[2], n[3]);
        }
        EXPECT_EQ(drawn(axisLines), row.want) << row.name;
        EXPECT_EQ(used, row.used) << row.name;
    }
}

} // namespace

} // namespace tallyvane
