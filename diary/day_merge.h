/// Days that another program has changed in the file are joined with those of the table, on the ground of what both
/// began with. Three texts go in: that common base, the table here, the file there.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/listbox.h"

namespace tallyvane::DayMerge {

/// The saved cells of a day.
using Day = std::vector<std::string>;

/// A cell that was changed on both sides, to different texts. The one here stands.
struct Conflict {
    std::string date;
    int row = 0; // among those of that date
    int column = 0;
    std::string here;
    std::string there;

    bool operator==(const Conflict&) const = default;
};

/// A day of the joined table.
struct Joined {
    int row = -1; // in the table here; -1 for one that comes in
    Day day;
};

struct Result {
    std::vector<Joined> days;
    int daysBroughtIn = 0; // that came, went or have changed
    std::vector<Conflict> conflicts;
    bool takesDaysAway = false; // from here
    bool isAsHere = true; // nothing came in, and the order stays
    bool isAsThere = true; // nothing here but what stands there
};

/// Whether another version of a file is to be joined: each line is a whole day; or, as an editor leaves them, some lack
/// fields, and no day of the base is missing. Else it may be half written.
[[nodiscard]] bool isReadyToJoin(const std::string& base, const std::string& there);

/// The days of the table, and of a file of it.
std::vector<Day> daysOf(const Listbox& table);
std::vector<Day> daysIn(const std::string& file);

/// Joins them day by day and cell by cell. A row is known by the day of its key, or by its date where it has none; rows
/// of one day pair in their order. What only one side has changed, added or taken out is taken over; a day that one
/// side has taken out and the other has changed stays. Averages and keys are computed cells, and no change. Both sides
/// of two programs that join the same texts get the same days in the same order.
Result join(const std::string& base, const std::vector<Day>& here, const std::string& there);

/// Joins with a version of which nobody knows what both began with. Days and readings of both stay. Of two values of a
/// cell the new one is taken, if the other one stood there in a table that the version stems from; else they are a
/// conflict.
Result joinVersion(const std::vector<std::string>& ancestors, const std::vector<Day>& here, const std::string& there);

/// Puts the value from there in the cell of a conflict, as a change of the step that was begun before. False, and
/// nothing done, when the cell does not hold the value from here any more.
[[nodiscard]] bool takeOther(const Conflict& conflict, Listbox& table);

/// Brings the result into the table that went in as `here`, as changes of one step that was begun before.
void apply(const Result& result, Listbox& table);

} // namespace tallyvane::DayMerge
