#include "charting/truncated.h"

#include <algorithm>
#include <cmath>

namespace tallyvane {

int truncated(double value) {
    if (std::isnan(value))
        return 0;
    constexpr double farthest = 100'000'000; // beyond every surface, and sums of a few still fit
    return static_cast<int>(std::clamp(value, -farthest, farthest));
}

int truncatedSteps(double steppedTo) {
    const double whole = std::round(steppedTo);
    return truncated(std::abs(steppedTo - whole) < mostRounding ? whole : steppedTo);
}

} // namespace tallyvane
