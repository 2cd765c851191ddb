/// Finding days of the table by their dates, whatever the order of its rows.
///
/// A row belongs to the day that its date's key names (sort_keys.h); the keys must be those of the dates.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/base/date.h"
#include "platform/controls/listbox.h"

namespace tallyvane::Finding {

/// A first and a last day.
using Period = std::pair<Date, Date>;

/// The row with the latest date; nothing when no date can be read.
std::optional<int> newestRow(const Listbox& table);

/// The rows of that day, from the top.
std::vector<int> rowsOf(const Listbox& table, const Date& day);

/// The row of that day which follows `after`, from the top again when there is none below; nothing for a day that is
/// not in the table.
std::optional<int> nextRowOf(const Listbox& table, const Date& day, int after);

/// Which rows are of a day from the first to the last of the period, these two included.
std::vector<bool> rowsIn(const Listbox& table, const Period& period);

/// The first and the last day of the selected rows; nothing when no selected row has a date.
std::optional<Period> periodOfSelected(const Listbox& table);

/// The days of the period that are in the table, in any order.
std::vector<Date> daysIn(const Listbox& table, const Period& period);

// Periods that end with a day or hold it

/// So many days, of which `today` is the last.
Period lastDays(int days, const Date& today);
Period monthOf(const Date& day);
Period monthBefore(const Date& day);
/// The days that can be seen beside those of a month in its calendar: a week before it, six from its first day on.
Period weeksAround(const Date& month);

} // namespace tallyvane::Finding
