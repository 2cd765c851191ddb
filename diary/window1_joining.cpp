/// What other programs have made of the days and the logs, brought into the main window.
#include "diary/day_table.h"
#include "diary/running_logs.h"
#include "diary/window1.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"

namespace tallyvane {

void Window1::bringInChanges() {
    const auto change = datesInQuestion_.isEmpty() ? DayTable::changedOutside() : std::nullopt;
    if (!change || !DayMerge::isReadyToJoin(change->base, change->there))
        return;
    const DayMerge::Result joined = DayMerge::join(change->base, DayMerge::daysOf(ListBox1), change->there);
    if (joined.takesDaysAway)
        DayTable::keepBefore(*change); // what was typed here must not end with the history
    if (!joined.conflicts.empty())
        DayTable::keepOutside(*change);
    show(joined);
    DayTable::acceptOutside(ListBox1, *change, joined.isAsThere);
    tellOf(joined);
}

/// What both sides had before is not known for sure: nothing is taken away.
void Window1::bringIn(const ConflictCopies::Copy& copy) {
    const DayMerge::Result joined =
        DayMerge::joinVersion(DayTable::ancestorsOf(copy.content), DayMerge::daysOf(ListBox1), copy.content);
    show(joined);
    saveData(); // before the copy is out of sight
    ConflictCopies::putAway(copy);
    tellOf(joined);
}

/// The table as it was joined, as a step of its own.
void Window1::show(const DayMerge::Result& joined) {
    ListBox1.closeCell();
    if (joined.isAsHere)
        return;
    ListBox1.beginStep(tr("Changes of Another Program"));
    DayMerge::apply(joined, ListBox1);
    doSortColumns();
    showDaysAnew();
}

void Window1::tellOf(const DayMerge::Result& joined) {
    if (joined.daysBroughtIn > 0)
        notes_.tell(joined.daysBroughtIn == 1
                        ? tr("Another program changed the diary: 1 day brought in")
                        : tr("Another program changed the diary: %1 days brought in", {Grouped(joined.daysBroughtIn)}));
    if (!joined.conflicts.empty())
        showConflicts(joined.conflicts);
}

void Window1::showConflicts(const std::vector<DayMerge::Conflict>& conflicts) {
    if (!conflictWindow_ || !conflictWindow_->isOpen()) {
        conflictWindow_ = std::make_unique<ConflictWindow>();
        conflictWindow_->nameOfColumn = [this](int column) { return columnName(column); };
        conflictWindow_->takeOther = [this](const DayMerge::Conflict& conflict) { return takeOther(conflict); };
    }
    conflictWindow_->add(conflicts);
    conflictWindow_->Show();
}

bool Window1::takeOther(const DayMerge::Conflict& conflict) {
    ListBox1.beginStep(tr("Value of Another Program"));
    if (!DayMerge::takeOther(conflict, ListBox1))
        return false;
    doSortColumns();
    showDaysAnew();
    return true;
}

void Window1::bringInLogs() {
    if (RunningLogs::bringInChanges([this](const std::string& journal) { JournalFld.Text(journal); })) {
        if (logsBroughtIn)
            logsBroughtIn();
        notes_.tell(tr("Another program changed the journal or the logs: its lines were brought in"));
    }
}

} // namespace tallyvane
