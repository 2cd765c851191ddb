#include "charting/gt_axis.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "support/drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;
using Ways = std::function<void(GTAxis&)>;

const Ways plain = [](GTAxis&) {};

/// An axis from 0 to 10 and 100 units long, which is five ticks: measured, then drawn with its band at 10, 20.
Lines axisDrawn(int type, const Ways& set) {
    GTAxis axis(type);
    axis.SetRange(0, 10);
    axis.text("ab");
    set(axis);
    axis.height(100);
    axis.width(100);
    GraphicsRecorder g(200, 200);
    axis.render(g, 10, 20, 100);
    return drawn(g);
}

TEST(AxisPainting, WholeAxes) {
    EXPECT_EQ(axisDrawn(GTAxis::horizontal, plain),
              (Lines{"text 54 48 'ab'", "line 10 20 110 20", "line 10 20 10 24", "text 10 36 ''", "line 30 20 30 24",
                     "text 27 36 '2'", "line 50 20 50 24", "text 47 36 '4'", "line 70 20 70 24", "text 67 36 '6'",
                     "line 90 20 90 24", "text 87 36 '8'", "line 109 20 109 24", "text 103 36 '10'"}));
    EXPECT_EQ(
        axisDrawn(GTAxis::vertical, plain),
        (Lines{"picture 10 64", "  string 9 6 'ab' up", "line 47 20 47 120", "line 43 120 47 120", "text 28 120 '.0'",
               "line 43 100 47 100", "text 22 100 '2.0'", "line 43 80 47 80", "text 22 80 '4.0'", "line 43 60 47 60",
               "text 22 60 '6.0'", "line 43 40 47 40", "text 22 40 '8.0'", "line 43 20 47 20", "text 16 20 '10.0'"}));
    EXPECT_EQ(axisDrawn(GTAxis::vertical, [](GTAxis& a) { a.visible(false); }), Lines());
}

