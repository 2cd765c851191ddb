#include "graphwindow/selected_days.h"

#include <algorithm>

#include "diary/day_table.h"
#include "platform/base/number.h"

namespace tallyvane {

SelectedDays::SelectedDays(const Listbox& table) : table_(table) {
    for (int row = 0; row < table.ListCount(); ++row) {
        if (!table.Selected(row))
            continue;
        rows_.push_back(row);
        lastDate_ = table.Cell(row, DayTable::dateColumn);
        if (firstDate_.empty())
            firstDate_ = lastDate_;
    }
}

double SelectedDays::value(int row, int column) const { return Val(table_.Cell(row, column)); }

double SelectedDays::highestReading() const {
    double highest = 0;
    for (const int row : rows_)
        for (int column = DayTable::firstReading; column <= DayTable::averageColumn; ++column)
            highest = std::max(highest, value(row, column));
    return highest;
}

Extent SelectedDays::widened(Extent extent, int column) const {
    for (const int row : rows_) {
        const double reading = value(row, column);
        extent.high = std::max(extent.high, reading);
        if (reading != 0)
            extent.low = std::min(extent.low, reading);
    }
    return extent;
}

void SelectedDays::addCounted(GTSeries& series, int column) const {
    int count = 0;
    for (const int row : rows_)
        if (const double reading = value(row, column); reading > 0)
            series.AddDataValue(++count, reading);
}

void SelectedDays::addByRow(GTSeries& series, int column) const {
    for (const int row : rows_)
        if (const double reading = value(row, column); reading > 0)
            series.AddDataValue(row, reading);
}

} // namespace tallyvane
