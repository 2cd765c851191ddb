#include "diary/averages.h"

#include "diary/day_table.h"
#include "platform/base/number.h"

namespace tallyvane {

namespace {

/// A mask prints nothing behind the point when there is no fraction; the diary always shows one digit.
std::string withDigitAfterPoint(std::string text) {
    if (text.ends_with('.'))
        text += '0';
    return text;
}

std::string dayAverageText(double average) {
    const std::string plain = Str(average);
    if (plain.find('.') == std::string::npos)
        return plain + ".0";
    return withDigitAfterPoint(Format(average, "##.#"));
}

} // namespace

void Averages::updateRow(int row, RowNumbers& numbers) {
    double sum = 0;
    int count = 0;
    for (int column = DayTable::firstReading; column <= DayTable::weightColumn; ++column) {
        const double value = Val(table_.Cell(row, column));
        numbers.values[static_cast<std::size_t>(column - 1)] = value;
        if (column > DayTable::lastReading)
            continue;
        sum += value;
        count += value > 0 ? 1 : 0;
    }
    if (count > 0) {
        const std::string average = dayAverageText(sum / count);
        table_.Cell(row, DayTable::averageColumn, average);
        numbers.values[DayTable::averageColumn - 1] = Val(average);
    }
    numbers.revision = table_.revision(row);
}

void Averages::updateRows() {
    rows_.resize(static_cast<std::size_t>(table_.ListCount()));
    for (int row = 0; row < table_.ListCount(); ++row) {
        RowNumbers& numbers = rows_[static_cast<std::size_t>(row)];
        if (numbers.revision != table_.revision(row))
            updateRow(row, numbers);
    }
}

template <class Takes>
Averages::Sums Averages::sums(Takes takes) const {
    Sums result;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (!takes(static_cast<int>(row)))
            continue;
        for (std::size_t column = 0; column < columns; ++column) {
            const double value = rows_[row].values[column];
            result[column].sum += value > 0 ? value : 0;
            result[column].count += value > 0 ? 1 : 0;
        }
    }
    return result;
}

Averages::Sums Averages::sumsOfAll() const {
    return sums([](int) { return true; });
}

Averages::Sums Averages::sumsOfSelected() const {
    return sums([this](int row) { return table_.Selected(row); });
}

std::string Averages::stripText(int column, const Sum& sum) {
    if (sum.count == 0)
        return "00.0";
    const char* mask = column == DayTable::weightColumn ? "###.#" : "##.#";
    return withDigitAfterPoint(Format(sum.sum / sum.count, mask));
}

} // namespace tallyvane
