#include "charting/gt_series.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <random>

#include "support/drawn.h"

namespace tallyvane {

namespace {

using List = std::vector<double>;

std::shared_ptr<GTDataPoint> pointOf(const List& x, const List& y) {
    auto point = std::make_shared<GTDataPoint>(x.front(), y.front());
    std::for_each(x.begin() + 1, x.end(), [&](double v) { point->extraXValue(v); });
    std::for_each(y.begin() + 1, y.end(), [&](double v) { point->extraYValue(v); });
    return point;
}

using Range = std::array<double, 4>; // x from, to, y from, to
Range rangeOf(const GTSeries& s) { return {s.XMin(), s.XMax(), s.YMin(), s.YMax()}; }

TEST(SeriesRanges, ASetRangeLastsUntilTheNextPoint) {
    GTSeries series(GTSeries::line);
    series.AddDataValue(1, 5);
    EXPECT_EQ(series.XAxis().minimum(), 1);
    series.SetYRange(0, 10);
    EXPECT_EQ(series.YAxis().maximum(), 10);
    series.RemoveDataValue(-1);
    series.RemoveDataValue(1);
    EXPECT_EQ(rangeOf(series), (Range{1, 1, 0, 10})) << "there was nothing to remove";
    series.AddDataValue(2, 6);
    EXPECT_EQ(rangeOf(series), (Range{1, 2, 5, 6}));
    series.RemoveDataValue(0);
    EXPECT_EQ(rangeOf(series), (Range{2, 2, 6, 6}));
    series.SwapXY();
    EXPECT_EQ(rangeOf(series), (Range{2, 2, 6, 6})) << "swapping alone leaves the ranges";
    series.fixRanges();
    EXPECT_EQ(rangeOf(series), (Range{6, 6, 2, 2}));
    series.RemoveDataValue(0);
    EXPECT_EQ(rangeOf(series), (Range{6, 6, 2, 2})) << "without points they stay";
}

/// The extent of what is finite of these; without any it stays.
void findExtent(List values, double& low, double& high) {
    std::erase_if(values, [](double v) { return !std::isfinite(v); });
    if (values.empty())
        return;
    low = *std::min_element(values.begin(), values.end());
    high = *std::max_element(values.begin(), values.end());
}

/// The ranges by the rule, passing over all points.
Range fullPass(const GTDataPoints& points, Range before) {
    List x;
    List y;
    for (const auto& point : points) {
        for (int j = 0; j < points.front()->XValueCount(); ++j)
            x.push_back(point->XValue(j));
        for (int j = 0; j < points.front()->YValueCount(); ++j)
            y.push_back(point->YValue(j));
    }
    findExtent(x, before[0], before[1]);
    findExtent(y, before[2], before[3]);
    return before;
}

TEST(SeriesRanges, AreThoseOfAFullPassAfterEveryAdd) {
    std::mt19937 random(20261122);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const auto value = [&] {
        return below(40) == 0 ? (below(2) == 0 ? notANumber : -infinite) : static_cast<double>(below(2001) - 1000) / 8;
    };
    for (int round = 0; round < 30; ++round) {
        auto series = std::make_unique<GTSeries>(GTSeries::line);
        GTSeries other(GTSeries::line); // has some of the points as well, some of them twice
        GTDataPoints points;
        GTDataPoints otherPoints;
        const auto addTo = [](GTSeries& s, GTDataPoints& list, const std::shared_ptr<GTDataPoint>& point) {
            const Range before = rangeOf(s);
            list.push_back(point);
            s.AddDataPoint(point);
            return rangeOf(s) == fullPass(list, before);
        };
        for (int step = 0; step < 60; ++step) {
            auto point = std::make_shared<GTDataPoint>(value(), value());
            for (int extra = below(3); extra > 0; --extra)
                point->extraYValue(value());
            ASSERT_TRUE(addTo(*series, points, point)) << "round " << round << ", point " << step;
            for (int times = below(3); times > 0; --times)
                ASSERT_TRUE(addTo(other, otherPoints, point)) << "round " << round << ", point " << step;

            GTDataPoint& any = *points[static_cast<std::size_t>(below(static_cast<int>(points.size())))];
            if (below(2) == 0)
                any.extraYValue(value());
            if (below(4) == 0)
                any.extraXValue(value());
            if (below(10) == 0)
                any.swapXY();
            if (below(10) == 0) {
                const int index = below(static_cast<int>(points.size()));
                points.erase(points.begin() + index);
                const Range kept = rangeOf(*series);
                series->RemoveDataValue(index);
                ASSERT_EQ(rangeOf(*series), points.empty() ? kept : fullPass(points, kept));
            }
        }
        series.reset(); // the points go on reporting to the other
        points.back()->extraYValue(value());
        ASSERT_TRUE(addTo(other, otherPoints, points.back())) << "round " << round;
    }
}

TEST(SeriesRanges, APointOutlivesItsSeries) {
    const auto point = std::make_shared<GTDataPoint>(1, 2);
    {
        GTSeries series(GTSeries::line);
        series.AddDataPoint(point);
        series.AddDataPoint(point);
    }
    point->extraXValue(3); // reports to nobody
    EXPECT_EQ(point->XTotal(), 4);
    EXPECT_EQ(point->XValue(-1), 0);
    EXPECT_EQ(point->XValue(1), 3);
    EXPECT_EQ(point->XValue(2), 0);
    point->swapXY();
    EXPECT_EQ(point->YValueCount(), 2);
    EXPECT_EQ(point->XValue(), 2);
}

TEST(SeriesRanges, ColumnsFixTheirYRangeBeforeTheyAreMeasured) {
    // The width is 12 + 7 + that of the widest label, from the range as it then is.
    const auto check = [](int type, const Range& want, int width) {
        GTSeries empty(type);
        EXPECT_EQ(empty.XAxisHeight(100), 31);
        EXPECT_EQ(rangeOf(empty), (Range{0, 0, 0, 0}));
        for (const bool byWidth : {false, true}) {
            GTSeries series(type);
            series.AddDataPoint(pointOf({1}, {9, 3, 2}));
            series.AddDataPoint(pointOf({2}, {9, 9}));
            EXPECT_EQ(byWidth ? series.YAxisWidth(100) : series.XAxisHeight(100), byWidth ? width : 31) << type;
            EXPECT_EQ(rangeOf(series), want) << type;
        }
    };
    check(GTSeries::totalColumn, {1, 2, 14, 18}, 19 + 24); // "14.8"
    check(GTSeries::clusteredColumn, {1, 2, 2, 9}, 19 + 18); // every value of every point, no zeros
    check(GTSeries::percentColumn, {1, 2, 0, 9}, 19 + 18); // untouched
}

} // namespace

} // namespace tallyvane
