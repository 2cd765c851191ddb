#pragma once

#include "platform/drawing/shapes.h"

namespace tallyvane {

/// What can stand at a point of a series in place of its plot symbol. Each has an area of its own shape, so that marks
/// are told apart without their colours.
enum class GTMark { none, circle, square, triangle, diamond };

/// Appends a mark with its centre at x, y, that many units across. A hollow one is white within.
void appendMark(Group2D& shapes, GTMark mark, bool isHollow, Color color, double x, double y, double size);

} // namespace tallyvane
