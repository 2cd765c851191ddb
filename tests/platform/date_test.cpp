#include "platform/base/date.h"

#include <gtest/gtest.h>

#include <limits>

namespace tallyvane {

namespace {

class DateTest : public ::testing::Test {
protected:
    DateTest() {
        DateSource::now = [] { return Date(2026, 11, 22, 3600); };
    }
    ~DateTest() override { DateSource::setShortPattern("yyyy-MM-dd"); }
};

TEST_F(DateTest, ShortFormsOfTheLocales) {
    const auto check = [](const char* pattern, const char* want, const char* twoDigitYear) {
        SCOPED_TRACE(pattern);
        const Date date(2026, 11, 2);
        DateSource::setShortPattern(pattern);
        EXPECT_EQ(date.ShortDate(), want);
        for (const char* text : {want, twoDigitYear, "2026-11-02"})
            EXPECT_EQ(ParseDate(text), date) << text;
    };
    check("M/d/yy", "11/2/2026", "11/2/26");
    check("dd.MM.yy", "02.11.2026", "2.11.26");
    check("yyyy. MM. dd.", "2026. 11. 02.", "26. 11. 2.");
    check("d.MM.yyyy '\u0433'.", "2.11.2026 \u0433.", "2.11.26 \u0433.");
    check("d MMM yyyy", "2026-11-02", "26-11-2"); // a month by name: ISO instead
    check("d/d/yyyy", "2026-11-02", "26-11-2"); // no month at all
    check("", "2026-11-02", "26-11-2");
}

TEST_F(DateTest, TextsThatAreNoDayDoNotParse) {
    DateSource::setShortPattern("M/d/yyyy");
    for (const char* text :
         {"", "hello", "2/29/2026", "2/30/2024", "13/1/2026", "0/1/2026", "1/0/2026", "1/1/0000", "1/1/202",
          "1/1/20266", "1/1", "1/1/2026x", "x1/1/2026", "1-1-2026", "2026/11/02", "-1/1/2026"})
        EXPECT_FALSE(ParseDate(text)) << text;
    EXPECT_EQ(ParseDate("2/29/2024"), Date(2024, 2, 29));
    EXPECT_EQ(ParseDate(" 1/1/2026\t"), Date(2026, 1, 1));
}

TEST_F(DateTest, ATwoDigitYearIsTheNearestToToday) {
    DateSource::setShortPattern("M/d/yyyy");
    EXPECT_EQ(ParseDate("1/1/76"), Date(2076, 1, 1));
    EXPECT_EQ(ParseDate("1/1/77"), Date(1977, 1, 1));
    EXPECT_EQ(ParseDate("12/31/76"), Date(1976, 12, 31)) << "the day counts, not the year alone";
    EXPECT_EQ(ParseDate("2/29/00"), Date(2000, 2, 29)) << "2100 has no such day";
    EXPECT_EQ(ParseDate("1/1/91"), Date(1991, 1, 1));
    DateSource::now = [] { return Date(2096, 1, 1); };
    EXPECT_EQ(ParseDate("1/1/05"), Date(2105, 1, 1));
}

TEST_F(DateTest, SecondsRiseWithTheDaysAndFitInTwelveDigits) {
    EXPECT_EQ(Date(1, 1, 1).TotalSeconds(), 0);
    EXPECT_EQ(Date(2000, 3, 1).TotalSeconds() - Date(2000, 2, 28).TotalSeconds(), 2 * 86400);
    EXPECT_EQ(Date().TotalSeconds() - Date(2026, 11, 22).TotalSeconds(), 3600);
    EXPECT_LT(Date(9999, 12, 31, 86399).TotalSeconds(), 1e12);
}

TEST_F(DateTest, MomentsOfSeconds) {
    constexpr double day = 86400;
    const double noon = Date(2026, 11, 22, 43200).TotalSeconds();
    EXPECT_EQ(Date::ofTotalSeconds(0), Date(1, 1, 1));
    EXPECT_EQ(Date::ofTotalSeconds(noon + 0.9), Date(2026, 11, 22, 43200));
    EXPECT_EQ(Date::ofTotalSeconds(noon + day * 365), Date(2027, 11, 22, 43200));
    for (const double before : {-5.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(Date::ofTotalSeconds(before), Date(1, 1, 1)) << before;
    for (const double after : {1e300, std::numeric_limits<double>::infinity()})
        EXPECT_EQ(Date::ofTotalSeconds(after), Date(9999, 12, 31, 86399)) << after;
    const Date evening(2026, 1, 2, 20 * 3600 + 3 * 60 + 4);
    EXPECT_EQ(evening.LongDate() + ", " + evening.ShortTime() + ", " + evening.LongTime(),
              "2026-01-02, 20:03, 20:03:04");
}

} // namespace
} // namespace tallyvane
