#include "charting/gt_axis.h"

#include <algorithm>
#include <cmath>

#include "charting/gt_general_purpose.h"
#include "charting/truncated.h"

namespace tallyvane {

void GTAxis::SetRange(double min, double max) {
    myMin = min;
    myMax = max;
}

void GTAxis::tickIncrement(double increment) {
    myTickIncrementIsSet = increment > 0;
    myTickIncrement = myTickIncrementIsSet ? increment : 0;
}

void GTAxis::tickCount(int count) {
    myTickCount = count;
    myManualTickCount = true;
}

void GTAxis::CustomFormatter(std::shared_ptr<GTCustomTickFormatter> formatter) {
    myCustomFormatter = std::move(formatter);
    myTickType = custom;
}

double GTAxis::scale() const { return GTGeneralPurpose::GTResolutionScaleFactor(myResolution); }

void GTAxis::figureIncrement(double max, double min, int pixels, double& increment, int& count, double& unit) const {
    const double range = std::abs(max - min);
    if (!(range > 0)) {
        increment = 1;
        count = 1;
        unit = 0;
        return;
    }
    unit = pixels / range;
    if (myManualTickCount) {
        count = myTickCount;
        increment = count >= 3 ? range / (count - 1) : range;
    } else {
        count = pixels / automaticStep;
        increment = automaticStep * (range / pixels);
    }
}

/// The steps of an X axis: each is as wide as its increment.
GTAxis::TickSteps GTAxis::xAxisSteps(int width) const {
    if (myTickIncrementIsSet)
        return evenSteps(width);
    TickSteps steps;
    int count = 0;
    figureIncrement(myMax, myMin, width, steps.increment, count, steps.unit);
    steps.step = std::max(1.0, steps.increment * steps.unit);
    return steps;
}

/// The steps of a Y axis and of every grid: the length is shared out among the ticks. With a count set by hand, which
/// counts the ends, these steps are shorter than their increments.
GTAxis::TickSteps GTAxis::evenSteps(int length) const {
    TickSteps steps;
    int count = 0;
    figureIncrement(myMax, myMin, length, steps.increment, count, steps.unit);
    if (myTickIncrementIsSet) {
        steps.increment = myTickIncrement;
        count = truncatedSteps((myMax - myMin) / myTickIncrement);
    }
    steps.step = std::max(1.0, length / static_cast<double>(count));
    return steps;
}

} // namespace tallyvane
