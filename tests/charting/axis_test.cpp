#include "charting/gt_axis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <tuple>

#include "platform/date.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

using enum GTAxis::Types;
using Lines = std::vector<std::string>;
using List = std::vector<double>;

// What the tests set on an axis.
using Way = std::function<void(GTAxis&)>;
using Ways = std::vector<Way>;

const Way top = [](GTAxis& a) { a.top(true); };
const Way right = [](GTAxis& a) { a.right(true); };
const Way invisible = [](GTAxis& a) { a.visible(false); };
const Way horizontalTitle = [](GTAxis& a) { a.horizontalTitle(true); };
const Way verticalTitle = [](GTAxis& a) { a.verticalTitle(true); };
const Way verticalLabels = [](GTAxis& a) { a.tickLabelsVertical(true); };
const Way noLabels = [](GTAxis& a) { a.tickLabelsVisible(false); };
const Way noLastLabel = [](GTAxis& a) { a.skipLastTickLabel = true; };
const Way noTicks = [](GTAxis& a) { a.ticksVisible = false; };
const Way inPercent = [](GTAxis& a) { a.tickType(GTAxis::percent); };

const auto title = [](const std::string& text) { return Way([=](GTAxis& a) { a.text(text); }); };
const auto margin = [](int points) { return Way([=](GTAxis& a) { a.innerMargin(points); }); };
const auto dotsAnInch = [](int dots) { return Way([=](GTAxis& a) { a.Resolution(dots); }); };
const auto range = [](double min, double max) { return Way([=](GTAxis& a) { a.SetRange(min, max); }); };
const auto step = [](double increment) { return Way([=](GTAxis& a) { a.tickIncrement(increment); }); };
const auto ticks = [](int count) { return Way([=](GTAxis& a) { a.tickCount(count); }); };

void setUp(GTAxis& axis, const Ways& ways) {
    for (const Way& way : ways)
        way(axis);
}

/// An axis from 0 to 10 and 100 units long, which is five ticks: measured, then drawn with its band at 10, y.
Lines axisDrawn(int type, const Ways& ways, int y = 20) {
    GTAxis axis(type);
    setUp(axis, {range(0, 10), title("ab")});
    setUp(axis, ways);
    axis.height(100);
    axis.width(100);
    GraphicsRecorder g(400, 400);
    axis.render(g, 10, y, 100);
    return drawn(g);
}

TEST(AxisPainting, WholeAxes) {
    EXPECT_EQ(axisDrawn(horizontal, {}),
              (Lines{"text 54 48 'ab'", "line 10 20 110 20", "line 10 20 10 24", "text 10 36 ''", "line 30 20 30 24",
                     "text 27 36 '2'", "line 50 20 50 24", "text 47 36 '4'", "line 70 20 70 24", "text 67 36 '6'",
                     "line 90 20 90 24", "text 87 36 '8'", "line 109 20 109 24", "text 103 36 '10'"}));
    EXPECT_EQ(
        axisDrawn(vertical, {}),
        (Lines{"picture 10 64", "  string 9 6 'ab' up", "line 47 20 47 120", "line 43 120 47 120", "text 28 120 '.0'",
               "line 43 100 47 100", "text 22 100 '2.0'", "line 43 80 47 80", "text 22 80 '4.0'", "line 43 60 47 60",
               "text 22 60 '6.0'", "line 43 40 47 40", "text 22 40 '8.0'", "line 43 20 47 20", "text 16 20 '10.0'"}));
}

