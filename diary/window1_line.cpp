/// The line beside the journal's tab: of which days the strip shows averages, or what the user should know of the last
/// step.
#include "diary/finding.h"
#include "diary/strip_words.h"
#include "diary/window1.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "settings/usual_limits.h"

namespace tallyvane {

void Window1::showStripWords() {
    if (twins_)
        showTwins(false);
    else if (!lineStays_)
        StripLine.show(StripWords::ofTable(ListBox1));
}

/// After other days were selected, or a step was undone.
void Window1::forgetLine() {
    twins_.reset();
    lineStays_ = false;
}

/// Tells that the day which was just added is in the table already.
void Window1::noteTwins(const Date& day) {
    const bool isTwin = Finding::rowsOf(ListBox1, day).size() > 1;
    twins_ = isTwin ? std::optional(day) : std::nullopt;
    if (isTwin)
        showTwins(true);
    else
        showStripWords();
}

/// With a link that undoes the adding, as long as that is the last that was done.
void Window1::showTwins(bool justAdded) {
    const std::string date = twins_->ShortDate();
    const auto rows = Finding::rowsOf(ListBox1, *twins_).size();
    std::vector<LinkLine::Link> links{{tr("Go to the other row"), [this, day = *twins_] { goToDay(day); }}};
    if (justAdded)
        links.push_back({tr("Undo"), menuHandlers["EditUndo"]});
    StripLine.show(rows == 2 ? tr("%1 is in the table twice.", {date})
                             : tr("%1 is in the table %2 times.", {date, std::to_string(rows)}),
                   std::move(links));
}

/// Tells once that a reading is of the other unit than the limits, and offers those of its unit.
void Window1::noteUnit(double reading) {
    constexpr double mostInMmol = 35; // no meter shows more
    if (unitIsTold_ || reading <= mostInMmol || !UsualLimits::areInMmol(UsualLimits::present()))
        return;
    unitIsTold_ = true;
    lineStays_ = true;
    StripLine.show(tr("%1 is in mg/dL, your limits are in mmol/L.", {Str(reading)}),
                   {{tr("Use limits in mg/dL"), [this] { useLimitsInMg(); }}});
}

/// The limits' dialog shows what they are now, and saves them when it is closed.
void Window1::useLimitsInMg() {
    UsualLimits::use(UsualLimits::inMg);
    forgetLine();
    doAverages();
    Timer1_Action();
    if (showPreferences)
        showPreferences();
}

} // namespace tallyvane
