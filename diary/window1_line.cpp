/// The line beside the journal's tab: of which days the strip shows averages, or what the user should know of the last
/// step.
#include "diary/day_table.h"
#include "diary/finding.h"
#include "diary/strip_words.h"
#include "diary/window1.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "settings/usual_limits.h"

namespace tallyvane {

void Window1::showStripWords() {
    if (doubtfulUnit_ && !looksLikeMg(doubtfulUnit_->first, doubtfulUnit_->second))
        doubtfulUnit_.reset(); // the reading was corrected or has moved, or the limits were changed
    if (twins_ && Finding::rowsOf(ListBox1, *twins_).size() < 2)
        twins_.reset();
    if (twins_)
        showTwins();
    else if (doubtfulUnit_)
        showDoubtfulUnit();
    else
        StripLine.show(StripWords::ofTable(ListBox1));
}

/// Tells that the day which was just added is in the table already.
void Window1::noteTwins(const Date& day) {
    twins_ = day;
    showStripWords();
}

/// With a link that undoes the adding, as long as that is the last that was done.
void Window1::showTwins() {
    const std::string date = twins_->ShortDate();
    const auto rows = Finding::rowsOf(ListBox1, *twins_).size();
    const auto goToOther = [this, day = *twins_] {
        goToDay(day);
        ListBox1.SetFocus();
    };
    const auto undo = [this, day = *twins_] {
        if (history_.undoName() == nameOfAdding(day))
            menuHandlers.at("EditUndo")();
        ListBox1.SetFocus();
    };
    std::vector<LinkLine::Link> links{{tr("Go to the other row"), goToOther}};
    if (history_.undoName() == nameOfAdding(*twins_))
        links.push_back({tr("Undo"), undo});
    StripLine.show(rows == 2 ? tr("%1 is in the table twice.", {date})
                             : tr("%1 is in the table %2 times.", {date, Grouped(static_cast<int>(rows))}),
                   std::move(links));
}

/// Tells once of a reading that is of the other unit than the limits, as far as one can tell.
void Window1::noteUnit(int row, int column) {
    if (unitIsTold_ || !looksLikeMg(row, column))
        return;
    unitIsTold_ = true;
    doubtfulUnit_ = {row, column};
    showStripWords();
}

/// The same for the days that were brought in, which are selected.
void Window1::noteUnitOfSelected() {
    for (int row = 0; row < ListBox1.ListCount() && !unitIsTold_; ++row)
        for (int column = DayTable::firstReading; column <= DayTable::lastReading && ListBox1.Selected(row); ++column)
            noteUnit(row, column);
}

bool Window1::looksLikeMg(int row, int column) const {
    constexpr double mostInMmol = 35; // meters show less
    return Val(ListBox1.Cell(row, column)) > mostInMmol && UsualLimits::areInMmol(UsualLimits::present());
}

void Window1::showDoubtfulUnit() {
    const auto& [row, column] = *doubtfulUnit_;
    const auto close = [this] {
        doubtfulUnit_.reset();
        showStripWords();
        ListBox1.SetFocus();
    };
    StripLine.show(tr("%1 looks like mg/dL.", {ListBox1.Cell(row, column)}), {{tr("Change the limits to mg/dL"),
                                                                               [this, close] {
                                                                                   close();
                                                                                   if (offerLimits)
                                                                                       offerLimits(UsualLimits::inMg);
                                                                               }},
                                                                              {tr("Not now"), close}});
}

} // namespace tallyvane
