#include <gtest/gtest.h>

#include "support/data_drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;
using Pairs = std::vector<std::pair<double, double>>;

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

} // namespace

} // namespace tallyvane
