#include "diary/strip_words.h"

#include "diary/day_table.h"
#include "diary/finding.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"

namespace tallyvane::StripWords {

namespace {

std::string ofSelectedDays(int days, const std::string& period) {
    return days == 1 ? tr("Averages of 1 selected day, %1", {period})
                     : tr("Averages of %1 selected days, %2", {Grouped(days), period});
}

} // namespace

std::string ofTable(const Listbox& table) {
    const int days = table.ListCount();
    const int selected = table.SelectedCount();
    if (days == 0)
        return "";
    if (selected == 0)
        return days == 1 ? tr("Averages of the only day") : tr("Averages of all %1 days", {Grouped(days)});
    const std::optional<Finding::Period> period = Finding::periodOfSelected(table);
    if (!period)
        return selected == 1 ? tr("Averages of 1 selected day")
                             : tr("Averages of %1 selected days", {Grouped(selected)});
    const std::string first = period->first.ShortDate();
    const std::string last = period->second.ShortDate();
    return ofSelectedDays(selected, first == last ? first : tr("%1 to %2", {first, last}));
}

std::string ofColumn(int column, const Averages::Sum& sum) {
    const std::string count = Grouped(sum.count);
    if (column == DayTable::weightColumn)
        return sum.count == 1 ? tr("1 weight") : tr("Average of %1 weights", {count});
    if (column == DayTable::averageColumn)
        return sum.count == 1 ? tr("Average of 1 day") : tr("Average of the averages of %1 days", {count});
    return sum.count == 1 ? tr("1 reading") : tr("Average of %1 readings", {count});
}

} // namespace tallyvane::StripWords
