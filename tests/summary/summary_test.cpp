/// A period of the table: which readings are its, what is said of them, and what the window and its pages show.
#include <cmath>
#include <fstream>
#include <sstream>

#include "diary/sort_keys.h"
#include "platform/base/number.h"
#include "platform/base/text.h"
#include "settings/globals.h"
#include "settings/headings.h"
#include "settings/unsaved_files.h"
#include "summary/charts.h"
#include "summary/day_pages.h"
#include "summary/figures_table.h"
#include "summary/remarks.h"
#include "summary/summary_window.h"
#include "summary/visit_page.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

using namespace Summary;

class SummaryTest : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        DayTable::setUp(table_);
        useMg();
    }
    static void useMg() {
        Globals::gOver = 180;
        Globals::gCaution = 140;
        Globals::gLow = 80;
        Globals::gUnder = 60;
    }
    static void useMmol() {
        Globals::gOver = 10;
        Globals::gCaution = 8;
        Globals::gLow = 4;
        Globals::gUnder = 3;
    }

    /// Adds a day: its readings, then its weight in column 9.
    void add(const std::string& date, const Texts& cells) {
        table_.AddRow(date);
        for (std::size_t i = 0; i < cells.size(); ++i)
            table_.Cell(table_.LastIndex(), static_cast<int>(i) + 1, cells[i]);
        SortKeys::rebuild(table_);
    }
    void addPatient(const char* name) {
        std::ifstream file(std::string(TEST_DATA "/") + name);
        for (std::string line; std::getline(file, line);) {
            std::istringstream fields(line);
            Texts cells(10);
            for (std::string& field : cells)
                std::getline(fields, field, ',');
            table_.AddRow(cells[0]);
            for (int column = 1; column <= 7; ++column)
                table_.Cell(table_.LastIndex(), column, cells[static_cast<std::size_t>(column)]);
        }
        SortKeys::rebuild(table_);
    }

    static constexpr int noon = 12 * 60 * 60;
    const Date today_{2026, 11, 22, noon}; // the desk's clock
};

TEST_F(SummaryTest, APeriodIsOfItsDatesInAnyOrder) {
    add("11/22/2026", {"100", "110"});
    add("10/1/2026", {"300"});
    add("11/16/2026", {"120"});
    add("11/15/2026", {"500"}); // the week before
    add("11/22/2026", {"130"}); // the same day once more
    add("no date", {"900"});
    const struct {
        Span span;
        int readings, days, dayCount;
        const char* first;
    } cases[] = {
        {Span::last7, 4, 2, 7, "2026-11-16"},
        {Span::last14, 5, 3, 14, "2026-11-09"},
        {Span::last30, 5, 3, 30, "2026-10-24"},
        {Span::last90, 6, 4, 90, "2026-08-25"},
        {Span::thisMonth, 5, 3, 22, "2026-11-01"},
        {Span::lastMonth, 1, 1, 31, "2026-10-01"},
        {Span::thisYear, 6, 4, 326, "2026-01-01"},
        {Span::all, 6, 4, 53, "2026-10-01"},
        {Span::selected, 0, 0, 0, ""},
    };
    for (const auto& [span, readings, days, dayCount, first] : cases) {
        const PeriodSummary summary = summarize(table_, span, today_);
        SCOPED_TRACE(static_cast<int>(span));
        EXPECT_EQ(summary.all().figures.count, readings);
        EXPECT_EQ(summary.all().days, days);
        EXPECT_EQ(summary.dayCount, dayCount);
        EXPECT_EQ(summary.days ? summary.days->first.isoDate() : "", first);
    }
    const PeriodSummary week = summarize(table_, Span::last7, today_);
    EXPECT_EQ(week.before->figures.mean, 500);
    EXPECT_EQ(week.samples[1].figures.count, 3);
    EXPECT_EQ(week.samples[2].days, 1);
    EXPECT_FALSE(summarize(table_, Span::all, today_).before);
    table_.select({true, false, false, true, true, false});
    const PeriodSummary chosen = summarize(table_, Span::selected, today_);
    EXPECT_EQ(chosen.dayCount, 2);
    EXPECT_FALSE(chosen.isContinuous);
    EXPECT_FALSE(chosen.before);
    EXPECT_EQ(week.undatedRows, std::vector<int>{5});
    EXPECT_EQ(summarize(table_, Span::all, today_).undatedRows, std::vector<int>{5});
    EXPECT_EQ(chosen.all().figures.highest, 500);
}

TEST_F(SummaryTest, WhatIsNoNumberIsCountedWithItsDay) {
    add("11/20/2026", {"5,6", "LO", "120", "", " ", "", "", "", "80.5"});
    add("11/21/2026", {"100"});
    add("11/22/2026", {"0", "130", "-1", "1e2", "", "", "", "", "81"});
    const PeriodSummary summary = summarize(table_, Span::all, today_);
    EXPECT_EQ(summary.all().figures.count, 3);
    EXPECT_EQ(summary.readings.unreadable, 5);
    EXPECT_EQ(summary.readings.unreadableRows, (std::vector<int>{0, 2}));
    EXPECT_NE(weightWords(summary).find("change +0.5"), std::string::npos) << weightWords(summary);
}

