/// How a day is found, and how the window says what it shows.
#include "diary/finding.h"

#include "diary/date_window.h"
#include "diary/go_to_day_window.h"
#include "settings/usual_limits.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

/// It is 22 November 2026.
class FindingTest : public DiaryDesk {
protected:
    void openOn(const Texts& dates) {
        std::string file;
        for (const std::string& date : dates)
            file += date + "@#@5\n";
        write(applicationFile("7VXData"), file);
        open();
        window1_.CalendarControl1.SelectedDate(Date());
    }
    void choose(const char* item) { menuBar_.choose(item, &window1_); }
    const std::string& line() const { return window1_.StripLine.Text(); }
    void press(const std::string& caption) {
        const std::vector<LinkLine::Link>& links = window1_.StripLine.links();
        for (std::size_t i = 0; i < links.size(); ++i)
            if (links[i].Caption == caption)
                return window1_.StripLine.userPressed(i);
        ADD_FAILURE() << "no link \"" << caption << "\"";
    }
    void clickDay(const Date& day) {
        window1_.CalendarControl1.SelectedDate(day);
        window1_.CalendarControl1.DayClicked();
    }
    Texts selectedDates() const {
        Texts dates;
        for (int row = 0; row < table_.ListCount(); ++row)
            if (table_.Selected(row))
                dates.push_back(table_.Cell(row, 0));
        return dates;
    }
};

TEST_F(FindingTest, TheTableOpensAtTheNewestDayInWhateverOrder) {
    openOn({"11/1/2026", "no date", "11/20/2026", "2/3/2025"});
    EXPECT_EQ(table_.ScrollPosition(), 2);
    EXPECT_EQ(table_.SelectedCount(), 0);
    EXPECT_EQ(line(), "Averages of all 4 days");
}

TEST_F(FindingTest, AClickInTheCalendarMarksTheDayAndKeepsTheSelection) {
    openOn({"11/1/2026", "11/2/2026", "11/3/2026", "11/2/2026"});
    table_.ListIndex(0);
    clickDay(Date(2026, 11, 2));
    EXPECT_EQ(table_.MarkedRow(), 1);
    EXPECT_TRUE(table_.Selected(0));
    clickDay(Date(2026, 11, 2));
    EXPECT_EQ(table_.MarkedRow(), 3); // its other row
    clickDay(Date(2026, 11, 9));
    EXPECT_EQ(table_.MarkedRow(), -1);
    EXPECT_EQ(line(), "11/9/2026 is not in the table. A double click adds it.");
    EXPECT_EQ(table_.ListCount(), 4);
}

TEST_F(FindingTest, DaysWithEntriesAreBoldAlsoAfterChanges) {
    openOn({"9/30/2026", "10/30/2026", "11/1/2026", "11/1/2026", "12/2/2026", "11/2/2025"});
    CalendarControl& calendar = window1_.CalendarControl1;
    const auto bold = [&calendar] {
        Texts days;
        for (const Date& day : calendar.BoldDays())
            days.push_back(day.ShortDate());
        return days;
    };
    EXPECT_EQ(bold(), (Texts{"10/30/2026", "11/1/2026", "12/2/2026"})); // what can be seen beside November, too
    calendar.SelectedDate(Date(2026, 11, 5));
    window1_.BevelButton1.Action();
    EXPECT_EQ(bold()[2], "11/5/2026");
    window1_.BevelButton2.Action();
    EXPECT_EQ(bold().size(), 3U);
    choose("EditUndo");
    EXPECT_EQ(bold()[2], "11/5/2026");
    calendar.userShowed(Date(2025, 11, 1));
    EXPECT_EQ(bold(), Texts{"11/2/2025"});
}