TEST(AxisPainting, PlaceOfTitleLineTickAndLabel) {
    // Of what is drawn, the title, the axis line, and the second tick with its label.
    const auto check = [](const char* name, int type, const Ways& ways, const Lines& want, int y = 20) {
        Lines chosen;
        int lines = 0;
        for (const std::string& call : axisDrawn(type, ways, y)) {
            lines += call.starts_with("line") ? 1 : 0;
            if (lines <= 1 || lines == 3)
                chosen.push_back(call);
        }
        EXPECT_EQ(chosen, want) << name;
    };
    check("x, vertical title", horizontal, {verticalTitle},
          {"picture 54 39", "  string 9 6 'ab' up", "line 10 20 110 20", "line 30 20 30 24", "text 27 36 '2'"});
    // The title is 18 high, where a horizontal one takes 12.
    check("x at the top, vertical title", horizontal, {top, verticalTitle, title("abc")},
          {"picture 54 20", "  string 9 9 'abc' up", "line 10 57 110 57", "line 30 57 30 53", "text 27 47 '2'"});
    check("x, vertical labels", horizontal, {verticalLabels},
          {"text 54 54 'ab'", "line 10 20 110 20", "line 30 20 30 24", "picture 24 27", "  string 9 3 '2' up"});
    check("x at the top, vertical labels", horizontal, {top, verticalLabels},
          {"text 54 29 'ab'", "line 10 57 110 57", "line 30 57 30 53", "picture 24 44", "  string 9 3 '2' up"});
    check("x at the top: the margin lies between its line and the plot", horizontal, {top, margin(5)},
          {"text 54 29 'ab'", "line 10 51 110 51", "line 30 51 30 47", "text 27 41 '2'"});
    check("y likewise", vertical, {margin(5)},
          {"picture 10 64", "  string 9 6 'ab' up", "line 47 20 47 120", "line 43 100 47 100", "text 22 100 '2.0'"});
    check(
        "y at the right, margin, longer title", vertical, {right, margin(5), title("abcd")},
        {"picture 40 58", "  string 3 12 'abcd' down", "line 15 20 15 120", "line 15 100 19 100", "text 22 100 '2.0'"});
    check("x, margin of 5 at 144 dots an inch", horizontal, {margin(5), dotsAnInch(144)},
          {"text 48 86 'ab'", "line 10 30 110 30", "line 30 30 30 38", "text 24 62 '2'"});
    check("y at the right, horizontal title", vertical, {right, horizontalTitle},
          {"text 35 70 'ab'", "line 10 20 10 120", "line 10 100 14 100", "text 17 100 '2.0'"});
    check("y, horizontal title", vertical, {horizontalTitle, title("abc")},
          {"text 10 70 'abc'", "line 53 20 53 120", "line 49 100 53 100", "text 28 100 '2.0'"});
    check("y at the right, vertical labels", vertical, {right, verticalLabels},
          {"picture 29 64", "  string 3 6 'ab' down", "line 10 20 10 120", "line 10 100 14 100", "picture 17 91",
           "  string 9 9 '2.0' up"});
    // At 300 dots an inch everything is cut to whole dots, of a scale of 4.1667: text 50, ticks 16.67 + 12.5; labels
    // "8.0" of 75.
    const Ways fine{title(""), dotsAnInch(300)};
    const Ways fineBeyond{title(""), dotsAnInch(300), top, right};
    check("fine, bottom", horizontal, fine, {"line 10 20 110 20", "line 30 20 30 36", "text 17 85 '2'"});
    check("fine, top", horizontal, fineBeyond,
          {"line 10 149.167 110 149.167", "line 30 149 30 132", "text 17 106 '2'"});
    check("fine, left", vertical, fine, {"line 164.167 120 164.167 220", "line 147 200 164 200", "text 59 200 '2.0'"},
          120);
    check("fine, right", vertical, fineBeyond, {"line 10 120 10 220", "line 10 200 26 200", "text 38 200 '2.0'"}, 120);
}

TEST(AxisPainting, WhatIsNotShown) {
    EXPECT_EQ(axisDrawn(vertical, {invisible}), Lines());
    EXPECT_EQ(only("line", axisDrawn(horizontal, {noTicks})), Lines());
    EXPECT_EQ(only("text", axisDrawn(horizontal, {noLabels})), Lines{"text 54 36 'ab'"});
    EXPECT_EQ(axisDrawn(horizontal, {noLastLabel}).back(), "line 109 20 109 24") << "the closing tick stays";
    for (const int type : {horizontal, vertical})
        EXPECT_EQ(axisDrawn(type, {range(5, 5), title(""), noLastLabel}).size(), 2U) << "without a range";
    GraphicsRecorder g(200, 200);
    GTAxis(horizontal).render(g, 0, 0, 0);
    EXPECT_EQ(drawn(g), Lines());
}

TEST(AxisPainting, TheClosingLabel) {
    const auto label = [](int type, const Ways& ways) {
        const std::string last = axisDrawn(type, ways).back();
        return last.substr(last.find('\''));
    };
    EXPECT_EQ(label(horizontal, {step(3)}), "'12'") << "x: the first step not below the end, 4 x 3";
    EXPECT_EQ(label(vertical, {step(3)}), "'12.0'") << "y at the left likewise";
    EXPECT_EQ(label(vertical, {step(0.03)}), "'10.02'") << "more steps than units: all the same";
    EXPECT_EQ(label(vertical, {step(3), inPercent, right}), "'10.0'") << "y at the right: the end itself by the mask";
    EXPECT_EQ(label(vertical, {inPercent}), "'1000.00%'") << "y at the left: by the type";
}

