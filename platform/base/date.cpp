#include "platform/base/date.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <vector>

#include "platform/base/text.h"

namespace tallyvane {

using std::chrono::sys_days;

namespace {

/// A piece of a short form: a number, or a text between numbers.
struct Piece {
    char field = 0; // 'd', 'M' or 'y'; 0 for a text
    std::string literal; // the text
    std::size_t digits = 0;
};

using Pattern = std::vector<Piece>;

void appendLiteral(Pattern& pattern, char c) {
    if (pattern.empty() || pattern.back().field != 0)
        pattern.emplace_back();
    pattern.back().literal += c;
}

Pattern piecesOf(std::string_view text) {
    Pattern pattern;
    bool quoted = false;
    for (const char c : text) {
        if (c == '\'') {
            quoted = !quoted;
        } else if (quoted || (c != 'd' && c != 'M' && c != 'y')) {
            appendLiteral(pattern, c);
        } else {
            if (pattern.empty() || pattern.back().field != c)
                pattern.push_back({c, {}, 0});
            ++pattern.back().digits;
        }
    }
    return pattern;
}

/// One day, one month and one year, none of them as a name.
bool isUsable(const Pattern& pattern) {
    std::string fields;
    for (const Piece& piece : pattern) {
        if (piece.field == 0)
            continue;
        if (piece.field != 'y' && piece.digits > 2)
            return false;
        fields += piece.field;
    }
    return fields.size() == 3 && fields.find('d') != std::string::npos && fields.find('M') != std::string::npos &&
           fields.find('y') != std::string::npos;
}

const Pattern& isoPattern() {
    static const Pattern pattern = piecesOf("yyyy-MM-dd");
    return pattern;
}

Pattern& shortPattern() {
    static Pattern pattern = isoPattern();
    return pattern;
}

std::string padded(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    return text.insert(0, digits - std::min(digits, text.size()), '0');
}

/// Takes up to `most` digits off the front of the text; -1 when there is none.
int takeNumber(std::string_view& text, std::size_t most, std::size_t& taken) {
    int number = 0;
    taken = 0;
    for (; taken < most && taken < text.size() && text[taken] >= '0' && text[taken] <= '9'; ++taken)
        number = number * 10 + (text[taken] - '0');
    text.remove_prefix(taken);
    return taken == 0 ? -1 : number;
}

std::optional<Date> parse(std::string_view text, const Pattern& pattern) {
    int year = 0;
    std::size_t yearDigits = 0;
    int month = 0;
    int day = 0;
    for (const Piece& piece : pattern) {
        if (piece.field == 0) {
            if (!text.starts_with(piece.literal))
                return std::nullopt;
            text.remove_prefix(piece.literal.size());
            continue;
        }
        std::size_t digits = 0;
        const int number = takeNumber(text, piece.field == 'y' ? 4 : 2, digits);
        if (piece.field == 'd')
            day = number;
        else if (piece.field == 'M')
            month = number;
        else {
            year = number;
            yearDigits = digits;
        }
    }
    if (!text.empty())
        return std::nullopt;
    if (yearDigits == 2)
        return nearestDay(year, month, day);
    if (yearDigits != 4 || !Date::isDay(year, month, day))
        return std::nullopt;
    return Date(year, month, day);
}

Date readClock() {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour * 3600 + local.tm_min * 60 + std::min(local.tm_sec, 59)};
}

std::string isoText(const Date& date, DateSource::Form form) {
    switch (form) {
    case DateSource::Form::abbreviatedDate:
    case DateSource::Form::longDate:
    case DateSource::Form::monthAndDay:
        return date.isoDate();
    case DateSource::Form::shortTime:
        return padded(date.Hour(), 2) + ':' + padded(date.Minute(), 2);
    case DateSource::Form::longTime:
        break;
    }
    return isoText(date, DateSource::Form::shortTime) + ':' + padded(date.Second(), 2);
}

constexpr sys_days origin = std::chrono::January / 1 / 1;
constexpr double secondsADay = 86400;

} // namespace

