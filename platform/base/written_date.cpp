#include "platform/base/written_date.h"

#include <algorithm>

#include "platform/base/text.h"

namespace tallyvane {

namespace {

constexpr std::size_t longYear = 4;
constexpr std::size_t shortYear = 2;
constexpr std::size_t longestSeparator = 4; // bytes: a blank and a sign, or one of other scripts

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string takeSeparator(std::string_view& text) {
    std::size_t length = 0;
    while (length < text.size() && !isDigit(text[length]))
        ++length;
    std::string separator(text.substr(0, length));
    text.remove_prefix(length);
    return separator;
}

} // namespace

std::optional<WrittenDate> WrittenDate::in(std::string_view text) {
    const std::string trimmed = Trim(text);
    std::string_view rest = trimmed;
    WrittenDate date;
    date.separators_[0] = takeSeparator(rest);
    for (std::size_t i = 0; i < date.numbers_.size(); ++i) {
        auto& [value, digits] = date.numbers_[i];
        for (; digits <= longYear && digits < rest.size() && isDigit(rest[digits]); ++digits)
            value = value * 10 + (rest[digits] - '0');
        if (digits == 0 || digits > longYear)
            return std::nullopt;
        rest.remove_prefix(digits);
        date.separators_[i + 1] = takeSeparator(rest);
    }
    const bool hasWords = std::any_of(date.separators_.begin(), date.separators_.end(),
                                      [](const std::string& separator) { return separator.size() > longestSeparator; });
    return rest.empty() && !hasWords ? std::optional(date) : std::nullopt;
}

bool WrittenDate::isAlike(const WrittenDate& other) const {
    return separators_ == other.separators_ &&
           std::equal(numbers_.begin(), numbers_.end(), other.numbers_.begin(),
                      [](const Number& a, const Number& b) { return a.value == b.value; });
}

WrittenDate::Fields WrittenDate::fieldsIn(DateOrder order) const {
    const auto& [first, second, third] = numbers_;
    switch (order) {
    case DateOrder::dayMonthYear:
        return {third, second, first};
    case DateOrder::monthDayYear:
        return {third, first, second};
    case DateOrder::yearMonthDay:
        return {first, second, third};
    case DateOrder::yearDayMonth:
        return {first, third, second};
    case DateOrder::dayYearMonth:
        return {second, third, first};
    case DateOrder::monthYearDay:
        break;
    }
    return {second, first, third};
}

std::optional<Date> WrittenDate::as(DateOrder order) const {
    const auto [year, month, day] = fieldsIn(order);
    if (month.digits > 2 || day.digits > 2)
        return std::nullopt;
    if (year.digits == shortYear)
        return nearestDay(year.value, month.value, day.value);
    if (year.digits != longYear || !Date::isDay(year.value, month.value, day.value))
        return std::nullopt;
    return Date(year.value, month.value, day.value);
}

bool WrittenDate::means(const Date& date, DateOrder order) const {
    constexpr int century = 100;
    const auto [year, month, day] = fieldsIn(order);
    const bool isYear = (year.digits == longYear && year.value == date.Year()) ||
                        (year.digits == shortYear && year.value == date.Year() % century);
    return isYear && month.digits <= 2 && month.value == date.Month() && day.digits <= 2 && day.value == date.Day();
}

} // namespace tallyvane