TEST_F(FindingTest, GoToDayTakesADateAsTypedAndSaysWhatIsWrong) {
    openOn({"11/1/2026", "11/2/2026"});
    choose("DaysGoTo");
    auto& dialog = dynamic_cast<GoToDayWindow&>(*Window::openWindows().back());
    EXPECT_EQ(dialog.EditField1.Text(), "11/22/2026");
    const auto go = [&dialog](const char* text) {
        dialog.EditField1.Text(text);
        dialog.PushButton1.Action();
        return dialog.StaticText2.Text();
    };
    EXPECT_EQ(go("yesterday"), "\u201cyesterday\u201d can't be read as a date. Write it like 11/22/2026.");
    EXPECT_EQ(go("11/5/26"), "There is no day 11/5/2026 in the table.");
    EXPECT_TRUE(dialog.isOpen());
    go("2026-11-02");
    EXPECT_FALSE(dialog.isOpen());
    EXPECT_EQ(table_.MarkedRow(), 1);
}

TEST_F(FindingTest, TodayIsAddedOnlyWhenTheUserSaysSo) {
    openOn({"11/1/2026"});
    toolkit_.answers = {1};
    choose("DaysToday");
    EXPECT_EQ(table_.ListCount(), 1);
    toolkit_.answers = {0};
    choose("DaysToday");
    EXPECT_EQ(table_.Cell(1, 0), "11/22/2026");
    EXPECT_EQ(table_.openRow(), 1);
    table_.ListIndex(0);
    choose("DaysToday"); // asks no more
    EXPECT_EQ(table_.MarkedRow(), 1);
    EXPECT_EQ(table_.ListCount(), 2);
}

TEST_F(FindingTest, ADayThatIsAddedTwiceIsToldAndCanBeTakenBack) {
    openOn({"11/22/2026", "11/21/2026"});
    window1_.BevelButton1.Action();
    EXPECT_EQ(line(), "11/22/2026 is in the table twice.");
    press("Go to the other row");
    EXPECT_EQ(table_.MarkedRow(), 0);
    press("Undo");
    EXPECT_EQ(table_.ListCount(), 2);
    EXPECT_EQ(line(), "Averages of all 2 days");

    window1_.BevelButton1.Action();
    table_.userTyped("7", 1, 0);
    EXPECT_EQ(line(), "11/22/2026 is in the table twice.");
    EXPECT_EQ(window1_.StripLine.links().size(), 1U); // an undo would take back what was typed
    table_.ListIndex(1);
    EXPECT_EQ(line(), "Averages of 1 selected day, 11/21/2026");
}

TEST_F(FindingTest, WhatTheLineSaysOfTwinsHoldsAsLongAsThereAreAny) {
    openOn({"11/21/2026", "11/22/2026"});
    window1_.BevelButton1.Action();
    EXPECT_EQ(window1_.StripLine.links().size(), 2U);
    table_.pressHeader(0);
    table_.pressHeader(0); // an undo would take back the sort
    EXPECT_EQ(line(), "11/22/2026 is in the table twice.");
    EXPECT_EQ(window1_.StripLine.links().size(), 1U);
    window1_.ListBox1_CellClick(table_.ListIndex(), 0, 0, 0);
    auto& dialog = dynamic_cast<DateWindow&>(*Window::openWindows().back());
    dialog.CalendarControl1.SelectedDate(Date(2026, 11, 20)); // the natural answer
    dialog.PushButton1.Action();
    EXPECT_EQ(line(), "Averages of 1 selected day, 11/20/2026");
}

TEST_F(FindingTest, DatesThatCannotBeReadHaveNoPlaceInTime) {
    write(applicationFile("7VXData"), "soon@#@5@#@@#@@#@@#@@#@@#@@#@@#@@#@999999999999\n11/1/2026@#@5\n");
    open();
    EXPECT_EQ(table_.ScrollPosition(), 1);
    table_.select({true, true});
    EXPECT_EQ(line(), "Averages of 2 selected days, 11/1/2026");
}

