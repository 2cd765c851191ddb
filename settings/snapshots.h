/// Copies of the user's files, one set a day, for the day on which the table is lost.
#pragma once

#include <optional>
#include <string>

#include "platform/date.h"

namespace tallyvane::Snapshots {

inline constexpr int mostKept = 30;

/// Copies the files into a folder named after the day, such as "Snapshots/2026-11-22" in the application's folder, if
/// it has none yet and the table holds anything; older sets than the newest thirty go. A set is whole or not there.
/// Nothing is told of a disk that takes no copies: the files themselves are unharmed.
void take(const Date& today);

/// A copy of the day table.
struct Copy {
    Date day;
    int days = 0; // that it holds
    std::string path;
};

/// The newest copy that holds more days than the table, if the table is missing, empty or ends within a line. Nothing
/// for a table that is whole, and while the user's data folder is away.
[[nodiscard]] std::optional<Copy> fullerThanTable();

/// Makes the copy the table. What the table held is kept as "7VXData damaged" beside it. Throws IOException when the
/// disk fails; the table then is as it was.
void bringBack(const Copy& copy);

} // namespace tallyvane::Snapshots
