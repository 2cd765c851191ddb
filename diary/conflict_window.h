#pragma once

#include <functional>
#include <string>
#include <vector>

#include "diary/day_merge.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// Shows the values that were changed both here and by another program, side by side. What is here stands until the
/// user picks the other.
class ConflictWindow : public Window {
public:
    ConflictWindow();

    StaticText StaticText1;
    Listbox ListBox1{4}; // day, test period, here, other program
    PushButton PushButton1, PushButton2, PushButton3; // keep, take the other, later

    /// What a column of the table is called.
    std::function<std::string(int column)> nameOfColumn;
    /// Puts the other value in its cell; false when the cell does not hold the value from here any more.
    std::function<bool(const DayMerge::Conflict& conflict)> takeOther;

    /// Adds conflicts to those that are shown; selects the first.
    void add(const std::vector<DayMerge::Conflict>& conflicts);

    void PushButton1_Action();
    void PushButton2_Action();

private:
    void settle(bool isOtherTaken);

    std::vector<DayMerge::Conflict> conflicts_; // by row
};

} // namespace tallyvane
