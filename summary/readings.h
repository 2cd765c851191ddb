/// What the rows of the day table hold, as numbers with their days.
#pragma once

#include <optional>
#include <vector>

#include "platform/base/date.h"
#include "platform/controls/listbox.h"

namespace tallyvane::Summary {

/// The test periods are the columns 1 (before breakfast) to 7 (before bed).
inline constexpr int testPeriods = 7;

struct Reading {
    int row = 0;
    int testPeriod = 1;
    std::optional<Date> day; // nothing where the row has no date
    double value = 0; // as typed, above 0
};

/// Whether two readings count as of one day: those of one date, and of a row without a date.
[[nodiscard]] bool isOfOneDay(const Reading& a, const Reading& b);

struct Weight {
    Date day;
    double value = 0;
};

struct Readings {
    std::vector<Reading> readings; // by day, then by test period; those of no day come first
    std::vector<Weight> weights; // by day
    /// Cells of readings that hold something else than a number above 0, and their rows.
    int unreadable = 0;
    std::vector<int> unreadableRows;
};

/// The day of a row: that of its date's key, or else of its date. Nothing for a row without a date.
[[nodiscard]] std::optional<Date> dayOf(const Listbox& table, int row);

/// The readings of the rows for which `isIn` is true, one place a row.
[[nodiscard]] Readings readingsOf(const Listbox& table, const std::vector<bool>& isIn);
/// Of all rows.
[[nodiscard]] Readings readingsOf(const Listbox& table);

/// Their values: of one test period, or of all for 0.
[[nodiscard]] std::vector<double> valuesOf(const std::vector<Reading>& readings, int testPeriod);

} // namespace tallyvane::Summary
