#include "diary/cell_navigation.h"

#include <optional>

#include "diary/cell_words.h"
#include "diary/day_table.h"
#include "platform/base/text.h"
#include "platform/controls/keys.h"
#include "platform/desktop/desktop.h"

namespace tallyvane {

namespace {

struct Target {
    int row;
    int column;
    bool reachable;
};

/// Where a key leads; nothing for a key that does not move.
std::optional<Target> targetOf(const Listbox& table, int row, int column, std::string_view key) {
    const int selected = table.ListIndex();
    if (key == Keys::up)
        return Target{selected - 1, column, selected - 1 >= 0};
    if (key == Keys::down)
        return Target{selected + 1, column, selected + 1 <= table.ListCount() - 1};
    if (key == Keys::left)
        return Target{row, column - 1, column - 1 >= DayTable::firstReading};
    if (key == Keys::right || key == Keys::tab)
        return Target{row, column + 1, column + 1 <= DayTable::lastReading};
    return std::nullopt;
}

/// What was typed is taken in, as a move takes it in. Since it is selected too, the next digit would replace it: the
/// user hears that, and learns the way to the weight where the next key would have been expected to lead there.
void stayAtEdge(Listbox& table, int column, std::string_view key) {
    table.confirmCell();
    Beep();
    if (column == DayTable::lastReading && (key == Keys::right || key == Keys::tab))
        table.showHint(CellWords::wayToWeight(table));
}

} // namespace

bool moveByKey(Listbox& table, int row, int column, std::string_view key) {
    const std::optional<Target> target = targetOf(table, row, column, key);
    if (!target)
        return false;
    if (target->reachable)
        table.EditCell(target->row, target->column);
    else
        stayAtEdge(table, column, key);
    table.ActiveCell().SelectAll();
    return true;
}

} // namespace tallyvane
