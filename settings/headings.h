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
/// Writes the file, one heading a line. If the file can't be opened, or writing fails (which throws IOException), the
/// headings stay among the unsaved files.
void saveHeadings(const Headings& headings);
/// Sets these headings, as they were just read, as the baseline.
void setHeadingsBaseline(const Headings& headings);

} // namespace tallyvane
