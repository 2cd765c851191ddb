/// The main window's place and size in the file "QVXWindowData", which stays on this computer.
#pragma once

#include <optional>

#include "platform/drawing/geometry.h"

namespace tallyvane::WindowData {

/// Nothing without the file. A line that is missing or no number gives 0.
[[nodiscard]] std::optional<Rect> load();
/// A failure is ignored: the window then opens where it was before.
void save(const Rect& bounds);

} // namespace tallyvane::WindowData
