/// The keys that type no text, as the events of fields and lists name them: by control characters.
#pragma once

#include <string>

namespace tallyvane::Keys {

inline const std::string home = "\x01";
inline const std::string end = "\x04";
inline const std::string insert = "\x05";
inline const std::string backspace = "\x08";
inline const std::string tab = "\x09";
inline const std::string pageUp = "\x0B";
inline const std::string pageDown = "\x0C";
inline const std::string enter = "\x0D";
inline const std::string escape = "\x1B";
inline const std::string left = "\x1C";
inline const std::string right = "\x1D";
inline const std::string up = "\x1E";
inline const std::string down = "\x1F";
inline const std::string remove = "\x7F"; // the key Delete

} // namespace tallyvane::Keys
