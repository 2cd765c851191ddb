/// The user's names for the meal groups and the columns of the day table.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace tallyvane {

/// Names over groups of columns: breakfast, lunch, supper and weight.
inline constexpr std::size_t headingGroups = 4;
/// Those of the groups, then those of the columns 1 to 9.
using Headings = std::array<std::string, 13>;

Headings defaultHeadings();
/// The headings as they were saved; a file that is too short gives empty ones for the rest. Nothing without a file.
[[nodiscard]] std::optional<Headings> readHeadings();
/// Writes the file, a heading a line. It waits among the unsaved files when it can't be had, and when
/// the disk fails, which throws IOException.
void saveHeadings(const Headings& headings);
/// Takes down that these are what the program starts from.
void startedFromHeadings(const Headings& headings);

} // namespace tallyvane
