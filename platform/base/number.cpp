#include "platform/base/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tallyvane {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The digits and the one point at the start of the text.
std::string_view unsignedNumber(std::string_view text) {
    std::size_t length = 0;
    bool pointSeen = false;
    for (; length < text.size(); ++length) {
        const bool point = text[length] == '.' && !pointSeen;
        if (!point && !isDigit(text[length]))
            break;
        pointSeen = pointSeen || point;
    }
    return text.substr(0, length);
}

/// Adds one to the last digit of a decimal text, carrying to the left.
void roundUp(std::string& digits) {
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] == '.')
            continue;
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

/// A decimal text without a sign, rounded to `decimals` places: "6.96", 1 gives "7.0".
std::string rounded(std::string digits, std::size_t decimals) {
    std::size_t point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits += '.';
    }
    const std::size_t end = point + 1 + decimals;
    const bool up = end < digits.size() && digits[end] >= '5';
    digits.resize(end, '0');
    if (up)
        roundUp(digits);
    return digits;
}

} // namespace

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    const std::string_view digits = unsignedNumber(text);
    double value = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    if (error == std::errc::result_out_of_range) {
        const bool tiny = digits.find_first_of("123456789") > digits.find('.');
        value = tiny ? 0 : std::numeric_limits<double>::max();
    }
    return negative ? -value : value;
}

bool isNumber(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    std::string_view digits = text.substr(std::min(text.find_first_not_of(blanks), text.size()));
    digits = digits.substr(0, digits.find_last_not_of(blanks) + 1);
    if (digits.starts_with('-') || digits.starts_with('+'))
        digits.remove_prefix(1);
    return unsignedNumber(digits) == digits && std::any_of(digits.begin(), digits.end(), isDigit);
}

std::string Str(double number) {
    if (number == 0)
        return "0";
    std::array<char, 400> buffer{}; // the longest double without an exponent has 343 characters
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
    return {buffer.data(), end};
}

std::string Format(double number, std::string_view mask) {
    if (!std::isfinite(number))
        return Str(number);
    const bool withSign = mask.starts_with('-');
    if (withSign)
        mask.remove_prefix(1);
    const std::size_t maskPoint = std::min(mask.find('.'), mask.size());
    const std::string_view maskWhole = mask.substr(0, maskPoint);
    const std::string_view maskDecimals = mask.substr(std::min(maskPoint + 1, mask.size()));

    const std::string digits = rounded(Str(std::abs(number)), maskDecimals.size());
    const std::size_t point = digits.find('.');
    std::string whole = digits.substr(0, point);
    std::string decimals = digits.substr(point + 1);
    const bool zero = digits.find_first_of("123456789") == std::string::npos;

    if (whole == "0")
        whole.clear();
    const auto wholeAtLeast = static_cast<std::size_t>(std::count(maskWhole.begin(), maskWhole.end(), '0'));
    whole.insert(0, wholeAtLeast - std::min(wholeAtLeast, whole.size()), '0');
    const std::size_t decimalsAtLeast = maskDecimals.rfind('0') + 1; // 0 when the mask has no "0" there
    while (decimals.size() > decimalsAtLeast && decimals.back() == '0')
        decimals.pop_back();

    std::string result = withSign && number < 0 && !zero ? "-" : "";
    result += whole;
    if (maskPoint < mask.size())
        result += '.';
    return result + decimals;
}

std::string NumberSource::groupSeparator = ",";

std::string Grouped(int number) {
    std::string text = std::to_string(number);
    const std::size_t sign = number < 0 ? 1 : 0;
    for (std::size_t end = text.size(); end > sign + 3;) {
        end -= 3;
        text.insert(end, NumberSource::groupSeparator);
    }
    return text;
}

} // namespace tallyvane
