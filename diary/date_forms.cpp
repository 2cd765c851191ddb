#include "diary/date_forms.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "diary/date_key.h"
#include "diary/day_table.h"
#include "platform/base/written_date.h"

namespace tallyvane::DateForms {

namespace {

constexpr std::array usualOrders{DateOrder::dayMonthYear, DateOrder::monthDayYear, DateOrder::yearMonthDay};

bool reads(const MeantDay& meant) { return ParseDate(meant.date) == meant.day; }

/// The days of a file by how their dates stand to the user's form.
class DaysByForm {
public:
    void add(const MeantDay& meant) {
        const std::string usersDate = meant.day.ShortDate();
        if (meant.date == usersDate)
            isAnyInUsersForm_ = true;
        else if (!reads(meant) && DateKey::meansElsewhere(meant.date, meant.day))
            misread_.push_back(meant);
        else if (reads(meant))
            (differsInZeros(meant.date, usersDate) ? alike_ : readable_).push_back(meant);
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
    static bool differsInZeros(const std::string& date, const std::string& usersDate) {
        const std::optional<WrittenDate> one = WrittenDate::in(date);
        const std::optional<WrittenDate> other = WrittenDate::in(usersDate);
        return one && other && one->isAlike(*other);
    }

    bool isAnyInUsersForm_ = false;
    std::vector<MeantDay> misread_;
    std::vector<MeantDay> readable_; // in another form
    std::vector<MeantDay> alike_;
};

/// The rows with a date in some usual order and without a key.
std::vector<int> rowsWithoutKey(const std::vector<DatedRow>& rows) {
    const auto isADate = [](const std::string& text) {
        const std::optional<WrittenDate> written = WrittenDate::in(text);
        return written && std::any_of(usualOrders.begin(), usualOrders.end(),
                                      [&](DateOrder order) { return written->as(order).has_value(); });
    };
    std::vector<int> found;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (!DateKey::dayOf(rows[row].key) && isADate(rows[row].date))
            found.push_back(static_cast<int>(row));
    return found;
}

/// All dates in one order; nothing if one of them does not fit.
std::optional<std::vector<MeantDay>> readAll(const std::vector<DatedRow>& rows, const std::vector<int>& which,
                                             DateOrder order) {
    std::vector<MeantDay> days;
    for (const int row : which) {
        const std::string& date = rows[static_cast<std::size_t>(row)].date;
        const std::optional<WrittenDate> written = WrittenDate::in(date);
        const std::optional<Date> day = written ? written->as(order) : std::nullopt;
        if (!day)
            return std::nullopt;
        days.push_back({row, date, *day});
    }
    return days;
}

bool isInOrder(const std::vector<MeantDay>& days) {
    const auto isEarlier = [](const MeantDay& a, const MeantDay& b) {
        return a.day.TotalSeconds() < b.day.TotalSeconds();
    };
    return std::is_sorted(days.begin(), days.end(), isEarlier) || std::is_sorted(days.rbegin(), days.rend(), isEarlier);
}

/// The dates by each order that fits them all, without those that say the same: only what brings the rows in order, if
/// something does.
std::vector<std::vector<MeantDay>> readingsOf(const std::vector<DatedRow>& rows, const std::vector<int>& which) {
    std::vector<std::vector<MeantDay>> readings;
    for (const DateOrder order : usualOrders)
        if (auto days = readAll(rows, which, order);
            days && std::find(readings.begin(), readings.end(), *days) == readings.end())
            readings.push_back(std::move(*days));
    if (std::any_of(readings.begin(), readings.end(), isInOrder))
        std::erase_if(readings, [](const std::vector<MeantDay>& days) { return !isInOrder(days); });
    return readings;
}

} // namespace

Findings find(const std::vector<DatedRow>& rows) {
    DaysByForm days;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (const std::optional<Date> meant = DateKey::dayOf(rows[row].key))
            days.add({static_cast<int>(row), rows[row].date, *meant});

    Findings findings;
    std::vector<std::vector<MeantDay>> readings = readingsOf(rows, rowsWithoutKey(rows));
    const auto isQuestion = [](const MeantDay& meant) { return !reads(meant) || meant.date == meant.day.ShortDate(); };
    if (readings.size() > 1)
        findings.ways = std::move(readings);
    else if (!readings.empty())
        for (const MeantDay& meant : readings[0])
            if (isQuestion(meant)) // what reads right, in whatever form, is none without a key that says more
                days.add(meant);
    findings.otherForm = days.otherForm();
    return findings;
}

std::vector<DatedRow> rowsOf(const Listbox& table) {
    std::vector<DatedRow> rows;
    rows.reserve(static_cast<std::size_t>(table.ListCount()));
    for (int row = 0; row < table.ListCount(); ++row)
        rows.push_back({table.Cell(row, DayTable::dateColumn), table.Cell(row, DayTable::firstKey)});
    return rows;
}

void rewrite(Listbox& table, const std::vector<MeantDay>& days, int firstRow) {
    for (const MeantDay& meant : days)
        if (const std::string date = meant.day.ShortDate(); meant.date != date)
            table.Cell(firstRow + meant.row, DayTable::dateColumn, date);
}

} // namespace tallyvane::DateForms
