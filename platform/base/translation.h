/// The texts that the user reads, in the user's language.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tallyvane {

/// An English text of the program as the user reads it. Texts of the user and of files never pass here.
[[nodiscard]] std::string tr(std::string_view english);
/// The same with "%1", "%2" and so on filled in, in the order that the language wants.
[[nodiscard]] std::string tr(std::string_view english, std::initializer_list<std::string_view> values);

namespace Translation {

/// Finds the text in the user's language. Empty: English as it stands. Set at start, before the first window is made.
extern std::function<std::string(std::string_view english)> lookup;

} // namespace Translation

} // namespace tallyvane
