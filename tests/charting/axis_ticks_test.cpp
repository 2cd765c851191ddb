#include "charting/gt_axis.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/date.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

TEST(AxisTicks, ComputationOfIncrementCountAndUnit) {
    struct Row {
        const char* name;
        double max;
        double min;
        int pixels;
        int manualCount; // 0: automatic
        double increment;
        int count;
        double unit;
    };
    const Row rows[] = {
        {"no range", 5, 5, 400, 0, 1.0, 1, 0.0},
        {"no number", notANumber, 5, 400, 0, 1.0, 1, 0.0},
        {"every 20 units", 10, 0, 400, 0, 0.5, 20, 40.0},
        {"what is left over is not shared out", 10, 0, 250, 0, 0.8, 12, 25.0},
        {"range the wrong way round", 0, 10, 400, 0, 0.5, 20, 40.0},
        {"shorter than a step", 30, 0, 15, 0, 40.0, 0, 0.5},
        {"two ticks: one step", 100, 0, 400, 2, 100.0, 2, 4.0},
        {"three ticks", 100, 0, 400, 3, 50.0, 3, 4.0},
        {"five ticks", 100, 0, 400, 5, 25.0, 5, 4.0},
        {"no ticks by hand", 100, 0, 400, -1, 100.0, -1, 4.0},
    };
    for (const Row& row : rows) {
        GTAxis axis(GTAxis::horizontal);
        if (row.manualCount != 0)
            axis.tickCount(row.manualCount);
        double increment = 0;
        int count = 0;
        double unit = 0;
        axis.figureIncrement(row.max, row.min, row.pixels, increment, count, unit);
        EXPECT_DOUBLE_EQ(increment, row.increment) << row.name;
        EXPECT_EQ(count, row.count) << row.name;
        EXPECT_DOUBLE_EQ(unit, row.unit) << row.name;
    }
}

/// Where the ticks of an axis of 110 units from 0 stand, or the lines of its grid.
struct Steps {
    enum Painter { xAxis, yAxis, xGrid, yGrid };

    static std::vector<double> of(Painter painter, GTAxis& axis) {
        GraphicsRecorder g(500, 500);
        const bool x = painter == xAxis || painter == xGrid;
        if (painter == xAxis || painter == yAxis)
            axis.render(g, 0, 0, 110);
        else
            axis.renderGrid(g, 0, 0, x ? 110 : 7, x ? 7 : 110);
        std::vector<double> places;
        for (const GraphicsRecorder::Call& call : g.calls())
            if (call.operation == "DrawLine" && call.numbers[x ? 0 : 1] == call.numbers[x ? 2 : 3])
                places.push_back(call.numbers[x ? 0 : 1]);
        return places;
    }
};

TEST(AxisTicks, ThePaintersStepInThreeUnlikeWays) {
    using Change = std::function<void(GTAxis&)>;
    struct Row {
        const char* name;
        Change set;
        Steps::Painter painter;
        std::vector<double> want;
    };
    // 110 units for 0 to 11: automatically 5 ticks, an increment of 2 and 10 units to a unit.
    const Change automatic = [](GTAxis&) {};
    const Change three = [](GTAxis& axis) { axis.tickCount(3); };
    const Change byFour = [](GTAxis& axis) { axis.tickIncrement(4); };
    const Change byTwelve = [](GTAxis& axis) { axis.tickIncrement(12); };
    const std::vector<Row> rows{
        {"x, 20 each; the last stands inside the end", automatic, Steps::xAxis, {0, 20, 40, 60, 80, 100, 109}},
        {"y, 110 / 5 each, upward", automatic, Steps::yAxis, {110, 88, 66, 44, 22, 0}},
        {"x grid, 110 / 5 each", automatic, Steps::xGrid, {0, 22, 44, 66, 88, 110, 110}},
        {"y grid", automatic, Steps::yGrid, {110, 88, 66, 44, 22, 0, 0}},
        {"x, increment 5.5 of 10 units", three, Steps::xAxis, {0, 55, 109}},
        {"y, 110 / 3, values by 5.5", three, Steps::yAxis, {110, 73, 0}},
        {"x, 11 / 4 is 2 steps of 55", byFour, Steps::xAxis, {0, 55, 109}},
        {"y likewise; what falls on the top is the closing tick's", byFour, Steps::yAxis, {110, 55, 0}},
        {"x grid likewise, with a line on the end for each", byFour, Steps::xGrid, {0, 55, 110, 110}},
        {"an increment beyond the range: no step", byTwelve, Steps::xAxis, {0, 109}},
        {"y, no step", byTwelve, Steps::yAxis, {110, 0}},
    };
    for (const Row& row : rows) {
        const bool x = row.painter == Steps::xAxis || row.painter == Steps::xGrid;
        GTAxis axis(x ? GTAxis::horizontal : GTAxis::vertical);
        axis.SetRange(0, 11);
        axis.tickLabelsVisible(false);
        row.set(axis);
        std::vector<double> places = Steps::of(row.painter, axis);
        EXPECT_EQ(places, row.want) << row.name;
    }

    GTAxis fine(GTAxis::horizontal);
    fine.SetRange(0, 1);
    fine.tickIncrement(0.001);
    EXPECT_EQ(Steps::of(Steps::xAxis, fine).size(), 111U) << "no step is smaller than a unit";
}

