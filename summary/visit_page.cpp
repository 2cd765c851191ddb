#include "summary/visit_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/drawing/surface_part.h"
#include "platform/drawing/wrapped_text.h"
#include "summary/charts.h"
#include "summary/course_chart.h"
#include "summary/figures_table.h"
#include "summary/page_pen.h"
#include "summary/remarks.h"

namespace tallyvane::Summary {

namespace {

constexpr double lineHeight = 12;

/// A page that is filled from its top downward.
class Page : public PagePen {
public:
    using PagePen::PagePen;
    double y = 0; // where the next thing begins
};

void drawHead(Page& page, const PeriodSummary& summary, const VisitPage& visit) {
    page.font(20, pageText, true);
    page.left(page.fitting(visitTitle(summary), page.width() * 0.6), 0, 20);
    page.font(13, pageText);
    page.right(page.fitting(visit.texts.patient, page.width() * 0.38), page.width(), 20);
    page.font(9, pageNote);
    page.left(page.fitting(headWords(summary), page.width() * 0.78), 0, 36);
    page.right(tr("printed %1", {visit.printed.AbbreviatedDate()}), page.width(), 36);
    page.y = 42;
    page.rule(page.y, pageText);
}

void drawPictures(Page& page, const PeriodSummary& summary) {
    constexpr double courseHeight = 135;
    constexpr double chartsHeight = 160;
    constexpr double gap = 10;
    const std::string unit = ", " + nameOf(summary.unit);
    page.heading(tr("The course") + unit, 0, page.y + 10);
    SurfacePart course(page.surface(), 0, page.y + 14, page.width(), courseHeight);
    CourseChart(summary).draw(course);
    page.y += courseHeight + 26;
    const double half = (page.width() - gap) / 2;
    page.heading(tr("The day: middle half and median") + unit, 0, page.y + 6);
    page.heading(tr("Shares of your five ranges"), half + gap, page.y + 6);
    SurfacePart day(page.surface(), 0, page.y + 10, half, chartsHeight);
    drawDay(summary, day);
    SurfacePart shares(page.surface(), half + gap, page.y + 10, half, chartsHeight);
    drawShares(summary, shares);
    page.y += chartsHeight + 24;
}

/// Where the columns of the table end.
std::vector<double> columnEnds(double width) {
    constexpr std::array<double, 14> shares{90, 20, 24, 28, 34, 24, 32, 60, 62, 36, 40, 44, 40, 42}; // of the width
    const double all = std::accumulate(shares.begin(), shares.end(), 0.0);
    std::vector<double> ends;
    ends.reserve(shares.size());
    for (const double share : shares)
        ends.push_back((ends.empty() ? 0 : ends.back()) + share * width / all);
    return ends;
}

void drawFigures(Page& page, const PeriodSummary& summary) {
    constexpr double gap = 3;
    const std::vector<double> ends = columnEnds(page.width());
    const auto drawRow = [&](const TableRow& row) {
        page.left(page.fitting(row[0], ends[0] - gap), 0, page.y);
        for (std::size_t column = 1; column < row.size(); ++column)
            page.right(page.fitting(row[column], ends[column] - ends[column - 1] - gap), ends[column], page.y);
        page.y += lineHeight;
    };
    page.heading(tr("The figures") + ", " + nameOf(summary.unit), 0, page.y);
    page.y += 13;
    page.font(8, pageNote);
    drawRow(tableHeadings());
    page.y -= lineHeight - 3;
    page.rule(page.y);
    page.y += 10;
    bool isFirst = true;
    for (const TableRow& row : tableRows(summary)) {
        page.font(8, pageText, isFirst);
        drawRow(row);
        isFirst = false;
    }
    page.font(8, pageNote);
    const std::string weight = weightWords(summary);
    page.left(page.fitting(limitsWords(summary) + (weight.empty() ? "" : "  \u00b7  ") + weight, page.width()), 0,
              page.y);
    page.y += 11;
    page.left(page.fitting(leftOutWords(summary), page.width()), 0, page.y);
    page.y += 11;
}

void drawLowest(Page& page, const PeriodSummary& summary, double width) {
    constexpr std::size_t most = 10;
    std::vector<Reading> readings = summary.readings.readings;
    const std::size_t count = std::min(most, readings.size());
    std::partial_sort(readings.begin(), readings.begin() + static_cast<std::ptrdiff_t>(count), readings.end(),
                      [](const Reading& a, const Reading& b) { return a.value < b.value; });
    readings.resize(count);
    const TestPeriodNames& names = summary.names;
    page.heading(tr("Your lowest readings") + ", " + nameOf(summary.unit), 0, page.y);
    double baseline = page.y + 14;
    for (const Reading& reading : readings) {
        page.font(8.5, pageText, true);
        page.right(Str(reading.value), 22, baseline);
        page.font(8.5, pageText);
        page.left(page.fitting(reading.day->AbbreviatedDate() + ", " +
                                   names.words[static_cast<std::size_t>(reading.testPeriod)],
                               width - 28),
                  28, baseline);
        baseline += lineHeight;
    }
}

/// Lines of a text in a column: as many as have room, the last one with "..." where there are more. Where they end.
double drawLines(Page& page, std::string_view text, double x, double baseline, double width, double bottom) {
    const double step = page.surface().TextHeight();
    while (!text.empty() && baseline <= bottom) {
        const std::size_t length = firstLine(page.surface(), text, width);
        const bool isLast = baseline + step > bottom && length < text.size();
        const std::string line = ReplaceAll(text.substr(0, length), EndOfLine, "");
        page.left(isLast ? page.fitting(line + " ...", width) : line, x, baseline);
        text.remove_prefix(length);
        baseline += step;
    }
    return baseline;
}

/// Paragraphs below a heading, as far as they have room above `bottom`; what is left is told. Where they end.
double drawParagraphs(Page& page, const std::string& heading, const std::vector<std::string>& paragraphs, double x,
                      double top, double width, double bottom) {
    page.heading(heading, x, top);
    page.font(8.5, pageText);
    double baseline = top + 14;
    for (std::size_t i = 0; i < paragraphs.size(); ++i) {
        const bool isLast = i + 1 == paragraphs.size();
        const double room = isLast ? bottom : bottom - lineHeight; // for the words on those that are left out
        if (baseline > room) {
            page.left(tr("and %1 more", {Grouped(static_cast<int>(paragraphs.size() - i))}), x, baseline);
            return baseline + lineHeight;
        }
        baseline = drawLines(page, paragraphs[i], x, baseline, width, room) + 3;
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
    const bool hasQuestions = !visit.texts.questions.empty();
    double y = page.y;
    if (!visit.medications.empty()) {
        const double half = (page.y + bottom) / 2; // of the column, for either, if both are there
        y = drawParagraphs(page, tr("Medication"), visit.medications, last, y, third, hasQuestions ? half : bottom) + 8;
    }
    if (hasQuestions)
        drawParagraphs(page, tr("What I want to ask"), {visit.texts.questions}, last, y, third, bottom);
}

} // namespace

std::string visitTitle(const PeriodSummary& summary) { return tr("Blood glucose, %1", {daysWords(summary)}); }

void drawKeyFigures(Graphics& g, const PeriodSummary& summary, double size) {
    constexpr int longText = 11; // characters that go into one line
    const std::vector<KeyFigure> figures = keyFigures(summary);
    const double width = g.Width() / static_cast<double>(figures.size());
    Page page(g);
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const double x = static_cast<double>(i) * width;
        page.font(9 * size, pageNote);
        page.left(figures[i].name, x, 14 * size);
        const bool isLong = Len(figures[i].value) > longText;
        page.font((isLong ? 10 : 14) * size, pageText, true);
        DrawString(g, figures[i].value, x, (isLong ? 26 : 31) * size, width - 6);
        page.font(7.5 * size, pageNote);
        DrawString(g, figures[i].note, x, (isLong ? 48 : 42) * size, width - 6);
    }
}

void drawVisitPage(Graphics& g, const PeriodSummary& summary, const VisitPage& visit) {
    constexpr double keyFiguresHeight = 72;
    g.shrinkToFit(leastPageWidth, leastPageHeight);
    Page page(g);
    drawHead(page, summary, visit);
    SurfacePart keys(g, 0, page.y, g.Width(), keyFiguresHeight);
    drawKeyFigures(keys, summary);
    page.y += keyFiguresHeight;
    drawPictures(page, summary);
    drawFigures(page, summary);
    drawWords(page, summary, visit, g.Height() - 20);
    page.rule(g.Height() - 16);
    page.foot(
        tr("Tallyvane \u00b7 figures from finger-stick readings typed or imported by the patient \u00b7 no medical "
           "device; changes of treatment belong to your doctor"),
        1, visit.pages);
}

} // namespace tallyvane::Summary
