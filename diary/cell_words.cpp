#include "diary/cell_words.h"

#include "diary/day_table.h"
#include "diary/indicators.h"
#include "platform/number.h"
#include "platform/translation.h"

namespace tallyvane::CellWords {

namespace {

bool isTypedAsNumber(int column) {
    return (column >= DayTable::firstReading && column <= DayTable::lastReading) || column == DayTable::weightColumn;
}

std::string rangeName(Indicators::Range range) {
    switch (range) {
    case Indicators::Range::over:
        return tr("too high");
    case Indicators::Range::caution:
        return tr("high");
    case Indicators::Range::inZone:
        return tr("in target zone");
    case Indicators::Range::low:
        return tr("low");
    case Indicators::Range::under:
        break;
    }
    return tr("too low");
}

} // namespace

bool isDoubtful(const Listbox& table, int row, int column) {
    const std::string& text = table.Cell(row, column);
    if (text.empty())
        return false;
    if (column == DayTable::dateColumn)
        return !ParseDate(text);
    return isTypedAsNumber(column) && (!isNumber(text) || Val(text) < 0);
}

std::string helpTag(const Listbox& table, int row, int column) {
    if (!isDoubtful(table, row, column))
        return "";
    if (column == DayTable::dateColumn)
        return tr("can't be read as a date");
    const double value = Val(table.Cell(row, column));
    if (value > 0)
        return tr("counts as %1", {Str(value)});
    if (column == DayTable::weightColumn)
        return tr("does not count");
    if (value < 0)
        return tr("below 0: lowers the day's average without being counted");
    const std::optional<Indicators::Range> light = Indicators::rangeOf(table, row, column);
    return light ? tr("no number: does not count, and its light does not mean \u201c%1\u201d", {rangeName(*light)})
                 : tr("no number: does not count");
}

std::string wayToWeight(const Listbox& table) {
    return tr("%1: click in its column, or press Return, Right, Right, Return",
              {table.Heading(DayTable::weightColumn)});
}

std::string spoken(const Listbox& table, int row, int column, const std::string& columnName) {
    std::string words = columnName;
    const auto say = [&words](const std::string& word) { words += word.empty() ? "" : ", " + word; };
    say(table.Cell(row, DayTable::dateColumn));
    if (column != DayTable::dateColumn)
        say(table.Cell(row, column));
    say(helpTag(table, row, column));
    const std::optional<Indicators::Range> range = Indicators::rangeOf(table, row, column);
    const bool isNoNumber = isDoubtful(table, row, column) && Val(table.Cell(row, column)) == 0;
    if (range && !isNoNumber)
        say(rangeName(*range));
    return words;
}

} // namespace tallyvane::CellWords
