#include "charting/gt_graph.h"

#include <gtest/gtest.h>

#include "charting/gt_general_purpose.h"
#include "charting/truncated.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;

class GraphTest : public ::testing::Test {
protected:
    ~GraphTest() override {
        GTGraph::isPrintingOn = [] { return false; };
    }

    GTSeries& add(double highest = 10) {
        const auto series = std::make_shared<GTSeries>(GTSeries::line);
        series->AddDataValue(0, 0);
        series->AddDataValue(10, highest);
        graph_.addSeries(series);
        return *series;
    }
    /// The backdrop is many lines of the same ends: they come first.
    static Lines withoutBackdrop(const GraphicsRecorder& g, std::size_t rows) {
        Lines lines = drawn(g);
        lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(rows));
        return lines;
    }

    GTGraph graph_;
};

// Of the axes, 12 a line and 6 a character: the X axis takes 12 + 7 + 12 below, the Y axis 12 + 7 + 4 x 6 at the left.

TEST_F(GraphTest, ALayoutOfPlotBackdropTitleAndLabels) {
    add();
    graph_.text("Day");
    graph_.titleVisible = true;
    graph_.titleTopMargin(4);
    graph_.titleBottomMargin(5);
    graph_.marginLeft = 3;
    graph_.marginRight = 6;
    graph_.marginTop = 1;
    graph_.marginBottom = 2;
    graph_.textColor = 0x112233;
    graph_.textFont = "Verdana";
    const auto label = std::make_shared<GTLabel>(0.5, 0.25, "here");
    label->textColor = 0x445566;
    label->textFont = "Arial";
    label->textSize(9);
    graph_.addLabel(label);
    GraphicsRecorder g(260, 173);
    graph_.Draw(g);
    // The title's band: 1 + 12 + 4 + 5 = 22. The plot: 260 - 3 - 43 - 6 wide, at 46; 173 - 22 - 2 - 31 high, at 22.
    const auto& calls = g.calls();
    const std::size_t rows = 22 + 118 - 15 + 1;
    EXPECT_EQ(calls[0].numbers, (std::vector<double>{46, 140, 254, 140}));
    EXPECT_EQ(calls[rows - 1].numbers, (std::vector<double>{46, 15, 254, 15}));
    EXPECT_EQ(calls[rows].color, 0x112233U);
    EXPECT_EQ(calls[rows].font, FontName("Verdana"));
    EXPECT_EQ(calls[rows].textSize, 12);
    EXPECT_EQ(calls.back().color, 0x445566U);
    EXPECT_EQ(calls.back().font, FontName("Arial"));
    EXPECT_EQ(calls.back().textSize, 9);
    const Lines lines = withoutBackdrop(g, rows);
    EXPECT_EQ(lines[0], "text 141 29 'Day'") << "in the middle of the plot, 20 below the top whatever the margins";
    EXPECT_EQ(lines[1], "picture 46 22");
    EXPECT_EQ(only("line 46 140", lines).front(), "line 46 140 254 140") << "the X axis";
    // From the room of the axes alone, which is 43 at the left and nothing at the top: 43 + 208 / 2, 118 / 4.
    EXPECT_EQ(lines.back(), "text 147 29.5 'here'");
}

TEST_F(GraphTest, TheBackdropFadesByRows) {
    add();
    GraphicsRecorder g(243, 131); // a plot of 200 x 100 at 43, 0
    graph_.Draw(g);
    struct Row {
        int y;
        Color want;
    };
    const Row rows[] = {
        {100, RGB(216, 224, 255)}, // a = 1
        {50, RGB(194, 200, 255)}, // half and half: 194.5, 200
        {15, RGB(179, 183, 255)}, // 216 x .15 + 173 x .85 = 179.45; 183.2
    };
    for (const Row& row : rows)
        EXPECT_EQ(g.calls()[static_cast<std::size_t>(100 - row.y)].color, row.want) << row.y;

    graph_.marginTop = 80; // rows far below the plot's height go on by the same slope, up to 255
    GraphicsRecorder low(243, 131);
    graph_.Draw(low);
    EXPECT_EQ(low.calls()[0].numbers[1], 100);
    EXPECT_EQ(low.calls()[0].color, RGB(255, 255, 255)) << "a = 5";
}

TEST_F(GraphTest, TheFirstSeriesKeepsRoomForTheAxes) {
    struct Row {
        bool top;
        bool right;
        const char* picture;
    };
    const Row rows[] = {{false, false, "picture 43 0"}, {true, true, "picture 0 31"}};
    for (const Row& row : rows) {
        GTGraph graph;
        for (int i = 0; i < 2; ++i) {
            const auto series = std::make_shared<GTSeries>(GTSeries::line);
            series->AddDataValue(0, 0);
            series->AddDataValue(10, 10);
            series->XAxis().top(row.top);
            series->YAxis().right(row.right);
            graph.addSeries(series);
        }
        GraphicsRecorder g(300, 200);
        graph.Draw(g);
        EXPECT_EQ(only("picture", drawn(g))[0], row.picture);
    }
}

TEST_F(GraphTest, ASurfaceThatIsTooSmallStaysAsItIs) {
    add();
    for (const auto& [width, height, drawsAnything] :
         {std::tuple(300, 31, false), {43, 300, false}, {44, 32, true}, {0, 0, false}}) {
        GraphicsRecorder g(width, height);
        graph_.Draw(g);
        EXPECT_EQ(!g.calls().empty(), drawsAnything) << width << " x " << height;
    }
}