TEST(AxisPainting, PlaceOfTitleLineTickAndLabel) {
    struct Row {
        const char* name;
        int type;
        Ways set;
        Lines want; // the title, the line, the second tick and its label
    };
    const std::vector<Row> rows{
        {"x at the top",
         GTAxis::horizontal,
         [](GTAxis& a) { a.top(true); },
         {"text 54 29 'ab'", "line 10 51 110 51", "line 30 51 30 47", "text 27 41 '2'"}},
        {"x, vertical title",
         GTAxis::horizontal,
         [](GTAxis& a) { a.verticalTitle(true); },
         {"picture 54 39", "  string 9 6 'ab' up", "line 10 20 110 20", "line 30 20 30 24", "text 27 36 '2'"}},
        {"x at the top, vertical title",
         GTAxis::horizontal,
         [](GTAxis& a) {
             a.top(true);
             a.verticalTitle(true);
             a.text("abc"); // 18 high, where a horizontal one takes 12
         },
         {"picture 54 20", "  string 9 9 'abc' up", "line 10 57 110 57", "line 30 57 30 53", "text 27 47 '2'"}},
        {"x, vertical labels",
         GTAxis::horizontal,
         [](GTAxis& a) { a.tickLabelsVertical(true); },
         {"text 54 54 'ab'", "line 10 20 110 20", "line 30 20 30 24", "picture 24 27", "  string 9 3 '2' up"}},
        {"x at the top, vertical labels",
         GTAxis::horizontal,
         [](GTAxis& a) {
             a.top(true);
             a.tickLabelsVertical(true);
         },
         {"text 54 29 'ab'", "line 10 57 110 57", "line 30 57 30 53", "picture 24 44", "  string 9 3 '2' up"}},
        {"x at the top: the margin lies between its line and the plot",
         GTAxis::horizontal,
         [](GTAxis& a) {
             a.top(true);
             a.innerMargin(5);
         },
         {"text 54 29 'ab'", "line 10 51 110 51", "line 30 51 30 47", "text 27 41 '2'"}},
        {"y likewise",
         GTAxis::vertical,
         [](GTAxis& a) { a.innerMargin(5); },
         {"picture 10 64", "  string 9 6 'ab' up", "line 47 20 47 120", "line 43 100 47 100", "text 22 100 '2.0'"}},
        {"y at the right, margin of 5, a longer title",
         GTAxis::vertical,
         [](GTAxis& a) {
             a.right(true);
             a.innerMargin(5);
             a.text("abcd");
         },
         {"picture 40 58", "  string 3 12 'abcd' down", "line 15 20 15 120", "line 15 100 19 100",
          "text 22 100 '2.0'"}},
        {"x, margin of 5 at 144 dots an inch",
         GTAxis::horizontal,
         [](GTAxis& a) {
             a.innerMargin(5);
             a.Resolution(144);
         },
         {"text 48 86 'ab'", "line 10 30 110 30", "line 30 30 30 38", "text 24 62 '2'"}},
        {"no title: the line stays",
         GTAxis::horizontal,
         [](GTAxis& a) {
             a.top(true);
             a.text("");
         },
         {"line 10 51 110 51", "line 30 51 30 47", "text 27 41 '2'"}},
        {"y at the right",
         GTAxis::vertical,
         [](GTAxis& a) { a.right(true); },
         {"picture 35 64", "  string 3 6 'ab' down", "line 10 20 10 120", "line 10 100 14 100", "text 17 100 '2.0'"}},
        {"y at the right, horizontal title",
         GTAxis::vertical,
         [](GTAxis& a) {
             a.right(true);
             a.horizontalTitle(true);
         },
         {"text 35 70 'ab'", "line 10 20 10 120", "line 10 100 14 100", "text 17 100 '2.0'"}},
        {"y, horizontal title",
         GTAxis::vertical,
         [](GTAxis& a) {
             a.horizontalTitle(true);
             a.text("abc");
         },
         {"text 10 70 'abc'", "line 53 20 53 120", "line 49 100 53 100", "text 28 100 '2.0'"}},
        {"y at the right, vertical labels",
         GTAxis::vertical,
         [](GTAxis& a) {
             a.right(true);
             a.tickLabelsVertical(true);
         },
         {"picture 29 64", "  string 3 6 'ab' down", "line 10 20 10 120", "line 10 100 14 100", "picture 17 91",
          "  string 9 9 '2.0' up"}},
    };
    for (const Row& row : rows) {
        Lines lines = axisDrawn(row.type, row.set);
        const std::size_t upToLine = lines.front().starts_with("picture") ? 3
                                     : lines.front().starts_with("text")  ? 2
                                                                          : 1;
        Lines chosen(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(upToLine));
        std::size_t ticks = 0;
        for (std::size_t i = upToLine; i < lines.size(); ++i) {
            ticks += lines[i].starts_with("line") ? 1 : 0;
            if (ticks == 2)
                chosen.push_back(lines[i]);
        }
        EXPECT_EQ(chosen, row.want) << row.name;
    }
}

TEST(AxisPainting, WhatIsNotShown) {
    EXPECT_EQ(only("line", axisDrawn(GTAxis::horizontal, [](GTAxis& a) { a.ticksVisible = false; })), Lines());
    EXPECT_EQ(only("text", axisDrawn(GTAxis::horizontal, [](GTAxis& a) { a.tickLabelsVisible(false); })),
              Lines{"text 54 36 'ab'"});
    const Lines skipping = axisDrawn(GTAxis::horizontal, [](GTAxis& a) { a.skipLastTickLabel = true; });
    EXPECT_EQ(skipping.back(), "line 109 20 109 24") << "the closing tick stays, without its label";
    GraphicsRecorder g(200, 200);
    GTAxis axis(GTAxis::horizontal);
    axis.render(g, 0, 0, 0);
    EXPECT_EQ(drawn(g), Lines());
}

