/// What is said of a cell of the day table besides its text: to those who hear the table read, and of texts that count
/// as something else than they seem to.
#pragma once

#include <string>

#include "platform/listbox.h"

namespace tallyvane::CellWords {

/// Whether a reading or a weight was typed that is not wholly a number, such as "5,6" or "1O", or lies below 0, or a
/// date that can't be read.
bool isDoubtful(const Listbox& table, int row, int column);

/// What a doubtful text counts as, such as "counts as 5", and which range the light of a word such as "HI" does not
/// mean;
/// "" for any other cell.
std::string helpTag(const Listbox& table, int row, int column);

/// How the weight is reached from the last reading, by mouse and by keyboard, under the weight's present heading.
std::string wayToWeight(const Listbox& table);

/// A cell as it is read aloud, by the name of its column: "After Lunch, 11/22/2026, 12.4, high".
std::string spoken(const Listbox& table, int row, int column, const std::string& columnName);

} // namespace tallyvane::CellWords
