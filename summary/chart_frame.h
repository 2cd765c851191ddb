/// What the charts of a summary have in common: their axes, colours, marks and texts.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "charting/gt_graph.h"
#include "charting/round_ticks.h"
#include "settings/ranges.h"
#include "summary/unit.h"

namespace tallyvane::Summary {

inline constexpr int chartTextSize = 10; // points
inline constexpr const char* summaryFont = "Arial"; // narrow, and the same on screen and paper
inline constexpr int mostTicks = 6; // of a vertical axis, but for its first
inline constexpr Color chartText = RGB(60, 60, 60);
inline constexpr Color targetBand = RGB(222, 239, 222);
inline constexpr Color limitLine = RGB(120, 120, 120);
inline constexpr Color medianLine = RGB(178, 24, 24);

/// A tick of a horizontal axis: its place, and what stands below it.
using Tick = std::pair<double, std::string>;

/// A graph whose first series has no data, but the axes: ticks across at these places, a vertical axis of round values.
std::unique_ptr<GTGraph> framedGraph(const Extent& across, std::vector<Tick> ticks, const RoundTicks& up);

/// From 0 to the highest reading, and to the limit of what is too high.
RoundTicks upTo(double highest);

/// The user's target zone as a band of the graph, and the limits of what is too high and too low as lines.
void addLimits(GTGraph& graph);

/// Adds a series without axes of its own.
std::shared_ptr<GTSeries> addSeries(GTGraph& graph, int type, Color color);
/// Gives all series the ranges of the axes, once they have their points.
void alignSeries(GTGraph& graph);

/// The mark of a test period: a shape for each meal, hollow after it.
struct PeriodMark {
    GTMark mark;
    bool isHollow;
    Color color;
};
PeriodMark markOf(int testPeriod);

/// How a range is filled: its colour, the lines over it, and the colour of a text on it.
struct RangeFill {
    Color color;
    GTHatching hatching;
    Color text;
};
RangeFill fillOf(Ranges::Range range);

/// Sets the font of the charts' texts.
void setChartFont(Graphics& g, bool isBold = false);
/// As much of a text as has room, with "..." where it is cut.
[[nodiscard]] std::string fitted(const Graphics& g, const std::string& text, double width);
/// Half the height of a figure: so far below a place a baseline has its text stand in the middle.
[[nodiscard]] double halfFigure(const Graphics& g);
/// A line of text with its middle at x.
void drawCentred(Graphics& g, const std::string& text, double x, double baseline);

} // namespace tallyvane::Summary
