#include "summary/period_summary.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "diary/day_table.h"

namespace tallyvane::Summary {

namespace {

constexpr double secondsPerDay = 24 * 60 * 60;

Date daysLater(const Date& day, int days) { return Date::ofTotalSeconds(day.TotalSeconds() + days * secondsPerDay); }

int daysOf(const Finding::Period& period) {
    const double seconds = period.second.TotalSeconds() - period.first.TotalSeconds();
    return static_cast<int>(std::lround(seconds / secondsPerDay)) + 1;
}

std::vector<bool> rowsOf(const Listbox& table, bool selectedOnly) {
    std::vector<bool> rows(static_cast<std::size_t>(table.ListCount()), true);
    if (selectedOnly)
        for (int row = 0; row < table.ListCount(); ++row)
            rows[static_cast<std::size_t>(row)] = table.Selected(row);
    return rows;
}

/// The days of these rows that have a date, each once, from the first on.
std::vector<Date> datesOf(const Listbox& table, const std::vector<bool>& rows) {
    std::vector<double> seconds;
    for (int row = 0; row < table.ListCount(); ++row)
        if (rows[static_cast<std::size_t>(row)])
            if (const std::optional<Date> day = dayOf(table, row))
                seconds.push_back(day->TotalSeconds());
    std::sort(seconds.begin(), seconds.end());
    seconds.erase(std::unique(seconds.begin(), seconds.end()), seconds.end());
    std::vector<Date> days;
    days.reserve(seconds.size());
    std::transform(seconds.begin(), seconds.end(), std::back_inserter(days), Date::ofTotalSeconds);
    return days;
}

std::optional<Finding::Period> calendarDays(Span span, const Date& today) {
    switch (span) {
    case Span::last7:
        return Finding::lastDays(7, today);
    case Span::last14:
        return Finding::lastDays(14, today);
    case Span::last30:
        return Finding::lastDays(30, today);
    case Span::last90:
        return Finding::lastDays(90, today);
    case Span::thisMonth:
        return Finding::monthOf(today);
    case Span::lastMonth:
        return Finding::monthBefore(today);
    case Span::thisYear:
        return Finding::Period(Date(today.Year(), 1, 1), Date(today.Year(), 12, 31));
    case Span::all:
    case Span::selected:
        break;
    }
    return std::nullopt;
}

bool isSameDay(const Reading& a, const Reading& b) { return a.day ? a.day == b.day : a.row == b.row; }

Sample sampleOf(const std::vector<Reading>& readings, int testPeriod) {
    Sample sample;
    sample.figures = figuresOf(valuesOf(readings, testPeriod));
    const Reading* last = nullptr;
    for (const Reading& reading : readings) {
        if (testPeriod != 0 && reading.testPeriod != testPeriod)
            continue;
        sample.days += last != nullptr && isSameDay(*last, reading) ? 0 : 1;
        last = &reading;
        if (const auto range = Ranges::of(reading.value))
            ++sample.inRange[static_cast<std::size_t>(*range)];
        if (!sample.lowest || reading.value < sample.lowest->value)
            sample.lowest = reading;
        if (!sample.highest || reading.value > sample.highest->value)
            sample.highest = reading;
    }
    return sample;
}

Spread spreadOf(const PeriodSummary& summary) {
    Spread spread{summary.dayCount, summary.all().days, {}};
    for (std::size_t i = 0; i < spread.readings.size(); ++i)
        spread.readings[i] = summary.samples[i + 1].figures.count;
    return spread;
}

int countIn(const Sample& sample, Ranges::Range range) { return sample.inRange[static_cast<std::size_t>(range)]; }

} // namespace

int Sample::above() const { return countIn(*this, Ranges::Range::over) + countIn(*this, Ranges::Range::caution); }
int Sample::below() const { return countIn(*this, Ranges::Range::low) + countIn(*this, Ranges::Range::under); }
int Sample::within() const { return countIn(*this, Ranges::Range::inZone); }

bool PeriodSummary::isOfOtherUnit() const {
    constexpr double highest = 35; // mmol/L
    constexpr double lowest = 20; // mg/dL
    const Figures& figures = all().figures;
    return figures.count > 0 && (unit == Unit::mmolPerLitre ? figures.mean > highest : figures.mean < lowest);
}

PeriodSummary summarize(const Listbox& table, Span span, const Date& today) {
    PeriodSummary summary;
    summary.span = span;
    summary.unit = unitOfLimits();
    summary.days = calendarDays(span, today);
    std::vector<bool> rows = rowsOf(table, span == Span::selected);
    if (summary.days) {
        rows = Finding::rowsIn(table, *summary.days);
        summary.dayCount = daysOf(*summary.days);
    } else if (const std::vector<Date> dates = datesOf(table, rows); !dates.empty()) {
        summary.days = Finding::Period(dates.front(), dates.back());
        summary.dayCount = span == Span::selected ? static_cast<int>(dates.size()) : daysOf(*summary.days);
    }
    for (int row = 0; row < table.ListCount(); ++row)
        if (rows[static_cast<std::size_t>(row)])
            summary.rows.push_back(row);
    summary.readings = readingsOf(table, rows);
    for (int testPeriod = 0; testPeriod <= testPeriods; ++testPeriod)
        summary.samples[static_cast<std::size_t>(testPeriod)] = sampleOf(summary.readings.readings, testPeriod);
    if (span != Span::all && summary.days) {
        const int length = daysOf(*summary.days);
        const Finding::Period before(daysLater(summary.days->first, -length), daysLater(summary.days->first, -1));
        const Sample sample = sampleOf(readingsOf(table, Finding::rowsIn(table, before)).readings, 0);
        summary.before = sample.figures.count > 0 ? std::optional(sample) : std::nullopt;
    }
    if (isEnoughForA1c(spreadOf(summary)) && !summary.isOfOtherUnit())
        summary.a1c = a1cOfMean(inMgPerDecilitre(summary.all().figures.mean, summary.unit));
    return summary;
}

} // namespace tallyvane::Summary
