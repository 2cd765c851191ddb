/// How the main window finds days: the menu "Days" and the calendar.
#include "diary/find_window.h"
#include "diary/finding.h"
#include "diary/go_to_day_window.h"
#include "diary/window1.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"

#include <algorithm>

namespace tallyvane {

/// Marks a row of that day: the one after the marked or selected one, so that rows of one date follow each other.
bool Window1::goToDay(const Date& day) {
    const int present = ListBox1.MarkedRow() >= 0 ? ListBox1.MarkedRow() : ListBox1.ListIndex();
    const std::optional<int> row = Finding::nextRowOf(ListBox1, day, present);
    if (row) {
        ListBox1.closeCell();
        ListBox1.markRow(*row);
        notes_.update();
    }
    return row.has_value();
}

void Window1::DaysGoTo_Action() {
    goToDayWindow_ = std::make_unique<GoToDayWindow>(*this, CalendarControl1.SelectedDate());
    goToDayWindow_->goTo = [this](const Date& day) {
        const bool found = goToDay(day);
        if (found)
            ListBox1.SetFocus();
        return found;
    };
    goToDayWindow_->Show();
}

void Window1::DaysToday_Action() {
    const Date today;
    MidnightTimer_Action();
    if (goToDay(today)) {
        ListBox1.SetFocus();
        return;
    }
    const Answer answer = Ask(tr("Today, %1, is not in the table yet. Do you want to add it?", {today.ShortDate()}),
                              tr("Add"), tr("Cancel"));
    if (answer != Answer::yes)
        return;
    CalendarControl1.SelectedDate(today);
    BevelButton1_Action();
}

void Window1::DaysFind_Action() {
    if (!findWindow_ || !findWindow_->isOpen()) {
        findWindow_ = std::make_unique<FindWindow>(ListBox1);
        findWindow_->goTo = [this](const Search::Hit& hit) { return goToHit(hit); };
    }
    findWindow_->Show();
    findWindow_->startAnew();
}

bool Window1::goToHit(const Search::Hit& hit) {
    switch (hit.place) {
    case Search::Place::table:
    case Search::Place::details:
        if (const std::optional<int> row = Search::rowOf(ListBox1, hit)) {
            ListBox1.closeCell();
            ListBox1.markRow(*row);
            return true;
        }
        return false;
    case Search::Place::journal:
        return JournalFld.showLine(hit.number, hit.line);
    default:
        return showLogLine && showLogLine(hit);
    }
}

void Window1::selectPeriod(const Finding::Period& period) {
    const std::vector<bool> rows = Finding::rowsIn(ListBox1, period);
    if (std::find(rows.begin(), rows.end(), true) == rows.end()) {
        ListBox1.select({});
        notes_.tell(tr("There are no days from %1 to %2.", {period.first.ShortDate(), period.second.ShortDate()}));
        return;
    }
    selectRows(rows);
}

void Window1::selectRows(const std::vector<bool>& rows) {
    ListBox1.select(rows);
    notes_.update();
    ListBox1.bringIntoView(ListBox1.ListIndex());
    ListBox1.SetFocus();
}

MenuHandlers Window1::daysMenu() {
    const auto last = [this](int days) { return [this, days] { selectPeriod(Finding::lastDays(days, Date())); }; };
    return {
        {"DaysGoTo", [this] { DaysGoTo_Action(); }},
        {"DaysToday", [this] { DaysToday_Action(); }},
        {"DaysFind", [this] { DaysFind_Action(); }},
        {"DaysSummary",
         [this] {
             if (showSummary)
                 showSummary();
         }},
        {"DaysSelectLast7", last(7)},
        {"DaysSelectLast14", last(14)},
        {"DaysSelectLast30", last(30)},
        {"DaysSelectLast90", last(90)},
        {"DaysSelectThisMonth", [this] { selectPeriod(Finding::monthOf(Date())); }},
        {"DaysSelectLastMonth", [this] { selectPeriod(Finding::monthBefore(Date())); }},
        {"DaysSelectAll",
         [this] { selectRows(std::vector<bool>(static_cast<std::size_t>(ListBox1.ListCount()), true)); }},
        {"DaysSelectNone", [this] { selectRows({}); }},
    };
}

// The calendar

void Window1::CalendarControl1_DayClicked() {
    const Date& day = CalendarControl1.SelectedDate();
    if (goToDay(day))
        return;
    ListBox1.markRow(-1);
    notes_.tell(tr("%1 is not in the table. A double click adds it.", {day.ShortDate()}));
}

void Window1::showBoldDays() {
    CalendarControl1.BoldDays(Finding::daysIn(ListBox1, Finding::weeksAround(CalendarControl1.ShownMonth())));
    daysShownBold_ = ListBox1.ListCount();
}

} // namespace tallyvane
