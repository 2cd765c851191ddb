/// Sorting the days by a column. The list sorts by text, so each visible column has a hidden one with texts that sort
/// as its values should.
#pragma once

#include <string>
#include <string_view>

#include "platform/controls/listbox.h"

namespace tallyvane::SortKeys {

/// The digits of a value with one decimal, padded to four characters: "5.6" gives "0056". In order for values below
/// 1000 with at most one decimal; a second decimal counts as a place more.
std::string valueKey(std::string_view text);

/// Writes the keys of all rows. A date that can't be read keeps the key it has, and so does one of another desktop,
/// which reads as another day here than the one its key tells.
void rebuild(Listbox& table);
/// Sorts by a visible column: ascending, and the other way round at the next time. The keys of the values are taken
/// as they are. False, and nothing done, for any other column.
bool sortBy(Listbox& table, int column);

} // namespace tallyvane::SortKeys
