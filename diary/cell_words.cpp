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
    return isTypedAsNumber(column) && !text.empty() && !isNumber(text);
}

std::string helpTag(const Listbox& table, int row, int column) {
    if (!isDoubtful(table, row, column))
        return "";
    const double value = Val(table.Cell(row, column));
    return value != 0 ? tr("counts as %1", {Str(value)}) : tr("does not count");
}

std::string spoken(const Listbox& table, int row, int column, const std::string& columnName) {
    std::string words = columnName;
    const auto say = [&words](const std::string& word) { words += word.empty() ? "" : ", " + word; };
    say(table.Cell(row, DayTable::dateColumn));
    if (column == DayTable::dateColumn)
        return words;
    say(table.Cell(row, column));
    say(helpTag(table, row, column));
    if (const std::optional<Indicators::Range> range = Indicators::rangeOf(table, row, column))
        say(rangeName(*range));
    return words;
}

} // namespace tallyvane::CellWords