TEST_F(GraphTest, APrintedGraphLeavesThePageBelowFree) {
    add();
    GTGraph::isPrintingOn = [] { return true; };
    GraphicsRecorder g(600, 800);
    graph_.Draw(g);
    EXPECT_EQ(g.calls()[0].numbers[1], 450 - 31) << "the bottom of the plot";
}

TEST_F(GraphTest, WithoutSeriesThereIsABackdropAndATitle) {
    graph_.text("Day");
    graph_.titleVisible = true;
    GraphicsRecorder g(100, 60);
    graph_.Draw(g);
    EXPECT_EQ(withoutBackdrop(g, 46), Lines{"text 41 29 'Day'"});
}

TEST_F(GraphTest, ResolutionReachesEverything) {
    GTSeries& series = add();
    const auto point = std::make_shared<GTDataPoint>(5, 5);
    series.AddDataPoint(point);
    const auto label = std::make_shared<GTLabel>(0, 0, "x");
    graph_.addLabel(label);
    graph_.Resolution(300);
    EXPECT_EQ(series.Resolution(), 300);
    EXPECT_EQ(series.XAxis().Resolution(), 300);
    EXPECT_EQ(series.YAxis().Resolution(), 300);
    EXPECT_EQ(point->Resolution(), 300);
    EXPECT_EQ(label->Resolution(), 300);
    GTSeries& late = add();
    EXPECT_EQ(late.Resolution(), 72);
    GraphicsRecorder g(2000, 1000);
    graph_.Draw(g);
    EXPECT_EQ(late.Resolution(), 300) << "drawing hands it on";
    EXPECT_EQ(g.calls().back().textSize, 50) << "12 points";
}

TEST_F(GraphTest, TitleMeasures) {
    graph_.text("Days");
    graph_.textSize(10);
    graph_.titleTopMargin(3);
    EXPECT_EQ(graph_.measureMyTitleHeight(), 0) << "an invisible title";
    EXPECT_EQ(graph_.measureMyTitleWidth(), 20);
    graph_.titleVisible = true;
    graph_.titleBottomMargin(1);
    EXPECT_EQ(graph_.measureMyTitleHeight(), 14);
    graph_.Resolution(300); // 41.67 cut, then 41 + 12.5 cut, then 53 + 4.17 cut
    EXPECT_EQ(graph_.measureMyTitleHeight(), 57);
}

TEST_F(GraphTest, SeriesByPlaceAndByName) {
    GTSeries& first = add();
    GTSeries& second = add();
    first.Name("a");
    second.Name("a");
    EXPECT_EQ(graph_.count(), 2);
    EXPECT_EQ(graph_.Series("a").get(), &first);
    EXPECT_EQ(graph_.Series("nothing"), nullptr);
    EXPECT_EQ(graph_.Series(1).get(), &second);
    EXPECT_EQ(graph_.Series(2), nullptr);
    EXPECT_EQ(graph_.Series(-1), nullptr);
}

TEST_F(GraphTest, OneRangeForAll) {
    graph_.NormalizeRanges(); // of nothing
    GTSeries& first = add(10);
    GTSeries& second = add(25);
    second.AddDataValue(-3, 5);
    graph_.NormalizeRanges();
    for (GTSeries* series : {&first, &second}) {
        EXPECT_EQ(series->XMin(), -3);
        EXPECT_EQ(series->XMax(), 10);
        EXPECT_EQ(series->YMin(), 0);
        EXPECT_EQ(series->YAxis().maximum(), 25);
    }
    first.AddDataValue(1, 1);
    EXPECT_EQ(first.YMax(), 10) << "a point added later needs another call";
}

TEST_F(GraphTest, LabelPlaces) {
    GTLabel label(1.5, -2, "x");
    EXPECT_EQ(label.x(), 1.5);
    EXPECT_EQ(label.y(), -2);
    label.x(1.5);
    label.y(-2);
    EXPECT_EQ(label.x(), 1);
    EXPECT_EQ(label.y(), 0);
}

TEST(GeneralPurpose, ScaleAndTruncation) {
    EXPECT_EQ(GTGeneralPurpose::GTResolutionScaleFactor(72), 1.0);
    EXPECT_DOUBLE_EQ(GTGeneralPurpose::GTResolutionScaleFactor(300), 300.0 / 72);
    for (const auto& [value, want] : {std::pair(2.9, 2),
                                      {-2.9, -2},
                                      {1e300, 2147483647},
                                      {-1e300, -2147483648},
                                      {infinite, 2147483647},
                                      {notANumber, 0}})
        EXPECT_EQ(truncated(value), want) << value;
    for (const auto& [value, want] : {std::pair(6.9999999999, 7),
                                      {7.0000000001, 7},
                                      {6.9, 6},
                                      {-5.0, -5},
                                      {-5.0000000001, -5},
                                      {-4.9999999999, -5},
                                      {-5.9, -5},
                                      {infinite, 2147483647}})
        EXPECT_EQ(truncatedPlace(value), want) << value;
    GTGeneralPurpose::GTDayNames = {"Monday"};
    GTGeneralPurpose::GTResetDateNames();
    GTGeneralPurpose::GTResetDateNames();
    EXPECT_TRUE(GTGeneralPurpose::GTDayNames.empty());
}

} // namespace

} // namespace tallyvane
