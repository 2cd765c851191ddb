#include "settings/snapshot_sets.h"

#include <algorithm>
#include <optional>

#include "platform/base/number.h"
#include "platform/files/system_files.h"

namespace tallyvane::SnapshotSets {

namespace {

/// The day of a set; nothing for any other name.
std::optional<Date> dayOf(const std::string& name) {
    const auto number = [&name](std::size_t from, std::size_t count) {
        return static_cast<int>(from < name.size() ? Val(name.substr(from, count)) : 0);
    };
    const int year = number(0, 4);
    const int month = number(5, 2);
    const int day = number(8, 2);
    if (!Date::isDay(year, month, day) || Date(year, month, day).isoDate() != name)
        return std::nullopt;
    return Date(year, month, day);
}

} // namespace

std::string pathOf(const std::string& folder, const Date& day) { return folder + "/" + day.isoDate(); }

std::vector<Date> daysKept(const std::string& folder, const Date& today) {
    std::vector<Date> days;
    for (const std::string& name : SystemFiles::namesIn(folder))
        if (const std::optional<Date> day = dayOf(name))
            days.push_back(*day);
    const auto isToCome = [&today](const Date& day) { return day.TotalSeconds() > today.TotalSeconds(); };
    std::sort(days.begin(), days.end(), [&](const Date& a, const Date& b) {
        return isToCome(a) != isToCome(b) ? isToCome(b) : a.TotalSeconds() > b.TotalSeconds();
    });
    return days;
}

void removeOld(const std::string& folder, const Date& today) {
    for (std::vector<Date> days = daysKept(folder, today); days.size() > mostKept; days.pop_back())
        SystemFiles::removeFolder(pathOf(folder, days.back()));
}

} // namespace tallyvane::SnapshotSets
