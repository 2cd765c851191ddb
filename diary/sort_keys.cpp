#include "diary/sort_keys.h"

#include <algorithm>

#include "diary/date_key.h"
#include "diary/day_table.h"
#include "platform/base/text.h"

namespace tallyvane::SortKeys {

namespace {

constexpr int valueKeyLength = 4;

std::string paddedTo(int length, std::string text) {
    const int missing = std::max(0, length - Len(text));
    return text.insert(0, static_cast<std::size_t>(missing), '0');
}

/// A date that reads as another day here than the one that its writer meant keeps its key.
bool isOfAnotherDesktop(const std::string& text, const Date& read, const std::string& key) {
    const std::optional<Date> meant = DateKey::dayOf(key);
    return meant && *meant != read && DateKey::meansElsewhere(text, *meant);
}

} // namespace

std::string valueKey(std::string_view text) {
    std::string digits(text);
    if (text.find('.') == std::string_view::npos)
        digits += '0'; // the first decimal of a whole number
    std::erase(digits, '.');
    return paddedTo(valueKeyLength, std::move(digits));
}

void rebuild(Listbox& table) {
    using namespace DayTable;
    for (int row = 0; row < table.ListCount(); ++row) {
        const std::string& text = table.Cell(row, dateColumn);
        const std::optional<Date> date = ParseDate(text);
        if (date && !isOfAnotherDesktop(text, *date, table.Cell(row, firstKey)))
            table.Cell(row, firstKey, DateKey::of(*date));
        for (int column = firstReading; column <= weightColumn; ++column)
            table.Cell(row, column + firstKey, valueKey(table.Cell(row, column)));
    }
}

bool sortBy(Listbox& table, int column) {
    using namespace DayTable;
    if (column < dateColumn || column > weightColumn)
        return false;
    if (column == dateColumn)
        rebuild(table);
    const int key = column + firstKey;
    table.ColumnSortDirection(key, table.ColumnSortDirection(key) == 1 ? -1 : 1);
    table.SortedColumn(key);
    table.Sort();
    table.SortArrow(column);
    return true;
}

} // namespace tallyvane::SortKeys
