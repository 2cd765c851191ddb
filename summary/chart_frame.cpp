#include "summary/chart_frame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "platform/base/text.h"
#include "settings/globals.h"

namespace tallyvane::Summary {

namespace {

/// The texts of ticks by their places.
class TickTexts : public GTCustomTickFormatter {
public:
    explicit TickTexts(std::vector<Tick> ticks) : ticks_(std::move(ticks)) {}
    std::string format(double value) override {
        for (const auto& [place, text] : ticks_)
            if (place == value)
                return text;
        return "";
    }

private:
    std::vector<Tick> ticks_;
};

/// The mask for labels that are so far apart.
std::string maskOf(double increment) {
    const auto isWhole = [](double number) { return std::abs(number - std::round(number)) < 1e-6; };
    return isWhole(increment) ? "-0" : isWhole(10 * increment) ? "-0.0" : "-0.00";
}

} // namespace

std::unique_ptr<GTGraph> framedGraph(const Extent& across, std::vector<Tick> ticks, const RoundTicks& up) {
    auto graph = std::make_unique<GTGraph>();
    graph->backdropVisible = false;
    const auto frame = std::make_shared<GTSeries>(GTSeries::scatter);
    for (const auto& [place, text] : ticks)
        frame->AddDataValue(place, up.range.low);
    frame->SetXRange(across.low, across.high);
    frame->SetYRange(up.range.low, up.range.high);
    for (GTAxis* axis : {&frame->XAxis(), &frame->YAxis()}) {
        axis->textSize(chartTextSize);
        axis->textFont = summaryFont;
        axis->textColor = chartText;
    }
    frame->XAxis().ticksAreValues(true);
    frame->XAxis().labelsAreWhole = true;
    frame->XAxis().CustomFormatter(std::make_shared<TickTexts>(std::move(ticks)));
    frame->YAxis().tickIncrement(up.increment);
    frame->YAxis().tickLabelFormat(maskOf(up.increment));
    frame->YAxis().labelsAreCentred = true;
    frame->isPointable = false;
    graph->addSeries(frame);
    return graph;
}

RoundTicks upTo(double highest) { return roundTicks({0, std::max(highest, Globals::gOver)}, mostTicks); }

void addLimits(GTGraph& graph) {
    graph.addBand({Globals::gLow, Globals::gCaution, targetBand});
    for (const double limit : {Globals::gUnder, Globals::gOver})
        graph.addBand({limit, limit, limitLine});
}

std::shared_ptr<GTSeries> addSeries(GTGraph& graph, int type, Color color) {
    auto series = std::make_shared<GTSeries>(type);
    series->PenColor(color);
    series->XAxis().visible(false);
    series->YAxis().visible(false);
    graph.addSeries(series);
    return series;
}

void alignSeries(GTGraph& graph) {
    const GTSeries& frame = *graph.Series(0);
    for (int i = 1; i < graph.count(); ++i) {
        graph.Series(i)->SetXRange(frame.XMin(), frame.XMax());
        graph.Series(i)->SetYRange(frame.YMin(), frame.YMax());
    }
}

PeriodMark markOf(int testPeriod) {
    constexpr std::array<std::pair<GTMark, Color>, 4> meals{{
        {GTMark::circle, RGB(31, 92, 170)},
        {GTMark::square, RGB(168, 88, 0)},
        {GTMark::triangle, RGB(110, 50, 140)},
        {GTMark::diamond, RGB(0, 105, 105)},
    }};
    const auto& [mark, color] = meals.at(static_cast<std::size_t>(testPeriod - 1) / 2);
    return {mark, testPeriod % 2 == 0, color};
}

RangeFill fillOf(Ranges::Range range) {
    using enum GTHatching::Lines;
    constexpr Color white = RGB(255, 255, 255);
    constexpr Color black = RGB(0, 0, 0);
    switch (range) {
    case Ranges::Range::over:
        return {RGB(196, 56, 56), {crossed, RGB(226, 150, 150)}, white};
    case Ranges::Range::caution:
        return {RGB(244, 186, 84), {rising, RGB(255, 225, 170)}, black};
    case Ranges::Range::inZone:
        return {RGB(205, 232, 205), {}, black};
    case Ranges::Range::low:
        return {RGB(140, 178, 226), {falling, RGB(205, 222, 245)}, black};
    case Ranges::Range::under:
        break;
    }
    return {RGB(88, 40, 132), {level, RGB(176, 145, 208)}, white};
}

void setChartFont(Graphics& g, bool isBold) {
    g.TextFont(summaryFont);
    g.TextSize(chartTextSize);
    g.Bold(isBold);
    g.ForeColor(chartText);
}

std::string fitted(const Graphics& g, const std::string& text, double width) {
    if (Len(text) < 2 || g.StringWidth(text) <= width)
        return text;
    int fits = 0;
    for (int step = 64; step > 0; step /= 2) // nobody sees more of it
        while (fits + step < Len(text) && g.StringWidth(Left(text, fits + step) + "...") <= width)
            fits += step;
    return Left(text, fits) + "...";
}

double halfFigure(const Graphics& g) {
    constexpr double partOfAscent = 0.36;
    return g.TextAscent() * partOfAscent;
}

void drawCentred(Graphics& g, const std::string& text, double x, double baseline) {
    g.DrawString(text, x - g.StringWidth(text) / 2, baseline);
}

} // namespace tallyvane::Summary
