#include "platform/base/translation.h"

#include <iterator>

namespace tallyvane {

std::function<std::string(std::string_view english)> Translation::lookup;

std::string tr(std::string_view english) {
    return Translation::lookup ? Translation::lookup(english) : std::string(english);
}

std::string tr(std::string_view english, std::initializer_list<std::string_view> values) {
    const std::string text = tr(english);
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char number = text[i] == '%' && i + 1 < text.size() ? text[i + 1] : '0';
        if (number < '1' || number > '9' || number - '1' >= std::ssize(values)) {
            filled += text[i];
            continue;
        }
        filled += values.begin()[number - '1'];
        ++i;
    }
    return filled;
}

} // namespace tallyvane
