#include "charting/round_ticks.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tallyvane {

RoundTicks roundTicks(Extent extent, int mostSteps) {
    constexpr std::array<double, 5> roundSteps{1, 2, 2.5, 5, 10};
    if (!(extent.high > extent.low))
        extent.high = extent.low + std::max(1.0, std::abs(extent.low) / mostSteps);
    constexpr double longest = 1e300;
    if (!(extent.high - extent.low < longest))
        return {{0, 1}, 1};
    double power = std::pow(10, std::floor(std::log10((extent.high - extent.low) / mostSteps)));
    for (;; power *= 10)
        for (const double step : roundSteps) {
            const double increment = step * power;
            const double first = std::floor(extent.low / increment);
            const double last = std::ceil(extent.high / increment);
            if (last - first <= mostSteps)
                return {{first * increment, last * increment}, increment};
        }
}

} // namespace tallyvane
