#include "summary/page_pen.h"

#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "summary/chart_frame.h"

namespace tallyvane::Summary {

void PagePen::font(double size, Color color, bool isBold) {
    g_.TextFont(summaryFont);
    g_.TextSize(size);
    g_.Bold(isBold);
    g_.ForeColor(color);
}

void PagePen::heading(const std::string& text, double x, double baseline) {
    constexpr double size = 11;
    font(size, pageText, true);
    left(text, x, baseline);
}

void PagePen::right(const std::string& text, double x, double baseline) {
    left(text, x - g_.StringWidth(text), baseline);
}

void PagePen::centred(const std::string& text, double x, double baseline) { drawCentred(g_, text, x, baseline); }

std::string PagePen::fitting(const std::string& text, double width) const { return fitted(g_, text, width); }

void PagePen::rule(double y, Color color) {
    constexpr double thin = 0.7;
    g_.ForeColor(color);
    g_.FillRect(0, y, g_.Width(), thin);
}

void PagePen::foot(const std::string& words, int page, int pages) {
    constexpr double size = 7.5;
    font(size, pageNote);
    left(words, 0, g_.Height() - 4);
    right(tr("%1 of %2", {Grouped(page), Grouped(pages)}), g_.Width(), g_.Height() - 4);
}

} // namespace tallyvane::Summary
