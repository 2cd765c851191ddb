/// The main window's place and size in the file "QVXWindowData", and how much higher its table is than at first in the
/// file "Table Height". Both stay on this computer.
#pragma once

#include <optional>

#include "platform/drawing/geometry.h"

namespace tallyvane::WindowData {

/// Nothing without the file. A line that is missing or no number gives 0.
[[nodiscard]] std::optional<Rect> load();
/// A failure is ignored: the window then opens where it was before.
void save(const Rect& bounds);

/// Points; negative for a lower table. 0 without the file.
[[nodiscard]] int loadTableGrowth();
/// A failure is ignored, too.
void saveTableGrowth(int points);

} // namespace tallyvane::WindowData