std::function<std::string(const Date&, DateSource::Form)> DateSource::text = isoText;

std::function<Date()> DateSource::now = readClock;

void DateSource::setShortPattern(std::string_view pattern) {
    Pattern pieces = piecesOf(pattern);
    if (!isUsable(pieces))
        pieces = isoPattern();
    shortPattern() = std::move(pieces);
}

Date::Date() : Date(DateSource::now()) {}

Date::Date(int year, int month, int day, int secondsOfDay)
    : day_(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
           std::chrono::day(static_cast<unsigned>(day))),
      secondsOfDay_(secondsOfDay) {}

Date Date::ofTotalSeconds(double seconds) {
    const double last = Date(9999, 12, 31, 86399).TotalSeconds();
    const double known = seconds > 0 ? std::min(seconds, last) : 0;
    const double day = std::floor(known / secondsADay);
    const std::chrono::year_month_day date(origin + std::chrono::days(static_cast<int>(day)));
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())), static_cast<int>(known - day * secondsADay)};
}

bool Date::isDay(int year, int month, int day) {
    return year >= 1 && year <= 9999 && month >= 1 && day >= 1 && Date(year, month, day).day_.ok();
}

std::string Date::ShortDate() const {
    std::string text;
    for (const Piece& piece : shortPattern()) {
        if (piece.field == 'd')
            text += padded(Day(), piece.digits);
        else if (piece.field == 'M')
            text += padded(Month(), piece.digits);
        else if (piece.field == 'y')
            text += padded(Year(), 4);
        else
            text += piece.literal;
    }
    return text;
}

std::string Date::AbbreviatedDate() const { return DateSource::text(*this, DateSource::Form::abbreviatedDate); }
std::string Date::LongDate() const { return DateSource::text(*this, DateSource::Form::longDate); }
std::string Date::MonthAndDay() const { return DateSource::text(*this, DateSource::Form::monthAndDay); }
std::string Date::ShortTime() const { return DateSource::text(*this, DateSource::Form::shortTime); }
std::string Date::LongTime() const { return DateSource::text(*this, DateSource::Form::longTime); }

std::string Date::isoDate() const { return padded(Year(), 4) + '-' + padded(Month(), 2) + '-' + padded(Day(), 2); }

std::string Date::isoTime() const { return padded(Hour(), 2) + ':' + padded(Minute(), 2) + ':' + padded(Second(), 2); }

double Date::TotalSeconds() const {
    const auto days = (sys_days(day_) - origin).count();
    return static_cast<double>(days) * secondsADay + secondsOfDay_;
}

namespace {

constexpr double secondsPerDay = 24 * 60 * 60;

double dayNumber(const Date& day) { return std::floor(day.TotalSeconds() / secondsPerDay); }

} // namespace

Date daysAfter(const Date& day, int days) { return Date::ofTotalSeconds((dayNumber(day) + days) * secondsPerDay); }

int daysBetween(const Date& from, const Date& to) { return static_cast<int>(dayNumber(to) - dayNumber(from)); }

int Ticks() {
    using Sixtieths = std::chrono::duration<int, std::ratio<1, 60>>;
    return std::chrono::duration_cast<Sixtieths>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::optional<Date> nearestDay(int twoDigits, int month, int day) {
    const Date today = DateSource::now();
    const int century = today.Year() - today.Year() % 100;
    const auto distance = [&](const Date& date) { return std::abs(date.TotalSeconds() - today.TotalSeconds()); };
    std::optional<Date> nearest;
    for (const int year : {century - 100 + twoDigits, century + twoDigits, century + 100 + twoDigits}) {
        if (!Date::isDay(year, month, day))
            continue;
        const Date date(year, month, day);
        if (!nearest || distance(date) < distance(*nearest))
            nearest = date;
    }
    return nearest;
}

std::optional<Date> ParseDate(std::string_view text) {
    const std::string trimmed = Trim(text);
    if (const auto date = parse(trimmed, shortPattern()))
        return date;
    return parse(trimmed, isoPattern());
}

} // namespace tallyvane
