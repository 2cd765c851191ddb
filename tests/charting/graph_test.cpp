#include "charting/gt_graph.h"

#include <gtest/gtest.h>

#include <climits>

#include "charting/gt_general_purpose.h"
#include "charting/truncated.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;
using Calls = std::vector<GraphicsRecorder::Call>;

class GraphTest : public ::testing::Test {
protected:
    GTSeries& add(double highest = 10) {
        const auto series = std::make_shared<GTSeries>(GTSeries::line);
        series->AddDataValue(0, 0);
        series->AddDataValue(10, highest);
        graph_.addSeries(series);
        return *series;
    }
    const Calls& callsOn(int width, int height) {
        recorder_ = std::make_unique<GraphicsRecorder>(width, height);
        graph_.Draw(*recorder_);
        return recorder_->calls();
    }
    GTGraph graph_;
    std::unique_ptr<GraphicsRecorder> recorder_;
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
    const Calls& calls = callsOn(260, 173);
    // The title's band: 1 + 12 + 4 + 5 = 22. The plot: 260 - 3 - 43 - 6 wide, at 46; 173 - 22 - 2 - 31 high, at 22.
    const std::size_t rows = 22 + 118 - 15 + 1;
    EXPECT_EQ(calls[0].numbers, (std::vector<double>{46, 140, 254, 140}));
    EXPECT_EQ(calls[rows - 1].numbers, (std::vector<double>{46, 15, 254, 15}));
    const auto look = [](const GraphicsRecorder::Call& text) {
        return std::tuple(text.color, text.font, text.textSize);
    };
    EXPECT_EQ(look(calls[rows]), std::tuple(0x112233U, FontName("Verdana"), 12));
    EXPECT_EQ(look(calls.back()), std::tuple(0x445566U, FontName("Arial"), 9));
    const Lines lines = drawn(*recorder_); // first the backdrop, many lines of the same ends
    EXPECT_EQ(lines[rows], "text 141 29 'Day'") << "in the middle of the plot, 20 below the top whatever the margins";
    EXPECT_EQ(lines[rows + 1], "picture 46 22");
    EXPECT_EQ(only("line 46 140", lines)[1], "line 46 140 254 140") << "the X axis";
    // From the room of the axes alone, which is 43 at the left and nothing at the top: 43 + 208 / 2, 118 / 4.
    EXPECT_EQ(lines.back(), "text 147 29.5 'here'");
}

TEST_F(GraphTest, TheBackdropFadesByRows) {
    add();
    const Calls& calls = callsOn(243, 131); // a plot of 200 x 100 at 43, 0
    EXPECT_EQ(calls[0].color, RGB(216, 224, 255)) << "row 100, a = 1";
    EXPECT_EQ(calls[100 - 50].color, RGB(194, 200, 255)) << "half and half: 194.5, 200";
    EXPECT_EQ(calls[100 - 15].color, RGB(179, 183, 255)) << "216 x .15 + 173 x .85 = 179.45; 183.2";

    graph_.marginTop = 80; // rows far below the plot's height go on by the same slope, up to 255
    const GraphicsRecorder::Call& lowest = callsOn(243, 131)[0];
    EXPECT_EQ(std::pair(lowest.numbers[1], lowest.color), std::pair(100.0, RGB(255, 255, 255))) << "a = 5";
}

TEST_F(GraphTest, TheFirstSeriesKeepsRoomForTheAxes) {
    GTSeries* both[] = {&add(), &add()};
    for (const bool far : {false, true}) {
        for (GTSeries* series : both) {
            series->XAxis().top(far);
            series->YAxis().right(far);
        }
        callsOn(300, 200);
        EXPECT_EQ(only("picture", drawn(*recorder_))[0], far ? "picture 0 31" : "picture 43 0");
    }
}

TEST_F(GraphTest, ASurfaceThatIsTooSmallStaysAsItIs) {
    add();
    EXPECT_TRUE(callsOn(300, 31).empty());
    EXPECT_TRUE(callsOn(43, 300).empty());
    EXPECT_FALSE(callsOn(44, 32).empty());
}

TEST_F(GraphTest, APrintedGraphLeavesThePageBelowFree) {
    add();
    graph_.isPrintingOn = [] { return true; };
    EXPECT_EQ(callsOn(600, 800)[0].numbers[1], 450 - 31) << "the bottom of the plot";
}