TEST(AxisPainting, TheClosingLabel) {
    struct Row {
        const char* name;
        int type;
        Ways set;
        const char* want;
    };
    const std::vector<Row> rows{
        {"x: the first step not below the end, 4 x 3", GTAxis::horizontal, [](GTAxis& a) { a.tickIncrement(3); },
         "'12'"},
        {"y at the left likewise", GTAxis::vertical, [](GTAxis& a) { a.tickIncrement(3); }, "'12.0'"},
        {"more steps than units: all the same", GTAxis::vertical, [](GTAxis& a) { a.tickIncrement(0.03); }, "'10.02'"},
        {"y at the right: the end itself", GTAxis::vertical,
         [](GTAxis& a) {
             a.tickIncrement(3);
             a.right(true);
         },
         "'10.0'"},
        {"y at the right: by the mask, whatever the type", GTAxis::vertical,
         [](GTAxis& a) {
             a.tickType(GTAxis::percent);
             a.right(true);
         },
         "'10.0'"},
        {"y at the left: by the type", GTAxis::vertical, [](GTAxis& a) { a.tickType(GTAxis::percent); }, "'1000.00%'"},
    };
    for (const Row& row : rows)
        EXPECT_TRUE(axisDrawn(row.type, row.set).back().ends_with(row.want)) << row.name;
}

TEST(AxisPainting, LabelsNearTheTopAreLeftOut) {
    GTAxis axis(GTAxis::vertical);
    axis.SetRange(0, 10);
    axis.right(true);
    GraphicsRecorder g(200, 200);
    axis.render(g, 0, 0, 100); // ticks at 100, 80 ... 20: 20 is within two heights of 12
    EXPECT_EQ(only("text", drawn(g)),
              (Lines{"text 7 100 '.0'", "text 7 80 '2.0'", "text 7 60 '4.0'", "text 7 40 '6.0'", "text 7 9 '10.0'"}));
    EXPECT_EQ(only("line 0 20", drawn(g)), Lines{"line 0 20 4 20"}) << "its tick is there";
}

TEST(AxisPainting, LabelsAreHeldInside) {
    struct Row {
        const char* name;
        int type;
        bool vertical;
        bool farSide; // top or right
        int x;
        int y;
        Lines want;
    };
    const std::vector<Row> rows{
        {"x: cut at the point, centred", GTAxis::horizontal, false, false, 50, 10, {"text 44 19 '12'"}},
        {"x: left edge", GTAxis::horizontal, false, false, 2, 10, {"text 0 19 '12'"}},
        {"x: touches the right edge", GTAxis::horizontal, false, false, 94, 10, {"text 88 19 '12'"}},
        {"x: beyond the right edge", GTAxis::horizontal, false, false, 99, 10, {"text 88 19 '12'"}},
        {"x: top", GTAxis::horizontal, false, true, 50, 40, {"text 44 37 '12'"}},
        {"x: vertical, left edge", GTAxis::horizontal, true, false, 2, 10, {"picture 0 10", "  string 9 6 '12' up"}},
        {"x: vertical, top, right edge",
         GTAxis::horizontal,
         true,
         true,
         99,
         40,
         {"picture 88 28", "  string 9 6 '12' up"}},
        {"y: whole text, left", GTAxis::vertical, false, false, 30, 30, {"text 6 30 '12.5'"}},
        {"y: right", GTAxis::vertical, false, true, 30, 30, {"text 30 30 '12.5'"}},
        {"y: top edge", GTAxis::vertical, false, false, 30, 11, {"text 6 9 '12.5'"}},
        {"y: just below it", GTAxis::vertical, false, false, 30, 12, {"text 6 12 '12.5'"}},
        {"y: bottom edge", GTAxis::vertical, false, true, 30, 48, {"text 30 57 '12.5'"}},
        {"y: just above it", GTAxis::vertical, false, true, 30, 47, {"text 30 47 '12.5'"}},
        {"y: vertical, left", GTAxis::vertical, true, false, 30, 30, {"picture 18 18", "  string 9 12 '12.5' up"}},
        {"y: vertical, left, top edge",
         GTAxis::vertical,
         true,
         false,
         30,
         20,
         {"picture 18 9", "  string 9 12 '12.5' up"}},
        {"y: vertical, right, top edge",
         GTAxis::vertical,
         true,
         true,
         30,
         20,
         {"picture 30 3", "  string 9 12 '12.5' up"}},
        {"y: vertical, bottom edge",
         GTAxis::vertical,
         true,
         false,
         30,
         50,
         {"picture 18 36", "  string 9 12 '12.5' up"}},
    };
    for (const Row& row : rows) {
        GTAxis axis(row.type);
        axis.top(row.farSide);
        axis.right(row.farSide);
        axis.tickLabelsVertical(row.vertical);
        GraphicsRecorder g(100, 60);
        if (row.type == GTAxis::horizontal)
            axis.renderXTickLabel(g, "12.5", row.x, row.y);
        else
            axis.renderYTickLabel(g, "12.5", row.x, row.y);
        EXPECT_EQ(drawn(g), row.want) << row.name;
    }
}

