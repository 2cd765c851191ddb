/// What stands on pages, in pictures and in the exported file.
#include <algorithm>
#include <cmath>

#include "platform/base/text.h"
#include "settings/headings.h"
#include "summary/course_chart.h"
#include "summary/day_pages.h"
#include "summary/figures_table.h"
#include "summary/visit_page.h"
#include "summary_desk.h"

namespace tallyvane {

namespace {

using namespace Summary;

class SummaryPagesTest : public SummaryDesk {};

TEST_F(SummaryPagesTest, PicturesOfLittleAreDrawnAndSaySo) {
    for (const int readings : {0, 1, 2}) {
        SCOPED_TRACE(readings);
        table_.DeleteAllRows();
        for (int day = 0; day < readings; ++day)
            add("11/2" + std::to_string(day) + "/2026", {"100"});
        const PeriodSummary summary = summarize(table_, Span::last7, today_);
        GraphicsRecorder g(559, 806);
        drawVisitPage(g, summary, {{"A. Patient", "Is it the walk?"}, {"Pills  twice a day"}, today_, 1});
        std::string texts;
        for (const GraphicsRecorder::Call& call : g.calls()) {
            texts += call.text + "|";
            for (const double number : call.numbers)
                EXPECT_TRUE(std::isfinite(number)) << call.operation << " " << call.text;
        }
        EXPECT_NE(texts.find("Blood glucose, 7 days|A. Patient|"), std::string::npos);
        EXPECT_NE(texts.find("Pills  twice a day|"), std::string::npos);
        EXPECT_NE(texts.find("Is it the walk?|"), std::string::npos);
        EXPECT_NE(texts.find(std::to_string(readings) + (readings == 1 ? " reading" : " readings") + " on " +
                             std::to_string(readings) + " of 7 days"),
                  std::string::npos);
        EXPECT_EQ(texts.find("There are no readings in this period.") != std::string::npos, readings == 0);
    }
}

/// Letter and A4, all seven test periods, long lists: no text leaves the page or stands on another one.
TEST_F(SummaryPagesTest, NoTextOfAFullPageLeavesItOrStandsOnAnother) {
    for (int day = 0; day < 90; ++day) {
        Texts cells;
        for (int column = 0; column < 7; ++column)
            cells.push_back(std::to_string(45 + (day * 37 + column * 53) % 350));
        table_.AddRow(daysAfter(Date(2026, 8, 25), day).ShortDate());
        for (int column = 0; column < 7; ++column)
            table_.Cell(table_.LastIndex(), column + 1, cells[static_cast<std::size_t>(column)]);
    }
    SortKeys::rebuild(table_);
    makeApplicationFolder();
    Headings headings = defaultHeadings();
    headings[0] = "Fr\u00fchst\u00fcck und zweites Fr\u00fchst\u00fcck";
    saveHeadings(headings);
    std::vector<std::string> medications;
    for (int i = 1; i <= 20; ++i)
        medications.push_back("Medicine " + std::to_string(i) +
                              "  500 mg  twice a day, with meals and a glass of water");
    std::string questions;
    for (int i = 1; i <= 60; ++i)
        questions += "question" + std::to_string(i) + " ";
    const VisitPage visit{{std::string(300, 'N'), questions}, medications, today_, 4};
    const PeriodSummary summary = summarize(table_, Span::last90, today_);
    for (const auto& [width, height] : {std::pair(576.0, 756.0), std::pair(559.0, 806.0)}) {
        SCOPED_TRACE(height);
        GraphicsRecorder g(width, height);
        drawVisitPage(g, summary, visit);
        struct Box {
            double left, right, baseline;
            std::string text;
        };
        std::vector<Box> boxes;
        std::string all;
        for (const GraphicsRecorder::Call& call : g.calls()) {
            if (call.operation != "DrawString" || call.text.empty())
                continue;
            g.TextSize(call.textSize);
            const Box box{call.numbers[0], call.numbers[0] + g.StringWidth(call.text), call.numbers[1], call.text};
            all += call.text + "|";
            EXPECT_TRUE(box.left >= 0 && box.baseline <= g.Height()) << box.text;
            for (const Box& other : boxes) // a line of 7 points at the least
                EXPECT_FALSE(std::abs(other.baseline - box.baseline) < 5 && box.left < other.right - 1 &&
                             box.right > other.left + 1)
                    << box.text << " on " << other.text;
            boxes.push_back(box);
        }
        EXPECT_NE(all.find("|and "), std::string::npos) << "medicines that have no room are told";
        EXPECT_NE(all.find("...|"), std::string::npos);
    }
}

TEST_F(SummaryPagesTest, PagesOfDaysHoldEachDayOnce) {
    for (int day = 1; day <= 90; ++day) {
        const Date date = Date::ofTotalSeconds(Date(2026, 8, 25).TotalSeconds() + (90 - day) * 86400.0);
        table_.AddRow(date.ShortDate());
        table_.Cell(table_.LastIndex(), 1, day == 1 ? "200" : day == 2 ? "50" : "100");
    }
    SortKeys::rebuild(table_);
    const PeriodSummary summary = summarize(table_, Span::all, today_);
    EXPECT_EQ(dayPageCount(summary), 3);
    GraphicsRecorder g(559, 806);
    drawDayPages(g, table_, summary, 2, 4);
    int pages = 0;
    Texts days;
    std::string arrows;
    for (const GraphicsRecorder::Call& call : g.calls()) {
        pages += call.operation == "NextPage" ? 1 : 0;
        if (call.text.starts_with("2026-"))
            days.push_back(call.text);
        if (call.text.starts_with("\u25b2\u25b2") && call.text.size() == 6)
            arrows += "up ";
        if (call.text.starts_with("\u25bc\u25bc") && call.text.size() == 6)
            arrows += "down ";
    }
    EXPECT_EQ(pages, 3);
    ASSERT_EQ(days.size(), 93U) << "each page has the period in its head";
    EXPECT_EQ(days[1], "2026-08-25");
    EXPECT_EQ(days.back(), "2026-11-22");
    EXPECT_EQ(arrows, "down up ");
}

TEST_F(SummaryPagesTest, TheFileOfFiguresIsExact) {
    add("11/22/2026", {"100", "", "", "", "", "", "141"});
    add("11/21/2026", {"50.5"});
    Headings headings = defaultHeadings();
    headings[headingGroups + 6] = "Night, \"late\"";
    makeApplicationFolder();
    saveHeadings(headings);
    const std::string csv = figuresCsv(summarize(table_, Span::last7, today_));
    const Texts lines = [&] {
        Texts all;
        for (FieldWalk walk(csv, "\r\n"); !walk.atEnd();)
            all.emplace_back(walk.next());
        return all;
    }();
    ASSERT_EQ(lines.size(), 10U);
    for (const std::size_t line : {0U, 1U, 3U})
        EXPECT_EQ(CountFields(lines[line], ","), 23) << lines[line];
    EXPECT_EQ(lines[1].substr(0, 50), "All readings,2026-11-16,2026-11-22,mg/dL,3,2,97.16");
    EXPECT_EQ(
        lines[2],
        "Before "
        "breakfast,2026-11-16,2026-11-22,mg/dL,2,2,75.25,75.25,35.0017856687341,0.4651400088868319,50.5,2026-11-21,100,"
        "2026-11-22,1,0,1,0,0,,,,");
    EXPECT_EQ(lines[3], "After breakfast,2026-11-16,2026-11-22,mg/dL,0,0,,,,,,,,,0,0,0,0,0,,,,");
    EXPECT_EQ(lines[8],
              "\"Night, "
              "\"\"late\"\"\",2026-11-16,2026-11-22,mg/dL,1,1,141,141,,,141,2026-11-22,141,2026-11-22,0,0,0,1,0,,,,");
}

TEST_F(SummaryPagesTest, TheCourseKnowsTheReadingUnderThePointer) {
    add("11/16/2026", {"100"});
    add("11/22/2026", {"", "", "200", "", "", "", "200"}); // and the median of the week, too
    CourseChart course(summarize(table_, Span::last7, today_));
    EXPECT_FALSE(course.readingAt(10, 10)) << "before it is drawn";
    GraphicsRecorder g(700, 300);
    course.draw(g);
    std::vector<Reading> found;
    for (int x = 0; x < 700; x += 4)
        for (int y = 0; y < 300; y += 4)
            if (const auto reading = course.readingAt(x, y))
                if (found.empty() || found.back().row != reading->row)
                    found.push_back(*reading);
    ASSERT_EQ(found.size(), 2U) << "from the left the first day, then the last";
    EXPECT_EQ(found[0].row, 0);
    EXPECT_EQ(found[1].row, 1);
    EXPECT_EQ(found[1].testPeriod, 7) << "the one on top";
    EXPECT_EQ(found[1].value, 200);
}

TEST_F(SummaryPagesTest, TheMedianOfAWeekBreaksWhereThereAreNoReadings) {
    for (int day = 0; day < 90; ++day)
        if (day < 20 || day >= 50)
            add(daysAfter(Date(2026, 8, 25), day).ShortDate(), {"100"});
    CourseChart course(summarize(table_, Span::last90, today_));
    GraphicsRecorder g(900, 300);
    course.draw(g);
    int segments = 0;
    for (const GraphicsRecorder::Call& call : g.calls())
        for (const Object2D& shape : call.shapes)
            if (const auto* segment = std::get_if<CurveShape>(&shape)) {
                ++segments;
                EXPECT_LT(segment->X2 - segment->X, 100) << "a line over 30 days without readings";
            }
    EXPECT_GT(segments, 30);
}

} // namespace

} // namespace tallyvane
