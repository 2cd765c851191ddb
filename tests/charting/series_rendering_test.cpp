#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "charting/gt_series.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;
using Pairs = std::vector<std::pair<double, double>>;

/// A colour for each place.
class Colors : public GTColorTableProvider {
public:
    Color getColor(int index) override { return 0xC0 + static_cast<Color>(index); }
};

/// The series' data alone, on a plot of 100 x 50 at 10, 20.
GraphicsRecorder& dataDrawn(GTSeries& series, GraphicsRecorder& g) {
    series.XAxis().visible(false);
    series.YAxis().visible(false);
    int used[4] = {};
    series.Render(g, 10, 20, used[0], used[1], used[2], used[3], 100, 50);
    return g;
}

Lines dataDrawn(GTSeries& series) {
    GraphicsRecorder g(200, 200);
    return drawn(dataDrawn(series, g));
}

TEST(PointRendering, LinesScattersAndAreas) {
    struct Row {
        const char* name;
        int type;
        int symbol;
        Pairs points;
        Lines want;
    };
    const Pairs three{{0, 0}, {1, 3}, {4, 2}}; // places 0 50, 25 0, 100 16.67
    const std::vector<Row> rows{
        {"line",
         GTSeries::line,
         GTSeries::filledCircle,
         three,
         {"picture 10 20", "  curve 0 50 0 50", "  oval 0 50 2", "  curve 0 50 25 0", "  oval 25 0 2",
          "  curve 25 0 100 16.6667", "  oval 100 16 2"}},
        {"line alone",
         GTSeries::line,
         0,
         {{0, 0}, {4, 2}},
         {"picture 10 20", "  curve 0 50 0 50", "  curve 0 50 100 0"}},
        {"one point: at the left end of the bottom",
         GTSeries::line,
         GTSeries::hollowSquare,
         {{7, 7}},
         {"picture 10 20", "  curve 0 50 0 50", "  square 0 50 2"}},
        {"no points", GTSeries::line, 1, {}, {"picture 10 20"}},
        {"one height: along the bottom",
         GTSeries::line,
         0,
         {{0, 5}, {1, 5}},
         {"picture 10 20", "  curve 0 50 0 50", "  curve 0 50 100 50"}},
        {"what is no place is passed over",
         GTSeries::line,
         0,
         {{0, 0}, {1, notANumber}, {infinite, 1}, {4, 2}},
         {"picture 10 20", "  curve 0 50 0 50", "  curve 0 50 100 0"}},
        {"scatter",
         GTSeries::scatter,
         GTSeries::hollowCircle,
         three,
         {"picture 10 20", "  oval 0 50 2", "  oval 25 0 2", "  oval 100 16 2"}},
        {"no such symbol", GTSeries::scatter, 5, three, {"picture 10 20"}},
        {"area, over its symbols, closed along the bottom",
         GTSeries::area,
         GTSeries::filledSquare,
         three,
         {"picture 10 20", "  square 0 50 2", "  square 25 0 2", "  square 100 16 2",
          "  figure, 0 50 0 50, 0 50 0 50, 0 50 25 0, 25 0 100 16.6667, 100 16.6667 100 50, 100 50 0 50"}},
        {"area without points", GTSeries::area, 2, {}, {}},
        {"no such type", 10, 2, three, {}},
    };
    for (const Row& row : rows) {
        GTSeries series(row.type);
        series.PlotSymbol(row.symbol);
        for (const auto& [x, y] : row.points)
            series.AddDataValue(x, y);
        EXPECT_EQ(dataDrawn(series), row.want) << row.name;
    }
}

