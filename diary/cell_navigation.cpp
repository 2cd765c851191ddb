#include "diary/cell_navigation.h"

#include <optional>

#include "diary/day_table.h"
#include "platform/text.h"

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
    if (key == Chr(30)) // Up
        return Target{selected - 1, column, selected - 1 >= 0};
    if (key == Chr(31)) // Down
        return Target{selected + 1, column, selected + 1 <= table.ListCount() - 1};
    if (key == Chr(28)) // Left
        return Target{row, column - 1, column - 1 >= DayTable::firstReading};
    if (key == Chr(29) || key == Chr(9)) // Right, Tab
        return Target{row, column + 1, column + 1 <= DayTable::lastReading};
    return std::nullopt;
}

} // namespace

bool moveByKey(Listbox& table, int row, int column, std::string_view key) {
    const std::optional<Target> target = targetOf(table, row, column, key);
    if (!target)
        return false;
    if (target->reachable)
        table.EditCell(target->row, target->column);
    table.ActiveCell().SelectAll();
    return true;
}

} // namespace tallyvane
