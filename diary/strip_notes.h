#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "platform/base/date.h"
#include "platform/controls/link_line.h"
#include "platform/controls/list_history.h"
#include "settings/usual_limits.h"

namespace tallyvane {

/// What the line beside the journal's tab says: of which days the strip shows averages, or what the user should know of
/// the days. It never asks, and goes when it does not hold any more.
class StripNotes {
public:
    StripNotes(LinkLine& line, const Listbox& table, const ListHistory& history)
        : line_(line), table_(table), history_(history) {}

    // What the links do
    std::function<void(const Date& day)> goToDay;
    std::function<void()> undo;
    std::function<void(const UsualLimits::Limits& limits)> offerLimits;
    /// Called by the link that only takes the note away.
    std::function<void()> dismissed;

    /// Shows what holds now.
    void update();
    /// Shows a text until the next update.
    void tell(const std::string& text) { line_.show(text); }

    /// The day was just added, and may be in the table already.
    void noteAdded(const Date& day);
    /// Other days are selected now.
    void forgetAdded() { added_.reset(); }
    /// A reading was typed, and may be of the other unit than the limits. That is told once.
    void noteReading(int row, int column);
    /// The same for readings that were brought in.
    void noteSelectedReadings();

private:
    bool looksLikeMg(int row, int column) const;
    void showTwins(int rows);
    void showDoubtfulUnit();

    LinkLine& line_;
    const Listbox& table_;
    const ListHistory& history_;
    std::optional<Date> added_;
    std::optional<std::pair<int, int>> doubtfulReading_; // row and column
    bool unitIsTold_ = false;
};

} // namespace tallyvane