TEST(PointRendering, PlacesFollowTheSetRange) {
    GTSeries series(GTSeries::scatter);
    series.PlotSymbol(GTSeries::filledCircle);
    series.AddDataValue(0, 20); // outside: drawn where it would stand
    series.AddDataValue(1, 5);
    series.SetYRange(0, 10);
    EXPECT_EQ(dataDrawn(series), (Lines{"picture 10 20", "  oval 0 -50 2", "  oval 100 25 2"}));
    GraphicsRecorder g(10, 10);
    for (int type = GTSeries::line; type <= GTSeries::pie; ++type)
        for (const auto& [width, height] : {std::pair(0, 50), {50, 0}}) {
            GTSeries any(type);
            any.AddDataValue(1, 1);
            any.SetYRange(0, 10);
            int used[4] = {};
            any.XAxis().visible(false);
            any.YAxis().visible(false);
            any.Render(g, 0, 0, used[0], used[1], used[2], used[3], width, height);
            EXPECT_EQ(drawn(g), Lines()) << "a plot without width or height, type " << type;
            EXPECT_EQ(any.XAxis().tickCount(), 0);
        }
}

TEST(PointRendering, SymbolsAndPens) {
    struct Row {
        int code;
        bool circle;
        float fill;
    };
    const Row rows[] = {{GTSeries::hollowCircle, true, 0},
                        {GTSeries::filledCircle, true, 100},
                        {GTSeries::hollowSquare, false, 0},
                        {GTSeries::filledSquare, false, 100}};
    for (const Row& row : rows) {
        GTSeries series(GTSeries::line);
        series.PlotSymbol(row.code);
        series.PlotSymbol(Picture("zone2.tiff")); // kept beside the code
        series.PlotSymbolSize(5);
        series.PenColor(0x102030);
        series.PenSize(2);
        series.Resolution(300);
        Picture picture(10, 10, 0);
        series.renderSymbol(picture, 3, 4);
        ASSERT_EQ(picture.Objects().Count(), 1U);
        std::visit(
            [&](const auto& shape) {
                if constexpr (requires {
                                  shape.Border;
                                  shape.Width;
                              }) {
                    EXPECT_EQ((std::is_same_v<std::decay_t<decltype(shape)>, OvalShape>), row.circle) << row.code;
                    EXPECT_DOUBLE_EQ(shape.Width, 5 * 300 / 72.0);
                    EXPECT_DOUBLE_EQ(shape.Height, 5 * 300 / 72.0);
                    EXPECT_DOUBLE_EQ(shape.BorderWidth, 300 / 72.0);
                    EXPECT_EQ(shape.Fill, row.fill) << row.code;
                    if (row.fill > 0)
                        EXPECT_EQ(shape.FillColor, 0x102030U) << row.code;
                    EXPECT_EQ(shape.Border, 100) << row.code;
                    EXPECT_EQ(shape.BorderColor, 0x102030U);
                } else {
                    ADD_FAILURE() << "no symbol";
                }
            },
            picture.Objects().Item(0));
        EXPECT_EQ(series.CustomPlotPict(), Picture("zone2.tiff"));
    }

    for (const auto& [type, width] : {std::pair(GTSeries::line, 2 * 300 / 72.0), {GTSeries::area, 2.0}}) {
        GTSeries series(type);
        series.PenSize(2);
        series.PenColor(0x102030);
        series.Resolution(300);
        series.AddDataValue(0, 0);
        GraphicsRecorder g(200, 200);
        const Object2D& shape = dataDrawn(series, g).calls().front().shapes.Item(0);
        const OutlinedShape& pen = type == GTSeries::line
                                       ? static_cast<const OutlinedShape&>(std::get<CurveShape>(shape))
                                       : std::get<FigureShape>(shape);
        EXPECT_DOUBLE_EQ(pen.BorderWidth, width) << "an area's outline does not grow with the resolution";
        EXPECT_EQ(pen.BorderColor, 0x102030U);
        if (type == GTSeries::area)
            EXPECT_EQ(pen.FillColor, 0x102030U);
    }
}