TEST_F(FindingTest, PeriodsAreSelectedByTheDateOfTheDays) {
    openOn({"11/23/2026", "11/22/2026", "11/1/2026", "11/16/2026", "11/15/2026", "10/31/2026", "10/1/2026", "9/30/2026",
            "8/24/2026", "no date"});
    const auto check = [this](const char* item, const Texts& want) {
        choose(item);
        EXPECT_EQ(selectedDates(), want) << item;
    };
    check("DaysSelectLast7", {"11/22/2026", "11/16/2026"});
    check("DaysSelectLast14", {"11/22/2026", "11/16/2026", "11/15/2026"});
    check("DaysSelectLast30", {"11/22/2026", "11/1/2026", "11/16/2026", "11/15/2026", "10/31/2026"});
    check("DaysSelectThisMonth", {"11/23/2026", "11/22/2026", "11/1/2026", "11/16/2026", "11/15/2026"});
    check("DaysSelectLastMonth", {"10/31/2026", "10/1/2026"});
    EXPECT_EQ(line(), "Averages of 2 selected days, 10/1/2026 to 10/31/2026");
    choose("DaysSelectLast90");
    EXPECT_EQ(selectedDates().back(), "9/30/2026"); // 8/24 is the ninety-first
    choose("DaysSelectAll");
    EXPECT_EQ(line(), "Averages of 10 selected days, 8/24/2026 to 11/23/2026");
    choose("DaysSelectNone");
    EXPECT_EQ(line(), "Averages of all 10 days");
    DateSource::now = [] { return Date(2030, 1, 1); };
    check("DaysSelectLastMonth", {});
    EXPECT_EQ(line(), "There are no days from 12/1/2029 to 12/31/2029.");
}

TEST_F(FindingTest, TheStripSaysOnHowManyReadingsAFigureRests) {
    write(applicationFile("7VXData"), "1/1/2026@#@5@#@@#@@#@@#@@#@@#@@#@@#@70\n1/2/2026@#@7@#@HI\n");
    open();
    EXPECT_EQ(window1_.StaticText1.HelpTag(), "Average of 2 readings");
    EXPECT_EQ(window1_.StaticText2.HelpTag(), "Average of 0 readings");
    EXPECT_EQ(window1_.StaticText22.HelpTag(), "Average of the averages of 2 days");
    EXPECT_EQ(window1_.StaticText16.AccessibleName(), "Weight: 70.0, 1 weight");
}

TEST_F(FindingTest, AReadingOfTheOtherUnitIsToldOnceAndOnlyWhileItStands) {
    std::optional<UsualLimits::Limits> offered;
    window1_.offerLimits = [&](const UsualLimits::Limits& limits) { offered = limits; };
    openOn({"11/21/2026", "11/20/2026"});
    const std::string words = "Averages of 1 selected day, 11/21/2026";
    const std::string doubt = "120 looks like mg/dL.";
    const auto type = [this](const char* text) {
        table_.EditCell(0, 1);
        table_.userTyped(text, 0, 0);
    };
    table_.EditCell(0, 9);
    table_.userTyped("80", 0, 0); // a weight
    type("33.3");
    EXPECT_EQ(line(), words);
    type("120");
    EXPECT_EQ(line(), doubt);
    table_.EditCell(1, 1);
    EXPECT_EQ(line(), doubt);
    press("Change the limits to mg/dL");
    EXPECT_EQ(offered, UsualLimits::inMg);
    type("12.0");
    type("130");
    EXPECT_EQ(line(), words); // once

    Window1 second(toolbar_, menuBar_);
    second.Open();
    second.ListBox1.EditCell(0, 1);
    second.ListBox1.userTyped("55", 0, 0); // the point is missing
    EXPECT_EQ(second.StripLine.Text(), "55 looks like mg/dL.");
    second.ListBox1.userTyped("5.5", 0, 0);
    EXPECT_EQ(second.StripLine.Text(), words);
}

} // namespace

} // namespace tallyvane
