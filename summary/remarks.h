/// What stands out in a period, a sentence each, by fixed rules. Never advice on treatment.
#pragma once

#include <string>
#include <vector>

#include "summary/period_summary.h"

namespace tallyvane::Summary {

/// In this order, each where its rule holds:
/// - the other unit: there are readings that can't be of the unit of the limits.
/// - too low: there is a reading of that range. How many, and the lowest with its day.
/// - the highest time: of at least two test periods with five readings or more, the one of the highest median, if more
///   than half of its readings are above the target zone.
/// - spread: of 14 readings or more the deviation is above 36 % of the mean (the bound of the consensus of Danne and
///   others, Diabetes Care 2017; 40: 1631).
/// - in the target zone: none of the rules above holds. How many are within.
/// - rarely after meals: of 14 readings or more fewer than a tenth are from after a meal.
/// - few days: readings on fewer than half of the days.
/// No sentence for a period without readings, and one alone where the readings are of another unit than the limits.
[[nodiscard]] std::vector<std::string> remarksOn(const PeriodSummary& summary);

} // namespace tallyvane::Summary
