#pragma once

#include <string>

#include "platform/drawing/geometry.h"

namespace tallyvane {

/// A strip across the plot, behind all series, between two values of the first series' Y axis. Without height it is a
/// thin dotted line.
struct GTBand {
    double low = 0;
    double high = 0;
    Color color = RGB(224, 224, 224);
};

} // namespace tallyvane