TEST(PointRendering, DataLabels) {
    struct Row {
        const char* name;
        int x;
        int y;
        const char* want; // of 'abcd' on a picture of 60 x 40: 20 wide, 10 high, its ascent 7.5
    };
    const Row rows[] = {
        {"room for the whole width to the right", 5, 20, "string 5 20 'abcd'"},
        {"just fits", 40, 20, "string 40 20 'abcd'"},
        {"a width to the left", 41, 20, "string 21 20 'abcd'"},
        {"at the right edge", 60, 20, "string 40 20 'abcd'"},
        {"beyond it", 61, 20, nullptr},
        {"left of the picture, not even half in", -1, 20, nullptr},
        {"at the top: below", 5, 7, "string 5 14 'abcd'"},
        {"just below the top", 5, 8, "string 5 8 'abcd'"},
        {"at the bottom: above", 5, 31, "string 5 23 'abcd'"},
        {"lowest that still fits", 5, 37, "string 5 29 'abcd'"},
        {"too low", 5, 38, nullptr},
        {"above the picture", 5, -1, nullptr},
    };
    GTDataPoint point(0, 0);
    point.text = "abcd";
    point.textColor = 0x102030;
    for (const Row& row : rows) {
        Picture picture(60, 40, 0);
        point.Render(picture, row.x, row.y);
        EXPECT_EQ(drawn(picture.Objects()), row.want == nullptr ? Lines() : Lines{row.want}) << row.name;
        for (const Object2D& shape : picture.Objects())
            EXPECT_EQ(std::get<StringShape>(shape).FillColor, 0x102030U);
    }
    point.Resolution(144);
    Picture large(60, 40, 0);
    point.Render(large, 0, 18);
    EXPECT_EQ(std::get<StringShape>(large.Objects().Item(0)).TextSize, 20) << "10 points";
    point.Resolution(72);
    Picture narrow(25, 40, 0); // 20 fit from 5 on at the most, and not a width left of 12: half a width
    point.Render(narrow, 12, 20);
    EXPECT_EQ(drawn(narrow.Objects()), Lines{"string 2 20 'abcd'"});

    const auto labelled = std::make_shared<GTDataPoint>(0, 0);
    labelled->text = "a";
    for (const auto& [type, shown, count] : {std::tuple(GTSeries::line, false, 0U),
                                             {GTSeries::line, true, 1U},
                                             {GTSeries::scatter, true, 1U},
                                             {GTSeries::area, false, 1U},
                                             {GTSeries::area, true, 2U}}) {
        GTSeries series(type);
        series.AddDataPoint(labelled);
        series.AddDataValue(10, 10);
        series.SetYRange(-10, 10);
        series.dataLabelsVisible = shown;
        EXPECT_EQ(only("  string", dataDrawn(series)).size(), count) << type << shown;
    }
}

