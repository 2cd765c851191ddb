#pragma once

#include <string>

#include "platform/base/date.h"

namespace tallyvane {

/// The medication, food and exercise of one day, from a file of its own. The program reads such files and writes none.
struct DayDetails {
    /// A line for each medication: its three texts with five blanks between them.
    std::string medications;
    std::string food;
    std::string exercise;
    /// Lines read up to the mark that ends the medications, with the mark.
    int medicationLines = 0;

    /// All empty for a day without a file.
    static DayDetails of(const Date& day);
};

} // namespace tallyvane
