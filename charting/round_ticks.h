#pragma once

#include "charting/extent.h"

namespace tallyvane {

/// An axis that begins and ends at round values: its range holds a whole number of increments.
struct RoundTicks {
    Extent range;
    double increment = 1;

    bool operator==(const RoundTicks&) const = default;
};

/// The narrowest range around the extent whose ticks stand 1, 2, 2.5 or 5 times a power of ten apart, at multiples of
/// that, with `mostSteps` steps at most (2 or more). An extent without length is widened above, by 1 or, for large
/// values, by a tenth. One that is not finite, or too long to be divided, gives 0 to 1.
[[nodiscard]] RoundTicks roundTicks(Extent extent, int mostSteps);

} // namespace tallyvane
