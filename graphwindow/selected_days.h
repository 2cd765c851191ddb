#pragma once

#include <string>
#include <vector>

#include "charting/extent.h"
#include "charting/gt_series.h"
#include "platform/controls/listbox.h"

namespace tallyvane {

/// The days that are selected in the day table, as the values of a graph. A value is what the start of a cell's text
/// counts as; what is not above 0 is no reading and gives no point.
class SelectedDays {
public:
    /// The selection as it stands; the table must not change while this is in use.
    explicit SelectedDays(const Listbox& table);

    /// Dates of the first row that has one and of the last row; "" without any.
    const std::string& firstDate() const { return firstDate_; }
    const std::string& lastDate() const { return lastDate_; }
    /// The highest of all readings and daily averages; 0 without any.
    double highestReading() const;
    /// An extent, widened so that it holds a column's values; an empty cell and 0 do not lower it.
    Extent widened(Extent extent, int column) const;

    /// Adds a column's readings, at 1, 2, 3 and so on: days without one leave no gap.
    void addCounted(GTSeries& series, int column) const;
    /// Adds a column's readings, each at its row in the table: days without one leave a gap.
    void addByRow(GTSeries& series, int column) const;

private:
    double value(int row, int column) const;

    const Listbox& table_;
    std::vector<int> rows_;
    std::string firstDate_;
    std::string lastDate_;
};

} // namespace tallyvane