/// A series of a kind with those values at those places, on a plot of 100 x 50 at 10, 20.
Lines pieces(int type, const std::vector<std::pair<double, std::vector<double>>>& points,
             const std::function<void(GTSeries&)>& set = nullptr) {
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

TEST(PieceRendering, ColumnsAndBars) {
    struct Row {
        const char* name;
        int type;
        std::vector<std::pair<double, std::vector<double>>> points;
        Lines want; // the filled rectangles
    };
    const std::vector<Row> rows{
        // x from 1 to 3: 50 wide, right edges at 10, 60, 110. y from 0 to 5: 10 a unit.
        {"stacked columns, the first left of the plot",
         GTSeries::totalColumn,
         {{1, {0, 2}}, {2, {4, 1}}, {3, {1.58, 0}}},
         {"fill -40 70 50 0", "fill -40 50 50 20", "fill 10 30 50 40", "fill 10 20 50 10", "fill 60 55 50 15",
          "fill 60 55 50 0"}},
        // y from 2 to 10: 6.25 a unit; every piece counts from 2.
        {"each from the lowest value",
         GTSeries::totalColumn,
         {{1, {2, 8}}, {2, {4, 6}}},
         {"fill -90 70 100 0", "fill -90 33 100 37", "fill 10 58 100 12", "fill 10 33 100 25"}},
        {"columns in percent",
         GTSeries::percentColumn,
         {{1, {1, 3}}, {2, {2, 2}}},
         {"fill -90 58 100 12", "fill -90 21 100 37", "fill 10 45 100 25", "fill 10 20 100 25"}},
        {"a total of 0 has no percent",
         GTSeries::percentColumn,
         {{1, {0, 0}}, {2, {2, 2}}},
         {"fill 10 45 100 25", "fill 10 20 100 25"}},
        // y from 0 to 5; two of 25 in 50.
        {"clustered columns",
         GTSeries::clusteredColumn,
         {{1, {0, 2}}, {2, {4, 1}}, {3, {5, 3}}},
         {"fill -40 70 25 0", "fill -15 50 25 20", "fill 10 30 25 40", "fill 35 60 25 10", "fill 60 20 25 50",
          "fill 85 40 25 30"}},
        // y from 1 to 3: 25 high, lying above 70, 45, 20. x from 0 to 5: 20 a unit.
        {"stacked bars",
         GTSeries::totalBar,
         {{1, {0, 2}}, {2, {4, 1}}, {3, {1.59, 0}}},
         {"fill 10 45 0 25", "fill 10 45 40 25", "fill 10 20 80 25", "fill 90 20 20 25", "fill 10 -5 31 25",
          "fill 41 -5 0 25"}},
        {"bars in percent",
         GTSeries::percentBar,
         {{1, {1, 3}}, {2, {2, 2}}},
         {"fill 10 20 25 50", "fill 35 20 75 50", "fill 10 -30 50 50", "fill 60 -30 50 50"}},
        // y from 1 to 3: from 95, 70, 45 upward, two of 12.5.
        {"clustered bars",
         GTSeries::clusteredBar,
         {{1, {0, 2}}, {2, {4, 1}}, {3, {5, 3}}},
         {"fill 10 82.5 0 12.5", "fill 10 70 40 12.5", "fill 10 57.5 80 12.5", "fill 10 45 20 12.5",
          "fill 10 32.5 100 12.5", "fill 10 20 60 12.5"}},
        {"what is not finite is passed over",
         GTSeries::totalColumn,
         {{1, {0, notANumber}}, {2, {5, infinite}}},
         {"fill -90 70 100 0", "fill 10 20 100 50"}},
        {"also by what is a part of it",
         GTSeries::percentColumn,
         {{1, {2, notANumber, 2}}, {2, {infinite, 5}}},
         {"fill -90 45 100 25", "fill -90 20 100 25", "fill 10 20 100 50"}},
        // One unit of x for all, two values in a unit of 1 / 1: 0 wide.
        {"clusters too narrow for their values",
         GTSeries::clusteredColumn,
         {{0, {0, 2}}, {100, {4, 4}}},
         {"fill 9 70 0 0", "fill 9 45 0 25", "fill 109 20 0 50", "fill 109 20 0 50"}},
        {"nothing", GTSeries::totalColumn, {}, {}},
    };
    for (const Row& row : rows) {
        const Lines all = pieces(row.type, row.points);
        EXPECT_EQ(only("fill", all), row.want) << row.name;
        EXPECT_EQ(all.size(), 2 * row.want.size()) << row.name << ": an outline for each";
        for (std::size_t i = 0; i + 1 < all.size(); i += 2)
            EXPECT_EQ(all[i + 1].substr(5), all[i].substr(5)) << row.name;
    }
}

TEST(PieceRendering, MeasuredFirstWhatIsNotFiniteIsPassedOverToo) {
    const Lines lines = pieces(GTSeries::totalColumn, {{1, {0, notANumber}}, {2, {5, infinite}}},
                               [](GTSeries& series) { series.XAxisHeight(100); });
    EXPECT_EQ(only("fill", lines), (Lines{"fill -90 70 100 0", "fill 10 20 100 50"}));
}

TEST(PieceRendering, RangesOnlyWidenAndTheCategoriesAreCounted) {
    struct Row {
        int type;
        std::vector<double> want; // x from, to, y from, to, as set before: x 2 to 90, y 3 to 8
        int xTicks;
        int yTicks;
    };
    // Points at 1 and 5, with totals of 12 and 10.
    const Row rows[] = {
        {GTSeries::totalColumn, {1, 90, 3, 12}, 3, 0},    {GTSeries::percentColumn, {1, 90, 0, 100}, 3, 0},
        {GTSeries::clusteredColumn, {1, 90, 3, 9}, 3, 0}, {GTSeries::totalBar, {2, 90, 1, 8}, 0, 3},
        {GTSeries::percentBar, {0, 100, 1, 8}, 0, 3},     {GTSeries::clusteredBar, {2, 90, 1, 8}, 0, 3},
    };
    for (const Row& row : rows) {
        pieces(row.type, {{1, {3, 9}}, {5, {4, 6}}}, [&](GTSeries& series) {
            series.SetXRange(2, 90);
            series.SetYRange(3, 8);
            dataDrawn(series);
            EXPECT_EQ((std::vector<double>{series.XMin(), series.XMax(), series.YMin(), series.YMax()}), row.want)
                << row.type;
            EXPECT_EQ(series.XAxis().tickCount(), row.xTicks) << row.type;
            EXPECT_EQ(series.YAxis().tickCount(), row.yTicks) << row.type;
        });
    }
}

TEST(PieceRendering, ColoursAndLabels) {
    GTSeries series(GTSeries::totalColumn);
    series.PenColor(0x102030);
    series.dataLabelsVisible = true;
    series.textSize = 8; // an ascent of 6
    const auto point = std::make_shared<GTDataPoint>(0, 4);
    point->extraYValue(1);
    series.AddDataPoint(point);
    series.AddDataValue(1, 0);
    series.SetYRange(0, 4); // 12.5 a unit in 50, then 10 when widened to 5
    for (const bool table : {true, false}) {
        if (table)
            series.colorTable(std::make_shared<Colors>());
        else
            series.colorTable(nullptr);
        GraphicsRecorder g(200, 200);
        dataDrawn(series, g);
        EXPECT_EQ(only("text", drawn(g)), (Lines{"text -40 50 '4.0'", "text -40 28 '1.0'", "text 60 68 '.0'"}))
            << "in the middle of 40, but on the floor of 10 and of 0";
        for (const GraphicsRecorder::Call& call : g.calls()) {
            if (call.operation != "FillRect")
                EXPECT_EQ(call.color, 0x102030U) << call.operation;
            if (call.operation == "DrawString")
                EXPECT_EQ(call.textSize, 8);
        }
        if (table) {
            EXPECT_EQ(g.calls()[0].color, 0xC0U);
            EXPECT_EQ(g.calls()[3].color, 0xC1U);
        } else {
            GraphicsRecorder again(200, 200);
            dataDrawn(series, again);
            EXPECT_FALSE(g.calls()[0].color == again.calls()[0].color && g.calls()[3].color == again.calls()[3].color);
        }
    }
    EXPECT_EQ(
        only("text", pieces(GTSeries::percentColumn, {{0, {1, 3}}}, [](GTSeries& s) { s.dataLabelsVisible = true; })),
        (Lines{"text 9.5 67.75 '25.0'", "text 9.5 39.5 '75.0'"}))
        << "the part, not the value";
    EXPECT_EQ(only("text", pieces(GTSeries::clusteredColumn, {{0, {4}}, {1, {0}}},
                                  [](GTSeries& s) { s.dataLabelsVisible = true; })),
              Lines());
}

TEST(PieceRendering, Pies) {
    struct Row {
        const char* name;
        std::vector<double> values;
        Lines want; // centre 60, 45, radius 25, labels at 18.75
    };
    const std::vector<Row> rows{
        {"one: a whole circle, its label at the left", {3}, {"object 60 45", "  arc 0 6.28319 50", "text 41 45 '3.0'"}},
        {"an eighth, a half, three eighths: labels run on by whole slices from a sixteenth",
         {1, 4, 3},
         {"object 60 45", "  arc 0 0.785398 50", "text 77 52 '1.0'", "object 60 45", "  arc 0.785398 3.14159 50",
          "text 67 62 '4.0'", "object 60 45", "  arc 3.92699 2.35619 50", "text 52 27 '3.0'"}},
        {"below 0 and without a number there is no slice",
         {-5, notANumber, 3},
         {"object 60 45", "  arc 0 6.28319 50", "text 41 45 '3.0'"}},
        {"nothing in total", {0, 0}, {}},
        {"no points", {}, {}},
    };
    for (const Row& row : rows) {
        GTSeries series(GTSeries::pie);
        series.colorTable(std::make_shared<Colors>());
        series.dataLabelsVisible = true;
        for (const double value : row.values)
            series.AddDataValue(value, 0);
        GraphicsRecorder g(200, 200);
        int used[4] = {};
        series.Render(g, 10, 20, used[0], used[1], used[2], used[3], 100, 50);
        EXPECT_EQ(drawn(g), row.want) << row.name << " (a pie has no axes)";
        EXPECT_EQ((std::vector<int>(std::begin(used), std::end(used))), std::vector<int>(4)) << row.name;
    }
    GTSeries series(GTSeries::pie);
    series.colorTable(std::make_shared<Colors>());
    for (const double value : {-1, 1, 1})
        series.AddDataValue(value, 0);
    GraphicsRecorder g(200, 200);
    dataDrawn(series, g);
    const auto& slice = std::get<ArcShape>(g.calls()[0].shapes.Item(0));
    EXPECT_EQ(slice.FillColor, 0xC1U) << "by the place of the point";
    EXPECT_EQ(slice.BorderColor, 0xC1U);
}

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
    int used[4] = {};
    GraphicsRecorder bare(300, 300);
    series.Render(bare, 50, 50, used[0], used[1], used[2], used[3], 100, 100);
    EXPECT_EQ(drawn(bare).front(), "picture 50 50") << "no base line without the grid";

    series.XGridVisible(true);
    series.YGridVisible(true);
    GraphicsRecorder g(300, 300);
    std::fill(std::begin(used), std::end(used), 0);
    series.Render(g, 50, 50, used[0], used[1], used[2], used[3], 100, 100);
    EXPECT_EQ(drawn(g), (Lines{"line 50 50 50 150", "line 150 50 150 150", "line 50 150 150 150", "line 50 50 150 50",
                               "line 100 50 100 150", "line 50 100 150 100", "picture 50 50", "  curve 0 100 0 100",
                               "  curve 0 100 100 0", "line 50 150 150 150", "line 50 150 50 154",
                               "line 150 150 150 154", "line 50 50 50 150", "line 46 150 50 150", "line 46 50 50 50"}));
}

