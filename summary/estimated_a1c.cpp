#include "summary/estimated_a1c.h"

#include <algorithm>
#include <numeric>

namespace tallyvane::Summary {

EstimatedA1c a1cOfMean(double mgPerDecilitre) {
    const double percent = (mgPerDecilitre + 46.7) / 28.7;
    return {percent, (percent - 2.152) / 0.09148};
}

bool isEnoughForA1c(const Spread& spread) {
    constexpr int fewestDays = 14;
    constexpr double week = 7;
    constexpr double daysAWeek = 3;
    constexpr double readingsAWeek = 14;
    constexpr int testPeriods = 3;
    const double weeks = spread.daysOfPeriod / week;
    const int all = std::accumulate(spread.readings.begin(), spread.readings.end(), 0);
    const auto wellMeasured = std::count_if(spread.readings.begin(), spread.readings.end(),
                                            [all](int readings) { return readings > 0 && 10 * readings >= all; });
    const int most = *std::max_element(spread.readings.begin(), spread.readings.end());
    return spread.daysOfPeriod >= fewestDays && spread.daysOfPeriod <= mostDaysForA1c && spread.longestGap < week &&
           spread.daysWithReadings >= daysAWeek * weeks && all >= readingsAWeek * weeks &&
           wellMeasured >= testPeriods && 2 * most <= all;
}

} // namespace tallyvane::Summary
