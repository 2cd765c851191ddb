#pragma once

#include "platform/controls/listbox.h"

namespace tallyvane {

/// Of every list of the diary. They go with the bands of the day table and with the marks of the ranges.
inline constexpr ListColors listColors{
    .background = RGB(255, 255, 255),
    .text = RGB(16, 20, 26),
    .headingBackground = RGB(232, 236, 242),
    .columnLine = RGB(186, 200, 220),
    .selection = RGB(92, 152, 236),
    .selectionLine = RGB(38, 92, 170),
    .helpDots = RGB(178, 24, 24),
};

} // namespace tallyvane
