#include "graphwindow/day_graph.h"

#include "platform/base/translation.h"
#include "settings/globals.h"

namespace tallyvane::DayGraph {

namespace {

constexpr std::size_t averages = 0; // among the periods
constexpr std::size_t beforeBreakfast = 1;

std::unique_ptr<GTGraph> emptyGraph() {
    auto graph = std::make_unique<GTGraph>();
    graph->isPrintingOn = [] { return Globals::gPrintingOn; };
    graph->text(tr("Tallyvane\u00ae Graph"));
    graph->textColor = RGB(0, 0, 255);
    graph->textFont = "Verdana";
    graph->textSize(14);
    graph->titleVisible = true;
    graph->hasBackColor = true;
    graph->backColor = RGB(212, 217, 255);
    return graph;
}

std::shared_ptr<GTSeries> newLine(Color color) {
    auto series = std::make_shared<GTSeries>(GTSeries::line);
    series->PenColor(color);
    series->PlotSymbol(GTSeries::filledCircle);
    series->PlotSymbolSize(5);
    return series;
}

/// The top of the readings' axis.
double yMax(const SelectedDays& days) { return days.highestReading() * 1.15; }

/// A title with the days, and a tick at every one; the places on it stand for nothing else.
void setUpDayAxis(GTAxis& axis, const SelectedDays& days) {
    axis.text(tr("Date Range: %1 - %2", {days.firstDate(), days.lastDate()}));
    axis.tickIncrement(1);
    axis.tickLabelsVisible(false);
}

void setUpAverages(GTSeries& series, const SelectedDays& days) {
    series.PenSize(2);
    setUpDayAxis(series.XAxis(), days);
    series.YAxis().text(tr("Meter Reading"));
}

/// Hides ticks and labels, but for the X axis of the series whose days are numbered.
void setUpBareAxes(GTSeries& series, bool daysAreNumbered) {
    series.XAxis().tickLabelsVisible(daysAreNumbered);
    series.XAxis().ticksVisible = daysAreNumbered;
    series.YAxis().tickLabelsVisible(false);
    series.YAxis().ticksVisible = false;
}

} // namespace

std::unique_ptr<GTGraph> makeReadingsGraph(const SelectedDays& days, const Shown& shown) {
    std::unique_ptr<GTGraph> graph = emptyGraph();
    const double top = yMax(days);
    for (std::size_t i = 0; i < periods.size(); ++i) {
        if (!shown[i] && i != averages)
            continue;
        const std::shared_ptr<GTSeries> series = newLine(periods[i].color);
        if (shown[i] && i <= beforeBreakfast)
            days.addCounted(*series, periods[i].column);
        else if (shown[i])
            days.addByRow(*series, periods[i].column);
        if (i == averages)
            setUpAverages(*series, days);
        else
            setUpBareAxes(*series, i == beforeBreakfast);
        series->SetYRange(0, top);
        graph->addSeries(series);
    }
    return graph;
}

std::unique_ptr<GTGraph> makeWeightGraph(const SelectedDays& days) {
    constexpr double initialLowest = 1000; // where the search for the lowest weight begins
    constexpr double margin = 2;
    std::unique_ptr<GTGraph> graph = emptyGraph();
    const std::shared_ptr<GTSeries> series = newLine(RGB(0, 0, 0));
    days.addByRow(*series, DayTable::weightColumn);
    const Extent weights = days.widened({initialLowest, yMax(days)}, DayTable::weightColumn);
    setUpDayAxis(series->XAxis(), days);
    series->YAxis().text(tr("Weight"));
    series->SetYRange(weights.low - margin, weights.high + margin);
    graph->addSeries(series);
    return graph;
}

void draw(GTGraph& graph, Graphics& g) {
    graph.marginBottom = 0;
    if (const int height = graph.plotHeight(g); height >= GTAxis::automaticStep)
        graph.marginBottom = height % GTAxis::automaticStep;
    graph.Draw(g);
}

} // namespace tallyvane::DayGraph
