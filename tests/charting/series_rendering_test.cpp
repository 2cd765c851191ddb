#include "charting/gt_series.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;
using Pairs = std::vector<std::pair<double, double>>;
using Points = std::vector<std::pair<double, std::vector<double>>>; // each a place and the values there
using Change = std::function<void(GTSeries&)>;

TEST(SeriesRendering, GridsBaseLinesDataThenAxes) {
    GTSeries series(GTSeries::line);
    series.AddDataValue(0, 0);
    series.AddDataValue(10, 10);
    for (GTAxis* axis : {&series.XAxis(), &series.YAxis()}) {
        axis->baseLine(5);
        axis->baseLineVisible(true);
        axis->ticksAreValues(true);
        axis->tickLabelsVisible(false);
    }
    const auto all = [&] {
        int used[4] = {};
        GraphicsRecorder g(300, 300);
        series.Render(g, 50, 50, used[0], used[1], used[2], used[3], 100, 100);
        return drawn(g);
    };
    EXPECT_EQ(all().front(), "picture 50 50") << "no base line without the grid";
    series.XGridVisible(true);
    series.YGridVisible(true);
    EXPECT_EQ(all(), (Lines{"line 50 50 50 150", "line 150 50 150 150", "line 50 150 150 150", "line 50 50 150 50",
                            "line 100 50 100 150", "line 50 100 150 100", "picture 50 50", "  curve 0 100 0 100",
                            "  curve 0 100 100 0", "line 50 150 150 150", "line 50 150 50 154", "line 150 150 150 154",
                            "line 50 50 50 150", "line 46 150 50 150", "line 46 50 50 50"}));
}

TEST(SeriesRendering, AxesStackOutward) {
    // On a plot of 120 x 60 an X axis is 12 + 7 + 12 high. A Y axis of 60 has labels of up to "6.67", 24: 12 + 7 + 24
    // wide (of 120 it would have up to "9.1"). A line at the top or left stands at the inner end of its band.
    const auto check = [](bool topAndRight, const Lines& want, const std::vector<int>& wantUsed) {
        GraphicsRecorder g(300, 300);
        std::vector<int> used(4); // left, top, right, bottom
        for (const bool visible : {true, false, true}) {
            GTSeries series(-1); // axes do not ask for the type
            for (GTAxis* axis : {&series.XAxis(), &series.YAxis()}) {
                axis->visible(visible);
                axis->top(topAndRight);
                axis->right(topAndRight);
                axis->ticksAreValues(true); // without values there is the line alone
            }
            series.SetXRange(0, 1);
            series.SetYRange(0, 10);
            series.Render(g, 50, 50, used[0], used[1], used[2], used[3], 120, 60);
        }
        EXPECT_EQ(drawn(g), want);
        EXPECT_EQ(used, wantUsed);
    };
    check(false, {"line 50 110 170 110", "line 50 50 50 110", "line 50 141 170 141", "line 7 50 7 110"},
          {86, 0, 0, 62});
    check(true, {"line 50 50 170 50", "line 170 50 170 110", "line 50 19 170 19", "line 213 50 213 110"},
          {0, 62, 86, 0});
}

/// Draws the series' data alone, on a plot of 100 x 50, or that size, at 10, 20.
GraphicsRecorder& dataDrawn(GTSeries& series, GraphicsRecorder& g, int width = 100, int height = 50) {
    series.XAxis().visible(false);
    series.YAxis().visible(false);
    int used[4] = {};
    series.Render(g, 10, 20, used[0], used[1], used[2], used[3], width, height);
    return g;
}

Lines dataDrawn(GTSeries& series) {
    GraphicsRecorder g(200, 200);
    return drawn(dataDrawn(series, g));
}

