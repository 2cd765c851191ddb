/// What the test periods are called: as the user has named the columns of the table, or else as everybody does.
#pragma once

#include <array>
#include <string>

#include "summary/readings.h"

namespace tallyvane::Summary {

struct TestPeriodNames {
    /// At the beginning of a line or a sentence, and within one: "Before breakfast", "before breakfast".
    std::array<std::string, testPeriods + 1> title; // of all readings, then of each test period
    std::array<std::string, testPeriods + 1> words;
    /// Under a chart, in two lines: "Breakfast" for the first two, and "before", "after".
    std::array<std::string, 3> meals;
    std::array<std::string, testPeriods + 1> brief;
    /// No column was given another name: the second, fourth and sixth are after meals.
    bool areUsual = true;
};

[[nodiscard]] TestPeriodNames testPeriodNames();

} // namespace tallyvane::Summary
