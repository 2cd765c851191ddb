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

/// A series for each period that is shown. The first period's series is always there, with the titles of the axes, and
/// without points when it is not shown.
///
/// The first two series count their points; the others have them at the rows of the table. So the same day can lie at
/// different places, and each series fills the width of the plot.
std::unique_ptr<GTGraph> ofPeriods(const SelectedDays& days, const Shown& shown);

/// One series of weights, from 2 below the lowest. It reaches 2 above the highest, or higher if the readings do.
std::unique_ptr<GTGraph> ofWeights(const SelectedDays& days);

/// Draws a graph on a surface, a little lower where needed: the plot is as high as a whole number of ticks, so that
/// each label of the values stands at its value.
void draw(GTGraph& graph, Graphics& g);

} // namespace tallyvane::DayGraph
