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
#include "summary/unit.h"

namespace tallyvane::Summary {

enum class Span { last7, last14, last30, last90, thisMonth, lastMonth, thisYear, all, selected };

/// The readings of one test period, or of all.
struct Sample {
    Figures figures;
    int days = 0; // with such readings
    std::array<int, Ranges::all.size()> inRange{}; // how many, in the order of Ranges::all
    std::optional<Reading> lowest; // the first of that value
    std::optional<Reading> highest;

    int above() const; // the target zone
    int below() const;
    int within() const;
};

struct PeriodSummary {
    Span span = Span::all;
    Unit unit = Unit::mmolPerLitre;
    /// Nothing where no row has a date.
    std::optional<Finding::Period> days;
    /// Of the calendar; of selected days those that are selected.
    int dayCount = 0;
    std::vector<int> rows; // of the table
    Readings readings;
    /// All readings, then those of each test period.
    std::array<Sample, testPeriods + 1> samples;
    /// All readings of the period of the same length before; nothing for all days, or where there are none.
    std::optional<Sample> before;
    std::optional<EstimatedA1c> a1c; // nothing where the readings are too few

    /// The readings can't be of that unit: their mean is above 35 mmol/L or below 20 mg/dL, which nobody lives with.
    bool isOfOtherUnit() const;

    const Sample& all() const { return samples[0]; }
};

/// By the days' dates, whatever the order of the rows; `today` ends the last days.
[[nodiscard]] PeriodSummary summarize(const Listbox& table, Span span, const Date& today);

} // namespace tallyvane::Summary
