/// Texts of more than one line, on the measures of the surface that they are drawn on.
#pragma once

#include <string_view>

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// Number of bytes in the first line of a text, broken at `width` (units of the surface) or at a line end, including
/// the blanks or the line end that follow. At least one character of a text that is not empty.
std::size_t firstLine(const Graphics& g, std::string_view text, double width);

/// Draws a text in lines of that width, the first one on the baseline y.
void DrawString(Graphics& g, std::string_view text, double x, double y, double width);
/// The height of a text in lines of that width; 0 for an empty one.
double StringHeight(const Graphics& g, std::string_view text, double width);

} // namespace tallyvane
