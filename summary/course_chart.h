#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "summary/chart_frame.h"
#include "summary/period_summary.h"

namespace tallyvane::Summary {

/// The course of a period: each reading at its day, by its test period, over the target zone; and the median of the
/// seven days up to each day.
class CourseChart {
public:
    explicit CourseChart(const PeriodSummary& summary);

    /// On the whole surface, with a legend above.
    void draw(Graphics& g);
    /// The reading drawn nearest to a place of the last drawing's surface; nothing where none is near.
    [[nodiscard]] std::optional<Reading> readingAt(double x, double y) const;

private:
    void addReadings(const PeriodSummary& summary, int testPeriod);
    void addMedian(const PeriodSummary& summary);
    /// A name of the legend with its mark; test period 0 is the median.
    struct LegendPart {
        int testPeriod;
        std::string name;
        double x;
        double y;
    };
    std::vector<LegendPart> legendOn(const Graphics& g) const;
    void drawLegend(Graphics& g, const LegendPart& part) const;

    std::unique_ptr<GTGraph> graph_;
    std::vector<std::vector<Reading>> readings_; // of each series of the graph, in the order of its points
    std::vector<int> shown_; // the test periods that have readings
    bool hasMedian_ = false;
    std::array<std::string, testPeriods + 1> names_;
};

} // namespace tallyvane::Summary
