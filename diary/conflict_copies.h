/// Versions of the table that a synchroniser has left beside it, since it was changed on two computers at once.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tallyvane::ConflictCopies {

struct Copy {
    std::string path;
    std::string content;
};

/// The first whole table among them that is not in that list of paths: of a name as "7VXData.sync-conflict-..." or
/// "7VXData (... conflicted copy ...)".
[[nodiscard]] std::optional<Copy> first(const std::vector<std::string>& exceptPaths);

/// Gives it a dated name by which it is not found again; where that can't be, it is found again.
void putAway(const Copy& copy);

} // namespace tallyvane::ConflictCopies
