#pragma once

#include "platform/drawing/geometry.h"

namespace tallyvane {

/// Chooses the colours of columns, bars and slices. The index is the place of a value in its point for columns and
/// bars, so that it has one colour in all of them, and the place of the point for a pie.
class GTColorTableProvider {
public:
    virtual ~GTColorTableProvider() = default;
    virtual Color getColor(int index) = 0;
};

} // namespace tallyvane
