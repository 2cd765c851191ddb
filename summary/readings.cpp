#include "summary/readings.h"

#include <algorithm>
#include <cstddef>

#include "diary/date_key.h"
#include "diary/day_table.h"
#include "platform/base/number.h"
#include "platform/base/text.h"

namespace tallyvane::Summary {

namespace {

/// A place in the order of days; rows without a date come first.
double orderOf(const std::optional<Date>& day) { return day ? day->TotalSeconds() : -1; }

bool isBlank(std::string_view cell) { return cell.find_first_not_of(" \t") == std::string_view::npos; }

/// Appends the readings of a row.
void takeRow(Readings& found, const Listbox& table, int row, const std::optional<Date>& day) {
    for (int testPeriod = 1; testPeriod <= testPeriods; ++testPeriod) {
        const std::string& cell = table.Cell(row, testPeriod);
        if (isBlank(cell))
            continue;
        if (const double value = isNumber(cell) ? Val(cell) : 0; value > 0) {
            found.readings.push_back({row, testPeriod, day, value});
            continue;
        }
        ++found.unreadable;
        if (found.unreadableRows.empty() || found.unreadableRows.back() != row)
            found.unreadableRows.push_back(row);
    }
    const std::string& weight = table.Cell(row, DayTable::weightColumn);
    if (const double value = isNumber(weight) ? Val(weight) : 0; day && value > 0)
        found.weights.push_back({*day, value});
}

template <class Dated>
void sortByDay(std::vector<Dated>& all) {
    const auto isEarlier = [](const Dated& a, const Dated& b) { return orderOf(a.day) < orderOf(b.day); };
    if (!std::is_sorted(all.begin(), all.end(), isEarlier))
        std::stable_sort(all.begin(), all.end(), isEarlier);
}

} // namespace

bool isOfOneDay(const Reading& a, const Reading& b) { return a.day ? a.day == b.day : !b.day && a.row == b.row; }

std::optional<Date> dayOf(const Listbox& table, int row) {
    const std::optional<Date> day = DateKey::dayOf(table.Cell(row, DayTable::firstKey));
    return day ? day : ParseDate(table.Cell(row, DayTable::dateColumn));
}

Readings readingsOf(const Listbox& table, const std::vector<bool>& isIn) {
    Readings found;
    for (int row = 0; row < table.ListCount(); ++row)
        if (isIn[static_cast<std::size_t>(row)])
            takeRow(found, table, row, dayOf(table, row));
    sortByDay(found.readings);
    sortByDay(found.weights);
    return found;
}

Readings readingsOf(const Listbox& table) {
    return readingsOf(table, std::vector<bool>(static_cast<std::size_t>(table.ListCount()), true));
}

std::vector<double> valuesOf(const std::vector<Reading>& readings, int testPeriod) {
    std::vector<double> values;
    for (const Reading& reading : readings)
        if (testPeriod == 0 || reading.testPeriod == testPeriod)
            values.push_back(reading.value);
    return values;
}

} // namespace tallyvane::Summary
