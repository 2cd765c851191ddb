#include "shell/outside_changes.h"

#include "diary/conflict_copies.h"
#include "platform/base/scoped_flag.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/files/io_exception.h"
#include "settings/snapshots.h"

namespace tallyvane {

void OutsideChanges::watch() {
    const std::string path = Snapshots::tablePath();
    if (path.empty())
        return;
    bringIn();
    window_.OutsideTimer.Action = [this] { look(); };
    watch_ = FileWatches::current().start(path, [this] { look(); });
}

/// Nothing changes under the user's fingers: while a cell is open it waits.
void OutsideChanges::look() {
    const bool isTyping = window_.isOpen() && window_.ListBox1.openRow() >= 0;
    window_.OutsideTimer.Mode(isTyping ? Timer::ModeMultiple : Timer::ModeOff);
    if (window_.isOpen() && !isTyping)
        bringIn();
}

void OutsideChanges::bringIn() {
    if (!window_.datesInQuestion().isEmpty() || isAsking_)
        return;
    try {
        window_.bringInChanges();
    } catch (const IOException&) { // no room for a copy: the next save tries again, and tells
        return;
    }
    offerConflictCopy();
}

void OutsideChanges::offerConflictCopy() {
    const std::optional<ConflictCopies::Copy> copy = ConflictCopies::first(copiesLeft_);
    if (!copy)
        return;
    const ScopedFlag asking(isAsking_); // the watch goes on
    const Answer answer = Ask(tr("Your days were changed on two computers at once. One version is open here, the other "
                                 "one is \u201c%1\u201d. Do you want to bring its days in?",
                                 {copy->path}),
                              tr("Bring Them In"), tr("Not Now"));
    if (answer == Answer::yes)
        window_.bringIn(*copy);
    else
        copiesLeft_.push_back(copy->path); // until the next start
}

} // namespace tallyvane
