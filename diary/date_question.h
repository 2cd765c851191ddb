/// What the user is asked about dates in another form.
#pragma once

#include <optional>
#include <vector>

#include "diary/date_forms.h"

namespace tallyvane::DateQuestion {

/// Asks whether dates in another form are to be shown in the user's, and what those mean that can be read in several
/// ways. The days that are to be rewritten; nothing when the program was ended before the user had answered.
[[nodiscard]] std::optional<std::vector<DateForms::MeantDay>> ask(const DateForms::Findings& findings);

} // namespace tallyvane::DateQuestion
