/// Copies of the user's files, one set a day, for the day on which the table is lost.
#pragma once

#include <string>
#include <vector>

#include "platform/base/date.h"

namespace tallyvane::Snapshots {

/// Copies the files into a folder named after the day, such as "Snapshots/2026-11-22" in the application's folder, if
/// it has none yet and the table holds anything. To be called before the first save of a day. The oldest sets then go.
/// A set is whole or not there. Nothing is told of a disk that takes no copies: the files themselves are unharmed.
void take(const Date& today);

/// A set of copies.
struct Set {
    Date day;
    std::string path; // of its folder
};

/// The sets there are, the newest first; those dated after today last.
[[nodiscard]] std::vector<Set> sets(const Date& today);

/// Where the table is kept; "" while the user's data folder is missing.
[[nodiscard]] std::string tablePath();

/// Whether the table in a set is a copy of the one that is in use, and not of one in another folder.
[[nodiscard]] bool isOfThisTable(const Set& set);

} // namespace tallyvane::Snapshots
