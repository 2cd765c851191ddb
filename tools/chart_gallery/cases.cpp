#include "cases.h"

#include <cmath>
#include <functional>

#include "platform/base/date.h"

namespace tallyvane {

namespace {

using Values = std::vector<double>;

const Values breakfast{5.2, 6.1, 5.8, 7.4, 6.6, 5.9, 6.3, 8.1, 7.2, 6.0, 5.7, 6.4, 7.0, 6.8};
const Values supper{7.9, 9.4, 8.2, 10.8, 11.6, 9.1, 8.0, 12.3, 10.1, 8.8, 7.6, 9.9, 10.4, 9.2};
const Values weights{92.4, 92.1, 92.3, 91.8, 91.5, 91.6, 91.2, 90.9, 91.0, 90.6, 90.2, 90.3, 89.9, 89.7};

constexpr Color red = RGB(200, 30, 40);
constexpr Color green = RGB(0, 110, 60);
constexpr Color blue = RGB(20, 80, 170);

class Palette : public GTColorTableProvider {
public:
    Color getColor(int index) override {
        const Color colors[] = {RGB(78, 121, 167), RGB(242, 142, 43), RGB(89, 161, 79), RGB(225, 87, 89),
                                RGB(118, 183, 178)};
        return colors[index % 5];
    }
};

std::unique_ptr<GTGraph> graphTitled(const std::string& title) {
    auto graph = std::make_unique<GTGraph>();
    graph->text(title);
    graph->textSize(14);
    graph->textColor = RGB(0, 0, 128);
    graph->titleVisible = true;
    graph->titleTopMargin(6);
    graph->titleBottomMargin(20);
    graph->marginRight = 12;
    graph->marginBottom = 4;
    graph->marginLeft = 4;
    return graph;
}

GTSeries& add(GTGraph& graph, int type, const Values& values, Color color) {
    const auto series = std::make_shared<GTSeries>(type);
    series->PenColor(color);
    series->PlotSymbol(GTSeries::filledCircle);
    series->PlotSymbolSize(5);
    for (std::size_t i = 0; i < values.size(); ++i)
        series->AddDataValue(static_cast<double>(i), values[i]);
    graph.addSeries(series);
    return *series;
}

/// A graph of one line of readings from 0 up.
std::unique_ptr<GTGraph> lineGraph(const std::string& title, const std::function<void(GTSeries&)>& set) {
    auto graph = graphTitled(title);
    GTSeries& series = add(*graph, GTSeries::line, supper, blue);
    series.SetYRange(0, 15);
    series.XAxis().text("Day");
    series.YAxis().text("Meter Reading");
    series.XAxis().tickIncrement(1);
    series.YAxis().tickIncrement(3);
    set(series);
    return graph;
}

std::unique_ptr<GTGraph> pointGraph(const std::string& title, int type) {
    auto graph = graphTitled(title);
    add(*graph, type, supper, red);
    add(*graph, type, breakfast, green);
    for (int i = 0; i < 2; ++i) {
        graph->Series(i)->SetYRange(0, 15);
        graph->Series(i)->XAxis().tickIncrement(1);
        graph->Series(i)->YAxis().tickIncrement(3);
        graph->Series(i)->PlotSymbol(i == 0 ? GTSeries::filledSquare : GTSeries::hollowCircle);
    }
    graph->Series(1)->XAxis().visible(false);
    graph->Series(1)->YAxis().visible(false);
    return graph;
}

/// Three values for each of four weeks, as columns or as bars. The first week, 0, is empty and so takes the range
/// down to 0; the largest value, 40, and the largest sum, 50, are multiples of the increment, so that labels stand at
/// their values.
std::unique_ptr<GTGraph> pieceGraph(const std::string& title, int type) {
    const std::vector<Values> weeks{{0, 0, 0}, {12, 30, 8}, {9, 34, 5}, {15, 22, 10}, {6, 40, 4}};
    const bool bars = type >= GTSeries::totalBar;
    auto graph = graphTitled(title);
    const auto series = std::make_shared<GTSeries>(type);
    series->colorTable(std::make_shared<Palette>());
    series->dataLabelsVisible = true;
    for (std::size_t week = 0; week < weeks.size(); ++week) {
        const auto point = std::make_shared<GTDataPoint>(static_cast<double>(week), weeks[week][0]);
        point->extraYValue(weeks[week][1]);
        point->extraYValue(weeks[week][2]);
        series->AddDataPoint(point);
    }
    const bool percent = type == GTSeries::percentColumn || type == GTSeries::percentBar;
    (bars ? series->XAxis() : series->YAxis()).tickIncrement(percent ? 20 : 10);
    (bars ? series->YAxis() : series->XAxis()).tickIncrement(1);
    if (bars) {
        series->SwapXY();
        series->fixRanges();
        if (type != GTSeries::clusteredBar) // bars lie above their Y value, but hang below it when clustered
            series->SetYRange(0, 5);
    }
    graph->addSeries(series);
    return graph;
}

std::unique_ptr<GTGraph> pieGraph() {
    auto graph = graphTitled("Pie");
    const auto series = std::make_shared<GTSeries>(GTSeries::pie);
    series->colorTable(std::make_shared<Palette>());
    series->dataLabelsVisible = true;
    for (const double value : {30.0, 26.0, 22.0, 14.0, 8.0})
        series->AddDataValue(value, 0);
    series->XAxis().visible(false);
    series->YAxis().visible(false);
    graph->marginTop = 10;
    graph->addSeries(series);
    return graph;
}

std::unique_ptr<GTGraph> stackedAxes() {
    auto graph = graphTitled("Stacked axes");
    graph->marginLeft = 70; // only the first axis has room of its own
    graph->marginBottom = 44;
    const Values* data[] = {&supper, &weights};
    const Color colors[] = {red, blue};
    for (int i = 0; i < 2; ++i) {
        GTSeries& series = add(*graph, GTSeries::line, *data[i], colors[i]);
        series.SetYRange(i == 0 ? 7 : 89, i == 0 ? 13 : 93);
        series.YAxis().text(i == 0 ? "Meter Reading" : "Weight");
        series.XAxis().text(i == 0 ? "Day" : "Day again");
        for (GTAxis* axis : {&series.XAxis(), &series.YAxis()}) {
            axis->textColor = colors[i];
            axis->textSize(10);
            axis->tickIncrement(1);
        }
    }
    return graph;
}

class Weekday : public GTCustomTickFormatter {
public:
    std::string format(double value) override {
        const char* days[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
        return days[static_cast<int>(std::lround(value)) % 7];
    }
};

std::unique_ptr<GTGraph> dates() {
    auto graph = graphTitled("Dates");
    const auto series = std::make_shared<GTSeries>(GTSeries::line);
    series->PenColor(blue);
    const double first = Date(2026, 11, 1).TotalSeconds();
    constexpr double day = 86400;
    constexpr std::size_t days = 13; // three steps of four days from the first to the last
    for (std::size_t i = 0; i < days; ++i)
        series->AddDataValue(first + day * static_cast<double>(i), supper[i]);
    series->XAxis().tickType(GTAxis::shortDate);
    series->XAxis().tickIncrement(4 * day);
    series->XAxis().skipLastTickLabel = true;
    series->SetYRange(7, 13);
    series->YAxis().tickIncrement(1);
    graph->addSeries(series);
    return graph;
}

std::unique_ptr<GTGraph> percents() {
    auto graph = graphTitled("Percent");
    GTSeries& series = add(*graph, GTSeries::line, {0.52, 0.58, 0.61, 0.55, 0.7, 0.74, 0.69, 0.8, 0.83}, green);
    series.SetYRange(0, 1);
    series.YAxis().tickType(GTAxis::percent);
    series.YAxis().tickIncrement(0.25);
    series.XAxis().tickIncrement(1);
    series.YAxis().text("In zone");
    return graph;
}

std::unique_ptr<GTGraph> dataLabels() {
    auto graph = lineGraph("Data labels", [](GTSeries& series) { series.dataLabelsVisible = true; });
    for (const int i : {3, 7, 12}) {
        const auto point = std::make_shared<GTDataPoint>(i, supper[static_cast<std::size_t>(i)]);
        point->text = i == 7 ? "highest" : "high";
        point->textColor = red;
        graph->Series(0)->AddDataPoint(point);
    }
    graph->Series(0)->Type(GTSeries::scatter);
    graph->Series(0)->SetYRange(0, 15);
    return graph;
}

std::unique_ptr<GTGraph> freeLabels() {
    auto graph = lineGraph("Free labels", [](GTSeries&) {});
    const auto label = std::make_shared<GTLabel>(0.05, 0.9, "a note on the plot");
    label->textColor = red;
    graph->addLabel(label);
    graph->addLabel(std::make_shared<GTLabel>(0.6, 0.25, "and another"));
    return graph;
}

void addAxisCases(std::vector<GalleryCase>& cases) {
    const auto axes = [&](const char* name, const char* title, const std::function<void(GTSeries&)>& set) {
        cases.push_back({name, lineGraph(title, set)});
    };
    axes("axis_left_bottom", "Left and bottom", [](GTSeries&) {});
    axes("axis_automatic", "Automatic ticks", [](GTSeries& s) { s.YAxis().clearTickIncrement(); });
    axes("axis_right", "Right", [](GTSeries& s) { s.YAxis().right(true); });
    axes("axis_top", "Top", [](GTSeries& s) { s.XAxis().top(true); });
    cases.push_back({"axis_stacked", stackedAxes()});
    axes("axis_vertical_text", "Vertical titles and labels", [](GTSeries& s) {
        s.XAxis().tickLabelsVertical(true);
        s.XAxis().verticalTitle(true);
        s.YAxis().tickLabelsVertical(true);
    });
    axes("axis_vertical_text_far", "Vertical titles and labels, top and right", [](GTSeries& s) {
        s.XAxis().top(true);
        s.YAxis().right(true);
        s.XAxis().tickLabelsVertical(true);
        s.YAxis().tickLabelsVertical(true);
    });
    axes("axis_horizontal_titles", "Horizontal titles", [](GTSeries& s) {
        s.YAxis().text("mmol/L");
        s.YAxis().horizontalTitle(true);
    });
    axes("axis_grids", "Grids", [](GTSeries& s) {
        s.XGridVisible(true);
        s.YGridVisible(true);
        s.GridPenColor(RGB(150, 150, 200));
        s.YAxis().tickIncrement(1.5);
    });
    axes("axis_base_lines", "Base lines", [](GTSeries& s) {
        s.YGridVisible(true);
        s.YAxis().GridPenColor(RGB(190, 195, 235));
        s.YAxis().baseLine(9);
        s.YAxis().baseLineVisible(true);
        s.YAxis().baseLineColor(red);
        s.YAxis().baseLinePenSize(2);
    });
    axes("axis_values_as_ticks", "Values as ticks", [](GTSeries& s) {
        s.XAxis().ticksAreValues(true);
        s.XGridVisible(true);
        s.GridPenColor(RGB(150, 150, 200));
    });
    axes("axis_custom_formatter", "Custom formatter",
         [](GTSeries& s) { s.XAxis().CustomFormatter(std::make_shared<Weekday>()); });
    cases.push_back({"axis_dates", dates()});
    cases.push_back({"axis_percent", percents()});
    axes("axis_none", "No axes", [](GTSeries& s) {
        s.XAxis().visible(false);
        s.YAxis().visible(false);
    });
}

/// A graph's margins are in dots, all its other sizes in points.
void setResolution(GTGraph& graph, int resolution) {
    graph.Resolution(resolution);
    for (int* margin : {&graph.marginTop, &graph.marginBottom, &graph.marginLeft, &graph.marginRight})
        *margin = *margin * resolution / 72;
}

} // namespace

std::vector<GalleryCase> galleryCases(int resolution) {
    std::vector<GalleryCase> cases;
    cases.push_back({"line", pointGraph("Line", GTSeries::line)});
    cases.push_back({"area", pointGraph("Area", GTSeries::area)});
    cases.push_back({"scatter", pointGraph("Scatter", GTSeries::scatter)});
    cases.push_back({"total_column", pieceGraph("Total column", GTSeries::totalColumn)});
    cases.push_back({"percent_column", pieceGraph("Percent column", GTSeries::percentColumn)});
    cases.push_back({"clustered_column", pieceGraph("Clustered column", GTSeries::clusteredColumn)});
    cases.push_back({"total_bar", pieceGraph("Total bar", GTSeries::totalBar)});
    cases.push_back({"percent_bar", pieceGraph("Percent bar", GTSeries::percentBar)});
    cases.push_back({"clustered_bar", pieceGraph("Clustered bar", GTSeries::clusteredBar)});
    cases.push_back({"pie", pieGraph()});
    addAxisCases(cases);
    cases.push_back({"data_labels", dataLabels()});
    cases.push_back({"free_labels", freeLabels()});
    for (const GalleryCase& chart : cases)
        setResolution(*chart.graph, resolution);
    return cases;
}

} // namespace tallyvane