TEST(PointRendering, LinesScattersAndAreas) {
    const auto check = [](const char* name, int type, int symbol, const Pairs& points, const Lines& want) {
        GTSeries series(type);
        series.PlotSymbol(symbol);
        for (const auto& [x, y] : points)
            series.AddDataValue(x, y);
        EXPECT_EQ(dataDrawn(series), want) << name;
    };
    const Pairs three{{0, 0}, {1, 3}, {4, 2}}; // places 0 50, 25 0, 100 16.67
    check("line", GTSeries::line, GTSeries::filledCircle, three,
          {"picture 10 20", "  curve 0 50 0 50", "  oval 0 50 2", "  curve 0 50 25 0", "  oval 25 0 2",
           "  curve 25 0 100 16.6667", "  oval 100 16 2"});
    check("one point: at the left end of the bottom", GTSeries::line, GTSeries::hollowSquare, {{7, 7}},
          {"picture 10 20", "  curve 0 50 0 50", "  square 0 50 2"});
    check("no points", GTSeries::line, 1, {}, {"picture 10 20"});
    check("one height: along the bottom", GTSeries::line, 0, {{0, 5}, {1, 5}},
          {"picture 10 20", "  curve 0 50 0 50", "  curve 0 50 100 50"});
    check("what is no place is passed over", GTSeries::line, 0, {{0, 0}, {1, notANumber}, {infinite, 1}, {4, 2}},
          {"picture 10 20", "  curve 0 50 0 50", "  curve 0 50 100 0"});
    check("scatter", GTSeries::scatter, GTSeries::hollowCircle, three,
          {"picture 10 20", "  oval 0 50 2", "  oval 25 0 2", "  oval 100 16 2"});
    check("no such symbol", GTSeries::scatter, 5, three, {"picture 10 20"});
    check("area, over its symbols, closed along the bottom", GTSeries::area, GTSeries::filledSquare, three,
          {"picture 10 20", "  square 0 50 2", "  square 25 0 2", "  square 100 16 2",
           "  figure, 0 50 0 50, 0 50 0 50, 0 50 25 0, 25 0 100 16.6667, 100 16.6667 100 50, 100 50 0 50"});
    check("area without points", GTSeries::area, 2, {}, {});
    check("no such type", 10, 2, three, {});
}

TEST(PointRendering, PlacesFollowTheSetRange) {
    GTSeries series(GTSeries::scatter);
    series.PlotSymbol(GTSeries::filledCircle);
    series.AddDataValue(0, 20); // outside: drawn where it would stand
    series.AddDataValue(1, 5);
    series.SetYRange(0, 10);
    EXPECT_EQ(dataDrawn(series), (Lines{"picture 10 20", "  oval 0 -50 2", "  oval 100 25 2"}));
}

TEST(PointRendering, APlotWithoutWidthOrHeightStaysEmpty) {
    for (int type = GTSeries::line; type <= GTSeries::pie; ++type)
        for (const auto& [width, height] : {std::pair(0, 50), {50, 0}}) {
            GTSeries series(type);
            series.AddDataValue(1, 1);
            series.SetYRange(0, 10);
            GraphicsRecorder g(10, 10);
            EXPECT_EQ(drawn(dataDrawn(series, g, width, height)), Lines()) << "type " << type;
            EXPECT_EQ(series.XAxis().tickCount(), 0);
        }
}

TEST(PointRendering, SymbolsAndPens) {
    constexpr double scale = 300 / 72.0;
    const auto set = [](GTSeries& series) {
        series.PenColor(0x102030);
        series.PenSize(2);
        series.Resolution(300);
    };
    const auto check = [&](int code, auto want, bool filled) {
        GTSeries series(GTSeries::line);
        set(series);
        series.PlotSymbol(code);
        series.PlotSymbolSize(5);
        Picture picture(10, 10, 0);
        series.renderSymbol(picture, 3, 4);
        want.X = 3;
        want.Y = 4;
        want.Width = want.Height = 5 * scale;
        want.Fill = filled ? 100 : 0;
        want.FillColor = filled ? 0x102030 : 0;
        want.Border = 100;
        want.BorderColor = 0x102030;
        want.BorderWidth = scale;
        EXPECT_TRUE(picture.Objects().Item(0) == Object2D(want)) << code;
    };
    check(GTSeries::hollowCircle, OvalShape(), false);
    check(GTSeries::filledCircle, OvalShape(), true);
    check(GTSeries::hollowSquare, RectShape(), false);
    check(GTSeries::filledSquare, RectShape(), true);

    const auto drawnBy = [&](int type) {
        GTSeries series(type);
        set(series);
        series.AddDataValue(0, 0);
        GraphicsRecorder g(200, 200);
        return dataDrawn(series, g).calls().front().shapes.Item(0);
    };
    const auto line = std::get<CurveShape>(drawnBy(GTSeries::line));
    EXPECT_EQ(std::pair(line.BorderWidth, line.BorderColor), std::pair(2 * scale, 0x102030U));
    const auto area = std::get<FigureShape>(drawnBy(GTSeries::area));
    EXPECT_EQ(std::pair(area.BorderWidth, area.BorderColor), std::pair(2.0, 0x102030U)) << "which does not grow";
    EXPECT_EQ(area.FillColor, 0x102030U);
}

