#include "platform/printing.h"

#include <algorithm>
#include <cmath>

#include "platform/text.h"
#include "platform/toolkit.h"

namespace tallyvane {

namespace {

/// Bytes of the first characters that fit within the width; one character at the least.
std::size_t charactersThatFit(const Graphics& g, std::string_view word, double width) {
    constexpr std::size_t most = 4096; // more bytes than a line of paper takes
    const std::string_view looked = word.substr(0, most);
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

std::unique_ptr<Graphics> OpenPrinterDialog() {
    Toolkit* toolkit = Toolkit::inForce();
    return toolkit == nullptr ? nullptr : toolkit->openPrinterDialog();
}

std::size_t firstLine(const Graphics& g, std::string_view text, double width) {
    const std::size_t end = std::min(text.find(EndOfLine), text.size());
    std::size_t taken = 0;
    while (taken < end) {
        const std::size_t wordEnd = std::min(text.find(' ', taken), end);
        if (g.StringWidth(text.substr(0, wordEnd)) > width)
            break;
        taken = std::min(text.find_first_not_of(' ', wordEnd), end);
    }
    if (taken == end)
        return std::min(end + EndOfLine.size(), text.size());
    return taken > 0 ? taken : charactersThatFit(g, text.substr(0, end), width);
}

void StyledTextPrinter::DrawBlock(double x, double y, double height) {
    constexpr double textSize = 12;
    g_.TextFont("System");
    g_.TextSize(textSize);
    g_.ForeColor(RGB(0, 0, 0));
    const double lineHeight = g_.TextHeight();
    const int lines = std::max(1, static_cast<int>(std::floor(height / lineHeight)));
    for (int i = 0; i < lines && !EndOfText(); ++i) {
        const std::string_view rest = std::string_view(text_).substr(place_);
        const std::size_t length = firstLine(g_, rest, width_);
        g_.DrawString(ReplaceAll(rest.substr(0, length), EndOfLine, ""), x, y + g_.TextAscent() + i * lineHeight);
        place_ += length;
    }
}

} // namespace tallyvane
