#include "diary/cell_navigation.h"

#include <optional>

#include "diary/cell_help.h"
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

/// Keeps the cell open, with what was typed confirmed. The text is selected, so the next digit would replace it: a beep
/// warns of that. After the last reading a hint tells how to reach the weight.
void stayAtEdge(Listbox& table, int column, std::string_view key) {
    table.confirmCell();
    Beep();
    if (column == DayTable::lastReading && (key == Keys::right || key == Keys::tab))
        table.showHint(CellHelp::weightHint(table));
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