TEST(PointRendering, PlaceOfALabel) {
    GTDataPoint point(0, 0);
    point.text = "abcd"; // 20 wide, 10 high, its ascent 7.5
    point.textColor = 0x102030;
    const auto placed = [&](int x, int y, int width = 60) {
        Picture picture(width, 40, 0);
        point.Render(picture, x, y);
        return picture.Objects().Count() == 0 ? "" : drawn(picture.Objects()).at(0);
    };
    EXPECT_EQ(placed(5, 20), "string 5 20 'abcd'") << "room for the whole width to the right";
    EXPECT_EQ(placed(40, 20), "string 40 20 'abcd'") << "just fits";
    EXPECT_EQ(placed(41, 20), "string 21 20 'abcd'") << "a width to the left";
    EXPECT_EQ(placed(60, 20), "string 40 20 'abcd'") << "at the right edge";
    EXPECT_EQ(placed(61, 20), "") << "beyond it";
    EXPECT_EQ(placed(-1, 20), "") << "left of the picture, not even half in";
    EXPECT_EQ(placed(12, 20, 25), "string 2 20 'abcd'") << "neither a width to the right nor to the left: half a width";
    EXPECT_EQ(placed(5, 7), "string 5 14 'abcd'") << "at the top: below";
    EXPECT_EQ(placed(5, 8), "string 5 8 'abcd'") << "just below the top";
    EXPECT_EQ(placed(5, 31), "string 5 23 'abcd'") << "at the bottom: above";
    EXPECT_EQ(placed(5, 37), "string 5 29 'abcd'") << "lowest that still fits";
    EXPECT_EQ(placed(5, 38), "") << "too low";
    EXPECT_EQ(placed(5, -1), "") << "above the picture";
    point.Resolution(144);
    Picture large(60, 40, 0);
    point.Render(large, 0, 18);
    const auto& label = std::get<StringShape>(large.Objects().Item(0));
    EXPECT_EQ(std::pair(label.TextSize, label.FillColor), std::pair(20.0F, 0x102030U)) << "10 points";
}

TEST(PointRendering, WhereLabelsAreShown) {
    const auto labelled = std::make_shared<GTDataPoint>(0, 0);
    labelled->text = "a";
    const auto labels = [&](int type, bool shown) {
        GTSeries series(type);
        series.AddDataPoint(labelled);
        series.AddDataValue(10, 10);
        series.SetYRange(-10, 10);
        series.dataLabelsVisible = shown;
        return only("  string", dataDrawn(series)).size();
    };
    EXPECT_EQ(labels(GTSeries::line, false), 0U);
    EXPECT_EQ(labels(GTSeries::line, true), 1U);
    EXPECT_EQ(labels(GTSeries::scatter, true), 1U);
    EXPECT_EQ(labels(GTSeries::area, false), 1U) << "an area has them always";
    EXPECT_EQ(labels(GTSeries::area, true), 2U);
}

/// A colour for each place.
class Colors : public GTColorTableProvider {
public:
    Color getColor(int index) override { return 0xC0 + static_cast<Color>(index); }
};

const Change labelled = [](GTSeries& series) { series.dataLabelsVisible = true; };

/// A series of a kind with those points, on a plot of 100 x 50 at 10, 20.
Lines pieces(int type, const Points& points, const Change& set = nullptr) {
    GTSeries series(type);
    series.colorTable(std::make_shared<Colors>());
    for (const auto& [place, values] : points) {
        const bool bar = type >= GTSeries::totalBar;
        const auto point = std::make_shared<GTDataPoint>(bar ? values[0] : place, bar ? place : values[0]);
        for (std::size_t i = 1; i < values.size(); ++i)
            bar ? point->extraXValue(values[i]) : point->extraYValue(values[i]);
        series.AddDataPoint(point);
    }
    if (set)
        set(series);
    return dataDrawn(series);
}