TEST_F(SummaryTest, SharesAreOfTheUsersRanges) {
    add("11/22/2026", {"59", "60", "79", "80", "139", "140", "180"});
    const Sample all = summarize(table_, Span::last7, today_).all();
    EXPECT_EQ(all.inRange, (std::array<int, 5>{1, 1, 2, 2, 1}));
    EXPECT_EQ(all.above(), 2);
    EXPECT_EQ(all.within(), 2);
    EXPECT_EQ(all.below(), 3);
}

TEST_F(SummaryTest, TheUnitIsThatOfTheLimits) {
    addPatient("patient-01.csv");
    const Date end(1991, 8, 6);
    const PeriodSummary inMg = summarize(table_, Span::last90, end);
    EXPECT_EQ(nameOf(inMg.unit), "mg/dL");
    ASSERT_TRUE(inMg.a1c);
    EXPECT_NEAR(inMg.a1c->percent, 6.99, 0.01) << "of 153.9 mg/dL";
    EXPECT_EQ(keyFigures(inMg)[0].value, "154 mg/dL");
    EXPECT_FALSE(summarize(table_, Span::all, end).a1c) << "136 days are more than a red cell lives";
    useMmol();
    const PeriodSummary wrong = summarize(table_, Span::last90, end);
    EXPECT_FALSE(wrong.a1c) << "nobody has 154 mmol/L";
    ASSERT_EQ(remarksOn(wrong).size(), 1U);
    EXPECT_NE(remarksOn(wrong)[0].find("Your limits are in mmol/L"), std::string::npos);
    EXPECT_EQ(keyFigures(wrong).size(), 1U);
    for (int row = 0; row < table_.ListCount(); ++row)
        for (int column = 1; column <= 7; ++column)
            if (const std::string& cell = table_.Cell(row, column); !cell.empty())
                table_.Cell(row, column, Format(Val(cell) / 18.0156, "0.00"));
    const PeriodSummary inMmol = summarize(table_, Span::last90, end);
    ASSERT_TRUE(inMmol.a1c);
    EXPECT_NEAR(inMmol.a1c->percent, inMg.a1c->percent, 0.01);
    EXPECT_EQ(keyFigures(inMmol)[0].value, "8.5 mmol/L");
    table_.Cell(70, 1, "150");
    const PeriodSummary mixed = summarize(table_, Span::last90, end);
    EXPECT_FALSE(mixed.a1c) << "a reading of the other unit";
    EXPECT_EQ(mixed.rowsOfOtherUnit, std::vector<int>{70});
    EXPECT_EQ(leftOutWords(mixed), "1 reading looks like another unit.");
}

TEST_F(SummaryTest, SentencesFollowTheirRules) {
    const auto remarks = [this] { return remarksOn(summarize(table_, Span::last14, today_)); };
    EXPECT_EQ(remarks(), Texts());
    add("11/22/2026", {"100", "59"});
    EXPECT_EQ(remarks(), (Texts{"1 reading was below 60 mg/dL: 59 mg/dL after breakfast on 2026-11-22.",
                                "There are readings on 1 of 14 days: of the other days nothing is known."}));
    table_.DeleteAllRows();
    for (int day = 9; day <= 22; ++day)
        add("11/" + std::to_string(day) + "/2026", {"100", "", day % 2 == 0 ? "150" : "141"});
    EXPECT_EQ(remarks(),
              (Texts{"Before lunch is your highest time: median 146 mg/dL, 14 of 14 readings above your target "
                     "zone.",
                     "You did not measure after meals: nothing is known of these times."}));
    for (int row = 0; row < 14; ++row)
        table_.Cell(row, 3, row == 0 ? "600" : "139");
    EXPECT_EQ(remarks()[0].find("Your readings lie far apart: the spread is"), 0U) << remarks()[0];
    table_.Cell(0, 3, "139");
    table_.Cell(0, 2, "120");
    EXPECT_EQ(remarks(), (Texts{"29 of 29 readings are in your target zone.",
                                "After meals you measured rarely: the figures of these times rest on few readings."}));
}

TEST_F(SummaryTest, RisesAreOfDaysWithBothReadings) {
    add("11/20/2026", {"100", "150", "90", "", "", "120"});
    add("11/21/2026", {"", "200", "80", "130"});
    add("11/22/2026", {"140"});
    add("11/22/2026", {"", "130"}); // the same day in another row
    const PeriodSummary summary = summarize(table_, Span::all, today_);
    EXPECT_EQ(risesAt(summary, 0), (std::vector<double>{50, -10}));
    EXPECT_EQ(risesAt(summary, 1), std::vector<double>{50});
    EXPECT_EQ(risesAt(summary, 2), std::vector<double>());
}

