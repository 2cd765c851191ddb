/// The sets of daily copies as folders: their names and their ageing.
#pragma once

#include <string>
#include <vector>

#include "platform/base/date.h"

namespace tallyvane::SnapshotSets {

inline constexpr int mostKept = 30;

/// The path of the set of a day in the folder of the sets, such as "Snapshots/2026-11-22".
std::string pathOf(const std::string& folder, const Date& day);

/// The days of which the folder has a set, the newest first, those after today last.
std::vector<Date> daysKept(const std::string& folder, const Date& today);

/// Removes all sets but the newest thirty. Sets dated after today, from a clock that was wrong, are removed first.
void removeOld(const std::string& folder, const Date& today);

} // namespace tallyvane::SnapshotSets
