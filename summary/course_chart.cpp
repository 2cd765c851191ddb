#include "summary/course_chart.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "platform/base/translation.h"
#include "platform/drawing/wrapped_text.h"

namespace tallyvane::Summary {

namespace {

constexpr double halfADay = 12 * 60 * 60; // seconds
constexpr int daysOfWeek = 7;
constexpr int daysOfMedian = 7;
constexpr int markSize = 6; // points
constexpr int smallMark = 4;
constexpr int manyReadings = 150;
constexpr double legendLine = 16;
constexpr double toText = 8; // from the middle of a mark to its name

/// Days a week or some weeks apart, up to the last.
std::vector<Tick> weekTicks(const Finding::Period& period, int weeks) {
    std::vector<Tick> ticks;
    for (int back = 0; back <= daysBetween(period.first, period.second); back += daysOfWeek * weeks) {
        const Date day = daysAfter(period.second, -back);
        ticks.emplace_back(day.TotalSeconds(), day.MonthAndDay());
    }
    return ticks;
}

/// The first days of months, some months apart.
std::vector<Tick> monthTicks(const Finding::Period& period, int months) {
    std::vector<Tick> ticks;
    const auto monthOf = [](int count) { return Date(count / 12, count % 12 + 1, 1); };
    const int first = period.first.Year() * 12 + period.first.Month() - 1;
    for (int count = (first + months - 1) / months * months;
         monthOf(count).TotalSeconds() <= period.second.TotalSeconds(); count += months)
        if (const Date day = monthOf(count); day.TotalSeconds() >= period.first.TotalSeconds())
            ticks.emplace_back(day.TotalSeconds(), day.isoDate().substr(0, 7));
    return ticks;
}

std::vector<Tick> dateTicks(const Finding::Period& period) {
    constexpr int most = 7;
    constexpr int daysByWeeks = 120;
    const int days = daysBetween(period.first, period.second) + 1;
    if (days <= daysByWeeks)
        return weekTicks(period, days / (daysOfWeek * most) + 1);
    constexpr double daysOfMonth = 30.4;
    const double least = days / daysOfMonth / most;
    int months = 1;
    for (const int round : {1, 2, 3, 6, 12, 24, 60, 120, 600})
        if (months < least)
            months = round;
    return monthTicks(period, months);
}

Extent acrossOf(const Finding::Period& period) {
    return {period.first.TotalSeconds() - halfADay, period.second.TotalSeconds() + halfADay};
}

} // namespace

CourseChart::CourseChart(const PeriodSummary& summary) : names_(summary.names.title) {
    if (!summary.days)
        return;
    graph_ = framedGraph(acrossOf(*summary.days), dateTicks(*summary.days), upTo(summary.all().figures.highest));
    addLimits(*graph_);
    readings_.emplace_back();
    for (int testPeriod = 1; testPeriod <= testPeriods; ++testPeriod)
        if (summary.samples[static_cast<std::size_t>(testPeriod)].figures.count > 0)
            addReadings(summary, testPeriod);
    addMedian(summary);
    alignSeries(*graph_);
    graph_->marginRight = 10;
}

void CourseChart::addReadings(const PeriodSummary& summary, int testPeriod) {
    const PeriodMark look = markOf(testPeriod);
    const auto series = addSeries(*graph_, GTSeries::scatter, look.color);
    series->mark = look.mark;
    series->marksAreHollow = look.isHollow;
    series->PlotSymbolSize(summary.all().figures.count > manyReadings ? smallMark : markSize);
    shown_.push_back(testPeriod);
    readings_.emplace_back();
    for (const Reading& reading : summary.readings.readings)
        if (reading.testPeriod == testPeriod) {
            series->AddDataValue(reading.day->TotalSeconds(), reading.value);
            readings_.back().push_back(reading);
        }
}

/// Where seven days lie behind a day, with some readings: the median of fewer would jump with each of them. The line
/// breaks where a week has none.
void CourseChart::addMedian(const PeriodSummary& summary) {
    constexpr std::ptrdiff_t fewest = 3;
    const std::vector<Reading>& all = summary.readings.readings;
    std::shared_ptr<GTSeries> line;
    std::optional<Date> last; // of the line
    auto from = all.begin();
    for (auto to = all.begin(); to != all.end();) {
        const Date day = *to->day;
        to = std::find_if(to, all.end(), [&](const Reading& reading) { return reading.day != day; });
        while (daysBetween(*from->day, day) >= daysOfMedian)
            ++from;
        if (daysBetween(*all.front().day, day) < daysOfMedian - 1 || to - from < fewest)
            continue;
        if (!last || daysBetween(*last, day) > daysOfMedian) {
            line = addSeries(*graph_, GTSeries::line, medianLine);
            line->PenSize(2);
            line->isPointable = false;
        }
        std::vector<double> values;
        std::transform(from, to, std::back_inserter(values), [](const Reading& reading) { return reading.value; });
        line->AddDataValue(day.TotalSeconds(), medianOf(std::move(values)));
        last = day;
        hasMedian_ = true;
    }
}

void CourseChart::draw(Graphics& g) {
    setChartFont(g);
    if (!graph_ || shown_.empty()) {
        DrawString(g, tr("There are no readings in this period."), 8, 3 * g.TextHeight(), g.Width() - 16);
        return;
    }
    const std::vector<LegendPart> legend = legendOn(g);
    graph_->marginTop = static_cast<int>(legend.back().y + legendLine) + 6;
    graph_->Draw(g);
    for (const LegendPart& part : legend)
        drawLegend(g, part);
}

/// Where the parts of the legend stand: in as many lines as they need.
std::vector<CourseChart::LegendPart> CourseChart::legendOn(const Graphics& g) const {
    constexpr double left = 10;
    constexpr double gap = 14;
    std::vector<LegendPart> legend;
    double x = left;
    double y = 0;
    const auto add = [&](int testPeriod, const std::string& name) {
        const double width = toText + g.StringWidth(name);
        if (x > left && x + width > g.Width()) {
            x = left;
            y += legendLine;
        }
        legend.push_back({testPeriod, name, x, y});
        x += width + gap;
    };
    for (const int testPeriod : shown_)
        add(testPeriod, names_[static_cast<std::size_t>(testPeriod)]);
    add(0, hasMedian_ ? tr("median of 7 days") : "");
    return legend;
}

void CourseChart::drawLegend(Graphics& g, const LegendPart& part) const {
    setChartFont(g);
    const double baseline = part.y + g.TextAscent() + 1;
    const double middle = baseline - halfFigure(g);
    if (part.testPeriod > 0) {
        const PeriodMark look = markOf(part.testPeriod);
        Picture picture(markSize, markSize, 0);
        appendMark(picture.Objects(), look.mark, look.isHollow, look.color, 0, 0, markSize);
        g.DrawPicture(picture, part.x, middle);
    } else if (!part.name.empty()) {
        g.ForeColor(medianLine);
        g.FillRect(part.x - toText / 2, middle - 1, toText, 2);
    }
    g.ForeColor(chartText);
    g.DrawString(part.name, part.x + toText, baseline);
}

std::optional<Reading> CourseChart::readingAt(double x, double y) const {
    constexpr double reach = 8;
    const auto hit = graph_ ? graph_->pointAt(x, y, reach) : std::nullopt;
    if (!hit || static_cast<std::size_t>(hit->series) >= readings_.size())
        return std::nullopt;
    const std::vector<Reading>& readings = readings_[static_cast<std::size_t>(hit->series)];
    const auto point = static_cast<std::size_t>(hit->point);
    return point < readings.size() ? std::optional(readings[point]) : std::nullopt;
}

} // namespace tallyvane::Summary
