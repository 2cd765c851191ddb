/// The pictures of a period besides its course. Each is drawn on a whole surface, in points.
#pragma once

#include "platform/drawing/graphics.h"
#include "summary/period_summary.h"

namespace tallyvane::Summary {

/// The day: of each test period the middle half of its readings, their median, the lowest and the highest, and how many
/// they are.
void drawDay(const PeriodSummary& summary, Graphics& g);

/// Of each test period the shares of the five ranges, as a bar.
void drawShares(const PeriodSummary& summary, Graphics& g);

/// Of each meal the rise from before to after it, on the days that have both readings. Nothing where the columns have
/// other names, since they may be no such times.
void drawRises(const PeriodSummary& summary, Graphics& g);

/// The rises at a meal (0 breakfast, 1 lunch, 2 supper), in the order of the days.
[[nodiscard]] std::vector<double> risesAt(const PeriodSummary& summary, int meal);

} // namespace tallyvane::Summary
