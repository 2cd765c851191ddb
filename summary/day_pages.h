/// Pages of days behind the page for the visit: a grid with the readings as they were typed.
#pragma once

#include "platform/controls/listbox.h"
#include "platform/drawing/graphics.h"
#include "summary/period_summary.h"

namespace tallyvane::Summary {

inline constexpr int daysOnPage = 40;

/// The rows of a period in the order of their days; those without a date come first.
[[nodiscard]] std::vector<int> rowsByDay(const Listbox& table, const PeriodSummary& summary);

/// How many pages the days of a period take.
[[nodiscard]] int dayPageCount(const PeriodSummary& summary);

/// Draws each on a page of its own, which it begins: headings, days with marks at weekends, an arrow beside each value
/// outside of the target zone, the means of the period at the foot, and its number of `pages` from `firstPage` on.
void drawDayPages(Graphics& g, const Listbox& table, const PeriodSummary& summary, int firstPage, int pages);

} // namespace tallyvane::Summary
