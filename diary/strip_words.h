/// What the summary strip shows, in words.
#pragma once

#include <string>

#include "diary/averages.h"
#include "platform/controls/listbox.h"

namespace tallyvane::StripWords {

/// Of which days the strip shows averages: "Averages of all 2,000 days", or "Averages of 30 selected days, 10/25/2026
/// to 11/23/2026". "" for an empty table.
std::string ofTable(const Listbox& table);

/// On how many values a figure of the strip rests: "Average of 30 readings", "Average of 4 weights".
std::string ofColumn(int column, const Averages::Sum& sum);

} // namespace tallyvane::StripWords
