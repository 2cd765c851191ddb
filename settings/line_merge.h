#pragma once

#include <string>
#include <vector>

namespace tallyvane {

/// Joins two versions of a text, line by line, on the ground of the one that both began with. What only one side has
/// changed is taken over; where both have changed the same lines, those of both are kept. Two programs that join the
/// same texts get the same lines.
std::vector<std::string> mergeLines(const std::vector<std::string>& base, const std::vector<std::string>& here,
                                    const std::vector<std::string>& there);

/// The parts of a text between marks, and back. A text without a mark is one part.
std::vector<std::string> partsOf(const std::string& text, const std::string& mark);
std::string joinedBy(const std::vector<std::string>& parts, const std::string& mark);

} // namespace tallyvane
