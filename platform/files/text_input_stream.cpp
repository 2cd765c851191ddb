#include "platform/files/text_input_stream.h"

#include <algorithm>

namespace tallyvane {

std::string_view TextInputStream::ReadLine() {
    const std::string_view rest = std::string_view(text_).substr(place_);
    const auto isEnd = [](char c) { return c == '\n' || c == '\r'; };
    const auto end = std::find_if(rest.begin(), rest.end(), isEnd);
    const auto length = static_cast<std::size_t>(end - rest.begin());
    const std::size_t endLength = end == rest.end() ? 0 : rest.substr(length).starts_with("\r\n") ? 2 : 1;
    place_ += length + endLength;
    return rest.substr(0, length);
}

std::string_view TextInputStream::ReadAll() {
    return std::string_view(text_).substr(std::exchange(place_, text_.size()));
}

} // namespace tallyvane
