#pragma once

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// Lines over a piece of a column or bar, so that pieces are told apart without their colours.
struct GTHatching {
    enum class Lines { none, rising, falling, crossed, level };

    Lines lines = Lines::none;
    Color color = RGB(0, 0, 0);
};

/// Draws the lines into a rectangle, `step` units apart.
void renderHatching(Graphics& g, const GTHatching& hatching, double x, double y, double width, double height,
                    double step);

} // namespace tallyvane
