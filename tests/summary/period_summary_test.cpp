/// Which readings are those of a period, and what is said of them.
#include "summary/period_summary.h"

#include "platform/base/number.h"
#include "summary/charts.h"
#include "summary/figures_table.h"
#include "summary/remarks.h"
#include "summary_desk.h"

namespace tallyvane {

namespace {

using namespace Summary;

class PeriodSummaryTest : public SummaryDesk {};

TEST_F(PeriodSummaryTest, APeriodIsOfItsDatesInAnyOrder) {
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

TEST_F(PeriodSummaryTest, WhatIsNoNumberIsCountedWithItsDay) {
    add("11/20/2026", {"5,6", "LO", "120", "", " ", "", "", "", "80.5"});
    add("11/21/2026", {"100"});
    add("11/22/2026", {"0", "130", "-1", "1e2", "", "", "", "", "81"});
    const PeriodSummary summary = summarize(table_, Span::all, today_);
    EXPECT_EQ(summary.all().figures.count, 3);
    EXPECT_EQ(summary.readings.unreadable, 5);
    EXPECT_EQ(summary.readings.unreadableRows, (std::vector<int>{0, 2}));
    EXPECT_NE(weightWords(summary).find("change +0.5"), std::string::npos) << weightWords(summary);
}

TEST_F(PeriodSummaryTest, SharesAreOfTheUsersRanges) {
    add("11/22/2026", {"59", "60", "79", "80", "139", "140", "180"});
    const Sample all = summarize(table_, Span::last7, today_).all();
    EXPECT_EQ(all.inRange, (std::array<int, 5>{1, 1, 2, 2, 1}));
    EXPECT_EQ(all.above(), 2);
    EXPECT_EQ(all.within(), 2);
    EXPECT_EQ(all.below(), 3);
}

TEST_F(PeriodSummaryTest, TheUnitIsThatOfTheLimits) {
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

TEST_F(PeriodSummaryTest, SentencesFollowTheirRules) {
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

TEST_F(PeriodSummaryTest, RisesAreOfDaysWithBothReadings) {
    add("11/20/2026", {"100", "150", "90", "", "", "120"});
    add("11/21/2026", {"", "200", "80", "130"});
    add("11/22/2026", {"140"});
    add("11/22/2026", {"", "130"}); // the same day in another row
    const PeriodSummary summary = summarize(table_, Span::all, today_);
    EXPECT_EQ(risesAt(summary, 0), (std::vector<double>{50, -10}));
    EXPECT_EQ(risesAt(summary, 1), std::vector<double>{50});
    EXPECT_EQ(risesAt(summary, 2), std::vector<double>());
}

TEST_F(PeriodSummaryTest, TheComparisonIsOfSoundReadingsAlone) {
    add("11/22/2026", {"100"});
    add("11/15/2026", {"150"});
    EXPECT_EQ(summarize(table_, Span::last7, today_).before->figures.mean, 150);
    table_.Cell(1, 2, "15000");
    EXPECT_FALSE(summarize(table_, Span::last7, today_).before) << "a slip of the finger";
    table_.Cell(1, 2, "5.5");
    EXPECT_FALSE(summarize(table_, Span::last7, today_).before) << "another unit";
}

} // namespace

} // namespace tallyvane