TEST(AxisPainting, LabelsNearTheTopAreLeftOut) {
    GTAxis axis(vertical);
    setUp(axis, {range(0, 10), right});
    GraphicsRecorder g(200, 200);
    axis.render(g, 0, 0, 100); // ticks at 100, 80 ... 20: 20 is within two heights of 12
    EXPECT_EQ(only("text", drawn(g)),
              (Lines{"text 7 100 '.0'", "text 7 80 '2.0'", "text 7 60 '4.0'", "text 7 40 '6.0'", "text 7 9 '10.0'"}));
    EXPECT_EQ(only("line 0 20", drawn(g)), Lines{"line 0 20 4 20"}) << "its tick is there";
}

TEST(AxisPainting, LabelsAreHeldInside) {
    const auto check = [](const char* name, int type, const Ways& ways, int x, int y, const Lines& want) {
        GTAxis axis(type);
        setUp(axis, ways);
        GraphicsRecorder g(100, 60);
        if (type == horizontal)
            axis.renderXTickLabel(g, "12.5", x, y);
        else
            axis.renderYTickLabel(g, "12.5", x, y);
        EXPECT_EQ(drawn(g), want) << name;
    };
    check("x: cut at the point, centred", horizontal, {}, 50, 10, {"text 44 19 '12'"});
    check("x: left edge", horizontal, {}, 2, 10, {"text 0 19 '12'"});
    check("x: beyond the right edge", horizontal, {}, 99, 10, {"text 88 19 '12'"});
    check("x: top", horizontal, {top}, 50, 40, {"text 44 37 '12'"});
    const Ways up{verticalLabels};
    check("x: vertical, left edge", horizontal, up, 2, 10, {"picture 0 10", "  string 9 6 '12' up"});
    check("x: vertical, top, right edge", horizontal, {top, verticalLabels}, 99, 40,
          {"picture 88 28", "  string 9 6 '12' up"});
    check("y: top edge", vertical, {}, 30, 11, {"text 6 9 '12.5'"});
    check("y: just below it, the whole text", vertical, {}, 30, 12, {"text 6 12 '12.5'"});
    check("y: right, bottom edge", vertical, {right}, 30, 48, {"text 30 57 '12.5'"});
    check("y: right, just above it", vertical, {right}, 30, 47, {"text 30 47 '12.5'"});
    check("y: vertical", vertical, up, 30, 30, {"picture 18 18", "  string 9 12 '12.5' up"});
    check("y: vertical, top edge", vertical, up, 30, 20, {"picture 18 9", "  string 9 12 '12.5' up"});
    check("y: vertical, right, top edge", vertical, {right, verticalLabels}, 30, 20,
          {"picture 30 3", "  string 9 12 '12.5' up"});
    check("y: vertical, bottom edge", vertical, up, 30, 50, {"picture 18 36", "  string 9 12 '12.5' up"});
}

TEST(AxisPainting, BaseLines) {
    const auto check = [](const char* name, int type, double at, double max, const Lines& want, bool shown = true) {
        GTAxis axis(type);
        axis.SetRange(0, max);
        axis.baseLine(at);
        axis.baseLineVisible(shown);
        GraphicsRecorder g(200, 200);
        axis.renderBaseline(g, 10, 20, 100, 50);
        EXPECT_EQ(drawn(g), want) << name;
    };
    check("x", horizontal, 2.5, 10, {"line 35 20 35 70"});
    check("not visible", horizontal, 2.5, 10, {}, false);
    check("x at the start", horizontal, 0, 10, {"line 10 20 10 70"});
    check("x at the end", horizontal, 10, 10, {"line 110 20 110 70"});
    check("x beyond", horizontal, 10.1, 10, {});
    check("y", vertical, 2.5, 10, {"line 10 57.5 110 57.5"});
    check("y below", vertical, -0.1, 10, {});
    check("no range", vertical, 0, 0, {});
}

