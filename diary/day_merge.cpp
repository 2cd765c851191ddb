#include "diary/day_merge.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

#include "diary/date_forms.h"
#include "diary/date_key.h"
#include "diary/day_table.h"
#include "platform/base/text.h"
#include "platform/files/text_input_stream.h"
#include "settings/damaged_files.h"
#include "settings/data_files.h"

namespace tallyvane::DayMerge {

namespace {

/// What a row is known by: its day, and which of the rows of that day it is.
using Id = std::pair<std::string, int>;

/// The rows of one side, in their order.
struct Side {
    std::vector<Id> order;
    std::map<Id, Day> days;
    std::map<Id, int> rows;

    bool has(const Id& id) const { return days.contains(id); }
};

/// The key of its day; where it has none, that of its date, or just that text.
std::string nameOf(const Day& day) {
    const std::string& text = day[DayTable::dateColumn];
    if (const std::string& key = day[DayTable::firstKey]; !key.empty())
        return key;
    const std::optional<Date> date = ParseDate(text);
    return date ? DateKey::of(*date) : text;
}

Side sideOf(const std::vector<Day>& days) {
    Side side;
    std::map<std::string, int> counts;
    for (std::size_t row = 0; row < days.size(); ++row) {
        const Id id{nameOf(days[row]), counts[nameOf(days[row])]++};
        side.order.push_back(id);
        side.days[id] = days[row];
        side.rows[id] = static_cast<int>(row);
    }
    return side;
}

/// The columns in which a user's change can stand, but for the date, by which the row is known.
std::vector<int> typedColumns() {
    std::vector<int> columns;
    for (int column = DayTable::firstReading; column <= DayTable::lastReading; ++column)
        columns.push_back(column);
    columns.push_back(DayTable::weightColumn);
    return columns;
}

bool areEqual(const Day& a, const Day& b) {
    const std::vector<int> columns = typedColumns();
    return std::all_of(columns.begin(), columns.end(), [&](int column) {
        return a[static_cast<std::size_t>(column)] == b[static_cast<std::size_t>(column)];
    });
}

/// Of those ids that are in both.
bool isSameOrder(const Side& a, const Side& b) {
    const auto common = [](const Side& side, const Side& other) {
        std::vector<Id> ids;
        std::copy_if(side.order.begin(), side.order.end(), std::back_inserter(ids),
                     [&](const Id& id) { return other.has(id); });
        return ids;
    };
    return common(a, b) == common(b, a);
}

/// Joins the cells of a day that stands on both sides; `row` is its place among those of its date.
Day joinCells(const Day& base, const Day& here, const Day& there, int row, std::vector<Conflict>& conflicts) {
    Day joined = here;
    for (const int column : typedColumns()) {
        const auto at = static_cast<std::size_t>(column);
        if (here[at] == base[at])
            joined[at] = there[at];
        else if (there[at] != base[at] && there[at] != here[at])
            conflicts.push_back({here[DayTable::dateColumn], row, column, here[at], there[at]});
    }
    if (areEqual(joined, there))
        joined[DayTable::averageColumn] = there[DayTable::averageColumn];
    return joined;
}

class Joining {
public:
    Joining(const std::vector<Day>& base, const std::vector<Day>& here, const std::vector<Day>& there)
        : base_(sideOf(base)), here_(sideOf(here)), there_(sideOf(there)), none_(DayTable::savedColumns) {}

