#include <gtest/gtest.h>

#include <functional>

#include "support/data_drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;

/// A colour for each place.
class Colors : public GTColorTableProvider {
public:
    Color getColor(int index) override { return 0xC0 + static_cast<Color>(index); }
};

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

} // namespace

} // namespace tallyvane