TEST(AxisPainting, ColoursPensAndFonts) {
    for (const int type : {horizontal, vertical}) {
        GTAxis axis(type);
        setUp(axis, {range(0, 10), dotsAnInch(144), title("ab"), verticalTitle});
        axis.textFont = "Verdana";
        axis.textColor = 0x111111;
        axis.GridPenColor(0x222222);
        axis.GridPenSize(2);
        axis.baseLineColor(0x333333);
        axis.baseLinePenSize(3);
        axis.baseLineVisible(true);
        GraphicsRecorder g(200, 200);
        g.ForeColor(0xABCDEF);
        g.PenWidth(2.9);
        g.PenHeight(3.9);
        axis.renderGrid(g, 0, 0, 100, 100);
        const std::size_t gridLines = g.calls().size();
        EXPECT_EQ(gridLines, 6U);
        axis.renderBaseline(g, 0, 0, 100, 100);
        EXPECT_EQ(g.PenWidth(), 2.9) << "given back as it was";
        axis.render(g, 0, 0, 100);
        for (std::size_t i = 0; i < g.calls().size(); ++i) {
            const GraphicsRecorder::Call& call = g.calls()[i];
            if (call.operation == "DrawPicture") {
                const auto& shown = std::get<StringShape>(call.shapes.Item(0));
                EXPECT_EQ(std::tuple(shown.FillColor, shown.TextFont, shown.TextSize),
                          std::tuple(0x111111U, FontName("Verdana"), 24));
                EXPECT_DOUBLE_EQ(shown.Rotation, -1.5707963267948966);
                continue;
            }
            EXPECT_EQ(call.color, i < gridLines ? 0x222222U : i == gridLines ? 0x333333U : 0x111111U) << i;
            if (call.operation == "DrawString") {
                EXPECT_EQ(std::pair(call.font, call.textSize), std::pair(FontName("Verdana"), 24.0));
                continue;
            }
            const double pen = i < gridLines ? 4 : i == gridLines ? 6 : 2.9;
            EXPECT_EQ(std::pair(call.pen, call.penHeight), std::pair(pen, pen == 2.9 ? 3.9 : pen)) << i;
        }
        EXPECT_EQ(g.ForeColor(), 0xABCDEFU);
        EXPECT_EQ(std::pair(g.PenWidth(), g.PenHeight()), std::pair(2.0, 3.0)) << "given back in whole units";
    }
}

TEST(AxisPainting, GridsOffTheOrigin) {
    const auto grid = [](int type, const Ways& ways) {
        GTAxis axis(type);
        setUp(axis, ways);
        GraphicsRecorder g(200, 200);
        axis.renderGrid(g, 30, 40, 50, 45);
        return drawn(g);
    };
    EXPECT_EQ(grid(horizontal, {range(0, 10)}),
              (Lines{"line 30 40 30 85", "line 55 40 55 85", "line 80 40 80 85", "line 80 40 80 85"}));
    EXPECT_EQ(grid(vertical, {range(0, 10)}),
              (Lines{"line 30 85 80 85", "line 30 62.5 80 62.5", "line 30 40 80 40", "line 30 40 80 40"}));
    EXPECT_EQ(grid(vertical, {range(0, 10), invisible}), Lines());
}

TEST(AxisPainting, NoTwoTicksMeetAtTheTop) {
    GTAxis axis(vertical);
    setUp(axis, {range(7.6, 12.3), noLabels});
    for (int length = 21; length < 400; ++length) {
        GraphicsRecorder g(500, 500);
        axis.render(g, 0, 7, length);
        const auto isNearTop = [](const GraphicsRecorder::Call& call) {
            return call.numbers[1] == call.numbers[3] && std::abs(call.numbers[1] - 7) < 10;
        };
        ASSERT_EQ(std::count_if(g.calls().begin(), g.calls().end(), isNearTop), 1) << "length " << length;
    }
}

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

TEST(AxisTicks, ThePaintersStepInThreeUnlikeWays) {
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

TEST(AxisTicks, EveryWalkEnds) {
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

TEST(AxisTicks, StepsThatNoBinaryNumberHoldsEndWhereTheyShould) {
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
        GraphicsRecorder g(400, 4000);
        axis.render(g, 0, 0, 20 * steps);
        EXPECT_EQ(g.calls().back().text, "184.92") << steps;
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
    check("x: at 300 dots an inch, cut to whole dots", horizontal, {dotsAnInch(300)}, 50 + 29 + 50);
    check("x: invisible", horizontal, {invisible}, 0);
    check("y: horizontal title", vertical, {title("abc"), horizontalTitle}, 18 + 7 + 24);
    check("y: vertical labels", vertical, {verticalLabels}, 12 + 7 + 12);
    check("y: by 100, '.0'", vertical, {step(100)}, 12 + 7 + 12);
    check("y: at 300 dots an inch, '8.0'", vertical, {dotsAnInch(300), range(0, 10)}, 50 + 29 + 75, 100);
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
