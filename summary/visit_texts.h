/// What the page for the visit says besides the readings, and its file in the application's folder.
#pragma once

#include <string>
#include <vector>

namespace tallyvane::Summary {

struct VisitTexts {
    std::string patient; // "" for no name
    std::string questions; // "What I want to ask"

    bool operator==(const VisitTexts&) const = default;
};

/// As they were saved; empty texts without a file.
[[nodiscard]] VisitTexts readVisitTexts();
/// A text that can't be saved waits among the unsaved files. Throws IOException when the disk fails.
void saveVisitTexts(const VisitTexts& texts);

/// The schedule of medications as the user keeps it beside the diary, a line for each.
[[nodiscard]] std::vector<std::string> medicationLines();

} // namespace tallyvane::Summary
