#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyvane {

/// Joins two versions of a text, line by line, on the ground of the one that both began with. What only one side has
/// changed is taken over; where both have changed the same lines, those of both are kept, and what is alike stands
/// once. Two programs that join the same texts get the same lines.
std::vector<std::string> mergeLines(const std::vector<std::string>& base, const std::vector<std::string>& here,
                                    const std::vector<std::string>& there);

/// The same for texts as they stand in a file, and for those with another mark than a line end between their parts.
std::string joinLines(const std::string& base, const std::string& here, const std::string& there);
std::string joinParts(std::string_view base, std::string_view here, std::string_view there, std::string_view mark);

} // namespace tallyvane