TEST(ColumnBarPieRendering, ColumnsAndBars) {
    // The filled rectangles, each followed by its outline.
    const auto check = [](const char* name, int type, const Points& points, const Lines& want,
                          const Change& set = nullptr) {
        const Lines all = pieces(type, points, set);
        EXPECT_EQ(only("fill", all), want) << name;
        EXPECT_EQ(all.size(), 2 * want.size()) << name << ": an outline for each";
        for (std::size_t i = 0; i + 1 < all.size(); i += 2)
            EXPECT_EQ(all[i + 1].substr(5), all[i].substr(5)) << name;
    };
    // x from 1 to 3: 50 wide, right edges at 10, 60, 110. y from 0 to 5: 10 a unit.
    check("stacked columns, the first left of the plot", GTSeries::totalColumn,
          {{1, {0, 2}}, {2, {4, 1}}, {3, {1.58, 0}}},
          {"fill -40 70 50 0", "fill -40 50 50 20", "fill 10 30 50 40", "fill 10 20 50 10", "fill 60 55 50 15",
           "fill 60 55 50 0"});
    // y from 2 to 10: 6.25 a unit; every piece counts from 2.
    check("each from the lowest value", GTSeries::totalColumn, {{1, {2, 8}}, {2, {4, 6}}},
          {"fill -90 70 100 0", "fill -90 33 100 37", "fill 10 58 100 12", "fill 10 33 100 25"});
    check("columns in percent", GTSeries::percentColumn, {{1, {1, 3}}, {2, {2, 2}}},
          {"fill -90 58 100 12", "fill -90 21 100 37", "fill 10 45 100 25", "fill 10 20 100 25"});
    check("a total of 0 has no percent", GTSeries::percentColumn, {{1, {0, 0}}, {2, {2, 2}}},
          {"fill 10 45 100 25", "fill 10 20 100 25"});
    // y from 0 to 5; two of 25 in 50.
    check("clustered columns", GTSeries::clusteredColumn, {{1, {0, 2}}, {2, {4, 1}}, {3, {5, 3}}},
          {"fill -40 70 25 0", "fill -15 50 25 20", "fill 10 30 25 40", "fill 35 60 25 10", "fill 60 20 25 50",
           "fill 85 40 25 30"});
    // y from 1 to 3: 25 high, lying above 70, 45, 20. x from 0 to 5: 20 a unit.
    check("stacked bars", GTSeries::totalBar, {{1, {0, 2}}, {2, {4, 1}}, {3, {1.59, 0}}},
          {"fill 10 45 0 25", "fill 10 45 40 25", "fill 10 20 80 25", "fill 90 20 20 25", "fill 10 -5 31 25",
           "fill 41 -5 0 25"});
    check("bars in percent", GTSeries::percentBar, {{1, {1, 3}}, {2, {2, 2}}},
          {"fill 10 20 25 50", "fill 35 20 75 50", "fill 10 -30 50 50", "fill 60 -30 50 50"});
    // y from 1 to 3: from 95, 70, 45 upward, two of 12.5.
    check("clustered bars", GTSeries::clusteredBar, {{1, {0, 2}}, {2, {4, 1}}, {3, {5, 3}}},
          {"fill 10 82.5 0 12.5", "fill 10 70 40 12.5", "fill 10 57.5 80 12.5", "fill 10 45 20 12.5",
           "fill 10 32.5 100 12.5", "fill 10 20 60 12.5"});
    check("what is not finite is passed over, also when it was measured first", GTSeries::totalColumn,
          {{1, {0, notANumber}}, {2, {5, infinite}}}, {"fill -90 70 100 0", "fill 10 20 100 50"},
          [](GTSeries& series) { series.XAxisHeight(100); });
    check("also by what is a part of it", GTSeries::percentColumn, {{1, {2, notANumber, 2}}, {2, {infinite, 5}}},
          {"fill -90 45 100 25", "fill -90 20 100 25", "fill 10 20 100 50"});
    // One unit of x for all, two values in a unit of 1 / 1: 0 wide.
    check("clusters too narrow for their values", GTSeries::clusteredColumn, {{0, {0, 2}}, {100, {4, 4}}},
          {"fill 9 70 0 0", "fill 9 45 0 25", "fill 109 20 0 50", "fill 109 20 0 50"});
    check("nothing", GTSeries::totalColumn, {}, {});
}

