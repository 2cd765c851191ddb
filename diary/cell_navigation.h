#pragma once

#include <string_view>

#include "platform/controls/listbox.h"

namespace tallyvane {

/// Moves the editing by an arrow key or Tab, up and down from the selected row, sideways between the readings, and
/// selects the whole text of the cell it comes to. At the edge the cell stays, with a beep and with its text taken in
/// and selected. True when the key was one of the five.
bool moveByKey(Listbox& table, int row, int column, std::string_view key);

} // namespace tallyvane