    Result result() {
        const bool isOrderOfThere = !isSameOrder(base_, there_) && isSameOrder(base_, here_);
        const bool isOrderOfHere = isSameOrder(base_, there_) && !isSameOrder(base_, here_);
        // Where neither or both have another order, both programs must choose the same one.
        const bool leadsThere = isOrderOfThere || (!isOrderOfHere && there_.order < here_.order);
        for (const Id& id : orderOf(leadsThere ? there_ : here_, leadsThere ? here_ : there_))
            add(id);
        std::vector<Id> kept;
        for (const Joined& day : result_.days)
            if (day.row >= 0)
                kept.push_back(here_.order[static_cast<std::size_t>(day.row)]);
        const auto removed = static_cast<int>(here_.order.size() - kept.size());
        result_.daysBroughtIn += removed;
        result_.takesDaysAway = removed > 0;
        result_.isAsHere = result_.daysBroughtIn == 0 && kept == here_.order;
        result_.isAsThere = result_.isAsThere && joinedIds_ == there_.order;
        return std::move(result_);
    }

private:
    /// The rows of the first side, and those that only the second has: each between the two common rows between which
    /// it stands there, behind what the first has between them.
    static std::vector<Id> orderOf(const Side& first, const Side& second) {
        std::map<Id, std::vector<Id>> followers; // of common rows
        std::vector<Id> waiting; // those that nothing common stands before
        std::vector<Id>* added = &waiting;
        for (const Id& id : second.order)
            if (first.has(id))
                added = &followers[id];
            else
                added->push_back(id);
        std::vector<Id> order;
        for (const Id& id : first.order) {
            if (second.has(id)) {
                order.insert(order.end(), waiting.begin(), waiting.end());
                waiting = std::move(followers[id]);
            }
            order.push_back(id);
        }
        order.insert(order.end(), waiting.begin(), waiting.end());
        return order;
    }

    void add(const Id& id) {
        const bool isHere = here_.has(id);
        const bool isThere = there_.has(id);
        const Day& base = base_.has(id) ? base_.days[id] : none_;
        if (isHere && isThere) {
            take(id, here_.rows[id], joinCells(base, here_.days[id], there_.days[id], id.second, result_.conflicts));
        } else if (isHere) {
            if (!base_.has(id) || !areEqual(base, here_.days[id])) // else it was taken out there
                take(id, here_.rows[id], here_.days[id]);
        } else if (!base_.has(id) || !areEqual(base, there_.days[id])) { // else it was taken out here
            take(id, -1, there_.days[id]);
        }
    }

    void take(const Id& id, int row, Day day) {
        result_.daysBroughtIn += row < 0 || !areEqual(day, here_.days[id]);
        result_.isAsThere = result_.isAsThere && there_.has(id) && areEqual(day, there_.days[id]);
        joinedIds_.push_back(id);
        result_.days.push_back({row, std::move(day)});
    }

