#include "charting/truncated.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tallyvane {

int truncated(double value) {
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

int truncatedPlace(double steppedTo) {
    constexpr double mostRounding = 1e-6;
    const double whole = std::round(steppedTo);
    return truncated(std::abs(steppedTo - whole) < mostRounding ? whole : steppedTo);
}

} // namespace tallyvane
