#include "platform/drawing/wrapped_text.h"

#include <algorithm>

#include "platform/base/text.h"

namespace tallyvane {

namespace {

/// More than a line of paper takes: what is longer is not even measured.
constexpr std::size_t mostBytes = 4096;

/// Bytes of the first characters that fit within the width; one character at the least.
std::size_t charactersThatFit(const Graphics& g, std::string_view word, double width) {
    const std::string_view looked = word.substr(0, mostBytes);
    std::size_t fits = Left(looked, 1).size();
    while (fits < looked.size()) {
        const std::size_t next = fits + Left(looked.substr(fits), 1).size();
        if (g.StringWidth(looked.substr(0, next)) > width)
            break;
        fits = next;
    }
    return fits;
}

} // namespace

std::size_t firstLine(const Graphics& g, std::string_view text, double width) {
    const std::size_t end = std::min(text.find(EndOfLine), text.size());
    std::size_t taken = 0;
    while (taken < end) {
        const std::size_t wordEnd = std::min(text.find(' ', taken), end);
        if (wordEnd > mostBytes || g.StringWidth(text.substr(0, wordEnd)) > width)
            break;
        taken = std::min(text.find_first_not_of(' ', wordEnd), end);
    }
    if (taken == end)
        return std::min(end + EndOfLine.size(), text.size());
    return taken > 0 ? taken : charactersThatFit(g, text.substr(0, end), width);
}

void DrawString(Graphics& g, std::string_view text, double x, double y, double width) {
    for (; !text.empty(); y += g.TextHeight()) {
        const std::size_t length = firstLine(g, text, width);
        g.DrawString(ReplaceAll(text.substr(0, length), EndOfLine, ""), x, y);
        text.remove_prefix(length);
    }
}

double StringHeight(const Graphics& g, std::string_view text, double width) {
    double height = 0;
    for (; !text.empty(); height += g.TextHeight())
        text.remove_prefix(firstLine(g, text, width));
    return height;
}

} // namespace tallyvane
