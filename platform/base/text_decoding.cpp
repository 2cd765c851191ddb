#include "platform/base/text_decoding.h"

#include <cstdint>
#include <string_view>

#include "platform/base/text.h"

namespace tallyvane {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleEndianMark = "\xFF\xFE";
constexpr std::string_view bigEndianMark = "\xFE\xFF";

constexpr bool isFirstHalf(std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isSecondHalf(std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// Units of two bytes; an odd byte at the end is dropped.
std::string fromUtf16(std::string_view bytes, bool littleEndian) {
    constexpr std::uint32_t replacement = 0xFFFD;
    const auto unitAt = [&](std::size_t place) {
        const auto first = static_cast<unsigned char>(bytes[place]);
        const auto second = static_cast<unsigned char>(bytes[place + 1]);
        return static_cast<std::uint32_t>(littleEndian ? first + second * 256 : first * 256 + second);
    };
    std::string text;
    for (std::size_t place = 0; place + 1 < bytes.size(); place += 2) {
        std::uint32_t code = unitAt(place);
        if (isFirstHalf(code) && place + 3 < bytes.size() && isSecondHalf(unitAt(place + 2))) {
            code = 0x10000 + ((code - 0xD800) << 10U) + (unitAt(place + 2) - 0xDC00);
            place += 2;
        } else if (isFirstHalf(code) || isSecondHalf(code)) {
            code = replacement;
        }
        text += Chr(static_cast<int>(code));
    }
    return text;
}

} // namespace

std::string withoutByteOrderMark(std::string file) {
    const std::string_view bytes = file;
    if (bytes.starts_with(utf8Mark))
        return file.substr(utf8Mark.size());
    if (bytes.starts_with(littleEndianMark))
        return fromUtf16(bytes.substr(littleEndianMark.size()), true);
    if (bytes.starts_with(bigEndianMark))
        return fromUtf16(bytes.substr(bigEndianMark.size()), false);
    return file;
}

} // namespace tallyvane