TEST(ColumnBarPieRendering, RangesOnlyWidenAndTheCategoriesAreCounted) {
    // Points at 1 and 5, with totals of 12 and 10; the range that was set before is x 2 to 90, y 3 to 8.
    const auto check = [](int type, const std::vector<double>& want, const std::pair<int, int>& ticks) {
        pieces(type, {{1, {3, 9}}, {5, {4, 6}}}, [&](GTSeries& series) {
            series.SetXRange(2, 90);
            series.SetYRange(3, 8);
            dataDrawn(series);
            EXPECT_EQ((std::vector<double>{series.XMin(), series.XMax(), series.YMin(), series.YMax()}), want) << type;
            EXPECT_EQ(std::pair(series.XAxis().tickCount(), series.YAxis().tickCount()), ticks) << type;
        });
    };
    check(GTSeries::totalColumn, {1, 90, 3, 12}, {3, 0});
    check(GTSeries::percentColumn, {1, 90, 0, 100}, {3, 0});
    check(GTSeries::clusteredColumn, {1, 90, 3, 9}, {3, 0});
    check(GTSeries::totalBar, {2, 90, 1, 8}, {0, 3});
    check(GTSeries::percentBar, {0, 100, 1, 8}, {0, 3});
    check(GTSeries::clusteredBar, {2, 90, 1, 8}, {0, 3});
}

TEST(ColumnBarPieRendering, ColoursAndLabels) {
    GTSeries series(GTSeries::totalColumn);
    series.PenColor(0x102030);
    series.dataLabelsVisible = true;
    series.textSize = 8; // an ascent of 6
    const auto point = std::make_shared<GTDataPoint>(0, 4);
    point->extraYValue(1);
    series.AddDataPoint(point);
    series.AddDataValue(1, 0);
    series.SetYRange(0, 4); // 12.5 a unit in 50, then 10 when widened to 5
    const auto firstColors = [&] {
        GraphicsRecorder g(200, 200);
        dataDrawn(series, g);
        return std::pair(g.calls()[0].color, g.calls()[3].color);
    };
    const auto random = firstColors();
    EXPECT_NE(random, firstColors()) << "without a table each drawing has colours of its own";
    series.colorTable(std::make_shared<Colors>());
    EXPECT_EQ(firstColors(), std::pair(0xC0U, 0xC1U));
    GraphicsRecorder g(200, 200);
    EXPECT_EQ(only("text", drawn(dataDrawn(series, g))),
              (Lines{"text -40 50 '4.0'", "text -40 28 '1.0'", "text 60 68 '.0'"}))
        << "in the middle of 40, but on the floor of 10 and of 0";
    for (const GraphicsRecorder::Call& call : g.calls()) {
        if (call.operation != "FillRect")
            EXPECT_EQ(call.color, 0x102030U) << call.operation;
        if (call.operation == "DrawString")
            EXPECT_EQ(call.textSize, 8);
    }
    EXPECT_EQ(only("text", pieces(GTSeries::percentColumn, {{0, {1, 3}}}, labelled)),
              (Lines{"text 9.5 67.75 '25.0'", "text 9.5 39.5 '75.0'"}))
        << "the part, not the value";
    EXPECT_EQ(only("text", pieces(GTSeries::clusteredColumn, {{0, {4}}, {1, {0}}}, labelled)), Lines());
}

TEST(ColumnBarPieRendering, Pies) {
    // Centre 60, 45, radius 25, labels at 18.75. A slice has the colour of its point's place.
    const auto check = [](const char* name, const std::vector<double>& values, Color first, const Lines& want) {
        GTSeries series(GTSeries::pie);
        series.colorTable(std::make_shared<Colors>());
        series.dataLabelsVisible = true;
        for (const double value : values)
            series.AddDataValue(value, 0);
        GraphicsRecorder g(200, 200);
        std::vector<int> used(4);
        series.Render(g, 10, 20, used[0], used[1], used[2], used[3], 100, 50);
        EXPECT_EQ(drawn(g), want) << name << " (a pie has no axes)";
        EXPECT_EQ(used, std::vector<int>(4)) << name;
        if (g.calls().empty())
            return;
        const auto& slice = std::get<ArcShape>(g.calls()[0].shapes.Item(0));
        EXPECT_EQ(std::pair(slice.FillColor, slice.BorderColor), std::pair(first, first)) << name;
    };
    check("an eighth, a half, three eighths: labels run on by whole slices from a sixteenth", {1, 4, 3}, 0xC0,
          {"object 60 45", "  arc 0 0.785398 50", "text 77 52 '1.0'", "object 60 45", "  arc 0.785398 3.14159 50",
           "text 67 62 '4.0'", "object 60 45", "  arc 3.92699 2.35619 50", "text 52 27 '3.0'"});
    check("below 0 and without a number there is no slice: one is a whole circle", {-5, notANumber, 3}, 0xC2,
          {"object 60 45", "  arc 0 6.28319 50", "text 41 45 '3.0'"});
    check("nothing in total", {0, 0}, 0, {});
}

} // namespace

} // namespace tallyvane
