/// Texts about a cell of the day table: what a screen reader says, and the help tag of an entry that does not count as
/// it looks.
#pragma once

#include <string>

#include "platform/controls/listbox.h"

namespace tallyvane::CellHelp {

/// What a doubtful text counts as, such as "counts as 5"; "" for any other cell. Doubtful is a reading or a weight that
/// is not wholly a number, such as "5,6" or "1O", or that lies below 0, and a date that can't be read. For a word such
/// as "HI" it also tells that the light does not know what is meant.
std::string helpTag(const Listbox& table, int row, int column);

/// How the weight is reached from the last reading, by mouse and by keyboard, under the weight's present heading.
std::string weightHint(const Listbox& table);

/// A cell as it is read aloud, by the name of its column: "After Lunch, 11/22/2026, 12.4, high".
std::string accessibleText(const Listbox& table, int row, int column, const std::string& columnName);

} // namespace tallyvane::CellHelp
