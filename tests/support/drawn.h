#pragma once

#include <limits>
#include <string>
#include <vector>

#include "platform/drawing/graphics_recorder.h"

namespace tallyvane {

inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinite = std::numeric_limits<double>::infinity();

/// What was drawn, a line for each call: "line 10 50 110 50", "rect ...", "fill ..." (x, y, width, height),
/// "text 27 66 '2'", "page" for a new one, "picture 0 0" and, indented, its shapes: "  curve 0 0 5 5".
std::vector<std::string> drawn(const std::vector<GraphicsRecorder::Call>& calls);
inline std::vector<std::string> drawn(const GraphicsRecorder& g) { return drawn(g.calls()); }
/// The same for shapes alone: "oval 5 5 2" and "square ..." (centre, width), "curve 0 0 5 5", "arc ..." (start, extent,
/// width), "figure, " and its sides, "string 3 4 'x'" with " up" or " down" when it is turned.
std::vector<std::string> drawn(const Group2D& shapes);
/// The lines that begin so.
std::vector<std::string> only(const std::string& beginning, const std::vector<std::string>& lines);

} // namespace tallyvane
