#include "diary/date_key.h"

#include <algorithm>
#include <array>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/written_date.h"

namespace tallyvane::DateKey {

std::string of(const Date& date) {
    constexpr int digits = 12;
    const std::string seconds = Str(date.TotalSeconds());
    return std::string(static_cast<std::size_t>(std::max(0, digits - Len(seconds))), '0') + seconds;
}

std::optional<Date> dayOf(std::string_view key) {
    if (!isNumber(key) || Val(key) <= 0)
        return std::nullopt;
    const Date moment = Date::ofTotalSeconds(Val(key));
    return Date(moment.Year(), moment.Month(), moment.Day());
}

bool meansElsewhere(std::string_view date, const Date& day) {
    const std::optional<WrittenDate> written = WrittenDate::in(date);
    return written && std::any_of(dateOrders.begin(), dateOrders.end(),
                                  [&](DateOrder order) { return written->means(day, order); });
}

} // namespace tallyvane::DateKey