TEST_F(GraphTest, WithoutSeriesThereIsABackdropAndATitle) {
    graph_.text("Day");
    graph_.titleVisible = true;
    GTGeneralPurpose::GTDayNames = {"Monday"};
    callsOn(100, 60);
    EXPECT_EQ(drawn(*recorder_).size(), 46 + 1U);
    EXPECT_EQ(drawn(*recorder_).back(), "text 41 29 'Day'");
    EXPECT_TRUE(GTGeneralPurpose::GTDayNames.empty());
}

TEST_F(GraphTest, ResolutionReachesEverything) {
    GTSeries& series = add();
    const auto point = std::make_shared<GTDataPoint>(5, 5);
    series.AddDataPoint(point);
    const auto label = std::make_shared<GTLabel>(0, 0, "x");
    graph_.addLabel(label);
    graph_.Resolution(300);
    for (const int resolution : {series.Resolution(), series.XAxis().Resolution(), series.YAxis().Resolution(),
                                 point->Resolution(), label->Resolution()})
        EXPECT_EQ(resolution, 300);
    GTSeries& late = add();
    EXPECT_EQ(late.Resolution(), 72);
    EXPECT_EQ(callsOn(2000, 1000).back().textSize, 50) << "12 points";
    EXPECT_EQ(late.Resolution(), 300) << "drawing hands it on";
}

TEST_F(GraphTest, TitleMeasures) {
    graph_.text("Days");
    graph_.textSize(10);
    graph_.titleTopMargin(3);
    EXPECT_EQ(graph_.measureMyTitleHeight(), 0) << "an invisible title";
    EXPECT_EQ(graph_.measureMyTitleWidth(), 20);
    graph_.titleVisible = true;
    graph_.titleBottomMargin(1);
    graph_.Resolution(300); // 41.67 cut, then 41 + 12.5 cut, then 53 + 4.17 cut
    EXPECT_EQ(graph_.measureMyTitleHeight(), 57);
}

TEST_F(GraphTest, SeriesByPlaceAndByName) {
    GTSeries& first = add();
    GTSeries& second = add();
    first.Name("a");
    second.Name("a");
    EXPECT_EQ(graph_.Series("a").get(), &first);
    EXPECT_EQ(graph_.Series("nothing"), nullptr);
    EXPECT_EQ(graph_.Series(1).get(), &second);
    EXPECT_EQ(graph_.Series(2), nullptr);
    EXPECT_EQ(graph_.Series(-1), nullptr);
}

TEST_F(GraphTest, NullIsNotAdded) {
    graph_.addSeries(nullptr);
    graph_.addLabel(nullptr);
    GTSeries series(GTSeries::line);
    series.AddDataPoint(nullptr);
    EXPECT_EQ(graph_.count(), 0);
    EXPECT_EQ(series.Count(), 0);
    GraphicsRecorder g(400, 300);
    graph_.Draw(g);
    EXPECT_FALSE(g.calls().empty());
}

TEST_F(GraphTest, OneRangeForAll) {
    graph_.NormalizeRanges(); // of nothing
    GTSeries& first = add(10);
    GTSeries& second = add(25);
    second.AddDataValue(-3, 5);
    graph_.NormalizeRanges();
    for (GTSeries* series : {&first, &second}) {
        EXPECT_EQ(std::pair(series->XMin(), series->XMax()), std::pair(-3.0, 10.0));
        EXPECT_EQ(std::pair(series->YMin(), series->YAxis().maximum()), std::pair(0.0, 25.0));
    }
    first.AddDataValue(1, 1);
    EXPECT_EQ(first.YMax(), 10) << "a point added later needs another call";
}

TEST(Label, APlaceIsHeldInsideUnlessItIsGivenAtTheStart) {
    GTLabel label(1.5, -2, "x");
    EXPECT_EQ(std::pair(label.x(), label.y()), std::pair(1.5, -2.0));
    label.x(1.5);
    label.y(-2);
    EXPECT_EQ(std::pair(label.x(), label.y()), std::pair(1.0, 0.0));
}

TEST(Truncation, CutsTowardsZeroAndForgivesTheRoundingOfSteps) {
    for (const auto& [value, want] :
         {std::pair(2.9, 2), {-2.9, -2}, {1e300, 100'000'000}, {-1e300, -100'000'000}, {notANumber, 0}})
        EXPECT_EQ(truncated(value), want) << value;
    const std::pair<double, int> places[] = {{6.9999999999, 7},      {7.0000000001, 7},   {6.9, 6},
                                             {-5.0000000001, -5},    {-4.9999999999, -5}, {-5.9, -5},
                                             {infinite, 100'000'000}};
    for (const auto& [value, want] : places)
        EXPECT_EQ(truncatedSteps(value), want) << value;
}

} // namespace

} // namespace tallyvane