TEST(SeriesRendering, AxesStackOutward) {
    struct Row {
        const char* name;
        bool far; // top and right
        Lines want; // the axis lines
        std::vector<int> used; // left, top, right, bottom
    };
    // On a plot of 120 x 60 an X axis is 12 + 7 + 12 high. A Y axis of 60 has labels of up to "6.67", 24: 12 + 7 + 24
    // wide (of 120 it would have up to "9.1"). A line at the top or left stands at the inner end of its band.
    const Row rows[] = {
        {"bottom and left",
         false,
         {"line 50 110 170 110", "line 50 50 50 110", "line 50 141 170 141", "line 7 50 7 110"},
         {86, 0, 0, 62}},
        {"top and right",
         true,
         {"line 50 50 170 50", "line 170 50 170 110", "line 50 19 170 19", "line 213 50 213 110"},
         {0, 62, 86, 0}},
    };
    for (const Row& row : rows) {
        GraphicsRecorder g(300, 300);
        std::vector<int> used(4);
        for (const bool visible : {true, false, true}) {
            GTSeries series(visible ? GTSeries::line : -1); // axes do not ask for the type
            series.XAxis().visible(visible);
            series.YAxis().visible(visible);
            series.XAxis().top(row.far);
            series.YAxis().right(row.far);
            series.SetXRange(0, 1);
            series.SetYRange(0, 10);
            series.Render(g, 50, 50, used[0], used[1], used[2], used[3], 120, 60);
        }
        GraphicsRecorder axisLines(300, 300); // those as long as the plot
        for (const GraphicsRecorder::Call& call : g.calls()) {
            const auto& n = call.numbers;
            if (call.operation == "DrawLine" && (n[2] - n[0] == 120 || n[3] - n[1] == 60))
                axisLines.DrawLine(n[0], n[1], n[2], n[3]);
        }
        EXPECT_EQ(drawn(axisLines), row.want) << row.name;
        EXPECT_EQ(used, row.used) << row.name;
    }
}

} // namespace

} // namespace tallyvane
