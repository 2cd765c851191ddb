#include "charting/gt_axis.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

#include "charting/axis_ways.h"
#include "platform/base/date.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

using List = std::vector<double>;

TEST(AxisTicks, ComputationOfIncrementCountAndUnit) {
    const auto computed = [](double max, double min, int pixels, const Ways& ways = {}) {
        GTAxis axis(horizontal);
        setUp(axis, ways);
        double increment = 0;
        int count = 0;
        double unit = 0;
        axis.figureIncrement(max, min, pixels, increment, count, unit);
        return std::tuple(increment, count, unit);
    };
    EXPECT_EQ(computed(5, 5, 400), std::tuple(1.0, 1, 0.0)) << "no range";
    EXPECT_EQ(computed(notANumber, 5, 400), std::tuple(1.0, 1, 0.0)) << "no number";
    EXPECT_EQ(computed(10, 0, 400), std::tuple(0.5, 20, 40.0)) << "every 20 units";
    EXPECT_EQ(computed(10, 0, 250), std::tuple(0.8, 12, 25.0)) << "what is left over is not shared out";
    EXPECT_EQ(computed(0, 10, 400), std::tuple(0.5, 20, 40.0)) << "range the wrong way round";
    EXPECT_EQ(computed(30, 0, 15), std::tuple(40.0, 0, 0.5)) << "shorter than a step";
    EXPECT_EQ(computed(100, 0, 400, {ticks(3)}), std::tuple(50.0, 3, 4.0));
    EXPECT_EQ(computed(100, 0, 400, {ticks(5)}), std::tuple(25.0, 5, 4.0));
    EXPECT_EQ(computed(100, 0, 400, {ticks(-1)}), std::tuple(100.0, -1, 4.0)) << "no ticks by hand";
}

enum class Part { line, grid };

/// Where the ticks of an axis from 0 to 11, 110 units long, stand, or the lines of its grid. Automatically that is 5
/// ticks, an increment of 2 and 10 units to a unit.
List places(int type, Part part, const Ways& ways) {
    GTAxis axis(type);
    axis.SetRange(0, 11);
    setUp(axis, ways);
    GraphicsRecorder g(500, 500);
    const bool across = type == horizontal;
    if (part == Part::line)
        axis.render(g, 0, 0, 110);
    else
        axis.renderGrid(g, 0, 0, across ? 110 : 7, across ? 7 : 110);
    List found;
    for (const GraphicsRecorder::Call& call : g.calls())
        if (call.operation == "DrawLine" && call.numbers[across ? 0 : 1] == call.numbers[across ? 2 : 3])
            found.push_back(call.numbers[across ? 0 : 1]);
    return found;
}

TEST(AxisTicks, HorizontalVerticalAndGridPaintersStepDifferently) {
    const auto axis = [](int type, const Ways& ways) { return places(type, Part::line, ways); };
    const auto grid = [](int type, const Ways& ways) { return places(type, Part::grid, ways); };
    EXPECT_EQ(axis(horizontal, {}), (List{0, 20, 40, 60, 80, 100, 109})) << "20 each; the last stands inside the end";
    EXPECT_EQ(axis(vertical, {}), (List{110, 88, 66, 44, 22, 0})) << "110 / 5 each, upward";
    EXPECT_EQ(grid(horizontal, {}), (List{0, 22, 44, 66, 88, 110, 110})) << "110 / 5 each";
    EXPECT_EQ(grid(vertical, {}), (List{110, 88, 66, 44, 22, 0, 0}));
    EXPECT_EQ(axis(horizontal, {ticks(3)}), (List{0, 55, 109})) << "an increment of 5.5, of 10 units";
    EXPECT_EQ(axis(vertical, {ticks(3)}), (List{110, 73, 0})) << "110 / 3, values by 5.5";
    EXPECT_EQ(axis(horizontal, {step(4)}), (List{0, 55, 109})) << "11 / 4 is 2 steps of 55";
    EXPECT_EQ(axis(vertical, {step(4)}), (List{110, 55, 0})) << "what falls on the top is the closing tick's";
    EXPECT_EQ(grid(horizontal, {step(4)}), (List{0, 55, 110, 110})) << "with a line on the end for each";
    EXPECT_EQ(axis(horizontal, {step(12)}), (List{0, 109})) << "an increment beyond the range: no step";
    EXPECT_EQ(axis(vertical, {step(12)}), (List{110, 0}));
    EXPECT_EQ(axis(horizontal, {range(0, 1), step(0.001)}).size(), 111U) << "no step is smaller than a unit";
}

