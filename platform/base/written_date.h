#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/date.h"

namespace tallyvane {

/// The orders in which people write a day, each named by its three numbers.
enum class DateOrder { dayMonthYear, monthDayYear, yearMonthDay, yearDayMonth, dayYearMonth, monthYearDay };
inline constexpr std::array dateOrders{DateOrder::dayMonthYear, DateOrder::monthDayYear, DateOrder::yearMonthDay,
                                       DateOrder::yearDayMonth, DateOrder::dayYearMonth, DateOrder::monthYearDay};

/// A text of three numbers with a sign or two between them, as all desktops write their dates. What day it means
/// depends on the order that its writer had in mind.
class WrittenDate {
public:
    /// Nothing for a text that is not three numbers of four digits at most, or has words between them.
    [[nodiscard]] static std::optional<WrittenDate> in(std::string_view text);

    /// /// The day that is meant in that order. The year has four digits, or two: then it is the nearest to today.
    /// Nothing for a day that does not exist.
    [[nodiscard]] std::optional<Date> as(DateOrder order) const;
    /// Whether it means that day in that order; of a year of two digits only these count.
    [[nodiscard]] bool means(const Date& day, DateOrder order) const;
    /// Whether the two differ in leading zeros at most.
    bool isAlike(const WrittenDate& other) const;

private:
    struct Number {
        int value = 0;
        std::size_t digits = 0;
    };
    struct Fields {
        Number year;
        Number month;
        Number day;
    };
    Fields fieldsIn(DateOrder order) const;

    std::array<Number, 3> numbers_;
    std::array<std::string, 4> separators_; // before, between and behind the numbers
};

} // namespace tallyvane
