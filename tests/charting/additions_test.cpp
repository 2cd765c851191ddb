/// What a chart can have besides, and has not unless it is asked for: bands, marks, hatching, boxes, round ticks,
/// points that are found by their place.
#include <gtest/gtest.h>

#include <cmath>

#include "charting/gt_graph.h"
#include "charting/round_ticks.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;

TEST(ChartAdditions, RoundTicksHoldTheExtentAtRoundMultiples) {
    const struct {
        Extent extent;
        int mostSteps;
        RoundTicks want;
    } cases[] = {
        {{0, 383}, 5, {{0, 400}, 100}},  {{2.9, 16.4}, 8, {{2, 18}, 2}},
        {{0, 21}, 10, {{0, 22.5}, 2.5}}, {{5, 5}, 4, {{5, 6.5}, 0.5}},
        {{-3, 4}, 4, {{-4, 4}, 2}},      {{0, 1e-9}, 5, {{0, 1e-9}, 2e-10}},
        {{0, 180}, 4, {{0, 200}, 50}},   {{1e17, 1e17}, 4, {{1e17, 1.3e17}, 1e16}},
        {{0, 1e308}, 4, {{0, 1}, 1}},    {{NAN, NAN}, 4, {{0, 1}, 1}},
    };
    for (const auto& [extent, mostSteps, want] : cases) {
        SCOPED_TRACE(extent.high);
        const RoundTicks got = roundTicks(extent, mostSteps);
        EXPECT_NEAR(got.increment, want.increment, want.increment * 1e-9);
        EXPECT_NEAR(got.range.low, want.range.low, want.increment * 1e-9);
        EXPECT_NEAR(got.range.high, want.range.high, want.increment * 1e-9);
    }
}

std::shared_ptr<GTSeries> bare(int type) {
    auto series = std::make_shared<GTSeries>(type);
    series->XAxis().visible(false);
    series->YAxis().visible(false);
    return series;
}

Lines drawingOf(GTGraph& graph, double width, double height) {
    GraphicsRecorder g(width, height);
    graph.Draw(g);
    return drawn(g);
}

TEST(ChartAdditions, ABandLiesBehindTheSeriesBetweenItsValues) {
    GTGraph graph;
    graph.backdropVisible = false;
    const auto series = bare(GTSeries::scatter);
    series->AddDataValue(0, 0);
    series->SetXRange(0, 10);
    series->SetYRange(0, 100);
    graph.addSeries(series);
    graph.addBand({20, 60, RGB(1, 2, 3)});
    graph.addBand({90, 200, RGB(1, 2, 3)}); // cut off at the plot
    graph.addBand({50, 50, RGB(1, 2, 3)});
    graph.addBand({300, 300, RGB(1, 2, 3)}); // out of it
    const Lines lines = drawingOf(graph, 6, 200);
    EXPECT_EQ(lines, (Lines{"fill 0 80 6 80", "fill 0 0 6 20", "fill 0 100 1 1", "fill 3 100 1 1", "picture 0 0"}));
}

TEST(ChartAdditions, PointsAreFoundByTheirPlace) {
    GTGraph graph;
    graph.marginLeft = 20;
    const auto first = bare(GTSeries::scatter);
    const auto second = bare(GTSeries::line);
    for (const auto& series : {first, second}) {
        series->AddDataValue(0, 0);
        series->AddDataValue(10, series == first ? 10 : 4);
        series->AddDataValue(NAN, 3);
        series->SetXRange(0, 10);
        series->SetYRange(0, 10);
        graph.addSeries(series);
    }
    EXPECT_FALSE(graph.pointAt(120, 0, 5)) << "nothing was drawn yet";
    static_cast<void>(drawingOf(graph, 120, 100));
    const auto hit = [&](double x, double y) {
        const auto found = graph.pointAt(x, y, 5);
        return found ? std::pair(found->series, found->point) : std::pair(-1, -1);
    };
    EXPECT_EQ(hit(117, 4), std::pair(0, 1));
    EXPECT_EQ(hit(119, 58), std::pair(1, 1));
    EXPECT_EQ(hit(22, 98), std::pair(1, 0)) << "of two at one place the one on top";
    EXPECT_EQ(hit(70, 50), std::pair(-1, -1));
}