TEST(AxisPainting, BaseLines) {
    struct Row {
        const char* name;
        int type;
        double at;
        double max;
        Lines want;
    };
    const std::vector<Row> rows{
        {"x", GTAxis::horizontal, 2.5, 10, {"line 35 20 35 70"}},
        {"x at the start", GTAxis::horizontal, 0, 10, {"line 10 20 10 70"}},
        {"x at the end", GTAxis::horizontal, 10, 10, {"line 110 20 110 70"}},
        {"x beyond", GTAxis::horizontal, 10.1, 10, {}},
        {"y", GTAxis::vertical, 2.5, 10, {"line 10 57.5 110 57.5"}},
        {"y below", GTAxis::vertical, -0.1, 10, {}},
        {"no range", GTAxis::vertical, 0, 0, {}},
    };
    for (const Row& row : rows) {
        GTAxis axis(row.type);
        axis.SetRange(0, row.max);
        axis.baseLine(row.at);
        GraphicsRecorder g(200, 200);
        axis.renderBaseline(g, 10, 20, 100, 50);
        EXPECT_EQ(drawn(g), Lines()) << row.name << ", not visible";
        axis.baseLineVisible(true);
        axis.renderBaseline(g, 10, 20, 100, 50);
        EXPECT_EQ(drawn(g), row.want) << row.name;
    }
}

TEST(AxisPainting, ColoursPensAndFonts) {
    for (const int type : {GTAxis::horizontal, GTAxis::vertical}) {
        GTAxis axis(type);
        axis.SetRange(0, 10);
        axis.Resolution(144);
        axis.text("ab");
        axis.verticalTitle(true);
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
            if (call.operation == "DrawLine") {
                const Color color = i < gridLines ? 0x222222 : i == gridLines ? 0x333333 : 0x111111;
                const double pen = i < gridLines ? 4 : i == gridLines ? 6 : 2.9;
                EXPECT_EQ(call.color, color) << i;
                EXPECT_EQ(call.pen, pen) << i;
                EXPECT_EQ(call.penHeight, pen == 2.9 ? 3.9 : pen) << i;
            } else if (call.operation == "DrawString") {
                EXPECT_EQ(call.color, 0x111111U);
                EXPECT_EQ(call.font, FontName("Verdana"));
                EXPECT_EQ(call.textSize, 24);
            } else {
                const auto& title = std::get<StringShape>(call.shapes.Item(0));
                EXPECT_EQ(title.FillColor, 0x111111U);
                EXPECT_EQ(title.TextFont, FontName("Verdana"));
                EXPECT_EQ(title.TextSize, 24);
                EXPECT_DOUBLE_EQ(title.Rotation, -1.5707963267948966);
            }
        }
        EXPECT_EQ(g.ForeColor(), 0xABCDEFU);
        EXPECT_EQ(g.PenWidth(), 2) << "given back in whole units";
        EXPECT_EQ(g.PenHeight(), 3);
    }
}

