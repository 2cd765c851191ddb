#pragma once

#include <string>

namespace tallyvane {

/// The text of a file that may begin with a byte order mark: without the mark, and in UTF-8 if the mark is one of
/// UTF-16, halves of characters as U+FFFD. Any other file is text as it stands.
std::string withoutByteOrderMark(std::string file);

} // namespace tallyvane