TEST(AxisTicks, EveryTickLoopEnds) {
    for (const int type : {horizontal, vertical})
        for (const double increment : {0.0, -1.0, 1e-300, 1e300, infinite})
            for (const double max : {0.0, 1.0, 1e308, infinite, notANumber}) {
                GTAxis axis(type);
                axis.tickLabelsVertical(type == horizontal);
                setUp(axis, {range(-1e308, max), step(increment)});
                GraphicsRecorder g(500, 500);
                axis.height(400);
                axis.width(400);
                axis.render(g, 0, 0, 400);
                axis.renderGrid(g, 0, 0, 400, 400);
                EXPECT_LE(g.calls().size(), 3U * 402U) << increment << " to " << max;
            }
}

TEST(AxisTicks, InexactBinaryStepsEndAtTheRightTick) {
    const auto labels = [](double max, double increment, int length) {
        GTAxis axis(vertical);
        axis.SetRange(0, max);
        axis.tickIncrement(increment);
        axis.tickLabelFormat("0.0");
        GraphicsRecorder g(400, 2000);
        axis.render(g, 0, 0, length);
        std::string texts;
        for (const auto& call : g.calls())
            texts += call.operation == "DrawString" ? call.text + ' ' : "";
        return texts;
    };
    EXPECT_EQ(labels(1, 0.1, 1000), "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1.0 ");
    EXPECT_EQ(labels(0.3, 0.1, 300), "0.0 0.1 0.2 0.3 ");
    EXPECT_EQ(labels(0.7, 0.1, 700), "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 ");
    GTAxis day(vertical); // its closing label would be a second early, and so read 23:59
    day.SetRange(0, 86400);
    day.tickType(GTAxis::shortTime);
    GraphicsRecorder g(400, 200);
    day.render(g, 0, 0, 140);
    EXPECT_EQ(g.calls().back().text, "00:00");
    for (int steps = 2; steps <= 100; ++steps) { // automatic ones, 20 units each
        GTAxis axis(vertical);
        axis.SetRange(0, 184.92);
        axis.tickLabelFormat("0.00");
        GraphicsRecorder high(400, 4000);
        axis.render(high, 0, 0, 20 * steps);
        EXPECT_EQ(high.calls().back().text, "184.92") << steps;
    }
}

TEST(AxisTicks, WhatWasSetCanBeCleared) {
    const Way clear = [](GTAxis& a) {
        a.clearTickIncrement();
        a.clearTickCount();
    };
    EXPECT_EQ(places(horizontal, Part::line, {ticks(3), step(4), clear}).size(), 7U);
    for (const double nowhere : {0.0, -3.0, notANumber}) {
        GTAxis axis(horizontal);
        setUp(axis, {step(2), step(nowhere)});
        EXPECT_FALSE(axis.hasCustomTickIncrement()) << nowhere;
    }
}

TEST(AxisTicks, ValuesAsTicks) {
    GTDataPoints values;
    for (const double value : {0.0, 2.5, 11.0, 11.5, -1.0, notANumber})
        values.push_back(std::make_shared<GTDataPoint>(value, 11 - value));
    const Way atValues = [&](GTAxis& a) {
        a.ticksAreValues(true);
        a.TickValues(values);
    };
    for (const Ways& ways : {Ways{atValues}, Ways{atValues, step(4)}}) // a fixed increment takes nothing away from them
        for (const int type : {horizontal, vertical})
            for (const Part part : {Part::line, Part::grid})
                EXPECT_EQ(places(type, part, ways), (List{0, 25, 110}))
                    << "type " << type << ", part " << static_cast<int>(part) << ", ways " << ways.size();
    GTAxis axis(vertical);
    setUp(axis, {range(0, 11), atValues});
    GraphicsRecorder g(500, 500);
    axis.render(g, 100, 0, 110);
    EXPECT_EQ(only("text", drawn(g)).at(1), "text 94 25 '8.5'");
}