TEST(AxisTicks, EveryWalkEnds) {
    for (const int type : {GTAxis::horizontal, GTAxis::vertical})
        for (const double increment : {0.0, -1.0, 1e-300, 1e300, infinite})
            for (const double max : {0.0, 1.0, 1e308, infinite, notANumber}) {
                GTAxis axis(type);
                axis.tickLabelsVertical(type == GTAxis::horizontal);
                axis.SetRange(-1e308, max);
                axis.tickIncrement(increment);
                GraphicsRecorder g(500, 500);
                axis.height(400);
                axis.width(400);
                axis.render(g, 0, 0, 400);
                axis.renderGrid(g, 0, 0, 400, 400);
                EXPECT_LE(g.calls().size(), 3U * 402U) << increment << " to " << max;
            }
}

TEST(AxisTicks, AnIncrementThatLeadsNowhereIsNone) {
    GTAxis axis(GTAxis::horizontal);
    axis.tickIncrement(2);
    EXPECT_TRUE(axis.hasCustomTickIncrement());
    for (const double increment : {0.0, -3.0, notANumber}) {
        axis.tickIncrement(2);
        axis.tickIncrement(increment);
        EXPECT_FALSE(axis.hasCustomTickIncrement()) << increment;
    }
}

TEST(AxisTicks, WhatWasSetCanBeCleared) {
    GTAxis axis(GTAxis::horizontal);
    axis.SetRange(0, 11);
    axis.tickIncrement(4);
    axis.clearTickIncrement();
    axis.tickCount(3);
    EXPECT_EQ(Steps::of(Steps::xAxis, axis).size(), 3U);
    axis.clearTickCount();
    EXPECT_EQ(Steps::of(Steps::xAxis, axis).size(), 7U);
}

TEST(AxisTicks, ValuesAsTicks) {
    GTDataPoints values;
    for (const double value : {0.0, 2.5, 11.0, 11.5, -1.0, notANumber})
        values.push_back(std::make_shared<GTDataPoint>(value, 11 - value));
    for (const bool fixed : {false, true}) { // a fixed increment takes nothing away from the values
        GTAxis x(GTAxis::horizontal);
        GTAxis y(GTAxis::vertical);
        for (GTAxis* axis : {&x, &y}) {
            axis->SetRange(0, 11);
            axis->ticksAreValues(true);
            axis->TickValues(values);
            if (fixed)
                axis->tickIncrement(4);
        }
        EXPECT_EQ(Steps::of(Steps::xAxis, x), (std::vector<double>{0, 25, 110}));
        EXPECT_EQ(Steps::of(Steps::yAxis, y), (std::vector<double>{0, 25, 110}));
        EXPECT_EQ(Steps::of(Steps::xGrid, x), (std::vector<double>{0, 25, 110}));
        EXPECT_EQ(Steps::of(Steps::yGrid, y), (std::vector<double>{0, 25, 110}));
        GraphicsRecorder g(500, 500);
        y.render(g, 100, 0, 110);
        EXPECT_EQ(only("text", drawn(g)).at(1), "text 94 25 '8.5'");
    }
}

