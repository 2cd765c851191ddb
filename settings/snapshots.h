/// Copies of the user's files, one set a day, for the day on which the table is lost.
#pragma once

#include <optional>
#include <string>

#include "platform/base/date.h"

namespace tallyvane::Snapshots {

/// Copies the files into a folder named after the day, such as "Snapshots/2026-11-22" in the application's folder, if
/// it has none yet and the table holds anything. The oldest sets then go. A set is whole or not there. Nothing is told
/// of a disk that takes no copies: the files themselves are unharmed.
void take(const Date& today);

/// Whether the table is there and can't be read, so that nobody knows what it holds.
[[nodiscard]] bool tableIsUnreadable();

/// A copy of the day table.
struct Copy {
    Date day;
    int days = 0; // in the copy
    int daysOfTable = 0; // complete days in the table
    std::string path;
};

/// The newest copy that holds more days than the table, if the table is missing, empty, ends within a line or has lost
/// blocks. Copies dated after today are tried last. None if the table is whole or the user's data folder is missing;
/// copies of a table in another folder do not count.
[[nodiscard]] std::optional<Copy> findFullerCopy(const Date& today);

/// Keeps what the table holds now under another name beside it, such as "7VXData damaged 2026-11-22", and tells that
/// name. Throws IOException when the disk fails.
std::string keepDamagedTable(const Date& today);

/// Makes the copy the table. Throws IOException when the copy can't be read or the disk fails; the table then is as it
/// was.
void restore(const Copy& copy);

} // namespace tallyvane::Snapshots