TEST(ChartAdditions, BoxesShowFiveFigures) {
    GTSeries series(GTSeries::box);
    auto point = std::make_shared<GTDataPoint>(1, 10);
    for (const double value : {20, 30, 50, 90})
        point->extraYValue(value);
    series.AddDataPoint(point);
    series.AddDataValue(2, 40); // no box
    series.SetXRange(0, 2);
    series.SetYRange(0, 100);
    series.boxWidth = 20;
    GraphicsRecorder g(200, 100);
    series.renderBoxes(g, 0, 0, 200, 100);
    EXPECT_EQ(drawn(g), (Lines{"line 100 10 100 90", "fill 90 50 20 30", "rect 90 50 20 30", "line 90 69 110 69"}));
}

TEST(ChartAdditions, HatchingStaysWithinItsPiece) {
    for (const auto lines : {GTHatching::Lines::rising, GTHatching::Lines::falling, GTHatching::Lines::crossed}) {
        GraphicsRecorder g(100, 100);
        renderHatching(g, {lines, RGB(0, 0, 0)}, 10, 20, 33, 12, 5);
        ASSERT_GE(g.calls().size(), 8U);
        for (const auto& call : g.calls()) {
            const auto& n = call.numbers;
            EXPECT_TRUE(std::min(n[0], n[2]) >= 10 && std::max(n[0], n[2]) <= 43);
            EXPECT_TRUE(std::min(n[1], n[3]) >= 20 && std::max(n[1], n[3]) <= 32);
            EXPECT_DOUBLE_EQ(std::abs(n[2] - n[0]), std::abs(n[3] - n[1])) << "at 45 degrees";
        }
    }
}

TEST(ChartAdditions, LabelsCanStandInTheMiddleAndWhole) {
    const auto labels = [](bool asAsked) {
        GTSeries series(GTSeries::scatter);
        series.AddDataValue(0, 0);
        series.SetXRange(0, 10);
        series.SetYRange(0, 10);
        for (GTAxis* axis : {&series.XAxis(), &series.YAxis()}) {
            axis->tickIncrement(10);
            axis->tickLabelFormat("0.0");
        }
        series.XAxis().labelsAreWhole = asAsked;
        series.YAxis().labelsAreCentred = asAsked;
        GraphicsRecorder g(300, 300);
        int used[4] = {};
        series.Render(g, 100, 50, used[0], used[1], used[2], used[3], 100, 100);
        Lines texts;
        for (const GraphicsRecorder::Call& call : g.calls())
            if (call.operation == "DrawString")
                texts.push_back(call.text + " " + std::to_string(static_cast<int>(call.numbers[1])));
        return texts;
    };
    const Lines usual = labels(false);
    const Lines asAsked = labels(true);
    ASSERT_EQ(usual.size(), 4U);
    ASSERT_EQ(asAsked.size(), 4U);
    EXPECT_EQ(usual[0].substr(0, 2), "0 ");
    EXPECT_EQ(asAsked[0].substr(0, 4), "0.0 ");
    EXPECT_EQ(usual[2], "0.0 150") << "the baseline stands at the value";
    EXPECT_EQ(asAsked[2], "0.0 153") << "the middle does";
}

TEST(ChartAdditions, MarksStandInPlaceOfSymbols) {
    for (const GTMark mark : {GTMark::circle, GTMark::square, GTMark::triangle, GTMark::diamond}) {
        GTSeries series(GTSeries::scatter);
        series.PlotSymbol(GTSeries::filledCircle);
        series.mark = mark;
        series.PlotSymbolSize(8);
        Picture picture(100, 100, 0);
        series.renderSymbol(picture, 30, 40);
        ASSERT_EQ(picture.Objects().Count(), 1U);
        const auto& base =
            std::visit([](const auto& shape) -> const ShapeBase& { return shape; }, picture.Objects().Item(0));
        EXPECT_EQ(base.X, 30);
        EXPECT_EQ(base.Y, 40);
        EXPECT_EQ(std::holds_alternative<FigureShape>(picture.Objects().Item(0)),
                  mark == GTMark::triangle || mark == GTMark::diamond);
    }
}

} // namespace

} // namespace tallyvane