TEST_F(SummaryTest, TheCourseKnowsTheReadingUnderThePointer) {
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

TEST_F(SummaryTest, TheMedianOfAWeekBreaksWhereThereAreNoReadings) {
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

TEST_F(SummaryTest, TheComparisonIsOfSoundReadingsAlone) {
    add("11/22/2026", {"100"});
    add("11/15/2026", {"150"});
    EXPECT_EQ(summarize(table_, Span::last7, today_).before->figures.mean, 150);
    table_.Cell(1, 2, "15000");
    EXPECT_FALSE(summarize(table_, Span::last7, today_).before) << "a slip of the finger";
    table_.Cell(1, 2, "5.5");
    EXPECT_FALSE(summarize(table_, Span::last7, today_).before) << "another unit";
}

TEST_F(SummaryTest, PicturesOfLittleAreDrawnAndSaySo) {
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
TEST_F(SummaryTest, NoTextOfAFullPageLeavesItOrStandsOnAnother) {
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

TEST_F(SummaryTest, PagesOfDaysHoldEachDayOnce) {
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

TEST_F(SummaryTest, TheFileOfFiguresIsExact) {
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

TEST_F(SummaryTest, TheWindowFollowsTheTableAndKeepsItsTexts) {
    makeApplicationFolder();
    add("11/22/2026", {"100", "x"});
    std::vector<bool> selected;
    {
        SummaryWindow window(table_);
        window.selectRows = [&](const std::vector<bool>& rows) { selected = rows; };
        window.Open();
        EXPECT_EQ(window.ListBox1.Cell(0, 1), "1");
        EXPECT_EQ(window.LinkLine1.Text(), "1 reading could not be read.");
        window.LinkLine1.userPressed(0);
        EXPECT_EQ(selected, std::vector<bool>{true});
        add("11/21/2026", {"", "200"});
        window.daysChanged();
        window.daysChanged();
        window.Timer1.fire();
        EXPECT_EQ(window.ListBox1.Cell(0, 1), "2");
        EXPECT_EQ(window.ListBox1.Cell(2, 8), "200 \u00b7 11/21");
        EXPECT_EQ(window.ListBox2.Cell(0, 5), "1 \u00b7 50\u00a0%");
        window.Periods[0].userChose();
        EXPECT_EQ(window.summary().span, Span::last7);
        window.TextField1.Text("A. Patient");
        window.TextArea1.Text(std::string("Is it the walk?") + std::string(EndOfLine) + "And the pills?");
        window.CheckBox1.Value(true);
        window.PushButton1_Action();
        EXPECT_EQ(toolkit_.previews, Texts{"Blood glucose, 7 days"});
        EXPECT_EQ(toolkit_.pageBreaks(), 1) << "one page of days";
        toolkit_.answer = applicationFile("page.pdf").string();
        window.PushButton2_Action();
        EXPECT_EQ(toolkit_.pdfs, Texts{"Blood glucose, 7 days|A. Patient"});
        EXPECT_EQ(read(toolkit_.answer), "a PDF");
        toolkit_.printerReady = false;
        window.PushButton2_Action();
        ASSERT_EQ(toolkit_.messages.size(), 1U);
        EXPECT_EQ(read(toolkit_.answer), "a PDF") << "the old one stays";
        toolkit_.answer = applicationFile("figures.csv").string();
        window.PushButton3_Action();
        EXPECT_EQ(read(toolkit_.answer), figuresCsv(window.summary()));
        window.Close();
    }
    UnsavedFiles::forgetAll();
    SummaryWindow again(table_);
    again.Open();
    EXPECT_EQ(again.TextField1.Text(), "A. Patient");
    EXPECT_EQ(again.TextArea1.Text(), std::string("Is it the walk?") + std::string(EndOfLine) + "And the pills?");
    again.Close();
}

/// The rows of a click are looked up in the table as it is.
TEST_F(SummaryTest, AClickAfterASortSelectsNoOtherDay) {
    add("11/20/2026", {"100"});
    add("11/22/2026", {"x"});
    SummaryWindow window(table_);
    std::vector<std::vector<bool>> selections;
    window.selectRows = [&](const std::vector<bool>& rows) { selections.push_back(rows); };
    window1_.daysChanged = [&] { window.daysChanged(); };
    window.Open();
    EXPECT_EQ(window.summary().readings.unreadableRows, std::vector<int>{1});
    window1_.ListBox1_HeaderPressed(0);
    window1_.ListBox1_HeaderPressed(0);
    window.LinkLine1.userPressed(0);
    EXPECT_TRUE(selections.empty()) << "the window looks anew first";
    window.LinkLine1.userPressed(0);
    ASSERT_EQ(selections.size(), 1U);
    EXPECT_EQ(selections[0], (std::vector<bool>{true, false}));
    Globals::gCaution = 99;
    window1_.Timer1_Action();
    window.Timer1.fire();
    EXPECT_EQ(window.summary().all().above(), 1) << "the limits are others";
    window.Close();
}

} // namespace

} // namespace tallyvane
