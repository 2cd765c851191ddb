#pragma once

#include <string>
#include <string_view>

#include "platform/controls/listbox.h"

/// A list in a file of the application's folder: a line for each row, its columns joined.
namespace tallyvane::RowFile {

/// Appends a row for each line; an empty file has one, which is empty. False, and no change, when there is no file.
/// With `replace` the list loses the rows that it had.
bool load(Listbox& list, std::string_view name, bool replace);
/// Writes all columns, after what another program has changed in the file was brought into the list; `what` names the
/// list in messages. If the file can't be opened, or writing fails (which throws IOException), the rows stay among the
/// unsaved files.
void save(Listbox& list, const std::string& what, std::string_view name);
/// Sets the list, as it was just read, as the baseline.
void setBaseline(const Listbox& list, const std::string& what, std::string_view name);

} // namespace tallyvane::RowFile
