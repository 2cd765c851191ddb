#include "diary/cell_help.h"

#include "diary/day_table.h"
#include "diary/indicators.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"

namespace tallyvane::CellHelp {

namespace {

bool isTypedAsNumber(int column) {
    return (column >= DayTable::firstReading && column <= DayTable::lastReading) || column == DayTable::weightColumn;
}

bool isDoubtful(const Listbox& table, int row, int column) {
    const std::string& text = table.Cell(row, column);
    if (text.empty())
        return false;
    if (column == DayTable::dateColumn)
        return !ParseDate(text);
    return isTypedAsNumber(column) && (!isNumber(text) || Val(text) < 0);
}

/// Whether a doubtful text has no number at its start, not even 0: "HI", but not "0,9".
bool isWord(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" +-.");
    return start == std::string_view::npos || text[start] < '0' || text[start] > '9';
}

/// A word counts as 0, so its light shows the range of 0, although a meter's "HI" means the opposite.
std::string wordHelp(const Listbox& table, int row, int column) {
    const std::optional<Ranges::Range> light = Indicators::rangeOf(table, row, column);
    return light ? tr("no number: does not count, and its light shows \u201c%1\u201d whatever it means",
                      {Ranges::words(*light)})
                 : tr("no number: does not count");
}

} // namespace

std::string helpTag(const Listbox& table, int row, int column) {
    if (!isDoubtful(table, row, column))
        return "";
    if (column == DayTable::dateColumn)
        return tr("can't be read as a date");
    const std::string& text = table.Cell(row, column);
    const double value = Val(text);
    if (value > 0)
        return tr("counts as %1", {Str(value)});
    if (column == DayTable::weightColumn)
        return tr("does not count");
    if (value < 0)
        return tr("below 0: lowers the day's average without being counted");
    return isWord(text) ? wordHelp(table, row, column) : tr("read as 0: does not count");
}

std::string weightHint(const Listbox& table) {
    return tr("%1: click in its column, or press Return, Right, Right, Return",
              {table.Heading(DayTable::weightColumn)});
}

std::string accessibleText(const Listbox& table, int row, int column, const std::string& columnName) {
    std::string words = columnName;
    const auto say = [&words](const std::string& word) { words += word.empty() ? "" : ", " + word; };
    say(table.Cell(row, DayTable::dateColumn));
    if (column != DayTable::dateColumn)
        say(table.Cell(row, column));
    say(helpTag(table, row, column));
    const std::optional<Ranges::Range> range = Indicators::rangeOf(table, row, column);
    if (range && !(isDoubtful(table, row, column) && isWord(table.Cell(row, column)))) // whose tag has named it
        say(Ranges::words(*range));
    return words;
}

} // namespace tallyvane::CellHelp
