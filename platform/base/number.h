/// Numbers as the diary writes and reads them: plain decimal text with a point, whatever the user's locale.
#pragma once

#include <string>
#include <string_view>

namespace tallyvane {

/// The number at the start of the text: blanks, a sign, digits with at most one point. 0 when there is none.
/// An exponent, "inf", "nan" and hexadecimal digits are no part of a number. A number too large for a double gives
/// the largest one.
double Val(std::string_view text);

/// Whether Val reads the whole text, but for blanks around it: a sign or none, at least one digit, at most one point.
bool isNumber(std::string_view text);

/// The shortest plain decimal text that Val reads back to the same double; no point for a whole number.
std::string Str(double number);

/// The number by a mask: "#" a digit if there is one, "0" a digit always, "." the point, a leading "-" a sign for a
/// negative number. Rounds to the mask's decimals, half away from zero on the decimal text that Str gives; the whole
/// part prints all its digits. Format(5.0, "##.#") is "5.".
std::string Format(double number, std::string_view mask);

/// A whole number for people to read, its thousands set apart as the user's locale has it: "2,000".
std::string Grouped(int number);

namespace NumberSource {
/// What stands between thousands; "," until it is set, once at start.
extern std::string groupSeparator;
} // namespace NumberSource

} // namespace tallyvane
