/// What the tests of axes set on an axis.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "charting/gt_axis.h"

namespace tallyvane {

using enum GTAxis::Types;
using Lines = std::vector<std::string>;

using Way = std::function<void(GTAxis&)>;
using Ways = std::vector<Way>;

inline const Way top = [](GTAxis& a) { a.top(true); };
inline const Way right = [](GTAxis& a) { a.right(true); };
inline const Way invisible = [](GTAxis& a) { a.visible(false); };
inline const Way horizontalTitle = [](GTAxis& a) { a.horizontalTitle(true); };
inline const Way verticalTitle = [](GTAxis& a) { a.verticalTitle(true); };
inline const Way verticalLabels = [](GTAxis& a) { a.tickLabelsVertical(true); };
inline const Way noLabels = [](GTAxis& a) { a.tickLabelsVisible(false); };
inline const Way noLastLabel = [](GTAxis& a) { a.skipLastTickLabel = true; };
inline const Way noTicks = [](GTAxis& a) { a.ticksVisible = false; };
inline const Way inPercent = [](GTAxis& a) { a.tickType(GTAxis::percent); };

inline const auto title = [](const std::string& text) { return Way([=](GTAxis& a) { a.text(text); }); };
inline const auto margin = [](int points) { return Way([=](GTAxis& a) { a.innerMargin(points); }); };
inline const auto dotsPerInch = [](int dots) { return Way([=](GTAxis& a) { a.Resolution(dots); }); };
inline const auto range = [](double min, double max) { return Way([=](GTAxis& a) { a.SetRange(min, max); }); };
inline const auto step = [](double increment) { return Way([=](GTAxis& a) { a.tickIncrement(increment); }); };
inline const auto ticks = [](int count) { return Way([=](GTAxis& a) { a.tickCount(count); }); };

inline void setUp(GTAxis& axis, const Ways& ways) {
    for (const Way& way : ways)
        way(axis);
}

} // namespace tallyvane
