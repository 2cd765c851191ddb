/// The two graphs of the selected days: their readings by test periods, and their weights.
#pragma once

#include <array>
#include <memory>

#include "charting/gt_graph.h"
#include "diary/day_table.h"
#include "graphwindow/selected_days.h"

namespace tallyvane::DayGraph {

/// A column of the day table, the colour of its line, and its name when the user has given it no other.
struct Period {
    int column;
    Color color;
    const char* caption;
};

/// The averages of the days, then the seven readings.
inline constexpr std::array<Period, 8> periods{{
    {DayTable::averageColumn, RGB(255, 0, 0), "Daily Averages"},
    {1, RGB(0, 128, 0), "Before Breakfast"},
    {2, RGB(128, 0, 255), "After Breakfast"},
    {3, RGB(255, 128, 0), "Before Lunch"},
    {4, RGB(0, 128, 255), "After Lunch"},
    {5, RGB(255, 0, 255), "Before Supper"},
    {6, RGB(0, 64, 128), "After Supper"},
    {7, RGB(0, 128, 128), "Bedtime"},
}};

/// Which of the periods are to be seen.
using Shown = std::array<bool, periods.size()>;

/// A series for each period that is shown. The first period's series is always there, since it carries the titles of
/// the axes; it has no points when it is not shown.
///
/// In the first two series x is a running number (1, 2, 3, ...), in the others the row in the table. Each series is
/// scaled to the plot's width by itself, so one day can lie at different places.
std::unique_ptr<GTGraph> makeReadingsGraph(const SelectedDays& days, const Shown& shown);

/// One series of weights, from 2 below the lowest. It reaches 2 above the highest, or higher if the readings do.
std::unique_ptr<GTGraph> makeWeightGraph(const SelectedDays& days);

/// Draws a graph, with a bottom margin that makes the plot's height a whole number of ticks, so that each label of the
/// value axis stands at its value.
void draw(GTGraph& graph, Graphics& g);

} // namespace tallyvane::DayGraph
