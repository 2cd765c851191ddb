/// The readings of a period of the table and their figures. What the window shows, a page says and a file exports.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "diary/finding.h"
#include "settings/ranges.h"
#include "summary/estimated_a1c.h"
#include "summary/figures.h"
#include "summary/readings.h"
#include "summary/test_period_names.h"
#include "summary/unit.h"

namespace tallyvane::Summary {

enum class Span { last7, last14, last30, last90, thisMonth, lastMonth, thisYear, all, selected };

/// The ranges in the order in which they are shown: from too low to too high.
inline constexpr std::array<Ranges::Range, Ranges::all.size()> rangesUpward{
    Ranges::Range::under, Ranges::Range::low, Ranges::Range::inZone, Ranges::Range::caution, Ranges::Range::over};

/// The readings of one test period, or of all.
struct Sample {
    Figures figures;
    int days = 0; // with such readings; rows of one date are one day
    std::array<int, Ranges::all.size()> inRange{}; // how many, in the order of Ranges::all
    std::optional<Reading> lowest; // the first of that value
    std::optional<Reading> highest;

    int in(Ranges::Range range) const { return inRange[static_cast<std::size_t>(range)]; }
    int above() const; // the target zone
    int below() const;
    int within() const;
};

struct PeriodSummary {
    Span span = Span::all;
    Unit unit = Unit::mmolPerLitre;
    TestPeriodNames names;
    /// Nothing where no row has a date.
    std::optional<Finding::Period> days;
    /// Of the calendar; of selected days those that are selected.
    int dayCount = 0;
    /// From the first to the last.
    int calendarDays() const;
    /// Every day from the first to the last belongs to it.
    bool isContinuous = true;
    std::vector<int> rows; // of the table
    Readings readings;
    /// All readings, then those of each test period.
    std::array<Sample, testPeriods + 1> samples;
    /// All readings of the period of the same length before; nothing for all days, for selected ones with days between
    /// them, and where there are none.
    std::optional<Sample> before;
    std::optional<EstimatedA1c> a1c; // nothing where it would say nothing

    /// Readings that can't be of that unit: above 35 mmol/L or below 20 mg/dL, which nobody lives with; and their rows.
    int ofOtherUnit = 0;
    std::vector<int> rowsOfOtherUnit;
    /// Rows of the table with readings and without a date, which are no part of any period.
    std::vector<int> undatedRows;

    /// More than half of the readings are of the other unit, so that the ranges say nothing of them.
    bool isOfOtherUnit() const { return 2 * ofOtherUnit > all().figures.count; }
    const Sample& all() const { return samples[0]; }
};

/// By the days' dates, whatever the order of the rows; `today` ends the last days.
[[nodiscard]] PeriodSummary summarize(const Listbox& table, Span span, const Date& today);

} // namespace tallyvane::Summary