TEST(AxisTicks, Texts) {
    class Hours : public GTCustomTickFormatter {
        std::string format(double value) override { return std::to_string(static_cast<int>(value)) + " h"; }
    };
    DateSource::setShortPattern("yyyy-MM-dd");
    const double moment = Date(2026, 11, 22, 14 * 3600 + 5 * 60 + 9).TotalSeconds();
    struct Row {
        int type;
        double value;
        const char* want;
    };
    const Row rows[] = {
        {GTAxis::number, 12.345, "12.35"},
        {GTAxis::number, -0.5, "-.5"},
        {GTAxis::shortDate, moment, "2026-11-22"},
        {GTAxis::shortTime, moment, "14:05"},
        {GTAxis::longDate, moment, "2026-11-22"},
        {GTAxis::longTime, moment, "14:05:09"},
        {GTAxis::percent, 0.125, "12.50%"},
        {GTAxis::custom, 7.9, "7 h"},
        {6, 1, ""},
        {-1, 1, ""},
    };
    GTAxis axis(GTAxis::vertical);
    axis.CustomFormatter(std::make_shared<Hours>());
    EXPECT_EQ(axis.tickType(), GTAxis::custom);
    for (const Row& row : rows) {
        axis.tickType(row.type);
        EXPECT_EQ(axis.formatTickLabel(row.value), row.want) << row.type;
    }
    GTAxis without(GTAxis::vertical);
    without.tickType(GTAxis::custom);
    EXPECT_EQ(without.formatTickLabel(1), "");
}

TEST(AxisTicks, RoomBesideThePlot) {
    using Change = std::function<void(GTAxis&)>;
    struct Row {
        const char* name;
        int type;
        Change set;
        int want; // of 12 units a line, 6 a character; 3 + 4 for the ticks
    };
    const std::vector<Row> rows{
        {"x: title, ticks, labels", GTAxis::horizontal, [](GTAxis&) {}, 12 + 7 + 12},
        {"x: vertical title 'abc'", GTAxis::horizontal,
         [](GTAxis& a) {
             a.text("abc");
             a.verticalTitle(true);
         },
         18 + 7 + 12},
        {"x: no ticks", GTAxis::horizontal, [](GTAxis& a) { a.ticksVisible = false; }, 12 + 12},
        {"x: no labels", GTAxis::horizontal, [](GTAxis& a) { a.tickLabelsVisible(false); }, 12 + 7},
        {"x: margin", GTAxis::horizontal, [](GTAxis& a) { a.innerMargin(5); }, 12 + 7 + 12 + 5},
        {"x: vertical labels, '8.0' to '88.0'", GTAxis::horizontal, [](GTAxis& a) { a.tickLabelsVertical(true); },
         12 + 7 + 24},
        {"x: at 144 dots an inch", GTAxis::horizontal, [](GTAxis& a) { a.Resolution(144); }, 24 + 14 + 24},
        {"x: invisible", GTAxis::horizontal, [](GTAxis& a) { a.visible(false); }, 0},
        {"y: title on its side, ticks, '88.0'", GTAxis::vertical, [](GTAxis&) {}, 12 + 7 + 24},
        {"y: horizontal title 'abc'", GTAxis::vertical,
         [](GTAxis& a) {
             a.text("abc");
             a.horizontalTitle(true);
         },
         18 + 7 + 24},
        {"y: vertical labels", GTAxis::vertical, [](GTAxis& a) { a.tickLabelsVertical(true); }, 12 + 7 + 12},
        {"y: by 30, '90.0'", GTAxis::vertical, [](GTAxis& a) { a.tickIncrement(30); }, 12 + 7 + 24},
        {"y: by 100, '.0'", GTAxis::vertical, [](GTAxis& a) { a.tickIncrement(100); }, 12 + 7 + 12},
    };
    for (const Row& row : rows) {
        GTAxis axis(row.type);
        axis.SetRange(0, 96);
        row.set(axis);
        const bool x = row.type == GTAxis::horizontal;
        EXPECT_EQ(x ? axis.height(240) : axis.width(240), row.want) << row.name;
        EXPECT_EQ(x ? axis.width(240) : axis.height(240), 0) << row.name;
    }

    GTAxis y(GTAxis::vertical);
    y.SetRange(0, 960);
    EXPECT_EQ(y.width(240), 12 + 7 + 30);
    y.SetRange(0, 96);
    EXPECT_EQ(y.width(240), 12 + 7 + 24) << "the widest of the labels that there are";
    GTAxis axis(GTAxis::horizontal);
    axis.tickLabelsVertical(true);
    axis.SetRange(0, 960);
    EXPECT_EQ(axis.height(240), 12 + 7 + 30);
    axis.SetRange(0, 96);
    EXPECT_EQ(axis.height(240), 12 + 7 + 30) << "room once taken by vertical labels stays";
}

} // namespace

} // namespace tallyvane
