#include "summary/charts.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "platform/drawing/wrapped_text.h"
#include "summary/chart_frame.h"
#include "summary/figures_table.h"

namespace tallyvane::Summary {

namespace {

constexpr double lineHeight = 14;
constexpr double axisToLabel = 9;
constexpr Color boxLine = RGB(31, 92, 170);
constexpr Color boxFill = RGB(207, 220, 241);

std::string countText(int count) { return tr("n %1", {Grouped(count)}); }

/// A box of these figures at a place.
void addBox(GTSeries& boxes, double place, const Figures& figures) {
    auto point = std::make_shared<GTDataPoint>(place, figures.lowest);
    for (const double value : {figures.lowerQuartile, figures.median, figures.upperQuartile, figures.highest})
        point->extraYValue(value);
    boxes.AddDataPoint(std::move(point));
}

/// Places 1, 2 and so on, each with its figures.
struct Boxes {
    std::vector<Figures> figures;
    std::vector<std::string> labels;
    RoundTicks up;
};

double acrossAt(const GTGraph& graph, double place, std::size_t count) {
    return graph.plot().left + graph.plot().width * (place - 0.5) / static_cast<double>(count);
}

/// Boxes with the number of values and their median above each.
std::unique_ptr<GTGraph> drawBoxes(const Boxes& boxes, Unit unit, bool hasLimits, int roomBelow, Graphics& g) {
    std::vector<Tick> ticks;
    for (std::size_t i = 0; i < boxes.labels.size(); ++i)
        ticks.emplace_back(static_cast<double>(i + 1), boxes.labels[i]);
    const auto count = static_cast<double>(boxes.figures.size());
    std::unique_ptr<GTGraph> graph = framedGraph({0.5, count + 0.5}, std::move(ticks), boxes.up);
    if (hasLimits)
        addLimits(*graph);
    else
        graph->addBand({0, 0, limitLine});
    const auto series = addSeries(*graph, GTSeries::box, boxLine);
    for (std::size_t i = 0; i < boxes.figures.size(); ++i)
        if (boxes.figures[i].count > 0)
            addBox(*series, static_cast<double>(i + 1), boxes.figures[i]);
    alignSeries(*graph);
    series->boxColor = boxFill;
    series->medianColor = medianLine;
    series->boxWidth = 22;
    graph->marginTop = static_cast<int>(2 * lineHeight);
    graph->marginRight = 12;
    graph->marginBottom = roomBelow;
    setChartFont(g);
    graph->Draw(g);

    setChartFont(g);
    const double room = graph->plot().width / count - 2;
    for (std::size_t i = 0; i < boxes.figures.size(); ++i) {
        const Figures& figures = boxes.figures[i];
        const double x = acrossAt(*graph, static_cast<double>(i + 1), boxes.figures.size());
        setChartFont(g);
        drawCentred(g, fitted(g, countText(figures.count), room), x, lineHeight - 3);
        setChartFont(g, true);
        g.ForeColor(medianLine);
        if (figures.count > 0)
            drawCentred(g, valueText(figures.median, unit), x, 2 * lineHeight - 4);
    }
    setChartFont(g);
    return graph;
}

void drawShareLegend(Graphics& g, double left, double baseline) {
    constexpr double swatch = 12;
    double gap = g.Width() - left;
    for (const Ranges::Range range : Ranges::all)
        gap -= swatch + 4 + g.StringWidth(Ranges::title(range));
    gap = std::min(10.0, gap / static_cast<double>(Ranges::all.size()));
    double x = left;
    for (const Ranges::Range range : rangesUpward) {
        const RangeFill fill = fillOf(range);
        g.ForeColor(fill.color);
        g.FillRect(x, baseline - 8, swatch, 9);
        renderHatching(g, fill.hatching, x, baseline - 8, swatch, 9, 4);
        g.ForeColor(chartText);
        const std::string name = Ranges::title(range);
        g.DrawString(name, x + swatch + 4, baseline);
        x += swatch + 4 + g.StringWidth(name) + gap;
    }
}

/// A text on hatching, which would cross it out.
void drawOnGround(Graphics& g, const std::string& text, double x, double baseline, const RangeFill& fill) {
    const double width = g.StringWidth(text) + 2;
    g.ForeColor(fill.color);
    g.FillRect(x - width / 2, baseline - g.TextAscent() * 0.85, width, g.TextAscent());
    g.ForeColor(fill.text);
    drawCentred(g, text, x, baseline);
}

/// Of the pieces of a bar, from too low, at the left, to too high.
Ranges::Range rangeOfPiece(int piece) { return rangesUpward.at(static_cast<std::size_t>(piece)); }

class RangeColors : public GTColorTableProvider {
public:
    Color getColor(int index) override { return fillOf(rangeOfPiece(index)).color; }
};

constexpr double percent = 100;
constexpr double rowsOfShares = 2.0 * testPeriods; // a bar, and the gap to the next one

void addShares(GTGraph& graph, const PeriodSummary& summary) {
    const auto bars = addSeries(graph, GTSeries::percentBar, RGB(255, 255, 255));
    bars->colorTable(std::make_shared<RangeColors>());
    bars->hatching = [](int index) { return fillOf(rangeOfPiece(index)).hatching; };
    for (int i = 1; i <= testPeriods; ++i) {
        const Sample& sample = summary.samples[static_cast<std::size_t>(i)];
        auto point = std::make_shared<GTDataPoint>(sample.in(rangeOfPiece(0)), 2.0 * (testPeriods - i) + 0.5);
        for (int piece = 1; piece < static_cast<int>(Ranges::all.size()); ++piece)
            point->extraXValue(sample.in(rangeOfPiece(piece)));
        bars->AddDataPoint(std::move(point));
    }
}

/// The shares of one bar, in the pieces that hold a text.
void drawShareTexts(Graphics& g, const Sample& sample, const Rect& plot, double baseline) {
    constexpr double leastForText = 9; // percent
    double before = 0;
    for (const Ranges::Range range : rangesUpward) {
        const int count = sample.in(range);
        const double share = count == 0 ? 0 : percent * count / sample.figures.count;
        if (share >= leastForText)
            drawOnGround(g, percentText(count, sample.figures.count),
                         plot.left + plot.width * (before + share / 2) / percent, baseline, fillOf(range));
        before += share;
    }
}

} // namespace

void drawDay(const PeriodSummary& summary, Graphics& g) {
    const TestPeriodNames& names = summary.names;
    setChartFont(g);
    Boxes boxes;
    boxes.up = upTo(summary.all().figures.highest);
    for (std::size_t i = 1; i <= testPeriods; ++i) {
        boxes.figures.push_back(summary.samples[i].figures);
        boxes.labels.push_back(fitted(g, names.brief[i], g.Width() / (testPeriods + 1)));
    }
    const std::unique_ptr<GTGraph> graph = drawBoxes(boxes, summary.unit, true, static_cast<int>(lineHeight) - 8, g);
    const double baseline = graph->plot().top + graph->plot().height + axisToLabel + 2 * lineHeight - 2;
    for (std::size_t meal = 0; meal < names.meals.size(); ++meal)
        drawCentred(g, fitted(g, names.meals[meal], 2.0 * graph->plot().width / testPeriods),
                    acrossAt(*graph, 2.0 * static_cast<double>(meal) + 1.5, testPeriods), baseline);
}

void drawShares(const PeriodSummary& summary, Graphics& g) {
    const std::vector<Tick> ticks{{0, "0 %"}, {25, "25 %"}, {50, "50 %"}, {75, "75 %"}, {100, "100 %"}};
    setChartFont(g);
    double widest = 0;
    for (std::size_t i = 1; i <= testPeriods; ++i)
        widest = std::max(widest, g.StringWidth(summary.names.title[i]));
    widest = std::min(widest, g.Width() / 3);
    std::unique_ptr<GTGraph> graph = framedGraph({0, percent}, ticks, {{0, rowsOfShares}, 1});
    graph->Series(0)->YAxis().visible(false);
    addShares(*graph, summary);
    alignSeries(*graph);
    graph->marginLeft = static_cast<int>(widest) + 8;
    graph->marginRight = 16;
    graph->marginBottom = static_cast<int>(lineHeight) + 2;
    graph->Draw(g);

    setChartFont(g);
    const Rect& plot = graph->plot();
    for (std::size_t i = 1; i <= testPeriods; ++i) {
        const double middle = plot.top + plot.height * (2.0 * static_cast<double>(i) - 1) / rowsOfShares;
        g.ForeColor(chartText);
        const std::string name = fitted(g, summary.names.title[i], widest);
        g.DrawString(name, plot.left - 6 - g.StringWidth(name), middle + halfFigure(g));
        drawShareTexts(g, summary.samples[i], plot, middle + halfFigure(g));
    }
    drawShareLegend(g, 4, g.Height() - 4);
}

std::vector<double> risesAt(const PeriodSummary& summary, int meal) {
    std::vector<double> rises;
    const Reading* before = nullptr;
    const Reading* after = nullptr;
    const auto endDay = [&] {
        if (before != nullptr && after != nullptr)
            rises.push_back(after->value - before->value);
        before = after = nullptr;
    };
    const Reading* last = nullptr;
    for (const Reading& reading : summary.readings.readings) {
        if (last != nullptr && !isOfOneDay(*last, reading))
            endDay();
        last = &reading;
        if (reading.testPeriod == 2 * meal + 1 && before == nullptr)
            before = &reading;
        if (reading.testPeriod == 2 * meal + 2 && after == nullptr)
            after = &reading;
    }
    endDay();
    return rises;
}

void drawRises(const PeriodSummary& summary, Graphics& g) {
    const TestPeriodNames& names = summary.names;
    Boxes boxes;
    Extent extent{0, 0};
    int rises = 0;
    for (int meal = 0; meal < static_cast<int>(names.meals.size()); ++meal) {
        const Figures& figures = boxes.figures.emplace_back(figuresOf(risesAt(summary, meal)));
        boxes.labels.push_back(names.meals[static_cast<std::size_t>(meal)]);
        extent = {std::min(extent.low, figures.lowest), std::max(extent.high, figures.highest)};
        rises += figures.count;
    }
    if (rises == 0 || !names.areUsual) {
        setChartFont(g);
        DrawString(g,
                   names.areUsual
                       ? tr("No day has readings both before and after a meal.")
                       : tr("Columns have other names: which ones are before and after a meal is not known."),
                   4, 4 * lineHeight, g.Width() - 8);
        return;
    }
    boxes.up = roundTicks(extent, mostTicks);
    static_cast<void>(drawBoxes(boxes, summary.unit, false, 0, g));
}

} // namespace tallyvane::Summary
