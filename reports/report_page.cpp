#include "reports/report_page.h"

#include <algorithm>

#include "platform/base/translation.h"
#include "platform/drawing/wrapped_text.h"

namespace tallyvane {

namespace {

constexpr double left = 50;
constexpr double titleBaseline = 40;
constexpr double headingsTop = 60;
constexpr double linesTop = 80;
constexpr double detailLeft = 120;
constexpr double shadedWidth = 480;
constexpr std::array<double, ReportPage::columns> columnLefts{left, 150, 200, 250, 300, 350, 400, 450, 500};

constexpr Color black = RGB(0, 0, 0);
constexpr Color titleColor = RGB(0, 0, 128);
constexpr Color headingColor = RGB(128, 0, 0);
constexpr Color ground = RGB(209, 229, 255);

} // namespace

ReportPage::ReportPage(Graphics& g, int limit) : g_(g), limit_(limit) {
    const double lowestBaseline = linesTop + g_.TextHeight() * (limit_ + 2); // of the note, at the worst
    g_.shrinkToFit(left + shadedWidth, lowestBaseline + g_.TextHeight() - g_.TextAscent());
}

double ReportPage::detailWidth() const { return std::min(450.0, g_.Width() - detailLeft); }

double ReportPage::baseline() const { return linesTop + g_.TextHeight() * line_; }

void ReportPage::ensureLines(int lines) {
    if (line_ + lines <= limit_)
        return;
    g_.NextPage();
    line_ = 0;
}

void ReportPage::drawHead(const std::string& title) {
    g_.Bold(true);
    g_.ForeColor(titleColor);
    g_.DrawString(title, left, titleBaseline);
    g_.Bold(false);

    g_.ForeColor(headingColor);
    const double meals = headingsTop + g_.TextHeight();
    g_.DrawString(tr("BREAKFAST"), 155, meals);
    g_.DrawString(tr("LUNCH"), 270, meals);
    g_.DrawString(tr("SUPPER"), 370, meals);

    constexpr std::array<const char*, columns> headings{"Date",   "Before", "After", "Before", "After",
                                                        "Before", "After",  "Bed",   "Av."};
    line_ = 2;
    g_.Underline(true);
    for (std::size_t column = 0; column < columns; ++column)
        g_.DrawString(tr(headings[column]), columnLefts[column], headingsTop + g_.TextHeight() * line_);
    g_.Underline(false);
    g_.ForeColor(black);
}

void ReportPage::drawCells(const Cells& cells) {
    for (std::size_t column = 0; column < columns; ++column)
        g_.DrawString(cells[column], columnLefts[column], baseline());
}

void ReportPage::drawDay(const Cells& cells) {
    g_.ForeColor(ground);
    g_.FillRect(left, baseline() - 12, shadedWidth, 15);
    g_.ForeColor(black);
    drawCells(cells);
    ++line_;
}

void ReportPage::drawDetail(const std::string& label, const std::string& text, int lines) {
    DrawString(g_, label, left, baseline(), detailWidth());
    DrawString(g_, text, detailLeft, baseline(), detailWidth());
    line_ += lines;
}

void ReportPage::drawAverages(const Cells& cells) {
    g_.Bold(true);
    g_.ForeColor(headingColor);
    drawCells(cells);
    g_.ForeColor(black);
}

void ReportPage::drawNote(const std::string& text) {
    g_.Bold(false);
    g_.DrawString(text, left, baseline());
}

} // namespace tallyvane
