#include "diary/finding.h"

#include <algorithm>
#include <set>
#include <string>

#include "diary/date_key.h"
#include "diary/day_table.h"
#include "platform/base/number.h"

namespace tallyvane::Finding {

namespace {

const std::string& keyOf(const Listbox& table, int row) { return table.Cell(row, DayTable::firstKey); }

std::optional<Date> dateOf(const Listbox& table, int row) { return ParseDate(table.Cell(row, DayTable::dateColumn)); }

/// The first and the last key of a period. Keys are texts of one length, which compare as the days do.
struct KeyRange {
    std::string first;
    std::string last;

    explicit KeyRange(const Period& period)
        : first(DateKey::of(startOf(period.first))), last(DateKey::of(startOf(period.second))) {}
    bool hold(const std::string& key) const { return key >= first && key <= last; }
    static Date startOf(const Date& day) { return {day.Year(), day.Month(), day.Day()}; }
};

} // namespace

std::optional<int> newestRow(const Listbox& table) {
    std::optional<int> newest;
    for (int row = 0; row < table.ListCount(); ++row)
        if ((!newest || keyOf(table, row) >= keyOf(table, *newest)) && dateOf(table, row))
            newest = row;
    return newest;
}

std::vector<int> rowsOf(const Listbox& table, const Date& day) {
    const KeyRange keys({day, day});
    std::vector<int> rows;
    for (int row = 0; row < table.ListCount(); ++row)
        if (keys.hold(keyOf(table, row)))
            rows.push_back(row);
    return rows;
}

std::optional<int> nextRowOf(const Listbox& table, const Date& day, int after) {
    const std::vector<int> rows = rowsOf(table, day);
    if (rows.empty())
        return std::nullopt;
    const auto next = std::upper_bound(rows.begin(), rows.end(), after);
    return next == rows.end() ? rows.front() : *next;
}

std::vector<bool> rowsIn(const Listbox& table, const Period& period) {
    const KeyRange keys(period);
    std::vector<bool> rows(static_cast<std::size_t>(table.ListCount()));
    for (int row = 0; row < table.ListCount(); ++row)
        rows[static_cast<std::size_t>(row)] = keys.hold(keyOf(table, row));
    return rows;
}

std::optional<Period> periodOfSelected(const Listbox& table) {
    std::optional<int> first;
    std::optional<int> last;
    for (int row = 0; row < table.ListCount(); ++row) {
        if (!table.Selected(row))
            continue;
        const bool isFirst = !first || keyOf(table, row) < keyOf(table, *first);
        const bool isLast = !last || keyOf(table, row) > keyOf(table, *last);
        if ((!isFirst && !isLast) || !dateOf(table, row))
            continue;
        first = isFirst ? row : first;
        last = isLast ? row : last;
    }
    return first ? std::optional(Period(*dateOf(table, *first), *dateOf(table, *last))) : std::nullopt;
}

std::vector<Date> daysIn(const Listbox& table, const Period& period) {
    const KeyRange keys(period);
    std::set<std::string> found;
    for (int row = 0; row < table.ListCount(); ++row)
        if (keys.hold(keyOf(table, row)))
            found.insert(keyOf(table, row));
    std::vector<Date> days;
    days.reserve(found.size());
    for (const std::string& key : found)
        days.push_back(Date::ofTotalSeconds(Val(key)));
    return days;
}

Period lastDays(int days, const Date& today) { return {daysAfter(today, 1 - days), KeyRange::startOf(today)}; }

Period monthOf(const Date& day) {
    const Date first(day.Year(), day.Month(), 1);
    const Date inNext = daysAfter(first, 31);
    return {first, daysAfter(Date(inNext.Year(), inNext.Month(), 1), -1)};
}

Period weeksAround(const Date& month) {
    constexpr int week = 7;
    const Date first = monthOf(month).first;
    return {daysAfter(first, -week), daysAfter(first, 6 * week)};
}

Period monthBefore(const Date& day) { return monthOf(daysAfter(Date(day.Year(), day.Month(), 1), -1)); }

} // namespace tallyvane::Finding
