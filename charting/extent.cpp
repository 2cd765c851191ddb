#include "charting/extent.h"

#include <algorithm>
#include <cmath>

namespace tallyvane {

void widen(std::optional<Extent>& extent, double value) {
    if (!std::isfinite(value))
        return;
    if (!extent)
        extent = Extent{value, value};
    extent->low = std::min(extent->low, value);
    extent->high = std::max(extent->high, value);
}

} // namespace tallyvane
