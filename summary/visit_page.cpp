#include "summary/visit_page.h"

#include <algorithm>
#include <cstddef>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/drawing/surface_part.h"
#include "platform/drawing/wrapped_text.h"
#include "summary/chart_frame.h"
#include "summary/charts.h"
#include "summary/course_chart.h"
#include "summary/figures_table.h"
#include "summary/remarks.h"
#include "summary/test_period_names.h"

namespace tallyvane::Summary {

namespace {

constexpr double leastWidth = 540; // points: Letter and A4 less margins
constexpr double leastHeight = 740;
constexpr Color black = RGB(0, 0, 0);
constexpr Color grey = RGB(95, 95, 95);
constexpr Color rule = RGB(150, 150, 150);
constexpr double lineHeight = 12;

/// Draws texts and lines from the top of the page downward.
class Page {
public:
    explicit Page(Graphics& g) : g_(g) {}

    double y = 0; // where the next thing begins

    void font(double size, Color color, bool isBold = false) {
        g_.TextFont(summaryFont);
        g_.TextSize(size);
        g_.Bold(isBold);
        g_.ForeColor(color);
    }
    void left(const std::string& text, double x, double baseline) { g_.DrawString(text, x, baseline); }
    void right(const std::string& text, double x, double baseline) {
        g_.DrawString(text, x - g_.StringWidth(text), baseline);
    }
    /// The longest beginning of a text that has room, with "..." where it is cut.
    std::string fitting(const std::string& text, double width) const {
        if (g_.StringWidth(text) <= width)
            return text;
        std::string shown = text;
        while (!shown.empty() && g_.StringWidth(shown + "...") > width)
            shown = std::string(Left(shown, Len(shown) - 1));
        return shown + "...";
    }
    void line(Color color) {
        g_.ForeColor(color);
        g_.FillRect(0, y, g_.Width(), 0.7);
    }
    void heading(const std::string& text, double x, double baseline) {
        font(11, black, true);
        left(text, x, baseline);
    }
    double width() const { return g_.Width(); }
    Graphics& surface() { return g_; }

private:
    Graphics& g_;
};

void drawHead(Page& page, const PeriodSummary& summary, const VisitPage& visit) {
    page.font(20, black, true);
    page.left(page.fitting(visitTitle(summary), page.width() * 0.6), 0, 20);
    page.font(13, black);
    page.right(page.fitting(visit.texts.patient, page.width() * 0.38), page.width(), 20);
    page.font(9, grey);
    const std::string dot = "  \u00b7  ";
    page.left(page.fitting(periodWords(summary) + dot + basisWords(summary) + dot +
                               tr("all values in %1", {nameOf(summary.unit)}),
                           page.width() * 0.78),
              0, 36);
    page.right(tr("printed %1", {visit.printed.AbbreviatedDate()}), page.width(), 36);
    page.y = 42;
    page.line(black);
}

void drawPictures(Page& page, const PeriodSummary& summary) {
    constexpr double courseHeight = 150;
    constexpr double chartsHeight = 170;
    constexpr double gap = 10;
    page.heading(tr("The course"), 0, page.y + 10);
    SurfacePart course(page.surface(), 0, page.y + 14, page.width(), courseHeight);
    CourseChart(summary).draw(course);
    page.y += courseHeight + 30;
    const double half = (page.width() - gap) / 2;
    page.heading(tr("The day: middle half and median"), 0, page.y + 6);
    page.heading(tr("Shares of your five ranges"), half + gap, page.y + 6);
    SurfacePart day(page.surface(), 0, page.y + 10, half, chartsHeight);
    drawDay(summary, day);
    SurfacePart shares(page.surface(), half + gap, page.y + 10, half, chartsHeight);
    drawShares(summary, shares);
    page.y += chartsHeight + 26;
}

void drawFigures(Page& page, const PeriodSummary& summary) {
    constexpr double nameWidth = 92;
    const TableRow headings = tableHeadings();
    const std::size_t counts = headings.size() - Ranges::all.size(); // columns before the ranges
    const double wide = 46; // a column of a range
    const double narrow =
        (page.width() - nameWidth - wide * static_cast<double>(Ranges::all.size())) / static_cast<double>(counts - 1);
    const auto drawRow = [&](const TableRow& row) {
        page.left(row[0], 0, page.y);
        double x = nameWidth;
        for (std::size_t column = 1; column < row.size(); ++column) {
            x += column < counts ? narrow : wide;
            page.right(row[column], x, page.y);
        }
        page.y += lineHeight;
    };
    page.heading(tr("The figures"), 0, page.y);
    page.y += 13;
    page.font(8, grey);
    drawRow(headings);
    page.y -= lineHeight - 3;
    page.line(rule);
    page.y += 10;
    bool isFirst = true;
    for (const TableRow& row : tableRows(summary)) {
        page.font(8.5, black, isFirst);
        drawRow(row);
        isFirst = false;
    }
    page.font(8, grey);
    std::string below = weightWords(summary);
    if (summary.readings.unreadable > 0)
        below += (below.empty() ? "" : "  \u00b7  ") +
                 tr("%1 readings could not be read", {Grouped(summary.readings.unreadable)});
    page.left(below, 0, page.y);
    page.y += 14;
}

void drawLowest(Page& page, const PeriodSummary& summary, double width) {
    constexpr std::size_t most = 10;
    std::vector<Reading> readings = summary.readings.readings;
    const std::size_t count = std::min(most, readings.size());
    std::partial_sort(readings.begin(), readings.begin() + static_cast<std::ptrdiff_t>(count), readings.end(),
                      [](const Reading& a, const Reading& b) { return a.value < b.value; });
    readings.resize(count);
    const TestPeriodNames names = testPeriodNames();
    page.heading(tr("Your lowest readings"), 0, page.y);
    double baseline = page.y + 14;
    for (const Reading& reading : readings) {
        page.font(8.5, black, true);
        page.right(valueText(reading.value, summary.unit), 22, baseline);
        page.font(8.5, black);
        const std::string day = reading.day ? reading.day->AbbreviatedDate() : "";
        page.left(page.fitting(day + ", " + names.words[static_cast<std::size_t>(reading.testPeriod)], width - 28), 28,
                  baseline);
        baseline += lineHeight;
    }
}

/// Paragraphs below a heading, as far as they have room above `bottom`. Where they end.
double drawParagraphs(Page& page, const std::string& heading, const std::vector<std::string>& paragraphs, double x,
                      double top, double width, double bottom) {
    page.heading(heading, x, top);
    page.font(9, black);
    double baseline = top + 14;
    for (const std::string& paragraph : paragraphs) {
        const double height = StringHeight(page.surface(), paragraph, width);
        if (baseline + height > bottom)
            break;
        DrawString(page.surface(), paragraph, x, baseline, width);
        baseline += height + 4;
    }
    return baseline;
}

void drawWords(Page& page, const PeriodSummary& summary, const VisitPage& visit, double bottom) {
    constexpr double gap = 16;
    const double third = (page.width() - 2 * gap) / 3;
    const double middle = third + gap;
    const double last = 2 * (third + gap);
    drawLowest(page, summary, third);
    drawParagraphs(page, tr("What stands out"), remarksOn(summary), middle, page.y, third, bottom);
    double y = page.y;
    if (!visit.medications.empty())
        y = drawParagraphs(page, tr("Medication"), visit.medications, last, y, third, bottom - 40) + 10;
    if (!visit.texts.questions.empty())
        drawParagraphs(page, tr("What I want to ask"), {visit.texts.questions}, last, y, third, bottom);
}

void drawFoot(Page& page, double height, int pages) {
    page.y = height - 16;
    page.line(rule);
    page.font(7.5, grey);
    page.left(
        tr("Tallyvane \u00b7 figures from finger-stick readings typed or imported by the patient \u00b7 no medical "
           "device; changes of treatment belong to your doctor"),
        0, height - 4);
    page.right(tr("%1 of %2", {Grouped(1), Grouped(pages)}), page.width(), height - 4);
}

} // namespace

std::string visitTitle(const PeriodSummary& summary) {
    return tr("Blood glucose, %1 days", {Grouped(summary.dayCount)});
}

void drawKeyFigures(Graphics& g, const PeriodSummary& summary, double size) {
    constexpr int longText = 11; // characters that go into one line
    const std::vector<KeyFigure> figures = keyFigures(summary);
    const double width = g.Width() / static_cast<double>(figures.size());
    Page page(g);
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const double x = static_cast<double>(i) * width;
        page.font(9 * size, grey);
        page.left(figures[i].name, x, 14 * size);
        const bool isLong = Len(figures[i].value) > longText;
        page.font((isLong ? 10 : 14) * size, black, true);
        DrawString(g, figures[i].value, x, (isLong ? 26 : 31) * size, width - 6);
        page.font(7.5 * size, grey);
        DrawString(g, figures[i].note, x, (isLong ? 48 : 42) * size, width - 6);
    }
}

void drawVisitPage(Graphics& g, const PeriodSummary& summary, const VisitPage& visit) {
    constexpr double keyFiguresHeight = 72;
    g.shrinkToFit(leastWidth, leastHeight);
    Page page(g);
    drawHead(page, summary, visit);
    SurfacePart keys(g, 0, page.y, g.Width(), keyFiguresHeight);
    drawKeyFigures(keys, summary);
    page.y += keyFiguresHeight;
    drawPictures(page, summary);
    drawFigures(page, summary);
    drawWords(page, summary, visit, g.Height() - 20);
    drawFoot(page, g.Height(), visit.pages);
}

} // namespace tallyvane::Summary
