#include "summary/period_summary.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "diary/day_table.h"

namespace tallyvane::Summary {

namespace {

/// A typed figure above it is no reading of any meter, in any unit.
constexpr double highestReading = 1500;

int daysOf(const Finding::Period& period) { return daysBetween(period.first, period.second) + 1; }

std::vector<bool> rowsOf(const Listbox& table, bool selectedOnly) {
    std::vector<bool> rows(static_cast<std::size_t>(table.ListCount()), true);
    if (selectedOnly)
        for (int row = 0; row < table.ListCount(); ++row)
            rows[static_cast<std::size_t>(row)] = table.Selected(row);
    return rows;
}

/// The days of the rows that have a date, each once, in their order; as seconds since the first midnight of year 1.
std::vector<double> datesOf(const Listbox& table, const std::vector<bool>& rows) {
    std::vector<double> seconds;
    for (int row = 0; row < table.ListCount(); ++row)
        if (rows[static_cast<std::size_t>(row)])
            if (const std::optional<Date> day = dayOf(table, row))
                seconds.push_back(day->TotalSeconds());
    std::sort(seconds.begin(), seconds.end());
    seconds.erase(std::unique(seconds.begin(), seconds.end()), seconds.end());
    return seconds;
}

/// Nothing for periods that the days of the table make.
std::optional<Finding::Period> periodOf(Span span, const Date& today) {
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
        return Finding::Period(Finding::monthOf(today).first, today);
    case Span::lastMonth:
        return Finding::monthBefore(today);
    case Span::thisYear:
        return Finding::Period(Date(today.Year(), 1, 1), today);
    case Span::all:
    case Span::selected:
        break;
    }
    return std::nullopt;
}

/// Takes readings by day, and makes the sample of them.
class Sampling {
public:
    explicit Sampling(std::size_t count = 0) { values_.reserve(count); }

    void add(const Reading& reading, std::optional<Ranges::Range> range) {
        values_.push_back(reading.value);
        sample_.days += last_ != nullptr && isOfOneDay(*last_, reading) ? 0 : 1;
        last_ = &reading;
        if (range)
            ++sample_.inRange[static_cast<std::size_t>(*range)];
        if (!sample_.lowest || reading.value < sample_.lowest->value)
            sample_.lowest = reading;
        if (!sample_.highest || reading.value > sample_.highest->value)
            sample_.highest = reading;
    }
    Sample finish() {
        sample_.figures = figuresOf(std::move(values_));
        return sample_;
    }

private:
    Sample sample_;
    std::vector<double> values_;
    const Reading* last_ = nullptr;
};

Sample sampleOf(const std::vector<Reading>& readings) {
    Sampling all(readings.size());
    for (const Reading& reading : readings)
        all.add(reading, Ranges::of(reading.value));
    return all.finish();
}

std::array<Sample, testPeriods + 1> samplesOf(const std::vector<Reading>& readings) {
    std::array<Sampling, testPeriods + 1> samplings;
    samplings[0] = Sampling(readings.size());
    for (const Reading& reading : readings) {
        const auto range = Ranges::of(reading.value);
        samplings[0].add(reading, range);
        samplings[static_cast<std::size_t>(reading.testPeriod)].add(reading, range);
    }
    std::array<Sample, testPeriods + 1> samples;
    std::transform(samplings.begin(), samplings.end(), samples.begin(), [](Sampling& s) { return s.finish(); });
    return samples;
}

Spread spreadOf(const PeriodSummary& summary) {
    Spread spread;
    spread.daysOfPeriod = summary.calendarDays();
    spread.daysWithReadings = summary.all().days;
    for (std::size_t i = 0; i < spread.readings.size(); ++i)
        spread.readings[i] = summary.samples[i + 1].figures.count;
    if (!summary.days)
        return spread;
    Date last = daysAfter(summary.days->first, -1);
    const auto note = [&](const Date& day) {
        spread.longestGap = std::max(spread.longestGap, daysBetween(last, day) - 1);
        last = day;
    };
    for (const Reading& reading : summary.readings.readings)
        if (*reading.day != last)
            note(*reading.day);
    note(daysAfter(summary.days->second, 1));
    return spread;
}

bool canBeOf(Unit unit, double value) {
    constexpr double highestMmol = 35;
    constexpr double lowestMg = 20;
    return unit == Unit::mmolPerLitre ? value <= highestMmol : value >= lowestMg;
}

/// Readings come row by row, so that a row that is known is the last one.
void addRow(std::vector<int>& rows, int row) {
    if (rows.empty() || rows.back() != row)
        rows.push_back(row);
}

/// Takes out of the readings those that no meter shows, and notes those that can't be of the unit.
void sift(PeriodSummary& summary) {
    Readings& all = summary.readings;
    std::erase_if(all.readings, [&](const Reading& reading) {
        if (reading.value > highestReading) {
            ++all.unreadable;
            addRow(all.unreadableRows, reading.row);
            return true;
        }
        if (!canBeOf(summary.unit, reading.value)) {
            ++summary.ofOtherUnit;
            addRow(summary.rowsOfOtherUnit, reading.row);
        }
        return false;
    });
}

/// Nothing where there are no readings, or some that are none or of another unit.
std::optional<Sample> sampleBefore(const Listbox& table, const Finding::Period& period, Unit unit) {
    const int length = daysOf(period);
    const Finding::Period before(daysAfter(period.first, -length), daysAfter(period.first, -1));
    const std::vector<Reading> readings = readingsOf(table, Finding::rowsIn(table, before)).readings;
    const bool isSound = std::all_of(readings.begin(), readings.end(), [unit](const Reading& reading) {
        return reading.value <= highestReading && canBeOf(unit, reading.value);
    });
    return !readings.empty() && isSound ? std::optional(sampleOf(readings)) : std::nullopt;
}

/// Takes the rows without a date out of those of the period; those of the whole table that have readings are noted.
void dropUndated(const Listbox& table, std::vector<bool>& rows, PeriodSummary& summary) {
    for (int row = 0; row < table.ListCount(); ++row) {
        if (!table.Cell(row, DayTable::firstKey).empty() || dayOf(table, row))
            continue;
        rows[static_cast<std::size_t>(row)] = false;
        for (int testPeriod = 1; testPeriod <= testPeriods; ++testPeriod)
            if (!table.Cell(row, testPeriod).empty())
                addRow(summary.undatedRows, row);
    }
}

} // namespace