TEST(AxisTicks, Texts) {
    class Hours : public GTCustomTickFormatter {
        std::string format(double value) override { return std::to_string(static_cast<int>(value)) + " h"; }
    };
    DateSource::setShortPattern("yyyy-MM-dd");
    const double moment = Date(2026, 11, 22, 14 * 3600 + 5 * 60 + 9).TotalSeconds();
    const auto text = [](int type, double value, const std::shared_ptr<Hours>& formatter = std::make_shared<Hours>()) {
        GTAxis axis(vertical);
        axis.CustomFormatter(formatter);
        EXPECT_EQ(axis.tickType(), GTAxis::custom);
        axis.tickType(type);
        return axis.formatTickLabel(value);
    };
    EXPECT_EQ(text(GTAxis::number, 12.345), "12.35");
    EXPECT_EQ(text(GTAxis::number, -0.5), "-.5");
    EXPECT_EQ(text(GTAxis::shortDate, moment), "2026-11-22");
    EXPECT_EQ(text(GTAxis::shortTime, moment), "14:05");
    EXPECT_EQ(text(GTAxis::longDate, moment), "2026-11-22");
    EXPECT_EQ(text(GTAxis::longTime, moment), "14:05:09");
    EXPECT_EQ(text(GTAxis::percent, 0.125), "12.50%");
    EXPECT_EQ(text(GTAxis::custom, 7.9), "7 h");
    EXPECT_EQ(text(GTAxis::custom, 1, nullptr), "");
    EXPECT_EQ(text(6, 1), "") << "no such type";
}

TEST(AxisTicks, RoomBesideThePlot) {
    // Of 12 units a line, 6 a character; 3 + 4 for the ticks
    const auto check = [](const char* name, int type, const Ways& ways, int want, int length = 240) {
        GTAxis axis(type);
        axis.SetRange(0, 96);
        setUp(axis, ways);
        const std::pair found(axis.height(length), axis.width(length));
        EXPECT_EQ(found, type == horizontal ? std::pair(want, 0) : std::pair(0, want)) << name;
    };
    check("x: vertical title", horizontal, {title("abc"), verticalTitle}, 18 + 7 + 12);
    check("x: no ticks", horizontal, {noTicks}, 12 + 12);
    check("x: no labels", horizontal, {noLabels}, 12 + 7);
    check("x: title, ticks, labels, margin", horizontal, {margin(5)}, 12 + 7 + 12 + 5);
    check("x: vertical labels, '8.0' to '88.0'", horizontal, {verticalLabels}, 12 + 7 + 24);
    check("x: at 300 dots an inch, cut to whole dots", horizontal, {dotsPerInch(300)}, 50 + 29 + 50);
    check("x: invisible", horizontal, {invisible}, 0);
    check("y: horizontal title", vertical, {title("abc"), horizontalTitle}, 18 + 7 + 24);
    check("y: vertical labels", vertical, {verticalLabels}, 12 + 7 + 12);
    check("y: by 100, '.0'", vertical, {step(100)}, 12 + 7 + 12);
    check("y: at 300 dots an inch, '8.0'", vertical, {dotsPerInch(300), range(0, 10)}, 50 + 29 + 75, 100);
}

TEST(AxisTicks, RoomOnceTakenByVerticalLabelsStays) {
    GTAxis y(vertical);
    y.SetRange(0, 960);
    EXPECT_EQ(y.width(240), 12 + 7 + 30);
    y.SetRange(0, 96);
    EXPECT_EQ(y.width(240), 12 + 7 + 24) << "the widest of the labels that there are";
    GTAxis x(horizontal);
    setUp(x, {verticalLabels, range(0, 960)});
    EXPECT_EQ(x.height(240), 12 + 7 + 30);
    x.SetRange(0, 96);
    EXPECT_EQ(x.height(240), 12 + 7 + 30);
}

} // namespace

} // namespace tallyvane
