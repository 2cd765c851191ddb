#include "diary/averages.h"

#include "diary/day_table.h"
#include "platform/base/number.h"

#include <algorithm>
#include <unordered_map>

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

/// Brings what is remembered to the places where its rows stand now. Mostly all rows but one stay, or all below one
/// move by a few places; only those between are looked for.
void Averages::moveWithRows() {
    const std::size_t before = rows_.size();
    const auto now = static_cast<std::size_t>(table_.ListCount());
    const auto isAt = [this](std::size_t place, std::size_t row) {
        return rows_[place].revision == table_.revision(static_cast<int>(row));
    };
    const std::size_t most = std::min(before, now);
    std::size_t head = 0;
    while (head < most && isAt(head, head))
        ++head;
    std::size_t tail = 0;
    while (head + tail < most && isAt(before - 1 - tail, now - 1 - tail))
        ++tail;

    std::unordered_map<std::uint64_t, RowNumbers> between;
    for (std::size_t place = head; place < before - tail; ++place)
        between.emplace(rows_[place].revision, rows_[place]);
    if (now > before)
        rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(head), now - before, {});
    else
        rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(head),
                    rows_.begin() + static_cast<std::ptrdiff_t>(head + before - now));
    for (std::size_t row = head; row < now - tail; ++row) {
        const auto found = between.find(table_.revision(static_cast<int>(row)));
        rows_[row] = found == between.end() ? RowNumbers() : found->second;
    }
}

void Averages::updateRows() {
    moveWithRows();
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