int PeriodSummary::calendarDays() const { return days ? daysOf(*days) : 0; }

int Sample::above() const { return in(Ranges::Range::over) + in(Ranges::Range::caution); }
int Sample::below() const { return in(Ranges::Range::low) + in(Ranges::Range::under); }
int Sample::within() const { return in(Ranges::Range::inZone); }

PeriodSummary summarize(const Listbox& table, Span span, const Date& today) {
    PeriodSummary summary;
    summary.span = span;
    summary.unit = unitOfLimits();
    summary.names = testPeriodNames();
    summary.days = periodOf(span, today);
    std::vector<bool> rows = rowsOf(table, span == Span::selected);
    if (summary.days) {
        rows = Finding::rowsIn(table, *summary.days);
        summary.dayCount = daysOf(*summary.days);
    } else if (const std::vector<double> dates = datesOf(table, rows); !dates.empty()) {
        summary.days = Finding::Period(Date::ofTotalSeconds(dates.front()), Date::ofTotalSeconds(dates.back()));
        summary.dayCount = span == Span::selected ? static_cast<int>(dates.size()) : daysOf(*summary.days);
        summary.isContinuous = summary.dayCount == daysOf(*summary.days);
    }
    dropUndated(table, rows, summary);
    for (int row = 0; row < table.ListCount(); ++row)
        if (rows[static_cast<std::size_t>(row)])
            summary.rows.push_back(row);
    summary.readings = readingsOf(table, rows);
    sift(summary);
    summary.samples = samplesOf(summary.readings.readings);
    if (span != Span::all && summary.days && summary.isContinuous)
        summary.before = sampleBefore(table, *summary.days, summary.unit);
    if (isEnoughForA1c(spreadOf(summary)) && summary.ofOtherUnit == 0)
        summary.a1c = a1cOfMean(inMgPerDecilitre(summary.all().figures.mean, summary.unit));
    return summary;
}

} // namespace tallyvane::Summary
