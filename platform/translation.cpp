#include "platform/translation.h"

namespace tallyvane {

std::function<std::string(std::string_view english)> Translation::lookup;

std::string tr(std::string_view english) {
    return Translation::lookup ? Translation::lookup(english) : std::string(english);
}

std::string tr(std::string_view english, std::initializer_list<std::string_view> values) {
    const std::string text = tr(english);
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t place =
            text[i] == '%' && i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1]) - '1' : values.size();
        if (place < values.size()) {
            filled += values.begin()[place];
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

} // namespace tallyvane
