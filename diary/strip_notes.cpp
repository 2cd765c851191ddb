#include "diary/strip_notes.h"

#include "diary/day_table.h"
#include "diary/finding.h"
#include "diary/strip_words.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"

namespace tallyvane {

void StripNotes::update() {
    if (doubtfulReading_ && !looksLikeMg(doubtfulReading_->first, doubtfulReading_->second))
        doubtfulReading_.reset(); // it was corrected or has moved, or the limits were changed
    const int twins = added_ ? static_cast<int>(Finding::rowsOf(table_, *added_).size()) : 0;
    if (twins > 1)
        showTwins(twins);
    else if (doubtfulReading_)
        showDoubtfulUnit();
    else
        line_.show(StripWords::ofTable(table_));
}

void StripNotes::noteAdded(const Date& day) {
    added_ = day;
    update();
}

/// With a link that undoes the adding, as long as that is the last that was done.
void StripNotes::showTwins(int rows) {
    const Date day = *added_;
    std::vector<LinkLine::Link> links{{tr("Go to the other row"), [this, day] { goToDay(day); }}};
    if (history_.undoName() == DayTable::nameOfAdding(day))
        links.push_back({tr("Undo"), [this, day] {
                             if (history_.undoName() == DayTable::nameOfAdding(day))
                                 undo();
                         }});
    const std::string date = day.ShortDate();
    line_.show(rows == 2 ? tr("%1 is in the table twice.", {date})
                         : tr("%1 is in the table %2 times.", {date, Grouped(rows)}),
               std::move(links));
}

void StripNotes::noteReading(int row, int column) {
    if (unitIsTold_ || !looksLikeMg(row, column))
        return;
    unitIsTold_ = true;
    doubtfulReading_ = {row, column};
    update();
}

void StripNotes::noteSelectedReadings() {
    for (int row = 0; row < table_.ListCount() && !unitIsTold_; ++row)
        for (int column = DayTable::firstReading; column <= DayTable::lastReading && table_.Selected(row); ++column)
            noteReading(row, column);
}

bool StripNotes::looksLikeMg(int row, int column) const {
    constexpr double mostInMmol = 35; // meters show less
    return Val(table_.Cell(row, column)) > mostInMmol && UsualLimits::areInMmol(UsualLimits::present());
}

void StripNotes::showDoubtfulUnit() {
    const auto dismiss = [this] {
        doubtfulReading_.reset();
        update();
    };
    const auto change = [this, dismiss] {
        dismiss();
        offerLimits(UsualLimits::inMg);
    };
    const auto leave = [this, dismiss] {
        dismiss();
        dismissed();
    };
    const auto& [row, column] = *doubtfulReading_;
    line_.show(tr("%1 looks like mg/dL.", {table_.Cell(row, column)}),
               {{tr("Change the limits to mg/dL"), change}, {tr("Not now"), leave}});
}

} // namespace tallyvane
