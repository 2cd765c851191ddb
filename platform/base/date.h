/// Days and moments by the calendar on the user's wall, without time zones.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyvane {

class Date {
public:
    /// The present moment, by DateSource::now.
    Date();
    /// `secondsOfDay` (0 to 86399) after the midnight that starts the day. The day must exist: check with isDay.
    Date(int year, int month, int day, int secondsOfDay = 0);

    /// The moment that many seconds after 1 January of year 1, 0:00; fractions are dropped. Clamped to the years 1 to
    /// 9999; NaN gives the first moment of year 1.
    static Date ofTotalSeconds(double seconds);

    /// Whether the calendar has that day, in the years 1 to 9999.
    static bool isDay(int year, int month, int day);

    int Year() const { return static_cast<int>(day_.year()); }
    int Month() const { return static_cast<int>(static_cast<unsigned>(day_.month())); }
    int Day() const { return static_cast<int>(static_cast<unsigned>(day_.day())); }

    /// The date in the locale's short form, the year in four digits: "11/22/2026".
    std::string ShortDate() const;
    // The other forms of the locale; without one ISO: "2026-11-22", "14:05", "14:05:09"
    std::string AbbreviatedDate() const;
    std::string LongDate() const;
    std::string MonthAndDay() const;
    std::string ShortTime() const;
    std::string LongTime() const;
    /// Seconds since the first midnight of the year 1; never negative, and below 10^12.
    double TotalSeconds() const;
    /// "2026-11-22", in every locale.
    std::string isoDate() const;
    /// "14:05:09", likewise.
    std::string isoTime() const;

    int Hour() const { return secondsOfDay_ / 3600; }
    int Minute() const { return secondsOfDay_ / 60 % 60; }
    int Second() const { return secondsOfDay_ % 60; }

    bool operator==(const Date&) const = default;

private:
    std::chrono::year_month_day day_;
    int secondsOfDay_ = 0;
};

/// Reads a date in the locale's short form, the same with a two-digit year (the nearest to today), or ISO
/// ("2026-11-22"). Nothing for a text that is none of these, or a day that does not exist.
[[nodiscard]] std::optional<Date> ParseDate(std::string_view text);

/// The day whose year ends in these two digits and that lies nearest to today; nothing if no such day exists.
[[nodiscard]] std::optional<Date> nearestDay(int twoDigits, int month, int day);

/// The midnight so many days after that of a day, or before it.
[[nodiscard]] Date daysAfter(const Date& day, int days);
/// From the midnight of one day to that of another.
[[nodiscard]] int daysBetween(const Date& from, const Date& to);

/// Sixtieths of a second since some moment before the program started.
int Ticks();

/// What dates take from outside. Set once at start; tests set fixed values.
namespace DateSource {
/// The clock.
extern std::function<Date()> now;
/// Sets the locale's short form, such as "M/d/yyyy": runs of d, M and y, all else as it stands, text between
/// apostrophes too. A pattern that is not one day, one month and one year in figures gives "yyyy-MM-dd".
void setShortPattern(std::string_view pattern);
/// The forms of a date that are only read by people, never back by the program.
enum class Form { abbreviatedDate, longDate, monthAndDay, shortTime, longTime };
/// The text of a moment in such a form of the locale.
extern std::function<std::string(const Date&, Form)> text;
} // namespace DateSource

} // namespace tallyvane
