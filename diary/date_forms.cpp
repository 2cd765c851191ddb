#include "diary/date_forms.h"

#include <algorithm>
#include <array>
#include <utility>

#include "diary/day_table.h"
#include "platform/base/number.h"
#include "platform/base/written_date.h"

namespace tallyvane::DateForms {

namespace {

using enum DateOrder;
constexpr std::array allOrders{dayMonthYear, monthDayYear, yearMonthDay, yearDayMonth, dayYearMonth, monthYearDay};
constexpr std::array usualOrders{dayMonthYear, monthDayYear, yearMonthDay};

/// The day of a row's key; nothing for a row without one.
std::optional<Date> dayOfKey(const std::string& key) {
    if (!isNumber(key) || Val(key) <= 0)
        return std::nullopt;
    const Date moment = Date::ofTotalSeconds(Val(key));
    return Date(moment.Year(), moment.Month(), moment.Day());
}

/// The day that the text means where the user's form is not the one it was written in.
bool meansElsewhere(const std::string& text, const Date& day) {
    const std::optional<WrittenDate> written = WrittenDate::in(text);
    return written &&
           std::any_of(allOrders.begin(), allOrders.end(), [&](DateOrder order) { return written->means(day, order); });
}

/// Whether two texts differ at most in leading zeros.
bool isAlike(const std::string& text, const std::string& other) {
    const std::optional<WrittenDate> one = WrittenDate::in(text);
    const std::optional<WrittenDate> another = WrittenDate::in(other);
    return one && another && one->separators() == another->separators();
}

const std::string& textOf(const Listbox& table, int row) { return table.Cell(row, DayTable::dateColumn); }

/// All texts in one order; nothing if one of them does not fit.
std::optional<std::vector<MeantDay>> readAll(const Listbox& table, const std::vector<int>& rows, DateOrder order) {
    std::vector<MeantDay> days;
    for (const int row : rows) {
        const std::optional<WrittenDate> written = WrittenDate::in(textOf(table, row));
        const std::optional<Date> day = written ? written->as(order) : std::nullopt;
        if (!day)
            return std::nullopt;
        days.push_back({row, *day});
    }
    return days;
}

bool isInOrder(const std::vector<MeantDay>& days) {
    const auto isEarlier = [](const MeantDay& a, const MeantDay& b) {
        return a.day.TotalSeconds() < b.day.TotalSeconds();
    };
    return std::is_sorted(days.begin(), days.end(), isEarlier) || std::is_sorted(days.rbegin(), days.rend(), isEarlier);
}

/// The readings of all texts by one order each, without those that say the same: only what brings the rows in order, if
/// something does.
std::vector<std::vector<MeantDay>> readingsOf(const Listbox& table, const std::vector<int>& rows) {
    std::vector<std::vector<MeantDay>> readings;
    for (const DateOrder order : usualOrders)
        if (auto days = readAll(table, rows, order);
            days && std::find(readings.begin(), readings.end(), *days) == readings.end())
            readings.push_back(std::move(*days));
    if (std::any_of(readings.begin(), readings.end(), isInOrder))
        std::erase_if(readings, [](const std::vector<MeantDay>& days) { return !isInOrder(days); });
    return readings;
}

/// The days of a table by how their texts stand to the user's form.
class Sorted {
public:
    void add(const std::string& text, const MeantDay& meant) {
        const std::string usersText = meant.day.ShortDate();
        if (text == usersText)
            isAnyInUsersForm_ = true;
        else if (ParseDate(text) != meant.day && meansElsewhere(text, meant.day))
            misread_.push_back(meant);
        else if (ParseDate(text) == meant.day)
            (isAlike(text, usersText) ? alike_ : readable_).push_back(meant);
    }

    std::vector<MeantDay> otherForm() const {
        std::vector<MeantDay> days = misread_;
        if (!isAnyInUsersForm_)
            days.insert(days.end(), readable_.begin(), readable_.end());
        if (!days.empty()) // else leading zeros are nothing to ask about
            days.insert(days.end(), alike_.begin(), alike_.end());
        std::sort(days.begin(), days.end(), [](const MeantDay& a, const MeantDay& b) { return a.row < b.row; });
        return days;
    }

private:
    bool isAnyInUsersForm_ = false;
    std::vector<MeantDay> misread_;
    std::vector<MeantDay> readable_; // in another form
    std::vector<MeantDay> alike_; // but for leading zeros
};

/// A text that is three numbers, and a day in some order.
bool isADate(const std::string& text) {
    const std::optional<WrittenDate> written = WrittenDate::in(text);
    return written && std::any_of(usualOrders.begin(), usualOrders.end(),
                                  [&](DateOrder order) { return written->as(order).has_value(); });
}

} // namespace

Findings find(const Listbox& table, int first) {
    Sorted sorted;
    std::vector<int> withoutKey;
    for (int row = first; row < table.ListCount(); ++row) {
        const std::string& text = textOf(table, row);
        if (const std::optional<Date> meant = dayOfKey(table.Cell(row, DayTable::firstKey)))
            sorted.add(text, {row, *meant});
        else if (isADate(text))
            withoutKey.push_back(row);
    }
    Findings findings;
    const std::vector<std::vector<MeantDay>> readings = readingsOf(table, withoutKey);
    if (readings.size() == 1) {
        for (const MeantDay& meant : readings[0])
            if (const std::string& text = textOf(table, meant.row);
                ParseDate(text) != meant.day || text == meant.day.ShortDate()) // what reads right needs no question
                sorted.add(text, meant);
    } else if (readings.size() == 2) {
        findings.twoWays = {readings[0], readings[1]};
    }
    findings.otherForm = sorted.otherForm();
    return findings;
}

void rewrite(Listbox& table, const std::vector<MeantDay>& days) {
    for (const auto& [row, day] : days)
        if (const std::string text = day.ShortDate(); textOf(table, row) != text)
            table.Cell(row, DayTable::dateColumn, text);
}

const MeantDay& example(const Listbox& table, const std::vector<MeantDay>& days) {
    const auto isMistakable = [&](const MeantDay& meant) {
        const std::optional<Date> read = ParseDate(textOf(table, meant.row));
        return read && read != meant.day;
    };
    const auto found = std::find_if(days.begin(), days.end(), isMistakable);
    return found == days.end() ? days.front() : *found;
}

} // namespace tallyvane::DateForms
