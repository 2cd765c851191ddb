/// The key of a date: the text by which days are sorted, and which tells the day that is meant whatever form its date
/// is written in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/date.h"

namespace tallyvane::DateKey {

/// The seconds since the first midnight of the year 1, in twelve digits.
std::string of(const Date& date);

/// The day of a key; nothing for a text that is none.
[[nodiscard]] std::optional<Date> dayOf(std::string_view key);

/// Whether the date is that day in the form of some desktop, if not in this one's.
[[nodiscard]] bool meansElsewhere(std::string_view date, const Date& day);

} // namespace tallyvane::DateKey
