#include "platform/base/text.h"

namespace tallyvane {

namespace {

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Bytes that a character takes by its first byte; 1 for a byte that starts none.
std::size_t announcedLength(unsigned char first) {
    if (first >= 0xC2U && first <= 0xDFU)
        return 2;
    if (first >= 0xE0U && first <= 0xEFU)
        return 3;
    if (first >= 0xF0U && first <= 0xF4U)
        return 4;
    return 1;
}

/// Bytes of the character at the start of a text that is not empty.
std::size_t characterLength(std::string_view text) {
    const std::size_t length = announcedLength(static_cast<unsigned char>(text.front()));
    if (length > text.size())
        return 1;
    for (std::size_t i = 1; i < length; ++i)
        if (!isContinuation(text[i]))
            return 1;
    return length;
}

/// Bytes that the first `count` characters take.
std::size_t bytesOf(std::string_view text, int count) {
    std::size_t bytes = 0;
    for (int i = 0; i < count && bytes < text.size(); ++i)
        bytes += characterLength(text.substr(bytes));
    return bytes;
}

} // namespace

int compareTexts(std::string_view a, std::string_view b) { return a.compare(b); }

int Len(std::string_view text) {
    int count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(characterLength(text));
    return count;
}

int InStr(std::string_view text, std::string_view sought) {
    const std::size_t at = sought.empty() ? std::string_view::npos : text.find(sought);
    return at == std::string_view::npos ? 0 : Len(text.substr(0, at)) + 1;
}

std::string Left(std::string_view text, int count) { return std::string(text.substr(0, bytesOf(text, count))); }

std::string Right(std::string_view text, int count) {
    const int skipped = Len(text) - (count > 0 ? count : 0);
    return std::string(text.substr(bytesOf(text, skipped)));
}

std::string Mid(std::string_view text, int start) { return std::string(text.substr(bytesOf(text, start - 1))); }

std::string Mid(std::string_view text, int start, int count) {
    const std::string_view rest = text.substr(bytesOf(text, start - 1));
    return std::string(rest.substr(0, bytesOf(rest, count)));
}

std::string Trim(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

std::string ReplaceAll(std::string_view text, std::string_view sought, std::string_view replacement) {
    if (sought.empty())
        return std::string(text);
    std::string result;
    for (std::size_t at = text.find(sought); at != std::string_view::npos; at = text.find(sought)) {
        result.append(text.substr(0, at)).append(replacement);
        text.remove_prefix(at + sought.size());
    }
    return result.append(text);
}

std::string ReplaceLineEndings(std::string_view text, std::string_view lineEnd) {
    const std::string unixEnds = ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
    return ReplaceAll(unixEnds, "\n", lineEnd);
}

std::string Chr(int code) {
    const auto c = static_cast<unsigned>(code);
    const auto byte = [](unsigned value) { return static_cast<char>(value); };
    const auto tail = [&](unsigned shift) { return byte(0x80U | ((c >> shift) & 0x3FU)); };
    if (code < 0 || c > 0x10FFFFU)
        return {};
    if (c < 0x80U)
        return {byte(c)};
    if (c < 0x800U)
        return {byte(0xC0U | (c >> 6U)), tail(0)};
    if (c < 0x10000U)
        return {byte(0xE0U | (c >> 12U)), tail(6), tail(0)};
    return {byte(0xF0U | (c >> 18U)), tail(12), tail(6), tail(0)};
}

std::string NthField(std::string_view text, std::string_view separator, int n) {
    FieldWalk fields(text, separator);
    for (int skipped = 1; skipped < n && !fields.atEnd(); ++skipped)
        fields.next();
    return n < 1 ? std::string() : std::string(fields.next());
}

int CountFields(std::string_view text, std::string_view separator) {
    int count = 0;
    for (FieldWalk fields(text, separator); !fields.atEnd(); ++count)
        fields.next();
    return count;
}

std::string_view FieldWalk::next() {
    if (atEnd_)
        return {};
    const std::size_t at = separator_.empty() ? std::string_view::npos : rest_.find(separator_);
    atEnd_ = at == std::string_view::npos;
    const std::string_view field = rest_.substr(0, at);
    rest_.remove_prefix(atEnd_ ? rest_.size() : at + separator_.size());
    return field;
}

namespace {

std::string foldedEnglish(std::string_view text) {
    std::string folded(text);
    for (char& letter : folded)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return folded;
}

} // namespace

std::function<std::string(std::string_view text)> TextSource::fold = foldedEnglish;

std::string Folded(std::string_view text) { return TextSource::fold(text); }

} // namespace tallyvane