    Side base_;
    Side here_;
    Side there_;
    Day none_; // a day that was not in the base
    std::vector<Id> joinedIds_;
    Result result_;
};

/// A base for days that stand on both sides: where one value of a cell was known to both and the other is new, the
/// known one.
std::vector<Day> groundOf(const std::vector<std::string>& ancestors, const std::vector<Day>& here,
                          const std::vector<Day>& there) {
    std::vector<Side> ancestorSides;
    ancestorSides.reserve(ancestors.size());
    for (const std::string& text : ancestors)
        ancestorSides.push_back(sideOf(daysIn(text)));
    const auto stoodIn = [&](const Id& id, std::size_t column, const std::string& value) {
        return std::any_of(ancestorSides.begin(), ancestorSides.end(), [&](const Side& side) {
            const auto day = side.days.find(id);
            return day != side.days.end() && day->second[column] == value;
        });
    };
    Side hereSide = sideOf(here);
    Side thereSide = sideOf(there);
    std::vector<Day> ground;
    for (const Id& id : hereSide.order) {
        if (!thereSide.has(id))
            continue;
        Day base(DayTable::savedColumns);
        for (const int column : typedColumns()) {
            const auto at = static_cast<std::size_t>(column);
            const std::string& mine = hereSide.days[id][at];
            const std::string& theirs = thereSide.days[id][at];
            const bool isMineKnown = !mine.empty() && stoodIn(id, at, mine);
            const bool isTheirsKnown = !theirs.empty() && stoodIn(id, at, theirs);
            if (isMineKnown != isTheirsKnown && !mine.empty() && !theirs.empty())
                base[at] = isMineKnown ? mine : theirs;
        }
        base[DayTable::dateColumn] = hereSide.days[id][DayTable::dateColumn];
        base[DayTable::firstKey] = hereSide.days[id][DayTable::firstKey];
        ground.push_back(std::move(base));
    }
    return ground;
}

} // namespace

Result joinVersion(const std::vector<std::string>& ancestors, const std::vector<Day>& here, const std::string& there) {
    const std::vector<Day> version = daysIn(there);
    return Joining(groundOf(ancestors, here, version), here, version).result();
}

std::vector<Day> daysOf(const Listbox& table) {
    std::vector<Day> days;
    days.reserve(static_cast<std::size_t>(table.ListCount()));
    for (int row = 0; row < table.ListCount(); ++row) {
        const auto cells = table.cells(row).first(DayTable::savedColumns);
        days.emplace_back(cells.begin(), cells.end());
    }
    return days;
}

std::vector<Day> daysIn(const std::string& file) {
    std::vector<Day> days;
    TextInputStream lines(file);
    while (!lines.EndOfFile()) {
        const std::string_view line = lines.ReadLine();
        if (line.empty())
            continue;
        FieldWalk fields(line, DataFiles::fieldSeparator);
        Day& day = days.emplace_back(DayTable::savedColumns);
        for (std::string& cell : day)
            cell = fields.next();
    }
    return days;
}

bool isReadyToJoin(const std::string& base, const std::string& there) {
    if (DamagedFiles::isWholeTable(there))
        return true;
    const Side before = sideOf(daysIn(base));
    const Side after = sideOf(daysIn(there));
    return there.ends_with('\n') && there.find('\0') == std::string::npos &&
           std::all_of(before.order.begin(), before.order.end(), [&](const Id& id) { return after.has(id); });
}

Result join(const std::string& base, const std::vector<Day>& here, const std::string& there) {
    return Joining(daysIn(base), here, daysIn(there)).result();
}

bool takeOther(const Conflict& conflict, Listbox& table) {
    int ofThatDate = 0;
    for (int row = 0; row < table.ListCount(); ++row) {
        if (table.Cell(row, DayTable::dateColumn) != conflict.date || ofThatDate++ != conflict.row)
            continue;
        const bool isAsShown = table.Cell(row, conflict.column) == conflict.here;
        if (isAsShown)
            table.Cell(row, conflict.column, conflict.there);
        return isAsShown;
    }
    return false;
}

void apply(const Result& result, Listbox& table) {
    std::set<int> kept;
    for (const Joined& joined : result.days)
        kept.insert(joined.row);
    for (int row = table.ListCount() - 1; row >= 0; --row)
        if (!kept.contains(row))
            table.RemoveRow(row);

    // Places after the rows have gone: those that stayed have closed up, those that come stand behind them.
    int next = 0;
    std::map<int, int> placeOf;
    for (const int row : kept)
        if (row >= 0)
            placeOf[row] = next++;
    std::vector<Day> fresh;
    std::vector<int> order;
    for (const Joined& joined : result.days) {
        if (joined.row < 0) {
            order.push_back(next++);
            fresh.push_back(joined.day);
            continue;
        }
        const int place = placeOf[joined.row];
        order.push_back(place);
        for (int column = DayTable::firstReading; column <= DayTable::weightColumn; ++column)
            if (const std::string& text = joined.day[static_cast<std::size_t>(column)];
                table.Cell(place, column) != text)
                table.Cell(place, column, text);
    }
    const int first = table.ListCount();
    std::vector<DateForms::DatedRow> dates;
    dates.reserve(fresh.size());
    for (const Day& day : fresh)
        dates.push_back({day[DayTable::dateColumn], day[DayTable::firstKey]});
    table.AddRows(std::move(fresh));
    DateForms::rewrite(table, DateForms::find(dates).otherForm, first); // they may come from another desktop
    if (!std::is_sorted(order.begin(), order.end()))
        table.arrange(std::move(order));
}

} // namespace tallyvane::DayMerge
