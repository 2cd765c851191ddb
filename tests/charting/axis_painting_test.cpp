#include "charting/gt_axis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "charting/axis_ways.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

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
    check("x, margin of 5 at 144 dots an inch", horizontal, {margin(5), dotsPerInch(144)},
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
    const Ways fine{title(""), dotsPerInch(300)};
    const Ways fineBeyond{title(""), dotsPerInch(300), top, right};
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
        setUp(axis, {range(0, 10), dotsPerInch(144), title("ab"), verticalTitle});
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

} // namespace

} // namespace tallyvane