TEST(AxisPainting, At300DotsAnInchEverythingIsCutToWholeDots) {
    // A scale of 4.1667: text 50, ticks 16.67 + 12.5; labels "8.0" of 75.
    struct Row {
        const char* name;
        int type;
        bool far;
        Lines want; // the axis line, the second tick and its label
    };
    const std::vector<Row> rows{
        {"bottom", GTAxis::horizontal, false, {"line 10 20 110 20", "line 30 20 30 36", "text 17 85 '2'"}},
        {"top", GTAxis::horizontal, true, {"line 10 149.167 110 149.167", "line 30 149 30 132", "text 17 106 '2'"}},
        {"left", GTAxis::vertical, false, {"line 164.167 120 164.167 220", "line 147 200 164 200", "text 59 200 '2.0'"}},
        {"right", GTAxis::vertical, true, {"line 10 120 10 220", "line 10 200 26 200", "text 38 200 '2.0'"}},
    };
    for (const Row& row : rows) {
        GTAxis axis(row.type);
        axis.SetRange(0, 10);
        axis.Resolution(300);
        axis.top(row.far);
        axis.right(row.far);
        EXPECT_EQ(row.type == GTAxis::horizontal ? axis.height(100) : axis.width(100),
                  row.type == GTAxis::horizontal ? 50 + 29 + 50 : 50 + 29 + 75)
            << row.name;
        GraphicsRecorder g(400, 400);
        axis.render(g, 10, row.type == GTAxis::horizontal ? 20 : 120, 100);
        const Lines lines = drawn(g);
        ASSERT_GE(lines.size(), 5U);
        EXPECT_EQ((Lines{lines[0], lines[3], lines[4]}), row.want) << row.name;
    }
}

TEST(AxisPainting, GridsOffTheOrigin) {
    for (const int type : {GTAxis::horizontal, GTAxis::vertical}) {
        GTAxis axis(type);
        axis.SetRange(0, 10);
        GraphicsRecorder g(200, 200);
        axis.visible(false);
        axis.renderGrid(g, 30, 40, 50, 45);
        EXPECT_EQ(drawn(g), Lines()) << "of an invisible axis";
        axis.visible(true);
        axis.renderGrid(g, 30, 40, 50, 45);
        EXPECT_EQ(drawn(g),
                  type == GTAxis::horizontal
                      ? (Lines{"line 30 40 30 85", "line 55 40 55 85", "line 80 40 80 85", "line 80 40 80 85"})
                      : (Lines{"line 30 85 80 85", "line 30 62.5 80 62.5", "line 30 40 80 40", "line 30 40 80 40"}));
    }
}

TEST(AxisPainting, AnAxisWithoutRangeHasItsClosingTick) {
    for (const int type : {GTAxis::horizontal, GTAxis::vertical}) {
        GTAxis axis(type);
        axis.SetRange(5, 5);
        axis.skipLastTickLabel = true;
        GraphicsRecorder g(200, 200);
        axis.render(g, 50, 50, 100);
        EXPECT_EQ(drawn(g).size(), 2U) << "the line and a tick without a label";
    }
}

TEST(AxisPainting, NoTwoTicksMeetAtTheTop) {
    for (int length = 21; length < 400; ++length) {
        GTAxis axis(GTAxis::vertical);
        axis.SetRange(7.6, 12.3);
        axis.tickLabelsVisible(false);
        GraphicsRecorder g(500, 500);
        axis.render(g, 0, 7, length);
        int nearTop = 0;
        for (const GraphicsRecorder::Call& call : g.calls())
            nearTop += call.numbers[1] == call.numbers[3] && std::abs(call.numbers[1] - 7) < 10 ? 1 : 0;
        ASSERT_EQ(nearTop, 1) << "length " << length;
    }
}

} // namespace

} // namespace tallyvane
