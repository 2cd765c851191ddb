/// Texts of more than one line, on the measures of the surface that they are drawn on.
#pragma once

#include <string_view>

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// Bytes of the text that stand in its first line, within that width and up to a line end, with the blanks or the line
/// end after them. One character at the least.
std::size_t firstLine(const Graphics& g, std::string_view text, double width);

/// Draws a text in lines of that width, the first one on the baseline y.
void DrawString(Graphics& g, std::string_view text, double x, double y, double width);
/// The height of a text in lines of that width; 0 for an empty one.
double StringHeight(const Graphics& g, std::string_view text, double width);

} // namespace tallyvane
